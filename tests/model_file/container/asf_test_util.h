// Helpers of the container tests: handles closed at the end of a scope,
// bytes of memory handles, lines of sections and the fixture files.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model_file/container/asf_file.h"
#include "tests/support/owned.h"

using OwnedFile = Owned<AsfFile, vAsfFileClose>;

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
