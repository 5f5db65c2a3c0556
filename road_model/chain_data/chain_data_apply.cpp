#include "road_model/chain_data/chain_data_apply.h"

#include "road_model/chain_data/chain_data.h"
#include "road_model/chain_data/chain_data_types.h"

void vRmChainDataRowApplyType(const RmChainDataLine*, RmChainDataRow* row,
                              const RmChainDataType* type) {
  if (!row || !type) return;
  const RmChainDataDraw& draw = type->PlanDraw;
  row->Offs[0] = draw.TextDx;
  row->Offs[1] = draw.TextDy;
  row->Offs[2] = draw.TextRot;
  row->Offs[3] = draw.TextH;
}

void vRmChainDataRowApplyFields(const RmChainDataLine* line, RmChainDataRow* row,
                                const RmChainDataType* type) {
  if (!line || !row || !type) return;
  vRmChainDataRowApplyType(line, row, type);
  for (int i = 0; i < line->FieldCount; ++i) {
    bool number = i < type->FieldCount && i < kRmChainTypeFieldMax &&
                  type->FieldKinds[i] != kRmChainFieldText;
    vRmChainDataRowSetField(line, row, i, number ? "0" : "");
  }
}
