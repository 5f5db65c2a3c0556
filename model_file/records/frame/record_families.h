// The record families of the model file, registered in one table: each
// family is one section of the file with its name and type, a test whether
// the model has something for it, a writer and a reader. The frame writes
// the families in one order and reads them in another; both orders are kept
// with the table.
#pragma once

#include <span>

struct AsfFile;
struct AsfSection;
struct RmModel;

struct RmRecordFamily {
  const char* SectionName;
  int SectionType;
  // Whether the model has something for the section; null: always written.
  bool (*HasContent)(const RmModel* model);
  // Writes the section's records; null for a section that is only read.
  void (*Write)(AsfFile* file, AsfSection* section, const RmModel* model);
  // Reads the section into the model.
  void (*Read)(AsfFile* file, AsfSection* section, RmModel* model);
  // Sets the section up before the head is written (the field names of a
  // line section); null for none.
  void (*Prepare)(AsfFile* file, AsfSection* section, const RmModel* model);
};

// Every family, in the order in which a file holds the sections.
std::span<const RmRecordFamily> RmRecordFamiliesInWriteOrder();
// Every family, in the order in which a load reads them.
std::span<const RmRecordFamily* const> RmRecordFamiliesInReadOrder();
