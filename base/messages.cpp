#include "base/messages.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace {

std::atomic<bool> messagesInOem{false};

constexpr unsigned int kTaskModal = kMbTaskModal;

}  // namespace

int iMessageBox(const char* text, const char* title, unsigned int type) {
  if (!text) text = "";
  if (!messagesInOem.load()) return iPlatformMessageBox(text, title, type | kMbTopmost);
  // The console's code page and the system's are one and the same here, so
  // the conversion is a copy; the room for it is taken as on Windows.
  size_t length = std::strlen(text);
  char small[100];
  char* converted = length + 10 < 101 ? small : static_cast<char*>(std::malloc(length + 10));
  if (!converted) return 2;
  std::memcpy(converted, text, length + 1);
  int result = iPlatformMessageBox(converted, title, type | kMbTopmost);
  if (converted != small) std::free(converted);
  return result;
}

void vMessageWarn(const char* text) { iMessageBox(text, "", kTaskModal | kMbIconExclamation); }

void vMessageInfo(const char* text) { iMessageBox(text, "", kTaskModal | kMbIconInformation); }

void vMessageError(const char* text) { iMessageBox(text, "", kMbIconError); }

bool boMessageOkCancel(const char* text, bool defaultOk) {
  unsigned int type = defaultOk ? 0x2021u : 0x2121u;
  return iMessageBox(text, "", type) == kIdOk;
}

bool boMessageYesNo(const char* text, bool defaultYes) {
  unsigned int type = defaultYes ? 0x2024u : 0x2124u;
  return iMessageBox(text, "", type) == kIdYes;
}

int iMessageYesNoCancel(const char* text, int defaultButton) {
  unsigned int type = 0x2023u;
  if (defaultButton == 0) type |= kMbDefButton2;
  if (defaultButton == -1) type |= kMbDefButton3;
  switch (iMessageBox(text, "", type)) {
    case kIdYes: return 1;
    case kIdCancel: return -1;
    default: return 0;
  }
}

void vMessagesSetOem(bool flag) { messagesInOem.store(flag); }
