// Conversion between the document's UTF-8 and the design model's 16-bit
// texts.
#pragma once

#include <string>
#include <string_view>

namespace NpDesignModel {

// UTF-8 to UTF-16. A byte that does not begin a valid sequence becomes
// U+FFFD, so that any bytes give some text.
std::u16string sUtf8ToUtf16(std::string_view text);

// The character that starts at `text[index]`, advancing `index` past it. A
// surrogate without its partner gives U+FFFD.
char32_t cNextCodePoint(std::u16string_view text, size_t& index);

// Appends one character in UTF-8.
void vAppendUtf8(std::string& out, char32_t codePoint);

}  // namespace NpDesignModel
