#include "vips_import/driver/open_errors.h"

#include "base/temp_text.h"
#include "base/text.h"
#include "vips_import/driver/import_log.h"

namespace {

struct OpenErrorText {
  int32_t code;
  const char* text;
};

// In the order in which the texts run on into each other.
constexpr OpenErrorText kOpenErrorTexts[] = {
    {-1, "File found ok"},
    {-2, "File not accessable (cannot be opened)"},
    {-3, "Illegal file (cannot read content properly)"},
    {-4, "File version is incorrect"},
    {-5, "File already open"},
    {-9, "File access denied"},
};

// Room for all six texts together.
constexpr size_t kOpenErrorTextSize = 256;

}  // namespace

const char* sVipsOpenErrorText(int32_t code) {
  char text[kOpenErrorTextSize] = {};
  bool found = false;
  for (const OpenErrorText& entry : kOpenErrorTexts) {
    found = found || entry.code == code;
    if (found) sAppend(text, entry.text, sizeof text);
  }
  return sTempCopy(text);
}

void vVipsLogOpenError(std::FILE* log, int32_t code, bool describe) {
  if (describe) {
    vVipsLogPrint(log, "%s\n", sVipsOpenErrorText(code));
  } else {
    vVipsLogPrint(log, "Feil ved \xE5pning av VIPS database %d\n", code);
  }
}
