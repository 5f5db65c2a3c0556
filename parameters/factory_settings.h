// The factory settings: the system's vocabulary, read once per conversion
// from an initialisation file into the session dictionary under the file
// name "Sfile".
//
// An entry's value is a text (in double quotes when it holds blanks),
// optionally followed by a tag `tag:(name:value ...)`. Lookups run against
// the dictionary; their texts stand until the session is cleared.
#pragma once

// The settings tables; the number is the table's index for the lookups.
enum FactoryTable {
  kFactoryRoadParam = 0,
  kFactoryRDimRoadClass88,
  kFactoryRDimRoadClass,
  kFactoryRDimVehicleClass,
  kFactorySectLayerType,
  kFactorySectLayerTypeShort,
  kFactorySectLayerPhysName,
  kFactorySectLayerTheoName,
  kFactorySectLayerAdvancedName,
  kFactoryMassCalcStandard,
  kFactoryMassCalcType,
  kFactoryMassCalcMode,
  kFactoryMassCalcModeExc,
  kFactoryCutFillFlag,
  kFactoryMassTypeCategory,
  kFactoryMassTypeConversionUnit,
  kFactoryMassTypeBalAccount,
  kFactorySurfaceIntervals,
  kFactorySurfaceIntervalsEFIXFI,
  kFactoryTunnelStandards,
  kFactorySectAnnotationMethod,
  kFactorySectDiffAnnotationMarkMethod,
  kFactoryRoadType,
  kFactoryRbnLayerPrefix,
  kFactoryTableCount
};

// The dictionary's file name of the settings.
inline constexpr const char* kFactoryFileName = "Sfile";

// The section name of a table; the empty text outside the table.
const char* sFactoryTableName(int table);

// Reads every table of the file into the current session. False when the
// path is null or empty or the file cannot be opened; a missing table is no
// failure.
bool boFactorySettingsRead(const char* path);

// ---- Lookups ----

// The text of `code` in a table; the empty text when there is none.
const char* sFactoryText(int table, int code);
// The text and the tag of `code` in the section `section`. Always true once
// the lookup ran: a caller tests the text.
bool boFactoryTextAndTag(const char* section, int code, const char** outText,
                         const char** outTag);

// Walks a table in ascending order of its codes. One walk at a time.
bool boFactoryFirst(int table, int* outCode, const char** outText);
bool boFactoryNext(int* outCode, const char** outText);
bool boFactoryFirstByName(const char* section, int* outCode, const char** outText,
                          const char** outTag);
bool boFactoryNextWithTag(int* outCode, const char** outText, const char** outTag);
// The first entry of a table with its key as text.
bool boFactoryFirstKey(int table, const char** outKey, const char** outText);
// The code of the first entry whose text equals `text` byte for byte.
bool boFactoryCodeByText(int table, const char* text, int* outCode);

// ---- Tag readers ----

// The value of `Field` in the tag of a mass calculation standard, as a
// temporary text; null for code 0 or when there is none.
const char* sMassCalcStandardField(int code);
// The first non-zero code of the mass calculation standards, or 0.
int iRmModelDefaultCalcStandard();

// A tunnel standard's name and dimensions (metres).
struct TunnelStandard {
  char Name[201];
  double TotalWidth;
  double LaneWidth;
  double CentreDistHR;
  double CentreHeightWR;
  double WallRadius;
  double CentreHeightHR;
  double HangRadius;
};

// Fills `record` from the entry `code` of the tunnel standards; a missing
// entry gives an empty name. Always true.
bool boTunnelStandardRead(int code, TunnelStandard* record);
// The tunnel class of a standard's name: 4, 5, 6 or 9; 1 for any other.
int iTunnelClassFromName(const char* name);
