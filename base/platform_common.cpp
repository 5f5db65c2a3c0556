// The part of the platform layer that is the same on every system: the
// process-wide handlers that stand between the library and the system's
// message boxes and flushes, which tests replace, and the answer of a box
// that nobody is there to click.
#include <atomic>
#include <cstring>
#include <string>

#include "base/platform.h"
#include "base/platform_system.h"

namespace {

std::atomic<PlatformMessageHandler> messageHandler{&iPlatformSystemMessageBox};
std::atomic<PlatformFlushHandler> flushHandler{&boPlatformSystemFlush};

}  // namespace

// ---- Message boxes ----

PlatformMessageHandler pfnPlatformSetMessageHandler(PlatformMessageHandler handler) {
  return messageHandler.exchange(handler ? handler : &iPlatformSystemMessageBox);
}

int iPlatformMessageBox(const char* text, const char* title, unsigned int type) {
  return messageHandler.load()(text ? text : "", title ? title : "", type);
}

int iPlatformDefaultButton(unsigned int type) {
  unsigned int buttons = type & 0xF;
  unsigned int defaultIndex = (type & 0xF00) >> 8;  // 0 first, 1 second, 2 third
  switch (buttons) {
    case kMbOkCancel: return defaultIndex == 0 ? kIdOk : kIdCancel;
    case kMbYesNo: return defaultIndex == 0 ? kIdYes : kIdNo;
    case kMbYesNoCancel:
      return defaultIndex == 0 ? kIdYes : (defaultIndex == 1 ? kIdNo : kIdCancel);
    default: return kIdOk;
  }
}

// ---- Flushes ----

bool boPlatformFlushFile(const char* path) {
  return path && *path && flushHandler.load()(path, false);
}

bool boPlatformFlushDirectory(const char* directory) {
  return flushHandler.load()(directory ? directory : "", true);
}

PlatformFlushHandler pfnPlatformSetFlushHandler(PlatformFlushHandler handler) {
  return flushHandler.exchange(handler ? handler : &boPlatformSystemFlush);
}

// ---- Texts handed out ----

bool boPlatformCopyOut(const std::string& text, char* out, size_t size) {
  if (!out || size == 0) return false;
  if (text.size() >= size) {
    out[0] = 0;
    return false;
  }
  std::memcpy(out, text.c_str(), text.size() + 1);
  return true;
}
