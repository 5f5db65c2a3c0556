// The design's texts are wide (16-bit); the model, the log and the paths
// that the host hands over are single-byte text in the Windows-1252 code
// page.
#pragma once

#include <string>

// `wide` narrowed to Windows-1252; a character outside it becomes '?'. The
// text ends at the first null character, if it holds one.
std::string sVipsNarrow(const std::u16string& wide);

// `text` widened from Windows-1252; null gives the empty text.
std::u16string sVipsWiden(const char* text);
