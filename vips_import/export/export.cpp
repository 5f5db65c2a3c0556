// The library's one exported function: a whole conversion in one call.
#include "kvrvips/kvrvips.h"

#include "base/messages.h"
#include "base/paths.h"
#include "base/platform.h"
#include "base/session.h"
#include "model_file/records/frame/model_load.h"
#include "model_file/records/frame/model_save.h"
#include "parameters/factory_settings.h"
#include "road_model/model/model.h"
#include "vips_import/driver/import_guarded.h"

namespace {

// Room for the saved search path of dynamic libraries.
constexpr size_t kLibrarySearchPathSize = 2000;

// With the factory settings read: the model is loaded, imported into and,
// when the import went through, saved. The libraries that the import opens
// are looked for beside this one meanwhile.
int iConvertWithSettings(const char* genFile, const char* modelFile, uint32_t importFlags,
                         char** logFileOut, uint32_t describeOpenError,
                         uint32_t convertFirst) {
  char module[kPathSize];
  boPlatformModulePath(module, sizeof module);
  char savedSearchPath[kLibrarySearchPathSize];
  boPlatformGetLibrarySearchPath(savedSearchPath, sizeof savedSearchPath);
  char moduleDirectory[kPathSize];
  vPlatformSetLibrarySearchPath(sPathDirectoryTo(module, moduleDirectory, sizeof moduleDirectory));

  RmModel* model = RmModelCreate();
  // A model file that is missing or cannot be read is no failure: the
  // import fills the new model.
  boRmModelLoad(model, modelFile);
  int result = iVipsImportGuarded(genFile, model, importFlags, logFileOut, describeOpenError,
                                  convertFirst);

  // An empty saved path is restored as no path at all, not as an empty one.
  vPlatformSetLibrarySearchPath(savedSearchPath[0] ? savedSearchPath : nullptr);

  // A failed import leaves the model file exactly as it was.
  if (result >= 0 && !boRmModelSave(model, modelFile)) result = -1;
  vRmModelDelete(model);
  return result;
}

}  // namespace

extern "C" KVRVIPS_API int iKvrVipsConvertDatabase(const char* genFile, const char* modelFile,
                                                   uint32_t importFlags, char** logFileOut,
                                                   const char* factorySettingsFile,
                                                   uint32_t describeOpenError,
                                                   uint32_t convertFirst) {
  // The first session of the process gives null and is the primary one;
  // deleting null deletes it again.
  SessionContext* session = pSessionCreate();
  vSessionClear();
  int result = -1;
  if (boFactorySettingsRead(factorySettingsFile)) {
    result = iConvertWithSettings(genFile, modelFile, importFlags, logFileOut,
                                  describeOpenError, convertFirst);
  } else {
    vMessageWarn("Failed to read SORNLIB_FACTORY_SETTINGS");
  }
  vSessionDelete(session);
  return result;
}
