// Reads arbitrary bytes as a road model file, through a container in
// memory, into a model, and writes the model again to memory. Every file
// that the writer makes must open again as a model file.
#include <cstddef>
#include <cstdint>

#include "base/platform.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/frame/model_load.h"
#include "model_file/records/frame/model_write.h"
#include "road_model/model/model.h"

namespace {

// A too new file shows a message box; the fuzzer has nobody to show it to.
int iSilentMessage(const char*, const char*, unsigned int type) {
  return iPlatformDefaultButton(type);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  pfnPlatformSetMessageHandler(iSilentMessage);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  AsfFile* file = AsfFileOpenMem(data, size);
  if (!file) return 0;
  RmModel* model = RmModelCreate();
  if (boRmModelFileAccepted(file, "mem")) vRmModelRead(file, model, "mem");
  vAsfFileClose(file);

  AsfFile* copy = AsfFileCreate(nullptr);
  if (!boRmModelWriteFile(copy, model) || !boAsfFileFinish(copy)) __builtin_trap();
  const char* bytes = nullptr;
  size_t byteCount = 0;
  if (!boAsfMemGet(copy, &bytes, &byteCount)) __builtin_trap();
  AsfFile* again = AsfFileOpenMem(bytes, byteCount);
  if (!again || !boRmModelFileAccepted(again, "mem")) __builtin_trap();
  vAsfFileClose(again);
  vAsfFileClose(copy);
  vRmModelDelete(model);
  return 0;
}
