#include "model_file/container/asf_record_input.h"

#include <cstdint>
#include <cstring>

#include "model_file/container/asf_keys_fields.h"
#include "model_file/container/asf_sections.h"

char* sAsfRecordLine(AsfFile* file) {
  if (file->iHeldLine != 0) {
    bool stillThere = file->iHeldLine == file->pReader->iLine;
    file->iHeldLine = 0;
    if (stillThere) return file->acLine;
  }
  return boAsfReadLine(file) ? file->acLine : nullptr;
}

void vAsfRecordHold(AsfFile* file) { file->iHeldLine = file->pReader->iLine; }

bool boAsfFirstWordIs(const char* line, const char* word) {
  size_t length = strlen(word);
  return strncmp(line, word, length) == 0 && (line[length] == 0 || line[length] == ' ');
}

bool boAsfPointInFilter(const AsfFile* file) {
  const AsfExtent* filter = file->pFilter;
  if (!filter) return true;
  double x = file->adPoint[0];
  double y = file->adPoint[1];
  return x >= filter->dMinX && x <= filter->dMaxX && y >= filter->dMinY && y <= filter->dMaxY;
}

bool boAsfRecordsBegin(AsfFile* file, AsfSection* section) {
  if (section->iLine == 0) {
    file->iHeldLine = 0;
    return boAsfSectionFindBody(file, section);
  }
  // Right behind the body's head, the line in the buffer is that head: it
  // does not end the section.
  if (file->pReader->iLine == section->iLine) file->iHeldLine = 0;
  return true;
}

bool boAsfRecordsRewind(AsfFile* file, AsfSection* section) {
  file->iHeldLine = 0;
  if (section->iLine == 0) return boAsfSectionFindBody(file, section);
  if (file->pReader->iLine == section->iLine) return true;
  // The buffer no longer holds the line in front of the reader, and must not
  // be taken for a body's head.
  file->acLine[0] = 0;
  return boAsfLineGoTo(file->pReader, section->iLine);
}

void vAsfRecordReset(AsfFile* file, AsfSection* section) {
  vAsfFieldValuesReset(file, section);
  file->acGuid[0] = 0;
  file->boFixedHeight = false;
  file->dFixedHeight = 0.0;
  file->bo3D = false;
  file->boAsPolygon = false;
  file->dRotation = 0.0;
  file->iAlign = 0;
  file->acLabel[0] = 0;
  file->adPoint[0] = file->adPoint[1] = file->adPoint[2] = 0.0;
  file->boOldPolygon = false;
  file->iPointCount = 0;
  file->iTriangleCount = 0;
  file->boPoints2 = false;
  file->dOffsetNorth = 0.0;
  file->dOffsetEast = 0.0;
}

int iAsfBoundedCount(const AsfFile* file, long count, int minLineBytes) {
  if (count <= 0 || minLineBytes <= 0) return 0;
  int64_t length = lAsfStreamLength(file);
  int64_t position = lAsfStreamPos(file);
  if (length < 0 || position < 0) return 0;
  // Bytes in the reader's buffer are behind the stream's position.
  int64_t ahead = length - position + static_cast<int64_t>(file->pReader->uLeft) +
                  file->pReader->iPending;
  int64_t limit = ahead > 0 ? ahead / minLineBytes : 0;
  if (limit > INT32_MAX) limit = INT32_MAX;
  return count < limit ? static_cast<int>(count) : static_cast<int>(limit);
}
