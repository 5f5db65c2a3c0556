#include "tools/inspect/table_rows.h"

#include "road_model/chain_data/chain_data.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/nrm_params.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/tables/chain_range_table.h"
#include "road_model/tables/closed_ditches.h"
#include "road_model/tables/erosion_protections.h"
#include "road_model/tables/landscapings.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/special_gradings.h"
#include "road_model/tables/string_lines.h"
#include "road_model/tables/surface_border_lines.h"
#include "road_model/tables/vips_special_gradings.h"
#include "road_model/tunnel/ditch_param_data.h"
#include "road_model/tunnel/tunnel_blocks.h"
#include "road_model/tunnel/tunnel_data.h"
#include "road_model/tunnel/tunnel_param_data.h"

namespace {

// The chain range tables of the surface tables object by slot.
struct ChainRangeSlot {
  RmSurfGenSlot Slot;
  const char* Name;
};
constexpr ChainRangeSlot kChainRangeSlots[] = {
    {kRmRockBenchesSlot, "ROCKBENCHS"},
    {kRmMinDitchDepthsSlot, "MINDITCHDEPTHS"},
    {kRmStoneExcavationSlopesSlot, "STONEEXCAVATIONSLOPES"},
    {kRmDeepRockBlastsSlot, "DEEPROCKBLASTS"},
    {kRmFillDitchesSlot, "FILLDITCHES"},
    {kRmRemovalTopsoilsSlot, "REMOVALTOPSOILS"},
    {kRmUnsuitableSoilsSlot, "UNSUITABLESOILS"},
    {kRmSoilCutPlastersSlot, "SOILCUTPLASTERS"},
};

long lChainRangeListRows(const RmChainRangeList* list) {
  long rows = 0;
  for (const RmChainRangeRow* row = RmChainRangeGetFirst(list); row;
       row = RmChainRangeGetNext(row)) {
    ++rows;
  }
  return rows;
}

// Side 0 is the one list of a kind without sides, 1 and 2 are left and right.
long lChainRangeRows(const RmChainRangeTable* table) {
  if (table->Kind && table->Kind->Sides == 2) {
    return lChainRangeListRows(RmChainRangeTableGetLeft(table)) +
           lChainRangeListRows(RmChainRangeTableGetRight(table));
  }
  return lChainRangeListRows(RmChainRangeTableGetRows(table));
}

long lLandscapingRows(const RmLandscapings* table) {
  long rows = 0;
  for (int side = 1; side <= 2; ++side) {
    for (const RmLandscaping* entry = RmLandscapingsGetFirst(RmLandscapingsGetSide(table, side));
         entry; entry = RmLandscapingGetNext(entry)) {
      ++rows;
    }
  }
  return rows;
}

long lSpecialGradingRows(const RmSpecialGradings* table) {
  long rows = 0;
  for (const RmSpecialGradingChain* chain = RmSpecialGradingChainsGetFirst(table); chain;
       chain = RmSpecialGradingChainGetNext(chain)) {
    ++rows;
  }
  return rows;
}

long lVipsSpecialGradingRows(const RmVipsSpecialGradings* table) {
  long rows = 0;
  for (const RmVipsSpecialGrading* entry = RmVipsSpecialGradingsGetFirst(table); entry;
       entry = RmVipsSpecialGradingGetNext(entry)) {
    ++rows;
  }
  return rows;
}

long lClosedDitchRows(const RmClosedDitches* table) {
  long rows = 0;
  for (const RmClosedDitch* ditch = RmClosedDitchesGetFirst(table); ditch;
       ditch = RmClosedDitchGetNext(ditch)) {
    ++rows;
  }
  return rows;
}

long lStringLineRows(const RmStringLines* table) {
  long rows = 0;
  for (const RmStringLineLayer* layer = RmStringLinesGetFirst(table); layer;
       layer = RmStringLineGetNext(layer)) {
    ++rows;
  }
  return rows;
}

long lSurfaceGroupRows(const RmSurfaceGroups* groups) {
  long rows = 0;
  for (const RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups); group;
       group = RmSurfaceGroupGetNext(group)) {
    ++rows;
  }
  return rows;
}

long lSideBoundaryRows(const RmSideBoundaries* boundaries) {
  long rows = 0;
  for (int side = 1; side <= 2; ++side) {
    for (const RmSideBoundary* row =
             RmSideBoundariesGetFirst(RmSideBoundariesGetSide(boundaries, side));
         row; row = RmSideBoundaryGetNext(row)) {
      ++rows;
    }
  }
  return rows;
}

