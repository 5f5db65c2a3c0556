#include "model_file/container/asf_clipboard.h"

#include <cstdlib>

#include "base/platform.h"
#include "model_file/container/asf_handle.h"
#include "model_file/container/asf_open.h"

namespace {

constexpr char kClipboardFileType[] = "sfi";
constexpr size_t kClipboardLimit = size_t{1} << 31;

}  // namespace

AsfFile* AsfClipboardCreate() {
  AsfFile* file = AsfFileCreate(nullptr);
  vAsfFileSetType(file, kClipboardFileType);
  return file;
}

bool boAsfClipboardCommit(AsfFile* file) {
  bool ok = false;
  const char* data = nullptr;
  size_t size = 0;
  if (boAsfFileFinish(file) && boAsfMemGet(file, &data, &size)) {
    vPlatformClipboardSet(data, size);
    ok = true;
  }
  vAsfFileClose(file);
  return ok;
}

AsfFile* AsfClipboardOpen() {
  size_t size = uPlatformClipboardGet(nullptr, 0);
  if (size == 0 || size >= kClipboardLimit) return nullptr;
  unsigned char* data = static_cast<unsigned char*>(malloc(size));
  if (!data) return nullptr;
  // The clipboard may have changed in between: take what it holds now.
  size_t held = uPlatformClipboardGet(data, size);
  AsfStream* stream = AsfStreamAdoptMem(data, held < size ? held : size);
  if (!stream) {
    free(data);
    return nullptr;
  }
  AsfFile* file = AsfFileOpenStream(stream, "mem", false);
  if (file && iPlatformCompareNoCase(sAsfFileGetType(file), kClipboardFileType, SIZE_MAX) != 0) {
    vAsfFileClose(file);
    return nullptr;
  }
  return file;
}
