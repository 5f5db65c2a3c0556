#include "parameters/factory_settings.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/fields.h"
#include "base/session.h"
#include "base/temp_text.h"
#include "base/text.h"
#include "parameters/inif_file.h"

namespace {

// In table order. The word behind them names a line field, not a table.
constexpr const char* kTableNames[kFactoryTableCount] = {
    "RoadParam",          "RDimRoadClass88",        "RDimRoadClass",
    "RDimVehicleClass",   "SectLayerType",          "SectLayerTypeShort",
    "SectLayerPhysName",  "SectLayerTheoName",      "SectLayerAdvancedName",
    "MassCalcStandard",   "MassCalcType",           "MassCalcMode",
    "MassCalcModeExc",    "CutFillFlag",            "MassTypeCategory",
    "MassTypeConversionUnit", "MassTypeBalAccount", "SurfaceIntervals",
    "SurfaceIntervalsEFIXFI", "TunnelStandards",    "SectAnnotationMethod",
    "SectDiffAnnotationMarkMethod", "RoadType",     "RbnLayerPrefix"};

constexpr size_t kKeySize = 80;
constexpr size_t kValueSize = 201;
constexpr size_t kTagSize = 201;

// Splits a value into its text and its tag, in place. False when the value
// holds no token at all.
bool boSplitEntryValue(char* value, char** outText, char* tag) {
  tag[0] = 0;
  char* cursor = value;
  char* ignored = nullptr;
  char* text = sTokenNext(&cursor, &ignored, 0);
  if (!text) return false;
  *outText = text;
  char* tokenValue = nullptr;
  while (char* token = sTokenNext(&cursor, &tokenValue, ':')) {
    if (std::strcmp(token, "tag") != 0 || !tokenValue) continue;
    size_t length = std::strlen(tokenValue);
    if (length >= 2 && tokenValue[0] == '(' && tokenValue[length - 1] == ')') {
      tokenValue[length - 1] = 0;
      sCopy(tag, tokenValue + 1, kTagSize);
    }
  }
  return true;
}

void vFactorySectionRead(KvrInif* inif, const char* section) {
  if (!boKvrInifSetSection(inif, section)) return;
  char key[kKeySize];
  char value[kValueSize];
  char tag[kTagSize];
  for (bool more = boKvrInifGetFirstEntry(inif, key, sizeof key, value, sizeof value); more;
       more = boKvrInifGetNextEntry(inif, key, sizeof key, value, sizeof value)) {
    char* text = nullptr;
    if (!boSplitEntryValue(value, &text, tag)) continue;
    vSessionAdd(kFactoryFileName, section, key, text, tag);
  }
}

const char* sCodeKey(int code, char (&buffer)[16]) {
  std::snprintf(buffer, sizeof buffer, "%d", code);
  return buffer;
}

int iCodeOf(const char* key) { return key ? std::atoi(key) : 0; }

}  // namespace

const char* sFactoryTableName(int table) {
  return table >= 0 && table < kFactoryTableCount ? kTableNames[table] : "";
}

bool boFactorySettingsRead(const char* path) {
  if (!path || !*path) return false;
  KvrInif* inif = pKvrInifOpenPrivate(path, 0);
  if (!inif) return false;
  for (const char* section : kTableNames) vFactorySectionRead(inif, section);
  vKvrInifClose(inif);
  return true;
}

const char* sFactoryText(int table, int code) {
  char key[16];
  return sSessionGet(kFactoryFileName, sFactoryTableName(table), sCodeKey(code, key), nullptr);
}

bool boFactoryTextAndTag(const char* section, int code, const char** outText,
                         const char** outTag) {
  char key[16];
  const char* tag = "";
  const char* text = sSessionGet(kFactoryFileName, section, sCodeKey(code, key), &tag);
  if (outText) *outText = text;
  if (outTag) *outTag = tag;
  return true;
}

bool boFactoryFirst(int table, int* outCode, const char** outText) {
  return boFactoryFirstByName(sFactoryTableName(table), outCode, outText, nullptr);
}

bool boFactoryNext(int* outCode, const char** outText) {
  return boFactoryNextWithTag(outCode, outText, nullptr);
}

