#include "model_file/container/asf_writer.h"

#include <cstdio>
#include <cstring>

#include "model_file/container/asf_extent.h"
#include "model_file/container/asf_sections.h"

namespace {

constexpr char kLineEnd[] = "\r\n";

// Writes a padded `_EXTENT` line and remembers where it starts, so that it
// can be overwritten at the end.
bool boWritePlaceholder(AsfFile* file, const AsfExtent& extent, int64_t* outOffset) {
  int64_t offset = lAsfWritePos(file);
  *outOffset = offset > 0 ? offset : 0;
  char line[kAsfPlaceholderWidth + 1];
  vAsfExtentLineFormat(extent, true, line, sizeof line);
  return boAsfWriteLine(file, line, 0);
}

// Overwrites a placeholder in place and comes back to the end.
void vPatchPlaceholder(AsfFile* file, int64_t offset, const AsfExtent& extent) {
  char line[kAsfPlaceholderWidth + 1];
  vAsfExtentLineFormat(extent, true, line, sizeof line);
  // What waits in the buffer belongs behind the position to come back to.
  boAsfWriteFlush(file);
  int64_t back = lAsfStreamTell(file->pOut);
  if (back < 0 || !boAsfStreamSeek(file->pOut, offset, 0)) {
    file->iWriteFailed = 1;
    return;
  }
  bool written = uAsfStreamWrite(file->pOut, line, kAsfPlaceholderWidth) == kAsfPlaceholderWidth;
  if (!written || !boAsfStreamSeek(file->pOut, back, 0)) file->iWriteFailed = 1;
}

// Writes straight to the stream.
bool boWriteThrough(AsfFile* file, const void* data, size_t size) {
  if (uAsfStreamWrite(file->pOut, data, size) == size) return true;
  file->iWriteFailed = 1;
  return false;
}

bool boWriteKeys(AsfFile* file, const AsfKeyList& keys, char* buffer, size_t size,
                 bool skipUnnamed) {
  bool ok = true;
  for (const AsfKey* key = keys.pFirst; key; key = key->pNext) {
    if (skipUnnamed && key->sName[0] == 0) continue;
    size_t length = uAsfKeyLineFormat(buffer, size, key->sName, key->sValue);
    ok = boAsfWriteLine(file, buffer, length) && ok;
  }
  return ok;
}

// "_FIELDNAMES A;B;C;". Names that overflow the line buffer go out in pieces
// without a line end in between.
bool boWriteFieldNames(AsfFile* file, const AsfFieldList& fields) {
  char* buffer = file->acLine;
  size_t length = 0;
  bool ok = true;
  auto append = [&](const char* text, size_t count) {
    while (count > 0) {
      if (length == kAsfLineSize) {
        ok = boAsfWriteBytes(file, buffer, length) && ok;
        length = 0;
      }
      size_t room = kAsfLineSize - length;
      size_t piece = count < room ? count : room;
      memcpy(buffer + length, text, piece);
      length += piece;
      text += piece;
      count -= piece;
    }
  };
  append("_FIELDNAMES ", 12);
  for (const AsfField* field = fields.pFirst; field; field = field->pNext) {
    append(field->sName, strlen(field->sName));
    append(";", 1);
  }
  ok = boAsfWriteBytes(file, buffer, length) && ok;
  return boAsfWriteBytes(file, kLineEnd, 2) && ok;
}

bool boWriteDirectoryEntry(AsfFile* file, AsfSection* section, char letter) {
  char line[kAsfSectionNameSize + 8];
  snprintf(line, sizeof line, "[%c_%s]", letter, section->acName);
  bool ok = boAsfWriteLine(file, line, 0);
  if (section->iType != kAsfTypeOther) {
    ok = boWritePlaceholder(file, section->extent, &section->lPlaceholderOffset) && ok;
  } else if (!boAsfExtentIsEmpty(section->extent)) {
    ok = boAsfWriteExtentLine(file, section->extent) && ok;
  }
  ok = boWriteKeys(file, section->keys, file->acLine, kAsfLineSize, false) && ok;
  if (section->fields.pFirst) ok = boWriteFieldNames(file, section->fields) && ok;
  return ok;
}

}  // namespace

bool boAsfWriteBytes(AsfFile* file, const void* data, size_t size) {
  if (!file || !file->pOut) return false;
  if (size == 0) return true;
  if (!file->pOutBuffer) return boWriteThrough(file, data, size);
  if (size > kAsfWriteBufferSize - file->uOutUsed) {
    if (!boAsfWriteFlush(file)) return false;
    if (size >= kAsfWriteBufferSize) return boWriteThrough(file, data, size);
  }
  memcpy(file->pOutBuffer + file->uOutUsed, data, size);
  file->uOutUsed += size;
  return true;
}

