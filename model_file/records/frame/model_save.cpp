#include "model_file/records/frame/model_save.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "base/file_times.h"
#include "base/paths.h"
#include "base/platform.h"
#include "base/temp_files.h"
#include "model_file/records/frame/model_write.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"

namespace {

// Writes the model under a new temporary name, in the system's folder for
// temporary files when `useSystemFolder` is set (and allowed), else beside
// the target. The written file's name, or empty when none could be made or
// the writing failed. A failed write in the system's folder is removed;
// one beside the target stays. A file that could not be flushed to the disk
// is removed wherever it lies: a crash may leave anything in it.
std::string sWriteTemporary(const RmModel* model, const char* target, bool useSystemFolder) {
  std::string temporary = sTempFileNear(target, useSystemFolder);
  if (temporary.empty()) return temporary;
  if (!boRmModelWrite(model, temporary.c_str())) {
    if (useSystemFolder) boPlatformDeleteFile(temporary.c_str());
    return std::string();
  }
  if (boPlatformFlushFile(temporary.c_str())) return temporary;
  boPlatformDeleteFile(temporary.c_str());
  return std::string();
}

// Flushes the folder of `target`, so that the move is on the disk too.
void vFlushFolderOf(const char* target) {
  std::string folder(std::max(std::strlen(target) + 1, kPathSize), '\0');
  sPathDirectoryTo(target, folder.data(), folder.size());
  boPlatformFlushDirectory(folder.c_str());
}

}  // namespace

bool boRmModelSave(RmModel* model, const char* path) {
  if (!model) return false;
  if (path) vRmModelSetFileName(model, path);
  const char* target = model->FileName;
  if (!*target) return false;

  std::string temporary = sWriteTemporary(model, target, true);
  if (temporary.empty()) temporary = sWriteTemporary(model, target, false);
  if (temporary.empty()) return false;
  // The move replaces the target in one step; if it fails, the old file
  // stays and the new one lies under the temporary name.
  if (!boPlatformMoveFile(temporary.c_str(), target)) return false;
  // The new file has taken the target's name and there is no way back: a
  // folder that cannot be flushed does not make the save a failure.
  vFlushFolderOf(target);

  vRmModelSetDirty(model, false);
  vRmSurfGenClearChanged(RmModelGetSurfGen(model));
  int64_t writeTime = 0;
  if (boFileGetTime(target, &writeTime)) model->FileTime = static_cast<uint64_t>(writeTime);
  return true;
}
