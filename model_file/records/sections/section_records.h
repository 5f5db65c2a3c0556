// The section families of the model file: CROSSECTIONS and LONGSECTIONS,
// which hold one section set each, and CSECTSMASSESLINES and
// LSECTSMASSESLINES, which hold the outlines of their masses.
//
// Both sets share one writer and one reader; the set's kind tells them
// apart, and a long section set has no plan lines, clip distances, flags,
// tilt or tunnel rotation in the file.
#pragma once

struct AsfFile;
struct AsfSection;
struct RmModel;
struct RmSectionSet;

// ---- A section set in a text section of any name ----

// One group per section, from ":CHAIN" to the next.
void vRmSectionSetWriteRecords(AsfFile* file, AsfSection* section, const RmSectionSet* set);
// Appends the sections of the file to `set`, whose kind must be set. False
// only for a null set.
bool boRmSectionSetReadRecords(AsfFile* file, AsfSection* section, RmSectionSet* set);

// ---- The mass outlines of a set in a line section of any name ----

// Whether some mass of the set has an outline.
bool boRmSectionSetHasMassLines(const RmSectionSet* set);
// The field names CHAIN, MASSID, EXACTLINE; before the head is written.
void vRmMassLinesSetFieldNames(AsfFile* file, AsfSection* section);
// One ":L" record per outline: the exact one first, then the simplified.
void vRmMassLinesWriteRecords(AsfFile* file, AsfSection* section, const RmSectionSet* set);
// Hangs each outline on the mass of its id in the section of its chainage
// (within 0.001); an outline without a mass is dropped.
void vRmMassLinesReadRecords(AsfFile* file, AsfSection* section, RmSectionSet* set);

// ---- The files of an older DATAVERSION ----

// The DATAVERSION of the old codes (that one alone: a negative version is
// no version 0 and keeps its codes), and the last DATAVERSION of each older
// form.
inline constexpr int kRmOldCodesVersion = 0;
inline constexpr int kRmRelockVersion = 2;
inline constexpr int kRmUnplacedSectionsVersion = 3;

// At DATAVERSION 0 the codes of section points had a group of one digit
// where the number stands now: 3.0005 was family 3, group 5.
void vRmSectionSetConvertOldCodes(RmSectionSet* set);
// Up to DATAVERSION 3 a cross section could come without its plan position:
// a section whose CLRANG values are all 0 is placed on the centre line with
// the model's SECTPARAMS.
void vRmSectionSetPlaceUnplaced(RmSectionSet* set, const RmModel* model);

// ---- The families of the model ----

bool boRmCrossSectionsPresent(const RmModel* model);
void vRmCrossSectionsWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmCrossSectionsRead(AsfFile* file, AsfSection* section, RmModel* model);

bool boRmLongSectionsPresent(const RmModel* model);
void vRmLongSectionsWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmLongSectionsRead(AsfFile* file, AsfSection* section, RmModel* model);

bool boRmCrossMassLinesPresent(const RmModel* model);
void vRmCrossMassLinesPrepare(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmCrossMassLinesWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmCrossMassLinesRead(AsfFile* file, AsfSection* section, RmModel* model);

bool boRmLongMassLinesPresent(const RmModel* model);
void vRmLongMassLinesPrepare(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmLongMassLinesWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmLongMassLinesRead(AsfFile* file, AsfSection* section, RmModel* model);