bool boAsfWriteFlush(AsfFile* file) {
  if (!file || !file->pOut || file->uOutUsed == 0) return true;
  size_t used = file->uOutUsed;
  file->uOutUsed = 0;
  return boWriteThrough(file, file->pOutBuffer, used);
}

int64_t lAsfWritePos(const AsfFile* file) {
  if (!file || !file->pOut) return -1;
  int64_t pos = lAsfStreamTell(file->pOut);
  return pos < 0 ? pos : pos + static_cast<int64_t>(file->uOutUsed);
}

bool boAsfWriteLine(AsfFile* file, const char* text, size_t length) {
  if (!text) text = "";
  if (length == 0) length = strlen(text);
  bool ok = boAsfWriteBytes(file, text, length);
  return boAsfWriteBytes(file, kLineEnd, 2) && ok;
}

size_t uAsfKeyLineFormat(char* out, size_t size, const char* name, const char* value) {
  if (!out || size == 0) return 0;
  size_t length = 0;
  for (; name && *name && size - length >= 3; ++name) out[length++] = *name;
  if (size - length >= 2) out[length++] = ' ';
  for (; value && *value && size - length >= 2; ++value) {
    if (*value == '\r') continue;
    if (*value == '\n') {
      if (size - length < 3) break;
      out[length++] = '\\';
      out[length++] = 'n';
      continue;
    }
    out[length++] = *value;
  }
  out[length] = 0;
  return length;
}

bool boAsfWriteExtentLine(AsfFile* file, const AsfExtent& extent) {
  char line[kAsfPlaceholderWidth + 1];
  vAsfExtentLineFormat(extent, false, line, sizeof line);
  return boAsfWriteLine(file, line, 0);
}

bool boAsfFileWriteHead(AsfFile* file) {
  if (!file || !file->pOut) return false;
  bool ok = boAsfWriteLine(file, "[KVRFILE_ASCII]", 0);
  ok = boAsfWriteLine(file, "_VERSION 2", 0) && ok;
  char line[kAsfHeadKeyLineSize];
  snprintf(line, sizeof line, "_FILETYPE %s", file->acType);
  ok = boAsfWriteLine(file, line, 0) && ok;
  ok = boAsfWriteLine(file, "_INDEX !!!!!!!!!!!!!!!!!!!!", 0) && ok;
  ok = boWritePlaceholder(file, file->extent, &file->lExtentOffset) && ok;
  ok = boWriteKeys(file, file->keys, line, sizeof line, true) && ok;
  for (AsfSection* section = file->pFirstSection; section; section = section->pNext) {
    char letter = cAsfTypeLetter(section->iType);
    if (!letter) return false;
    ok = boWriteDirectoryEntry(file, section, letter) && ok;
  }
  return ok;
}

bool boAsfSectionStart(AsfFile* file, AsfSection* section) {
  if (!file || !section || !file->pOut) return false;
  if (section->boHeadWritten) return true;
  if (!cAsfTypeLetter(section->iType)) return false;
  bool ok = true;
  for (AsfSection* walk = file->pFirstSection; walk; walk = walk->pNext) {
    char letter = cAsfTypeLetter(walk->iType);
    if (!walk->boHeadWritten && letter) {
      char line[kAsfSectionNameSize + 8];
      snprintf(line, sizeof line, "[+%c_%s]", letter, walk->acName);
      ok = boAsfWriteLine(file, line, 0) && ok;
      walk->boHeadWritten = true;
    }
    if (walk == section) break;
  }
  return ok;
}

bool boAsfSectionWriteLine(AsfFile* file, AsfSection* section, const char* text, size_t length) {
  if (!boAsfSectionStart(file, section)) return false;
  return boAsfWriteLine(file, text, length);
}

bool boAsfSectionWriteText(AsfFile* file, AsfSection* section, const char* text, size_t size) {
  if (!boAsfSectionStart(file, section)) return false;
  return text && boAsfWriteBytes(file, text, size);
}

bool boAsfFileFinish(AsfFile* file) {
  if (!file || !file->pOut) return false;
  if (file->boFinished) return !file->iWriteFailed;
  file->boFinished = true;
  vAsfExtentSetEmpty(&file->extent);
  for (const AsfSection* section = file->pFirstSection; section; section = section->pNext) {
    vAsfExtentUnion(&file->extent, section->extent);
  }
  boAsfWriteLine(file, "[END]", 0);
  if (file->lExtentOffset != 0) vPatchPlaceholder(file, file->lExtentOffset, file->extent);
  for (const AsfSection* section = file->pFirstSection; section; section = section->pNext) {
    if (section->lPlaceholderOffset != 0 && section->extent.dMaxX >= section->extent.dMinX) {
      vPatchPlaceholder(file, section->lPlaceholderOffset, section->extent);
    }
  }
  boAsfWriteFlush(file);
  if (!boAsfStreamFlush(file->pOut)) file->iWriteFailed = 1;
  return !file->iWriteFailed;
}
