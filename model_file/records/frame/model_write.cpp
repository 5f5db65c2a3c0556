#include "model_file/records/frame/model_write.h"

#include <cstdio>
#include <vector>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_sections.h"
#include "model_file/records/frame/model_file.h"
#include "model_file/records/frame/record_families.h"
#include "road_model/model/model.h"

namespace {

// A section of one object, added behind its family's own section.
struct AddedObjectSection {
  AsfSection* Section;
  RmObjectSection Source;
};

std::vector<AddedObjectSection> AddObjectSections(AsfFile* file, const RmModel* model,
                                                  const RmRecordFamily& family) {
  std::vector<AddedObjectSection> added;
  if (!family.ObjectSections) return added;
  std::vector<RmObjectSection> sources;
  family.ObjectSections(model, &sources);
  for (const RmObjectSection& source : sources) {
    AsfSection* section = AsfSectionAdd(file, source.Name, iAsfTypeOfLetter(source.Letter));
    if (!section) continue;
    if (source.Prepare) source.Prepare(file, section, source.Object);
    added.push_back({section, source});
  }
  return added;
}

void vSetHeadKeys(AsfFile* file, const RmModel* model) {
  char version[16];
  std::snprintf(version, sizeof version, "%d", kRmDataVersion);
  vAsfKeySet(file, nullptr, "DATAVERSION", version);
  if (model->Market[0]) vAsfKeySet(file, nullptr, "MARKET", model->Market);
  if (model->Guid && *model->Guid) vAsfKeySet(file, nullptr, "GUID", model->Guid);
}

}  // namespace

bool boRmModelWriteFile(AsfFile* file, const RmModel* model) {
  if (!file || !model) return false;
  vAsfFileSetType(file, kRmModelFileType);
  vSetHeadKeys(file, model);

  std::span<const RmRecordFamily* const> families = RmRecordFamiliesInWriteOrder();
  std::vector<AsfSection*> sections(families.size(), nullptr);
  std::vector<std::vector<AddedObjectSection>> objectSections(families.size());
  for (size_t i = 0; i < families.size(); ++i) {
    const RmRecordFamily& family = *families[i];
    if (!family.Write || (family.HasContent && !family.HasContent(model, family))) continue;
    sections[i] = AsfSectionAdd(file, family.Keyword, iAsfTypeOfLetter(family.Letter));
    if (family.Prepare) family.Prepare(file, sections[i], model, family);
    objectSections[i] = AddObjectSections(file, model, family);
  }
  if (!boAsfFileWriteHead(file)) return false;
  for (size_t i = 0; i < families.size(); ++i) {
    if (sections[i]) families[i]->Write(file, sections[i], model, *families[i]);
    for (const AddedObjectSection& added : objectSections[i]) {
      added.Source.Write(file, added.Section, added.Source.Object);
    }
  }
  return !boAsfFileWriteFailed(file);
}

bool boRmModelWrite(const RmModel* model, const char* path) {
  if (!model || !path || !*path) return false;
  AsfFile* file = AsfFileCreate(path);
  if (!file) return false;
  bool written = boRmModelWriteFile(file, model);
  // The end of the file and the flush of what is still buffered count too:
  // a file without its end would be refused by every later load.
  written = boAsfFileFinish(file) && written;
  vAsfFileClose(file);
  return written;
}
