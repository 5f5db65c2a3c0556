// Line and polygon records: ":L" and ":Y" with their extent, field values,
// GUID, the polygon mark of lines and the element block.
#include "model_file/container/asf_line_record.h"

#include "geometry/line_measure.h"
#include "model_file/container/asf_element_block.h"
#include "model_file/container/asf_field_values.h"
#include "model_file/container/asf_record_input.h"
#include "model_file/container/asf_record_output.h"

namespace {

bool boWriteLineRecord(AsfFile* file, AsfSection* section, const LiLine* line, int type,
                       AsfFieldCallback fieldCallback, void* datum,
                       AsfElmDataCallback elmCallback, void* elmDatum) {
  if (!line) return false;
  ViExtent extent;
  vLiLineGetExtent(line, &extent);
  AsfRecordOutput output;
  if (!boAsfRecordBegin(&output, file, section, type, extent)) return false;
  vAsfOutputFormat(&output, ":%c %ld", type == kAsfTypePolygon ? 'Y' : 'L', lLiLineGetID(line));
  vAsfOutputExtent(&output, extent);
  vAsfFieldValuesWrite(&output, section, line, fieldCallback, datum);
  vAsfOutputFormat(&output, "GUID %s", sLiLineGetGuid(line));
  if (type == kAsfTypeLine && boLiLineIsPolygon(line)) vAsfOutputText(&output, "_ASPOLY");
  vAsfElementBlockWrite(&output, line, elmCallback, elmDatum);
  return boAsfOutputFlush(&output);
}

// Fills `line` with the pending record. `polygon` reads a ":Y" record; a
// ":L" record is read also when nothing is pending.
bool boReadLineRecord(AsfFile* file, AsfSection* section, LiLine* line, void* datum,
                      bool polygon) {
  if (!file || !section || !line || !file->pReader) return false;
  int32_t pending = file->iPendingType;
  if (polygon ? pending != kAsfTypePolygon
              : pending != kAsfNoPendingType && pending != kAsfTypeLine) {
    return false;
  }
  file->iPendingType = kAsfNoPendingType;
  file->pReadDatum = datum;
  vLiLineSet3d(line, file->bo3D);
  vLiLineSetPolygon(line, polygon || file->boAsPolygon || file->boOldPolygon);
  vLiLineSetGuid(line, file->acGuid);
  vAsfElementBlockRead(file, line);
  return true;
}

}  // namespace

bool boAsfLineWrite(AsfFile* file, AsfSection* section, const LiLine* line,
                    AsfFieldCallback fieldCallback, void* datum) {
  return boWriteLineRecord(file, section, line, kAsfTypeLine, fieldCallback, datum, nullptr,
                           nullptr);
}

bool boAsfLineWriteElmData(AsfFile* file, AsfSection* section, const LiLine* line,
                           AsfFieldCallback fieldCallback, void* datum,
                           AsfElmDataCallback elmCallback, void* elmDatum) {
  return boWriteLineRecord(file, section, line, kAsfTypeLine, fieldCallback, datum, elmCallback,
                           elmDatum);
}

bool boAsfPolygonWrite(AsfFile* file, AsfSection* section, const YgPolygon* polygon,
                       AsfFieldCallback fieldCallback, void* datum) {
  return boWriteLineRecord(file, section, polygon, kAsfTypePolygon, fieldCallback, datum,
                           nullptr, nullptr);
}

void vAsfElmReadCallbackSet(AsfFile* file, AsfElmReadCallback callback) {
  if (file) file->pfnElmRead = callback;
}

bool boAsfLineRead(AsfFile* file, AsfSection* section, LiLine* line) {
  return boReadLineRecord(file, section, line, nullptr, false);
}

bool boAsfLineReadData(AsfFile* file, AsfSection* section, LiLine* line, void* datum) {
  return boReadLineRecord(file, section, line, datum, false);
}

bool boAsfPolygonRead(AsfFile* file, AsfSection* section, YgPolygon* polygon) {
  return boReadLineRecord(file, section, polygon, nullptr, true);
}
