#include "base/fields.h"

#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "base/temp_text.h"

namespace {

// Field texts read by index or by value are cut here.
constexpr size_t kFieldSize = 2000;

bool boIsBlankOrTab(char byte) { return byte == ' ' || byte == '\t'; }

// Takes a double quote off both ends of a text that has one at each.
char* sUnquote(char* text) {
  size_t length = std::strlen(text);
  if (length < 2 || text[0] != '"' || text[length - 1] != '"') return text;
  text[length - 1] = 0;
  return text + 1;
}

// Trims a field read by sFieldNextQuoted in place: tabs in front, blanks and
// tabs behind (a tab that separates fields is text), then enclosing quotes.
void vTrimQuotedField(char* field, char separator) {
  bool tabIsText = separator == '\t';
  size_t start = 0;
  if (!tabIsText) {
    while (field[start] == '\t') ++start;
  }
  size_t length = std::strlen(field + start);
  std::memmove(field, field + start, length + 1);
  while (length > 0 && (field[length - 1] == ' ' || (!tabIsText && field[length - 1] == '\t'))) {
    --length;
  }
  field[length] = 0;
  if (length >= 2 && field[0] == '"' && field[length - 1] == '"') {
    std::memmove(field, field + 1, length - 2);
    field[length - 2] = 0;
  }
}

}  // namespace

// ---- Tokens ----

char* sTokenNext(char** cursor, char** value, char separator) {
  if (value) *value = nullptr;
  if (!cursor || !*cursor) return nullptr;
  char* place = *cursor;
  while (boIsBlankOrTab(*place)) ++place;
  if (!*place) {
    *cursor = place;
    return nullptr;
  }

  if (*place == '"') {
    // A quoted token holds blanks; what follows the closing quote up to the
    // next blank is dropped.
    char* token = ++place;
    while (*place && *place != '"') ++place;
    if (*place) *place++ = 0;
    while (*place && !boIsBlankOrTab(*place)) ++place;
    *cursor = place;
    return token;
  }

  char* token = place;
  char* split = nullptr;
  int depth = 0;
  bool inQuotes = false;
  for (; *place; ++place) {
    char byte = *place;
    if (inQuotes) {
      inQuotes = byte != '"';
    } else if (depth == 0 && separator && byte == separator && !split) {
      split = place;
    } else if (byte == '"') {
      inQuotes = true;
    } else if (byte == '(') {
      ++depth;
    } else if (byte == ')') {
      if (depth > 0) --depth;
    } else if (depth == 0 && boIsBlankOrTab(byte)) {
      break;
    }
  }
  if (*place) *place++ = 0;
  *cursor = place;
  if (split) {
    *split = 0;
    if (value) *value = sUnquote(split + 1);
  }
  return token;
}

char* sTokenParens(char* text) {
  if (!text) return nullptr;
  char* open = std::strchr(text, '(');
  size_t length = std::strlen(text);
  if (!open || text[length - 1] != ')') return nullptr;
  text[length - 1] = 0;
  *open = 0;
  return open + 1;
}

// ---- Separated fields ----

char* sFieldNext(char* out, size_t size, const char** cursor, char separator) {
  if (!out || size == 0) return out;
  out[0] = 0;
  if (!cursor || !*cursor) return out;
  const char* place = *cursor;
  if (!*place) {
    *cursor = nullptr;  // the empty field at the end has been read
    return out;
  }
  size_t length = 0;
  for (; *place && *place != separator; ++place) {
    if (length + 1 < size) out[length++] = *place;
  }
  out[length] = 0;
  *cursor = *place ? place + 1 : place;
  return out;
}

char* sFieldNextQuoted(char* out, size_t size, const char** cursor, char separator) {
  if (!out || size == 0) return out;
  out[0] = 0;
  if (!cursor || !*cursor) return out;
  const char* place = *cursor;
  while (*place == ' ') ++place;

  if (*place == '"') {
    size_t length = 0;
    for (++place; *place && *place != '"'; ++place) {
      if (length + 1 < size) out[length++] = *place;
    }
    out[length] = 0;
    if (*place == '"') ++place;
    while (*place && *place != separator) ++place;
    *cursor = *place ? place + 1 : place;
  } else {
    *cursor = place;
    sFieldNext(out, size, cursor, separator);
  }
  if (out[0]) vTrimQuotedField(out, separator);
  return out;
}

bool boFieldGet(const char* text, char separator, int index, char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  if (!text || index < 0) return false;
  const char* cursor = text;
  for (int i = 0; i <= index; ++i) {
    if (!cursor) {
      out[0] = 0;
      return false;
    }
    sFieldNextQuoted(out, size, &cursor, separator);
  }
  return cursor || out[0];
}

const char* sFieldGet(const char* text, char separator, int index) {
  char field[kFieldSize];
  boFieldGet(text, separator, index, field, sizeof field);
  return sTempCopy(field);
}

