// Message boxes caught instead of shown, for the tests that check what the
// user is told.
#pragma once

#include <string>
#include <vector>

#include "base/platform.h"

// Collects the message boxes shown while it lives instead of showing them;
// each is answered with OK.
class CapturedMessages {
 public:
  struct Box {
    std::string text;
    unsigned int type;
  };
  CapturedMessages() {
    boxes().clear();
    former_ = pfnPlatformSetMessageHandler(&Capture);
  }
  ~CapturedMessages() { pfnPlatformSetMessageHandler(former_); }
  CapturedMessages(const CapturedMessages&) = delete;
  CapturedMessages& operator=(const CapturedMessages&) = delete;

  static std::vector<Box>& boxes() {
    static std::vector<Box> shown;
    return shown;
  }
  // The texts of the boxes, in the order shown.
  static std::vector<std::string> texts() {
    std::vector<std::string> texts;
    for (const Box& box : boxes()) texts.push_back(box.text);
    return texts;
  }

 private:
  static int Capture(const char* text, const char*, unsigned int type) {
    boxes().push_back({text ? text : "", type});
    return kIdOk;
  }
  PlatformMessageHandler former_;
};
