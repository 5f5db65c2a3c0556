// A fresh folder for one test, removed with everything in it afterwards, and
// whole files as bytes.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

class ScratchFolder {
 public:
  ScratchFolder() {
#ifdef _WIN32
    // No mkdtemp: a random name, tried until one is new.
    std::random_device random;
    std::error_code error;
    for (int attempt = 0; attempt < 100 && path_.empty(); ++attempt) {
      std::string name = "kvrvips_test_" + std::to_string(random());
      std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
      if (std::filesystem::create_directory(folder, error)) path_ = folder.string();
    }
#else
    std::string pattern = (std::filesystem::temp_directory_path() / "kvrvips_test_XXXXXX").string();
    if (mkdtemp(pattern.data())) path_ = pattern;
#endif
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

// A text file such as the import log as the platform's text mode reads it:
// the CR LF line ends that Windows writes in text mode arrive as LF.
inline std::string sReadTextFile(const std::string& path) {
  std::ifstream file(path);
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

inline void vWriteWholeFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << bytes;
}
