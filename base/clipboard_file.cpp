#include "base/clipboard_file.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <vector>

#include "base/platform.h"

void vClipboardCopyToFile(const char* path) {
  if (!path || !*path) return;
  size_t size = uPlatformClipboardGet(nullptr, 0);
  if (size == 0) return;
  std::vector<char> block(size);
  size = std::min(size, uPlatformClipboardGet(block.data(), block.size()));
  // The text ends at its terminator, if the block holds one.
  size_t textLength = strnlen(block.data(), size);
  std::FILE* file = std::fopen(path, "ab");
  if (!file) return;
  std::fwrite(block.data(), 1, textLength, file);
  std::fclose(file);
}
