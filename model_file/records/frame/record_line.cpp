#include "model_file/records/frame/record_line.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "model_file/container/asf_file.h"

namespace {

void vSkipBlanks(RecordLine* line) {
  while (*line->Cursor == ' ') ++line->Cursor;
}

// The number readers may stand one byte behind the terminator when they
// took it for a digit; the line then ends there.
void vMoveTo(RecordLine* line, const char* end) {
  line->Cursor = end > line->End ? line->End : end;
}

// Trims tabs at both ends and then surrounding double quotes.
void vTrimToken(char* token, size_t length) {
  char* start = token;
  while (length > 0 && *start == '\t') {
    ++start;
    --length;
  }
  while (length > 0 && start[length - 1] == '\t') --length;
  if (length >= 2 && start[0] == '"' && start[length - 1] == '"') {
    ++start;
    length -= 2;
  }
  std::memmove(token, start, length);
  token[length] = 0;
}

}  // namespace

bool boRecordWrite(AsfFile* file, AsfSection* section, const char* format, ...) {
  char text[kRecordLineSize];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return boAsfSectionWriteLine(file, section, text, 0);
}

void vRecordLineStart(RecordLine* line, const char* text) {
  line->Text = text ? text : "";
  line->Cursor = line->Text;
  line->End = line->Text + std::strlen(line->Text);
  line->Token[0] = 0;
}

const char* sRecordToken(RecordLine* line) {
  vSkipBlanks(line);
  const char* start = line->Cursor;
  const char* end;
  if (*start == '"') {
    ++start;
    end = std::strchr(start, '"');
    if (!end) end = line->End;
    const char* behind = end == line->End ? end : end + 1;
    while (*behind && *behind != ' ') ++behind;
    line->Cursor = behind;
  } else {
    end = start;
    while (*end && *end != ' ') ++end;
    line->Cursor = end;
  }
  size_t length = static_cast<size_t>(end - start);
  if (length > kRecordLineSize - 1) length = kRecordLineSize - 1;
  std::memcpy(line->Token, start, length);
  vTrimToken(line->Token, length);
  return line->Token;
}

bool boRecordAtEnd(RecordLine* line) {
  vSkipBlanks(line);
  return *line->Cursor == 0;
}

int iRecordInteger(RecordLine* line, int defaultValue) {
  if (boRecordAtEnd(line)) return defaultValue;
  const char* end = nullptr;
  long value = lParseInteger(line->Cursor, &end);
  vMoveTo(line, end);
  return static_cast<int>(value);
}

double dRecordNumber(RecordLine* line, double defaultValue) {
  if (boRecordAtEnd(line)) return defaultValue;
  const char* end = nullptr;
  double value = dParseNumber(line->Cursor, &end);
  vMoveTo(line, end);
  return value;
}

bool boRecordIsRow(const char* text) {
  if (!text) return false;
  while (*text == ' ') ++text;
  return (*text >= '0' && *text <= '9') || *text == '-' || *text == '.';
}

bool boRecordNextLine(AsfFile* file, AsfSection* section, RecordLine* line) {
  const char* text = nullptr;
  size_t size = 0;
  if (!boAsfSectionNextLine(file, section, &text, &size)) return false;
  vRecordLineStart(line, text);
  sRecordToken(line);
  return true;
}
