#include "base/file_names.h"

#include <cstring>
#include <string_view>

#include "base/temp_text.h"

namespace {

bool boRefusedByte(char c) {
  return static_cast<unsigned char>(c) < 32 || std::strchr(":\\/\"<>|?*", c) != nullptr;
}

bool boEqualAsciiNoCase(std::string_view text, std::string_view upper) {
  if (text.size() != upper.size()) return false;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c != upper[i]) return false;
  }
  return true;
}

// The stem is what stands in front of the first point.
bool boDeviceStem(std::string_view name) {
  std::string_view stem = name.substr(0, name.find('.'));
  for (std::string_view device : {"CON", "PRN", "AUX", "NUL"}) {
    if (boEqualAsciiNoCase(stem, device)) return true;
  }
  if (stem.size() != 4 || stem[3] < '0' || stem[3] > '9') return false;
  return boEqualAsciiNoCase(stem.substr(0, 3), "COM") ||
         boEqualAsciiNoCase(stem.substr(0, 3), "LPT");
}

bool boNameValid(std::string_view name) {
  if (name.empty()) return false;
  for (char c : name) {
    if (boRefusedByte(c)) return false;
  }
  if (name.back() == ' ' || name.back() == '.') return false;
  return !boDeviceStem(name);
}

bool boSeparator(char c) { return c == '\\' || c == '/'; }

}  // namespace

bool boFileNameValid(const char* name) { return name && boNameValid(name); }

bool boPathNamesValid(const char* path) {
  if (!path || !*path) return false;
  std::string_view rest(path);
  bool first = true;
  while (!rest.empty()) {
    size_t end = 0;
    while (end < rest.size() && !boSeparator(rest[end])) ++end;
    std::string_view name = rest.substr(0, end);
    bool drive = first && name.size() == 2 && name[1] == ':' &&
                 ((name[0] >= 'a' && name[0] <= 'z') || (name[0] >= 'A' && name[0] <= 'Z'));
    if (!name.empty() && name != "." && name != ".." && !drive && !boNameValid(name)) return false;
    rest.remove_prefix(end < rest.size() ? end + 1 : end);
    first = false;
  }
  return true;
}

const char* sFileNameSanitise(const char* name) {
  if (!name) name = "";
  size_t length = std::strlen(name);
  // Room for the name, a '_' behind a device stem and the terminator.
  char* clean = static_cast<char*>(pTempAlloc(length + 2));
  if (!clean) return "";
  size_t kept = 0;
  for (size_t i = 0; i < length; ++i) {
    if (!boRefusedByte(name[i])) clean[kept++] = name[i];
  }
  while (kept > 0 && (clean[kept - 1] == ' ' || clean[kept - 1] == '.')) --kept;
  clean[kept] = 0;
  if (kept > 0 && boDeviceStem(std::string_view(clean, kept))) {
    char* point = std::strchr(clean, '.');
    size_t stemEnd = point ? static_cast<size_t>(point - clean) : kept;
    std::memmove(clean + stemEnd + 1, clean + stemEnd, kept - stemEnd + 1);
    clean[stemEnd] = '_';
  }
  return clean;
}
