// The head sections of the model file: small sections of keyword lines.
// Each family has a test whether the model has something to write, a writer
// of the section's lines and a reader that builds the object anew from them
// (keywords that the section leaves out keep the object's defaults).
#pragma once

struct AsfFile;
struct AsfSection;
struct RmModel;

// ADMDATA: PROJECTINFO, PROJECTDESCR (line breaks kept) and EMPLOYER.
bool boRmAdmDataPresent(const RmModel* model);
void vRmAdmDataWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmAdmDataRead(AsfFile* file, AsfSection* section, RmModel* model);

// HYPERLINKSDATA: one line " name:target" per link.
bool boRmHyperlinksPresent(const RmModel* model);
void vRmHyperlinksWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmHyperlinksRead(AsfFile* file, AsfSection* section, RmModel* model);

// SECTPARAMS: every keyword, always.
bool boRmSectParamsPresent(const RmModel* model);
void vRmSectParamsWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmSectParamsRead(AsfFile* file, AsfSection* section, RmModel* model);

// SECTTRIANGULATIONPARAMS: every keyword, always.
bool boRmSectTriangulationParamsPresent(const RmModel* model);
void vRmSectTriangulationParamsWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmSectTriangulationParamsRead(AsfFile* file, AsfSection* section, RmModel* model);

// ROADDIMPARAMS: the old form or the new one, by the model's market.
bool boRmRoadDimParamsPresent(const RmModel* model);
void vRmRoadDimParamsWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmRoadDimParamsRead(AsfFile* file, AsfSection* section, RmModel* model);

// MASSCALC: the model's calculation settings; written in every file.
void vRmMassCalcWrite(AsfFile* file, AsfSection* section, const RmModel* model);
void vRmMassCalcRead(AsfFile* file, AsfSection* section, RmModel* model);
