#include "model_file/records/tunnel/tunnel_data_record.h"

#include "model_file/records/tunnel/tunnel_data_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/tunnel/tunnel_data.h"

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmTunnelDataHasRows(RmModelGetTunnelData(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmTunnelDataWrite(file, section, RmModelGetTunnelData(model));
}

// A reader that fails leaves no tunnel data in the model.
void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  vRmModelSetTunnelData(model, RmTunnelDataRead(file, section));
}

}  // namespace

RmTunnelData* RmTunnelDataRead(AsfFile* file, AsfSection* section) {
  RmTunnelDataReading reading{.Data = RmTunnelDataCreate()};
  if (!reading.Data) return nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    vRmTunnelDataReadLine(&reading, &line);
  }
  return reading.Data;
}

const RmRecordFamily kRmTunnelDataFamily = {
    .Keyword = "TUNNELDATA",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