long lSurfaceBorderLineRows(const RmSurfaceBorderLines* lines) {
  long rows = 0;
  for (const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(lines); row;
       row = RmSurfaceBorderLineGetNext(row)) {
    ++rows;
  }
  return rows;
}

// Values along the road of every code, and the branch rows.
long lNrmParamRows(const RmNrmParams* params) {
  long rows = 0;
  for (auto* param = static_cast<const NrmParam*>(params->codes.first); param;
       param = param->next) {
    rows += lSLinkCount(&param->values);
  }
  return rows + lSLinkCount(&params->branches);
}

long lChainDataRows(const RmChainData* data) {
  long rows = 0;
  for (auto* line = static_cast<const RmChainDataLine*>(data->Lines.first); line;
       line = line->Next) {
    rows += lSLinkCount(&line->Rows);
  }
  return rows;
}

long lTunnelParamRows(const RmTunnelParamData* data) {
  long rows = 0;
  for (auto* layer = static_cast<const RmTunnelParamLayer*>(data->Layers.first); layer;
       layer = layer->Next) {
    rows += lSLinkCount(&layer->Ranges);
  }
  return rows;
}

}  // namespace

std::vector<TableRows> ModelTableRows(const RmModel* model) {
  std::vector<TableRows> tables;
  if (const RmSurfGen* gen = RmModelGetSurfGen(model)) {
    if (auto* groups = RmSurfGenGet<kRmSurfaceGroupsSlot>(gen)) {
      tables.push_back({"SURFGEN", lSurfaceGroupRows(groups)});
    }
    for (const ChainRangeSlot& slot : kChainRangeSlots) {
      if (auto* table = static_cast<const RmChainRangeTable*>(pRmSurfGenGetTable(gen, slot.Slot))) {
        tables.push_back({slot.Name, lChainRangeRows(table)});
      }
    }
    if (auto* table = RmSurfGenGet<kRmLandscapingsSlot>(gen)) {
      tables.push_back({"LANDSCAPINGS", lLandscapingRows(table)});
    }
    if (auto* table = RmSurfGenGet<kRmErosionProtectionsSlot>(gen)) {
      tables.push_back({"EROSIONPROTECTIONS",
                        static_cast<long>(table->Left.size() + table->Right.size())});
    }
    if (auto* table = RmSurfGenGet<kRmSpecialGradingsSlot>(gen)) {
      tables.push_back({"SPECIALGRADINGS", lSpecialGradingRows(table)});
    }
    if (auto* table = RmSurfGenGet<kRmVipsSpecialGradingsSlot>(gen)) {
      tables.push_back({"VIPSSPECIALGRADINGS", lVipsSpecialGradingRows(table)});
    }
    if (auto* table = RmSurfGenGet<kRmClosedDitchesSlot>(gen)) {
      tables.push_back({"CLOSEDDITCHES", lClosedDitchRows(table)});
    }
    if (auto* table = RmSurfGenGet<kRmStringLinesSlot>(gen)) {
      tables.push_back({"STRINGLINESLAYERS", lStringLineRows(table)});
    }
  }
  if (auto* table = RmModelGetSideBoundaries(model)) {
    tables.push_back({"SIDEBOUNDARIES", lSideBoundaryRows(table)});
  }
  if (auto* table = RmModelGetSurfaceBorderLines(model)) {
    tables.push_back({"SURFACEBORDERLINES", lSurfaceBorderLineRows(table)});
  }
  if (auto* table = RmModelGetNrmParams(model)) {
    tables.push_back({"NRMPARAMS", lNrmParamRows(table)});
  }
  if (auto* table = RmModelGetChainData(model)) {
    tables.push_back({"CHAINDATA", lChainDataRows(table)});
  }
  if (auto* table = RmModelGetTunnelData(model)) {
    tables.push_back(
        {"TUNNELDATA", lSLinkCount(&table->Sections) + lSLinkCount(&table->Rotations)});
  }
  if (auto* table = RmModelGetTunnelParamData(model)) {
    tables.push_back({"TUNNELPARAMDATA", lTunnelParamRows(table)});
  }
  if (auto* table = RmModelGetTunnelBlocks(model)) {
    tables.push_back({"TUNNELBLOCKS", lSLinkCount(&table->Blocks)});
    tables.push_back({"TUNNELBLOCKINSERTS", lSLinkCount(&table->Inserts)});
  }
  if (auto* table = RmModelGetDitchParamData(model)) {
    tables.push_back({"DITCHPARAMDATA",
                      lSLinkCount(&table->PipeSpaces) + lSLinkCount(&table->PipeFoundations)});
  }
  return tables;
}
