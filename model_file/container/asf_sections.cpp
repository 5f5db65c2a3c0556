#include "model_file/container/asf_sections.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "model_file/container/asf_extent.h"
#include "model_file/container/asf_keys_fields.h"

namespace {

// An empty extent rounds to 99999999 and above; a minimum that high marks a
// section with nothing in it.
constexpr double kAsfNoContentMin = 99999998.9;

bool boMoveReaderToBody(AsfFile* file, AsfSection* section) {
  if (section->iLine == 0) return true;
  if (!file->pReader) return false;
  // The line buffer holds the line in front of the reader's position; once
  // the reader moves, it no longer does.
  if (file->pReader->iLine != section->iLine) file->acLine[0] = 0;
  return boAsfLineGoTo(file->pReader, section->iLine);
}

bool boScanForHead(AsfFile* file, const char* head, size_t length) {
  while (boAsfReadLine(file)) {
    if (strncmp(file->acLine, head, length) == 0) return true;
  }
  return false;
}

// The next line of a text body, in the reader's buffer when it lies there
// whole. A line that opens a section is kept in the line buffer, where the
// search for the next body looks first; after any other line read in place
// the line buffer is emptied, as it no longer holds the line in front of the
// reader.
const char* sReadTextLine(AsfFile* file) {
  const char* line = sAsfLineReadInPlace(file->pReader, file->acLine, kAsfLineSize);
  if (!line || line == file->acLine) return line;
  if (line[0] != '[') {
    file->acLine[0] = 0;
    return line;
  }
  vAsfCopyText(file->acLine, kAsfLineSize, line);
  return file->acLine;
}

}  // namespace

char cAsfTypeLetter(int type) {
  switch (type) {
    case kAsfTypeLine: return 'L';
    case kAsfTypePoint: return 'P';
    case kAsfTypeText: return 'T';
    case kAsfTypePolygon: return 'Y';
    case kAsfTypeNet: return 'N';
    case kAsfTypeCloud: return 'C';
    case kAsfTypeOther: return 'O';
    default: return 0;
  }
}

int iAsfTypeOfLetter(char letter) {
  switch (letter) {
    case 'L': return kAsfTypeLine;
    case 'P': return kAsfTypePoint;
    case 'T': return kAsfTypeText;
    case 'Y': return kAsfTypePolygon;
    case 'N': return kAsfTypeNet;
    case 'C': return kAsfTypeCloud;
    case 'O': return kAsfTypeOther;
    default: return -1;
  }
}

AsfSection* AsfSectionAdd(AsfFile* file, const char* name, int type) {
  if (!file) return nullptr;
  AsfSection* section = static_cast<AsfSection*>(calloc(1, sizeof(AsfSection)));
  if (!section) return nullptr;
  vAsfCopyText(section->acName, sizeof section->acName, name);
  vAsfExtentSetEmpty(&section->extent);
  section->iType = type;
  if (file->pLastSection) {
    file->pLastSection->pNext = section;
  } else {
    file->pFirstSection = section;
  }
  file->pLastSection = section;
  return section;
}

void vAsfSectionRemove(AsfFile* file, AsfSection* section) {
  if (!file || !section) return;
  AsfSection* previous = nullptr;
  AsfSection* walk = file->pFirstSection;
  while (walk && walk != section) {
    previous = walk;
    walk = walk->pNext;
  }
  if (!walk) return;
  if (previous) {
    previous->pNext = section->pNext;
  } else {
    file->pFirstSection = section->pNext;
  }
  if (file->pLastSection == section) file->pLastSection = previous;
  vAsfKeyListClear(&section->keys);
  vAsfFieldListClear(&section->fields);
  vAsfBindingsClear(section);
  free(section);
}

void vAsfSectionsClear(AsfFile* file) {
  if (!file) return;
  while (file->pFirstSection) vAsfSectionRemove(file, file->pFirstSection);
}

AsfSection* AsfSectionFind(AsfFile* file, const char* name, int type) {
  if (!file || !name) return nullptr;
  for (AsfSection* section = file->pFirstSection; section; section = section->pNext) {
    if (section->iType == type && strcmp(section->acName, name) == 0) {
      return boMoveReaderToBody(file, section) ? section : nullptr;
    }
  }
  return nullptr;
}

AsfSection* AsfSectionAt(AsfFile* file, int index) {
  if (!file || index < 0) return nullptr;
  AsfSection* section = file->pFirstSection;
  while (section && index-- > 0) section = section->pNext;
  if (!section) return nullptr;
  return boMoveReaderToBody(file, section) ? section : nullptr;
}

int iAsfSectionGetType(const AsfSection* section) { return section ? section->iType : -1; }

const char* sAsfSectionGetName(const AsfSection* section) {
  return section ? section->acName : kAsfEmptyText;
}

bool boAsfReadLine(AsfFile* file) {
  return file && boAsfLineReadBounded(file->pReader, file->acLine, kAsfLineSize);
}

bool boAsfSectionFindBody(AsfFile* file, AsfSection* section) {
  if (!file || !section || !file->pReader) return false;
  if (section->iLine != 0) return boAsfLineGoTo(file->pReader, section->iLine);
  char letter = cAsfTypeLetter(section->iType);
  if (!letter) return false;
  if (section->iType != kAsfTypeOther &&
      (section->extent.dMinX >= kAsfNoContentMin || section->extent.dMinY >= kAsfNoContentMin)) {
    return false;
  }
  char head[kAsfSectionNameSize + 8];
  int length = snprintf(head, sizeof head, "[+%c_%s]", letter, section->acName);
  size_t headLength = static_cast<size_t>(length);
  AsfLineReader* reader = file->pReader;
  bool found = strncmp(file->acLine, head, headLength) == 0;
  if (!found) {
    // The line in the buffer may be the head itself: read it once more.
    if (reader->iLine > 1) boAsfLineGoTo(reader, reader->iLine - 1);
    found = boScanForHead(file, head, headLength) ||
            (boAsfLineRewind(reader) && boScanForHead(file, head, headLength));
  }
  if (!found) {
    file->acLine[0] = 0;
    return false;
  }
  section->iLine = reader->iLine;
  return true;
}

bool boAsfSectionNextLine(AsfFile* file, AsfSection* section, const char** outLine,
                          size_t* outSize) {
  if (outLine) *outLine = kAsfEmptyText;
  if (outSize) *outSize = 0;
  if (!file || !section || !file->pReader) return false;
  if (section->iLine == 0 && !boAsfSectionFindBody(file, section)) return false;
  const char* line = nullptr;
  do {
    line = sReadTextLine(file);
    if (!line || line[0] == '[') return false;
    // Older files leave empty lines between the lines of a layer.
  } while (file->boOldFormat && line[0] == 0);
  if (outLine) *outLine = line;
  return true;
}
