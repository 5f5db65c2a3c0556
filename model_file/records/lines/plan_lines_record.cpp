#include "model_file/records/lines/plan_lines_record.h"

#include <cmath>
#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_objects.h"
#include "road_model/lines/line_fields.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"

namespace {

constexpr const char* kChainField = "CHAIN";
// The last DATAVERSION of the older form.
constexpr int kLastOldFormVersion = 2;
// A start chainage this close to 0 is written as an empty field.
constexpr double kZeroChain = 0.0001;
// The centre line of a file of the older form.
constexpr long kOldLineId = 1;
constexpr const char* kOldLineName = "CL";

// What the field callback needs while one section is written.
struct FieldSource {
  const RmLines* Lines;
  char Chain[32];
};

// Field 0 is CHAIN; field i behind it is the line's free field i - 1.
bool boLineField(void* datum, const void* object, int index, const char** text) {
  auto* source = static_cast<FieldSource*>(datum);
  const auto* line = static_cast<const RmLine*>(object);
  if (index == 0) {
    double chain = dRmLineGetStartChain(line);
    if (std::fabs(chain) < kZeroChain) return false;
    std::snprintf(source->Chain, sizeof source->Chain, "%.4lf", chain);
    *text = source->Chain;
    return true;
  }
  *text = sLiLineGetField(line, iLiLinesGetFixedFieldCount(source->Lines->Handle) + index - 1);
  return (*text)[0] != 0;
}

bool boElementText(void*, const LiLine* line, int32_t element, const char** text) {
  *text = sLiElmGetText(line, element);
  return (*text)[0] != 0;
}

// The text of an `elmdata` runs to the last ")" of the record line.
void vReadElementText(void*, LiLine* line, int32_t element, const char* text, const char** end) {
  const char* close = std::strrchr(text, ')');
  size_t length = close ? static_cast<size_t>(close - text) : std::strlen(text);
  if (length > static_cast<size_t>(kLiElmTextMax)) length = kLiElmTextMax;
  char value[kLiElmTextMax + 1];
  std::memcpy(value, text, length);
  value[length] = 0;
  vLiElmSetText(line, element, value);
  if (close) *end = close + 1;
}

// Every field name of the section but CHAIN joins the lines' field table,
// in the section's order, so that a saved file keeps its columns.
void vTakeFieldNames(AsfFile* file, AsfSection* section, RmLines* lines) {
  const char* name = "";
  for (int i = 0; boAsfFieldNameAt(file, section, i, &name); ++i) {
    if (std::strcmp(name, kChainField) != 0) iLiLinesAddField(lines->Handle, name);
  }
}

void vTakeFieldValues(AsfFile* file, AsfSection* section, RmLine* line) {
  const char* name = "";
  const char* value = "";
  while (boAsfFieldNext(file, section, &name, &value)) {
    if (std::strcmp(name, kChainField) == 0) {
      vRmLineSetStartChain(line, dParseNumber(value, nullptr));
    } else {
      boLiLineSetFieldByName(line, name, value);
    }
  }
}

}  // namespace

void vRmLinesSetFieldNames(AsfFile* file, AsfSection* section, const RmLines* lines) {
  int index = 0;
  vAsfFieldNameSet(file, section, index++, kChainField);
  if (!lines) return;
  for (int i = iLiLinesGetFixedFieldCount(lines->Handle); i < iLiLinesGetFieldCount(lines->Handle);
       ++i) {
    vAsfFieldNameSet(file, section, index++, sLiLinesGetFieldName(lines->Handle, i));
  }
}

void vRmLinesWriteRecords(AsfFile* file, AsfSection* section, const RmLines* lines) {
  FieldSource source{lines, {}};
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    boAsfLineWriteElmData(file, section, line, boLineField, &source, boElementText, nullptr);
  }
}

void vRmLinesReadRecords(AsfFile* file, AsfSection* section, RmLines* lines, int dataVersion) {
  if (!lines) return;
  bool oldForm = dataVersion <= kLastOldFormVersion;
  vTakeFieldNames(file, section, lines);
  vAsfElmReadCallbackSet(file, vReadElementText);
  long id = 0;
  while (iAsfObjectNext(file, section, &id) != -1) {
    if (oldForm && id == 0) id = kOldLineId;
    RmLine* line = RmLinesAddWithId(lines, id, false);
    if (!line) continue;
    boAsfLineReadData(file, section, line, nullptr);
    vTakeFieldValues(file, section, line);
    if (oldForm) {
      vRmLineSetName(line, kOldLineName);
      vRmLineSetCenterLine(line, true);
    }
  }
  vAsfElmReadCallbackSet(file, nullptr);
}

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily&) { return RmModelGetLines(model) != nullptr; }

void vPrepare(AsfFile* file, AsfSection* section, const RmModel* model,
              const RmRecordFamily&) {
  vRmLinesSetFieldNames(file, section, RmModelGetLines(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily&) {
  vRmLinesWriteRecords(file, section, RmModelGetLines(model));
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmLines* lines = RmModelGetLines(model);
  if (lines) {
    vRmLinesClear(lines);
  } else {
    lines = RmModelGetOrCreateLines(model);
  }
  vRmLinesReadRecords(file, section, lines, model->DataVersion);
}

}  // namespace

// The plan lines' section has the empty name: its head is "[L_]".
const RmRecordFamily kRmPlanLinesFamily = {
    .Keyword = "",
    .Letter = 'L',
    .HasContent = boPresent,
    .Prepare = vPrepare,
    .Write = vWrite,
    .Read = vRead,
};
