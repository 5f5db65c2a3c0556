// Helpers of the tests: a fresh folder for one test, removed with everything
// in it afterwards; whole files as bytes; message boxes caught, not shown;
// objects deleted at the end of a scope.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include "base/platform.h"

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kvrvips_test_XXXXXX").string();
    if (mkdtemp(pattern.data())) path_ = pattern;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::string& path() const { return path_; }
  // The path of `name` inside the folder.
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

// The whole content of a file as bytes; empty when it cannot be read.
inline std::string sReadWholeFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

inline void vWriteWholeFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << bytes;
}

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

// Owns what a create function made and hands it to `Delete` at the end of
// the scope, be it a `void (T**)` that also clears the pointer or a
// `void (T*)`.
template <typename T, auto Delete>
class Owned {
 public:
  explicit Owned(T* object) : object_(object) {}
  ~Owned() {
    if constexpr (std::is_invocable_v<decltype(Delete), T**>) {
      Delete(&object_);
    } else {
      Delete(object_);
    }
  }
  Owned(const Owned&) = delete;
  Owned& operator=(const Owned&) = delete;

  operator T*() const { return object_; }
  T* operator->() const { return object_; }
  T* get() const { return object_; }

 private:
  T* object_;
};
