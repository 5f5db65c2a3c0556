// A record family: one section of the model file and what the model keeps of
// it. Each family's unit exports one descriptor that says everything the
// frame needs to know: the section's keyword and container letter, whether
// the model has anything for it, and how it is prepared, written and read.
// The frame lists the descriptors in the order of the file
// (record_families.cpp); nothing else names a section of the file.
//
// A family that holds one of the two section sets, or a list that belongs to
// one kind of sections (mass types, annotation types), names that kind, so
// that one writer and one reader serve cross and long sections alike.
//
// A family whose table has objects with sections of their own (the plan
// lines of each string line layer) lists them, and the frame adds them
// behind the family's own section and writes them in that order.
#pragma once

#include <vector>

#include "model_file/container/asf_file.h"

struct RmModel;

// A section of one object of a family's table.
struct RmObjectSection {
  char Name[kAsfSectionNameSize];  // cut to the container's limit
  char Letter;                     // 'O' or 'L'
  const void* Object;              // what the section is written from
  // Sets the section up before the head is written; null for none.
  void (*Prepare)(AsfFile* file, AsfSection* section, const void* object);
  void (*Write)(AsfFile* file, AsfSection* section, const void* object);
};

// The section set of a family that holds one; kRmNoSectionSet otherwise.
inline constexpr int kRmNoSectionSet = -1;

struct RmRecordFamily {
  // The section's name in the file ("" for the plan lines, "[L_]").
  const char* Keyword;
  // The container letter of the section: 'O' for text lines, 'L' for lines.
  char Letter;
  // kRmCrossSections or kRmLongSections for a family of a section set or of
  // a list of one kind of sections.
  int SectionSet = kRmNoSectionSet;
  // Whether the model has something for the section; null: always written.
  bool (*HasContent)(const RmModel* model, const RmRecordFamily& family) = nullptr;
  // Sets the section up before the head is written (the field names of a
  // line section); null for none.
  void (*Prepare)(AsfFile* file, AsfSection* section, const RmModel* model,
                  const RmRecordFamily& family) = nullptr;
  // Writes the section's records.
  void (*Write)(AsfFile* file, AsfSection* section, const RmModel* model,
                const RmRecordFamily& family) = nullptr;
  // Reads the section into the model. Readers do not fail: what cannot be
  // read is left out. The reader of a family with object sections looks
  // them up by name itself.
  void (*Read)(AsfFile* file, AsfSection* section, RmModel* model,
               const RmRecordFamily& family) = nullptr;
  // Appends the sections of single objects that follow the family's own, in
  // the order of the file; asked only when the family's section is written.
  // Null for a family of one section.
  void (*ObjectSections)(const RmModel* model, std::vector<RmObjectSection>* sections) = nullptr;
};

// The family of the other section set: the same functions under that set's
// keyword, so that the two families of a pair differ only where the file
// does.
constexpr RmRecordFamily RmRecordFamilyForSet(RmRecordFamily family, const char* keyword,
                                              int sectionSet) {
  family.Keyword = keyword;
  family.SectionSet = sectionSet;
  return family;
}