bool boFieldFind(const char* text, char separator, const char* value, int* outIndex) {
  if (outIndex) *outIndex = 0;
  if (!text || !value) return false;
  char field[kFieldSize];
  const char* cursor = text;
  for (int index = 0; cursor; ++index) {
    sFieldNextQuoted(field, sizeof field, &cursor, separator);
    if (!cursor && !field[0]) break;
    if (std::strcmp(field, value) == 0) {
      if (outIndex) *outIndex = index;
      return true;
    }
  }
  return false;
}

bool boFieldNextList(const char** cursor, char separator, char* out, size_t size) {
  if (!cursor || !*cursor || !**cursor || !out || size == 0) return false;
  const char* place = *cursor;
  while (*place == ' ') ++place;
  bool inQuotes = *place == '"';
  if (inQuotes) ++place;

  // Once `out` is full the rest of the field is read on and dropped.
  size_t length = 0;
  bool endedAtQuote = false;
  while (*place) {
    char byte = *place;
    if ((byte == '\\' || byte == '"') && place[1] == '"') {
      byte = '"';
      place += 2;
    } else if (byte == '"' && inQuotes) {
      endedAtQuote = true;
      ++place;
      break;
    } else if (!inQuotes && byte == separator) {
      break;
    } else {
      ++place;
    }
    if (length + 1 < size) out[length++] = byte;
  }
  out[length] = 0;
  if (endedAtQuote) {
    while (*place && *place != separator) ++place;
  }
  if (*place) ++place;  // the separator
  *cursor = place;
  while (length > 0 && out[length - 1] == ' ') out[--length] = 0;
  return true;
}

char* sFirstWord(const char* text, const char** outCursor, char* out, size_t size) {
  if (out && size) out[0] = 0;
  if (!text) {
    if (outCursor) *outCursor = nullptr;
    return out;
  }
  auto isSpace = [](char byte) { return static_cast<unsigned char>(byte) <= 32; };
  const char* place = text;
  while (*place && isSpace(*place)) ++place;
  size_t length = 0;
  auto keep = [&](char byte) {
    if (out && length + 1 < size) out[length++] = byte;
  };
  if (*place == '"') {
    for (++place; *place && *place != '"'; ++place) keep(*place);
    if (*place == '"') ++place;
  } else {
    for (; *place && !isSpace(*place); ++place) keep(*place);
  }
  if (out && size) out[length] = 0;
  if (outCursor) *outCursor = place;
  return out;
}

// ---- Writing fields ----

const char* sQuote(char* buffer, size_t size, const char* text) {
  static const char kEmptyQuoted[] = "\"\"";
  if (!text || !*text || !buffer || size < 3) return kEmptyQuoted;
  const char* start = text;
  while (*start == ' ' || *start == '"') ++start;
  const char* end = start + std::strlen(start);
  while (end > start && (end[-1] == ' ' || end[-1] == '"')) --end;

  char* out = buffer;
  *out++ = '"';
  size_t kept = 0;
  bool hasBlank = false;
  for (const char* place = start; place < end && kept < size - 3; ++place) {
    if (*place == '"') continue;
    hasBlank = hasBlank || *place == ' ';
    *out++ = *place;
    ++kept;
  }
  if (hasBlank) {
    *out++ = '"';
    *out = 0;
    return buffer;
  }
  if (kept == 0) return kEmptyQuoted;
  *out = 0;
  return buffer + 1;
}

void vTagAppendText(char** cursor, size_t* room, const char* name, const char* value) {
  if (!cursor || !*cursor || !room) return;
  if (!name) name = "";
  if (!value) value = "";
  size_t nameLength = std::strlen(name);
  if (nameLength + std::strlen(value) + 8 > *room) return;

  char* start = *cursor;
  char* out = start;
  bool quoted = std::strchr(value, ' ') != nullptr;
  // The last byte the value may take, leaving the closing quote and the
  // terminator their places: escapes may make the value longer than it was.
  const char* last = start + *room - 2 - (quoted ? 1 : 0);
  std::memcpy(out, name, nameLength);
  out += nameLength;
  if (quoted) *out++ = '"';
  for (const char* place = value; *place; ++place) {
    const char* escape = nullptr;
    switch (*place) {
      case '\r': continue;
      case '\n': escape = "\\n"; break;
      case '"': escape = "\\\""; break;
      case '\\': escape = "\\\\"; break;
      default: break;
    }
    size_t need = escape ? 2 : 1;
    if (out + need - 1 > last) break;
    if (escape) {
      *out++ = escape[0];
      *out++ = escape[1];
    } else {
      *out++ = *place;
    }
  }
  if (quoted) *out++ = '"';
  *out = 0;
  *room -= static_cast<size_t>(out - start);
  *cursor = out;
}

void vTagAppendInt(char** cursor, size_t* room, const char* name, int value) {
  char text[16];
  std::snprintf(text, sizeof text, "%d", value);
  vTagAppendText(cursor, room, name, text);
}

void vTagAppendDouble(char** cursor, size_t* room, const char* name, double value,
                      int decimals) {
  char text[20];
  sFormatNumber(value, 0, decimals, '.', text, sizeof text);
  vTagAppendText(cursor, room, name, text);
}