bool boFactoryFirstByName(const char* section, int* outCode, const char** outText,
                          const char** outTag) {
  const char* key = "";
  bool found = boSessionGetFirst(kFactoryFileName, section, &key, outText, outTag);
  if (outCode) *outCode = iCodeOf(key);
  return found;
}

bool boFactoryNextWithTag(int* outCode, const char** outText, const char** outTag) {
  const char* key = "";
  bool found = boSessionGetNext(&key, outText, outTag);
  if (outCode) *outCode = iCodeOf(key);
  return found;
}

bool boFactoryFirstKey(int table, const char** outKey, const char** outText) {
  return boSessionGetFirst(kFactoryFileName, sFactoryTableName(table), outKey, outText, nullptr);
}

bool boFactoryCodeByText(int table, const char* text, int* outCode) {
  if (!text || !*text) return false;
  int code = 0;
  const char* entryText = "";
  for (bool more = boFactoryFirst(table, &code, &entryText); more;
       more = boFactoryNext(&code, &entryText)) {
    if (std::strcmp(entryText, text) == 0) {
      if (outCode) *outCode = code;
      return true;
    }
  }
  return false;
}

const char* sMassCalcStandardField(int code) {
  if (code == 0) return nullptr;
  const char* tag = "";
  boFactoryTextAndTag(sFactoryTableName(kFactoryMassCalcStandard), code, nullptr, &tag);
  char tokens[kTagSize];
  sCopy(tokens, tag, sizeof tokens);
  char* cursor = tokens;
  char* value = nullptr;
  while (char* name = sTokenNext(&cursor, &value, ':')) {
    if (std::strcmp(name, "Field") == 0 && value) return sTempCopy(value);
  }
  return nullptr;
}

int iRmModelDefaultCalcStandard() {
  int code = 0;
  const char* text = "";
  for (bool more = boFactoryFirst(kFactoryMassCalcStandard, &code, &text); more;
       more = boFactoryNext(&code, &text)) {
    if (code != 0) return code;
  }
  return 0;
}

bool boTunnelStandardRead(int code, TunnelStandard* record) {
  const char* text = "";
  const char* tag = "";
  boFactoryTextAndTag(sFactoryTableName(kFactoryTunnelStandards), code, &text, &tag);
  sCopy(record->Name, text, sizeof record->Name);
  struct Dimension {
    const char* name;
    double TunnelStandard::*field;
  };
  static constexpr Dimension kDimensions[] = {
      {"TotalWidth", &TunnelStandard::TotalWidth},
      {"LaneWidth", &TunnelStandard::LaneWidth},
      {"CentreDistHR", &TunnelStandard::CentreDistHR},
      {"CentreHeightWR", &TunnelStandard::CentreHeightWR},
      {"WallRadius", &TunnelStandard::WallRadius},
      {"CentreHeightHR", &TunnelStandard::CentreHeightHR},
      {"HangRadius", &TunnelStandard::HangRadius}};
  char tokens[400];
  sCopy(tokens, tag, sizeof tokens);
  char* cursor = tokens;
  char* value = nullptr;
  while (char* name = sTokenNext(&cursor, &value, ':')) {
    if (!value) continue;
    for (const Dimension& dimension : kDimensions) {
      if (std::strcmp(name, dimension.name) == 0) record->*dimension.field = std::atof(value);
    }
  }
  return true;
}

int iTunnelClassFromName(const char* name) {
  if (!name) return 1;
  struct NamedClass {
    const char* name;
    int tunnelClass;
  };
  static constexpr NamedClass kClasses[] = {
      {"T4", 4},    {"T5.5", 5},  {"T8.5", 5},  {"T11.5", 5}, {"T7", 6},
      {"T9.5", 6},  {"T12.5", 6}, {"T7.5", 9},  {"T10.5", 9}, {"T13", 9},
      {"T13.5", 9}, {"T14", 9}};
  for (const NamedClass& entry : kClasses) {
    if (iCompareNoCase(name, entry.name) == 0) return entry.tunnelClass;
  }
  return 1;
}
