#include "parameters/inif_file.h"

#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform.h"

struct KvrInif {
  struct Entry {
    std::string key;
    std::string value;
  };
  struct Section {
    std::string name;
    std::vector<Entry> entries;
  };
  std::vector<Section> sections;
  const Section* selected = nullptr;
  size_t cursor = 0;
};

namespace {

std::string_view svTrim(std::string_view text) {
  auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

void vCopyCut(std::string_view text, char* out, size_t size) {
  if (!out || size == 0) return;
  size_t length = text.size() < size - 1 ? text.size() : size - 1;
  std::memcpy(out, text.data(), length);
  out[length] = 0;
}

void vParseLine(KvrInif& inif, std::string_view line) {
  line = svTrim(line);
  if (line.empty() || line.front() == ';' || line.front() == '#') return;
  if (line.front() == '[') {
    size_t close = line.find(']');
    if (close == std::string_view::npos) return;
    inif.sections.push_back({std::string(svTrim(line.substr(1, close - 1))), {}});
    return;
  }
  size_t equals = line.find('=');
  if (equals == std::string_view::npos || inif.sections.empty()) return;
  inif.sections.back().entries.push_back(
      {std::string(svTrim(line.substr(0, equals))), std::string(svTrim(line.substr(equals + 1)))});
}

bool boDeliver(KvrInif* inif, char* key, size_t keySize, char* value, size_t valueSize) {
  if (!inif || !inif->selected || inif->cursor >= inif->selected->entries.size()) {
    vCopyCut("", key, keySize);
    vCopyCut("", value, valueSize);
    return false;
  }
  const KvrInif::Entry& entry = inif->selected->entries[inif->cursor++];
  vCopyCut(entry.key, key, keySize);
  vCopyCut(entry.value, value, valueSize);
  return true;
}

}  // namespace

KvrInif* pKvrInifOpenPrivate(const char* path, int) {
  if (!path || !*path) return nullptr;
  std::FILE* file = std::fopen(path, "rb");
  if (!file) return nullptr;
  std::string content;
  char block[8192];
  size_t count;
  while ((count = std::fread(block, 1, sizeof block, file)) > 0) content.append(block, count);
  bool failed = std::ferror(file) != 0;
  std::fclose(file);
  if (failed) return nullptr;

  auto* inif = new KvrInif;
  std::string_view rest(content);
  while (!rest.empty()) {
    size_t end = rest.find('\n');
    vParseLine(*inif, rest.substr(0, end));
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
  return inif;
}

bool boKvrInifSetSection(KvrInif* inif, const char* section) {
  if (!inif) return false;
  inif->selected = nullptr;
  inif->cursor = 0;
  for (const KvrInif::Section& candidate : inif->sections) {
    if (iPlatformCompareNoCase(candidate.name.c_str(), section, SIZE_MAX) == 0) {
      inif->selected = &candidate;
      return true;
    }
  }
  return false;
}

bool boKvrInifGetFirstEntry(KvrInif* inif, char* key, size_t keySize, char* value,
                            size_t valueSize) {
  if (inif) inif->cursor = 0;
  return boDeliver(inif, key, keySize, value, valueSize);
}

bool boKvrInifGetNextEntry(KvrInif* inif, char* key, size_t keySize, char* value,
                           size_t valueSize) {
  return boDeliver(inif, key, keySize, value, valueSize);
}

void vKvrInifClose(KvrInif* inif) { delete inif; }
