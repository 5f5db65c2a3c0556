#include "base/text.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "base/platform.h"

char* sCopy(char* target, const char* source, size_t size) {
  if (!target || size == 0) return target;
  size_t length = source ? strnlen(source, size - 1) : 0;
  // memmove: callers cut a path down inside its own buffer.
  std::memmove(target, source ? source : "", length);
  target[length] = 0;
  return target;
}

char* sAppend(char* target, const char* source, size_t size) {
  if (!target || size == 0 || !source) return target;
  size_t used = strnlen(target, size);
  if (used >= size - 1) return target;
  sCopy(target + used, source, size - used);
  return target;
}

char* sPadTo(char* target, const char* source, size_t width) {
  if (!target) return target;
  size_t length = source ? strnlen(source, width) : 0;
  std::memcpy(target, source ? source : "", length);
  std::memset(target + length, ' ', width - length);
  return target;
}

char* sTrimRight(char* text) {
  if (!text) return text;
  size_t length = std::strlen(text);
  while (length > 0 && text[length - 1] == ' ') --length;
  text[length] = 0;
  return text;
}

char* sTrimRightN(char* text, size_t length) {
  if (!text) return text;
  while (length > 0 && (text[length - 1] == ' ' || text[length - 1] == 0)) --length;
  text[length] = 0;
  return text;
}

char* sFieldCopy(char* target, const char* source, size_t length) {
  if (!target) return target;
  size_t copied = source ? strnlen(source, length) : 0;
  std::memcpy(target, source ? source : "", copied);
  std::memset(target + copied, 0, length - copied + 1);
  return sTrimRightN(target, length);
}

char* sHeapSet(char** field, const char* value) {
  if (!field) return nullptr;
  if (!value || !*value) {
    vHeapFree(field);
    return nullptr;
  }
  size_t length = std::strlen(value);
  if (*field && std::strlen(*field) >= length) {
    // memmove: the value may be a part of the field itself.
    std::memmove(*field, value, length + 1);
    return *field;
  }
  char* block = static_cast<char*>(std::malloc(length + 1));
  if (!block) return nullptr;
  std::memcpy(block, value, length + 1);
  std::free(*field);
  *field = block;
  return block;
}

char* sHeapAppend(char** field, const char* value) {
  if (!field) return nullptr;
  if (!value) return *field;
  size_t oldLength = *field ? std::strlen(*field) : 0;
  size_t addLength = std::strlen(value);
  // The value may be a part of the field itself, which realloc may move.
  uintptr_t start = reinterpret_cast<uintptr_t>(*field);
  uintptr_t place = reinterpret_cast<uintptr_t>(value);
  bool inside = *field && place >= start && place <= start + oldLength;
  char* block = static_cast<char*>(std::realloc(*field, oldLength + addLength + 1));
  if (!block) return nullptr;
  const char* source = inside ? block + (place - start) : value;
  std::memmove(block + oldLength, source, addLength);
  block[oldLength + addLength] = 0;
  *field = block;
  return block;
}

void vHeapFree(char** field) {
  if (!field) return;
  std::free(*field);
  *field = nullptr;
}

int iCompareNoCase(const char* a, const char* b) { return iPlatformCompareNoCase(a, b, SIZE_MAX); }

int iCompareNoCaseN(const char* a, const char* b, size_t n) {
  return iPlatformCompareNoCase(a, b, n);
}

const char* sFindNoCase(const char* text, const char* part) {
  if (!text || !part) return nullptr;
  size_t partLength = std::strlen(part);
  for (const char* place = text;; ++place) {
    if (iPlatformCompareNoCase(place, part, partLength) == 0) return place;
    if (!*place) return nullptr;
  }
}
