// The plan line families of the model file: the line section with the empty
// name (type L, the plan geometry with CHAIN and the line fields), VERLINE
// (the vertical lines), DIFFALTITUDES (their difference tables) and
// CHAINEQUATIONS.
//
// The line section and VERLINE also hold the string lines of a layer under
// other section names; the functions on RmLines serve both.
#pragma once

struct AsfFile;
struct AsfSection;
struct RmLines;
struct RmModel;

// The section names.
inline constexpr const char* kRmLinesSectionName = "";
inline constexpr const char* kRmVerLineSectionName = "VERLINE";
inline constexpr const char* kRmDiffAltitudesSectionName = "DIFFALTITUDES";
inline constexpr const char* kRmChainEquationsSectionName = "CHAINEQUATIONS";

// The last DATAVERSION of the older forms.
inline constexpr int kRmOldLinesVersion = 2;          // lines, VERLINE, DIFFALTITUDES
inline constexpr int kRmOldChainEquationsVersion = 12;

// ---- A line section of any name ----

// The field names of the section: CHAIN, then the free fields of the lines'
// field table in their order. Runs before the head is written.
void vRmLinesSetFieldNames(AsfFile* file, AsfSection* section, const RmLines* lines);
// One ":L" record per line, in the lines' order.
void vRmLinesWriteRecords(AsfFile* file, AsfSection* section, const RmLines* lines);
// Adds a line for each record: geometry, start chainage and field values.
// Files of DATAVERSION 2 or older hold the one centre line.
void vRmLinesReadRecords(AsfFile* file, AsfSection* section, RmLines* lines, int dataVersion);

// ---- A VERLINE section of any name ----

// Whether any line has a vertical line.
bool boRmLinesHaveVerLines(const RmLines* lines);
void vRmVerLinesWriteRecords(AsfFile* file, AsfSection* section, const RmLines* lines);
// Gives each line of a group a new vertical line, adding the line when it is
// missing, and computes it.
void vRmVerLinesReadRecords(AsfFile* file, AsfSection* section, RmLines* lines, int dataVersion);

// ---- The families of the model ----

bool boRmPlanLinesPresent(const RmModel* model);
void vRmPlanLinesPrepare(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmPlanLinesWrite(AsfFile* file, AsfSection* section, const RmModel* model);
// Empties the model's lines (or makes them) and reads the section.
void vRmPlanLinesRead(AsfFile* file, AsfSection* section, RmModel* model);

bool boRmVerLinesPresent(const RmModel* model);
void vRmVerLinesWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmVerLinesRead(AsfFile* file, AsfSection* section, RmModel* model);

bool boRmDiffAltitudesPresent(const RmModel* model);
void vRmDiffAltitudesWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmDiffAltitudesRead(AsfFile* file, AsfSection* section, RmModel* model);

bool boRmChainEquationsPresent(const RmModel* model);
void vRmChainEquationsWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmChainEquationsRead(AsfFile* file, AsfSection* section, RmModel* model);
