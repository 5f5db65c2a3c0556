#include "model_file/container/asf_head_reader.h"

#include <cstdlib>
#include <cstring>

#include "base/platform.h"
#include "model_file/container/asf_extent.h"
#include "model_file/container/asf_keys_fields.h"
#include "model_file/container/asf_sections.h"

namespace {

constexpr size_t kLongLineFirstCapacity = 15000;
constexpr size_t kTailSize = 100;

// The lines of the head. A line longer than the line buffer moves the reading
// to a heap buffer that grows by half of what it holds whenever it fills and
// serves every later line of the head.
struct HeadLines {
  AsfFile* file;
  char* pLong;
  size_t uCapacity;
};

void vSkipRestOfLine(AsfLineReader* reader) {
  char scratch[256];
  while (iAsfLineRead(reader, scratch, sizeof scratch - 1, nullptr) == kAsfLineFilled) {
  }
}

char* sContinueLongLine(HeadLines* lines, size_t held) {
  AsfLineReader* reader = lines->file->pReader;
  for (;;) {
    size_t got = 0;
    int result = iAsfLineRead(reader, lines->pLong + held, lines->uCapacity - held - 1, &got);
    held += got;
    if (result == kAsfLineComplete) return lines->pLong;
    if (result == kAsfLineEnd) {
      if (held == 0) return nullptr;
      lines->pLong[held] = 0;
      return lines->pLong;
    }
    size_t capacity = held + held / 2;
    char* grown = static_cast<char*>(realloc(lines->pLong, capacity));
    if (!grown) {
      // Out of memory: the line keeps what it has.
      vSkipRestOfLine(reader);
      lines->pLong[held] = 0;
      return lines->pLong;
    }
    lines->pLong = grown;
    lines->uCapacity = capacity;
  }
}

// The next line of the head, or null at the end of the file.
char* sNextHeadLine(HeadLines* lines) {
  AsfFile* file = lines->file;
  if (lines->pLong) return sContinueLongLine(lines, 0);
  int result = iAsfLineRead(file->pReader, file->acLine, kAsfLineSize, nullptr);
  if (result == kAsfLineEnd) return nullptr;
  if (result == kAsfLineComplete) return file->acLine;
  char* buffer = static_cast<char*>(malloc(kLongLineFirstCapacity));
  if (!buffer) {
    vSkipRestOfLine(file->pReader);
    file->acLine[kAsfLineSize] = 0;
    return file->acLine;
  }
  memcpy(buffer, file->acLine, kAsfLineSize);
  lines->pLong = buffer;
  lines->uCapacity = kLongLineFirstCapacity;
  return sContinueLongLine(lines, kAsfLineSize);
}

void vTakeHeadLine(AsfFile* file, char* line) {
  char* name;
  char* value;
  vAsfSplitNameValue(line, &name, &value);
  if (!boAsfNameUsable(name)) return;
  if (strcmp(name, "_EXTENT") == 0) {
    if (!boAsfExtentScan(value, &file->extent)) vAsfExtentSetEmpty(&file->extent);
  } else if (strcmp(name, "_INDEX") == 0) {
    // Reserved; its value means nothing.
  } else if (strcmp(name, "_VERSION") == 0) {
    file->iVersion = iAsfParseInt(value);
  } else if (strcmp(name, "_FILETYPE") == 0) {
    vAsfFileSetType(file, value);
  } else {
    vAsfKeySet(file, nullptr, name, value);
  }
}

void vTakeFieldNames(AsfSection* section, const char* value) {
  for (;;) {
    const char* separator = strchr(value, ';');
    if (!separator) {
      if (*value) vAsfFieldNameAppend(section, value, strlen(value));
      return;
    }
    vAsfFieldNameAppend(section, value, static_cast<size_t>(separator - value));
    value = separator + 1;
  }
}

void vTakeSectionLine(AsfFile* file, AsfSection* section, char* line) {
  char* name;
  char* value;
  vAsfSplitNameValue(line, &name, &value);
  if (!section || !boAsfNameUsable(name)) return;
  if (strcmp(name, "_EXTENT") == 0) {
    // A bad section extent resets the file's extent; the section keeps the
    // numbers that were read.
    if (!boAsfExtentScan(value, &section->extent)) vAsfExtentSetEmpty(&file->extent);
  } else if (strcmp(name, "_FIELDNAMES") == 0) {
    vTakeFieldNames(section, value);
  } else {
    vAsfKeySet(file, section, name, value);
  }
}

// A directory entry "[X_NAME]" with a known letter X; other lines end the
// directory.
AsfSection* AddDirectoryEntry(AsfFile* file, const char* line) {
  int type = iAsfTypeOfLetter(line[1]);
  if (type < 0 || line[2] != '_') return nullptr;
  char name[kAsfSectionNameSize];
  size_t length = 0;
  for (const char* at = line + 3; *at && *at != ']' && length < sizeof name - 1; ++at) {
    name[length++] = *at;
  }
  name[length] = 0;
  return AsfSectionAdd(file, name, type);
}

}  // namespace

void vAsfSplitNameValue(char* line, char** outName, char** outValue) {
  *outName = line;
  char* blank = strchr(line, ' ');
  if (blank) {
    *blank = 0;
    *outValue = blank + 1;
  } else {
    *outValue = line + strlen(line);
  }
}

bool boAsfNameUsable(const char* name) {
  return (name[0] >= 'A' && name[0] <= 'Z') || name[0] == '_';
}

int iAsfParseInt(const char* text) {
  long value = strtol(text, nullptr, 10);
  if (value > INT32_MAX) return INT32_MAX;
  if (value < INT32_MIN) return INT32_MIN;
  return static_cast<int>(value);
}

bool boAsfReadCurrentHead(AsfFile* file) {
  HeadLines lines{file, nullptr, 0};
  char* line = sNextHeadLine(&lines);
  while (line && line[0] != '[') {
    vTakeHeadLine(file, line);
    line = sNextHeadLine(&lines);
  }
  bool anySection = false;
  while (line) {
    AsfSection* section = AddDirectoryEntry(file, line);
    if (!section && iAsfTypeOfLetter(line[1]) >= 0 && line[2] == '_') {
      // Out of memory for the section: its lines are passed over.
    } else if (!section) {
      break;
    }
    anySection = anySection || section;
    line = sNextHeadLine(&lines);
    while (line && line[0] != '[') {
      vTakeSectionLine(file, section, line);
      line = sNextHeadLine(&lines);
    }
  }
  // The line that ended the directory goes back to the line buffer.
  if (line != file->acLine) vAsfCopyText(file->acLine, kAsfLineSize, line);
  free(lines.pLong);
  return anySection;
}

bool boAsfTailIsEnd(AsfFile* file) {
  AsfStream* stream = file->pReader->pStream;
  int64_t back = lAsfStreamTell(stream);
  int64_t size = lAsfStreamSize(stream);
  if (back < 0 || size < 0) return false;
  int64_t start = size > static_cast<int64_t>(kTailSize) ? size - static_cast<int64_t>(kTailSize) : 0;
  char tail[kTailSize + 1];
  size_t count = 0;
  if (boAsfStreamSeek(stream, start, 0)) count = uAsfStreamRead(stream, tail, kTailSize);
  tail[count] = 0;
  file->acLine[0] = 0;
  if (!boAsfStreamSeek(stream, back, 0)) return false;
  const char* open = nullptr;
  for (size_t i = count; i > 0; --i) {
    if (tail[i - 1] == '[') {
      open = tail + i - 1;
      break;
    }
  }
  return open && iPlatformCompareNoCase(open, "[END]", 5) == 0;
}
