#include "model_file/records/frame/model_load.h"

#include <climits>
#include <cstdlib>
#include <cstring>

#include <fmt/format.h>

#include "base/file_times.h"
#include "base/messages.h"
#include "base/paths.h"
#include "base/text.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_sections.h"
#include "model_file/records/frame/migrations.h"
#include "model_file/records/frame/model_file.h"
#include "model_file/records/frame/record_families.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/chain_range_table.h"
#include "road_model/tables/special_gradings.h"
#include "section_geometry/locked_masses.h"

namespace {

RmModelLoadCallback loadCallback = nullptr;

// A version key's number; 0 for a text that holds none.
int iVersionOf(const char* text) {
  long value = std::strtol(text, nullptr, 10);
  if (value > INT_MAX) return INT_MAX;
  if (value < INT_MIN) return INT_MIN;
  return static_cast<int>(value);
}

void vReadHeadKeys(AsfFile* file, RmModel* model) {
  const char* name = "";
  const char* value = "";
  for (int index = 0; boAsfKeyAt(file, nullptr, index, &name, &value); ++index) {
    if (std::strcmp(name, "DATAVERSION") == 0) {
      model->DataVersion = iVersionOf(value);
    } else if (std::strcmp(name, "MARKET") == 0) {
      vRmModelSetMarket(model, value);
    } else if (std::strcmp(name, "GUID") == 0) {
      vRmModelSetGuid(model, value);
    }
  }
}

// The superstructure mode asks the section builder to use the special
// gradings and stone excavation slopes; a model without either has nothing
// for it to use.
void vClearUnusedSuperstructureMode(RmModel* model) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen || gen->SuperstructureMode != 1) return;
  if (boRmSpecialGradingsHasRows(RmSurfGenGet<kRmSpecialGradingsSlot>(gen))) return;
  if (boRmChainRangeTableHasRows(RmSurfGenGet<kRmStoneExcavationSlopesSlot>(gen))) return;
  gen->SuperstructureMode = 0;
}

}  // namespace

bool boRmModelFileAccepted(AsfFile* file, const char* path) {
  if (!file) return false;
  if (iCompareNoCase(sAsfFileGetType(file), kRmModelFileType) != 0) return false;
  int version = iVersionOf(sAsfKeyGetValue(file, nullptr, "DATAVERSION"));
  if (version > kRmDataVersion) {
    vMessageWarn(
        fmt::format("Can't read file \"{}\". Too new version ({})", sOrEmpty(path), version)
            .c_str());
    return false;
  }
  return true;
}

AsfFile* RmModelOpenFile(RmModel* model, const char* path) {
  // A host with a registry of known files would check the file's GUID
  // against the model's here; this library has none.
  (void)model;
  if (!path || !*path) return nullptr;
  char fullPath[kPathSize];
  if (!sPathFullTo(path, fullPath, sizeof fullPath)) return nullptr;
  AsfFile* file = AsfFileOpen(fullPath);
  if (!file) return nullptr;
  if (!boRmModelFileAccepted(file, fullPath)) {
    vAsfFileClose(file);
    return nullptr;
  }
  return file;
}

void vRmModelRead(AsfFile* file, RmModel* model, const char* path) {
  if (!file || !model) return;
  vRmModelReset(model);
  int64_t writeTime = 0;
  if (!path || !boFileGetTime(path, &writeTime)) writeTime = lFileTimeNow();
  model->FileTime = static_cast<uint64_t>(writeTime);
  model->ChangeTime = static_cast<uint64_t>(lFileTimeNow());

  vRmModelSetFileName(model, path);
  // The sections of the surface tables are read into a new, empty object.
  vRmModelSetSurfGen(model, RmSurfGenCreate());
  model->ContainerVersion = iAsfFileGetVersion(file);
  model->DataVersion = 0;
  vReadHeadKeys(file, model);

  for (const RmRecordFamily* family : RmRecordFamiliesInReadOrder()) {
    AsfSection* section =
        AsfSectionFind(file, family->Keyword, iAsfTypeOfLetter(family->Letter));
    if (section) family->Read(file, section, model, *family);
  }
  // The masses of locked sections are those of their layers as read.
  vRmModelComputeLockedMasses(model);
  vRmModelMigrate(model);
  vClearUnusedSuperstructureMode(model);
  if (loadCallback) loadCallback(model);
}

bool boRmModelLoad(RmModel* model, const char* path) {
  if (!model || !path || !*path) return false;
  char fullPath[kPathSize];
  if (!sPathFullTo(path, fullPath, sizeof fullPath)) return false;
  AsfFile* file = RmModelOpenFile(model, fullPath);
  if (!file) return false;
  vRmModelRead(file, model, fullPath);
  vAsfFileClose(file);
  return true;
}

void vRmModelSetLoadCallback(RmModelLoadCallback callback) { loadCallback = callback; }
