// What the tests of the export share: design documents, the shipped factory
// settings, a catcher of message boxes and a stay in another current
// directory.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "base/platform.h"
#include "tests/support/scratch_folder.h"

// The factory settings file that ships with the product.
inline std::string sShippedSettings() {
  return std::string(KVRVIPS_SOURCE_DIR) + "/examples/factory_settings.ini";
}

// A design document with `input` as its input side ("null" for none) and
// no sections.
inline std::string sDesignDocument(const std::string& input) {
  return R"({"format":"design-model","formatVersion":1,"input":)" + input +
         R"(,"results":{"sections":[]}})";
}

// An input side of this model version and type.
inline std::string sInputOf(const std::string& version, int modelType,
                            const std::string& more = "") {
  return R"({"modelVersionNumber":)" + version + R"(,"modelType":)" +
         std::to_string(modelType) + more + "}";
}

// The head that the import log begins with, for these labels and number.
inline std::string sLogHead(const std::string& version, const std::string& type,
                            const std::string& number) {
  return "Import VIPS database (.gen fil)\nVersion: " + version + " Type: " + type +
         "\nVIPS model version " + number + "\n------------------------------------\n\n";
}

// These lines, each ended by CR LF as a model file ends them.
inline std::string sCrLf(std::initializer_list<std::string> lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// The body of the model file section with this head line ("[+L_]",
// "[+O_VERLINE]"): the lines behind it up to the next line that starts with
// "[", or "<none>" when the file has no such section.
inline std::string sBody(const std::string& bytes, const std::string& head) {
  size_t start = bytes.find(head + "\r\n");
  if (start == std::string::npos) return "<none>";
  start += head.size() + 2;
  size_t end = start;
  while (end < bytes.size() && bytes[end] != '[') {
    size_t next = bytes.find("\r\n", end);
    end = next == std::string::npos ? bytes.size() : next + 2;
  }
  return bytes.substr(start, end - start);
}

// Catches the texts of message boxes while it lives.
class MessageCatcher {
 public:
  MessageCatcher() { previous_ = pfnPlatformSetMessageHandler(&Catch); }
  ~MessageCatcher() {
    pfnPlatformSetMessageHandler(previous_);
    Texts().clear();
  }
  MessageCatcher(const MessageCatcher&) = delete;
  MessageCatcher& operator=(const MessageCatcher&) = delete;

  const std::vector<std::string>& texts() const { return Texts(); }

 private:
  static std::vector<std::string>& Texts() {
    static std::vector<std::string> texts;
    return texts;
  }
  static int Catch(const char* text, const char*, unsigned int type) {
    Texts().push_back(text ? text : "");
    return iPlatformDefaultButton(type);
  }
  PlatformMessageHandler previous_ = nullptr;
};

// Makes `folder` the current directory while it lives.
class CurrentDirectory {
 public:
  explicit CurrentDirectory(const std::string& folder) {
    char previous[4096];
    if (boPlatformCurrentDirectory(previous, sizeof previous)) previous_ = previous;
    boPlatformChangeDirectory(folder.c_str());
  }
  ~CurrentDirectory() {
    if (!previous_.empty()) boPlatformChangeDirectory(previous_.c_str());
  }
  CurrentDirectory(const CurrentDirectory&) = delete;
  CurrentDirectory& operator=(const CurrentDirectory&) = delete;

 private:
  std::string previous_;
};
