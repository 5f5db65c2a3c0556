#include "base/resources.h"

#include <array>
#include <cstdio>
#include <cstring>

#include "base/temp_text.h"

namespace {

struct ResourceEntry {
  int id;
  const char* text;
};

// The string table. The library shows no text from it yet: every message of
// the conversion is written where it is shown. A text joins here, with its
// number, when a caller asks for it by number.
constexpr std::array<ResourceEntry, 0> kResourceTable{};

constexpr size_t kResourceTextMax = 255;

}  // namespace

const char* sResourceText(int id) {
  char text[kResourceTextMax + 1];
  text[0] = 0;
  bool found = false;
  for (const ResourceEntry& entry : kResourceTable) {
    if (entry.id != id) continue;
    std::snprintf(text, sizeof text, "%s", entry.text);
    found = true;
    break;
  }
  if (!found) std::snprintf(text, sizeof text, "?:%d", id);
  return sTempCopy(text);
}

// The console's code page and the system's are one and the same here (see
// iMessageBox), so the conversion leaves the text as it is.
const char* sResourceTextOem(int id) { return sResourceText(id); }

const char* sKvrPoGetText(const char* text) { return text ? text : ""; }
