// Text of a model file as the terminal shows it: the file's Windows-1252
// bytes in UTF-8, the encoding of terminals and of JSON.
#pragma once

#include <string>

// `text` (Windows-1252; null reads as empty) in UTF-8.
std::string sTerminalText(const char* text);
