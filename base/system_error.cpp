#include "base/system_error.h"

#include <fmt/format.h>

#include "base/platform.h"

namespace {

// The error that asking for a message raises when the message table has no
// entry for the code.
constexpr int kMessageNotFound = 317;

}  // namespace

bool boSystemErrorText(int code, char* buffer, size_t size) {
  if (boPlatformErrorText(code, buffer, size)) return true;
  if (buffer && size > 0) buffer[0] = 0;

  // Why the lookup failed is put into words for a debugger's eyes only; the
  // caller just sees the empty text.
  int lookupError = iPlatformLastError();
  char missingWording[256] = "";
  if (lookupError == kMessageNotFound) {
    boPlatformErrorText(kMessageNotFound, missingWording, sizeof missingWording);
  }
  char failureText[300];
  *fmt::format_to_n(failureText, sizeof failureText - 1, "{}: FormatMessage error\nerrorcode: {} {}",
                    "S_GetSystemErrMessage", static_cast<unsigned int>(lookupError),
                    missingWording)
       .out = 0;
  return false;
}
