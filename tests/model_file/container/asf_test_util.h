// Helpers of the container tests: bytes of files and memory handles, and a
// catcher for message boxes.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "base/platform.h"
#include "model_file/container/asf_file.h"

inline std::string ReadFileBytes(const std::string& path) {
  std::string bytes;
  FILE* file = fopen(path.c_str(), "rb");
  if (!file) return bytes;
  char chunk[4096];
  size_t count;
  while ((count = fread(chunk, 1, sizeof chunk, file)) > 0) bytes.append(chunk, count);
  fclose(file);
  return bytes;
}

inline std::string WriteFileBytes(const std::string& name, const std::string& bytes) {
  std::string path = testing::TempDir() + name;
  FILE* file = fopen(path.c_str(), "wb");
  if (file) {
    fwrite(bytes.data(), 1, bytes.size(), file);
    fclose(file);
  }
  return path;
}

inline std::string FixturePath(const char* name) {
  return std::string(KVRVIPS_TEST_DATA_DIR) + "/container/" + name;
}

// The bytes written so far to a memory write handle.
inline std::string MemBytes(const AsfFile* file) {
  const char* data = nullptr;
  size_t size = 0;
  if (!boAsfMemGet(file, &data, &size)) return std::string();
  return std::string(data, size);
}

// Every line of an O section, in order.
inline std::vector<std::string> SectionLines(AsfFile* file, AsfSection* section) {
  std::vector<std::string> lines;
  const char* line = nullptr;
  size_t size = 0;
  while (boAsfSectionNextLine(file, section, &line, &size)) lines.emplace_back(line);
  return lines;
}

// Collects the texts of message boxes while it lives.
class MessageCatcher {
 public:
  MessageCatcher() {
    texts().clear();
    previous_ = pfnPlatformSetMessageHandler(&Catch);
  }
  ~MessageCatcher() { pfnPlatformSetMessageHandler(previous_); }
  MessageCatcher(const MessageCatcher&) = delete;
  MessageCatcher& operator=(const MessageCatcher&) = delete;

  static std::vector<std::string>& texts() {
    static std::vector<std::string> caught;
    return caught;
  }

 private:
  static int Catch(const char* text, const char*, unsigned int type) {
    texts().emplace_back(text ? text : "");
    return iPlatformDefaultButton(type);
  }
  PlatformMessageHandler previous_;
};
