// Finding the records of a section and reading their heads: the line
// ":X id", then by kind the extent, field values, GUID and settings up to the
// body. Records of the older format have heads of their own
// (asf_old_records.h).
#include "model_file/container/asf_object_reader.h"

#include <cstring>

#include "model_file/container/asf_head_reader.h"
#include "model_file/container/asf_keys_fields.h"
#include "model_file/container/asf_old_records.h"
#include "model_file/container/asf_record_input.h"
#include "model_file/container/asf_record_numbers.h"
#include "model_file/container/asf_sections.h"

namespace {

// Degrees in the file, radians in the object.
constexpr double kRadiansPerDegree = 0.017453292519943295;

int32_t iClampToInt32(long value) {
  if (value > INT32_MAX) return INT32_MAX;
  if (value < INT32_MIN) return INT32_MIN;
  return static_cast<int32_t>(value);
}

double dReadNumber(const char* text) {
  double value = 0.0;
  boAsfScanNumber(&text, &value);
  return value;
}

// Field values and GUID, which every kind has; other lines are passed.
void vTakeCommonLine(AsfFile* file, const char* name, const char* value) {
  if (strcmp(name, "_FIELDVALUES") == 0 || strcmp(name, "_FIELDVALUES2") == 0) {
    boAsfFieldStoreAppend(file, value, strlen(value));
  } else if (strcmp(name, "GUID") == 0) {
    vAsfCopyText(file->acGuid, kAsfGuidSize, value);
  }
}

// The record's `_EXTENT` against the filter: a record that lies wholly
// outside it is passed over. An extent of fewer than four numbers is not
// compared.
bool boExtentOutsideFilter(const AsfFile* file, const char* value) {
  long numbers[4];
  for (long& number : numbers) {
    if (!boAsfScanInteger(&value, &number)) return false;
  }
  const int32_t* filter = file->aiFilter;
  return numbers[2] < filter[0] || numbers[0] > filter[2] || numbers[3] < filter[1] ||
         numbers[1] > filter[3];
}

// "/XYZ", "/XYH height" or "/XY": the dimension line that ends the head of
// a line or polygon.
void vTakeDimension(AsfFile* file, const char* line) {
  size_t length = strlen(line);
  char fourth = length > 3 ? line[3] : 0;
  if (fourth == 'Z') {
    file->bo3D = true;
  } else if (fourth == 'H') {
    file->boFixedHeight = true;
    file->dFixedHeight = length > 5 ? dReadNumber(line + 5) : 0.0;
  }
}

int iReadLineHead(AsfFile* file) {
  while (char* line = sAsfRecordLine(file)) {
    if (boAsfEndsRecord(line)) {
      // A record without an element block has nothing to read.
      vAsfRecordHold(file);
      return line[0] == '[' ? kAsfHeadSectionEnd : kAsfHeadSkipped;
    }
    if (line[0] == '/') {
      vTakeDimension(file, line);
      return kAsfHeadRead;
    }
    char* name;
    char* value;
    vAsfSplitNameValue(line, &name, &value);
    if (strcmp(name, "_EXTENT") == 0) {
      if (file->pFilter && boExtentOutsideFilter(file, value)) return kAsfHeadSkipped;
    } else if (strcmp(name, "_ASPOLY") == 0) {
      file->boAsPolygon = true;
    } else {
      vTakeCommonLine(file, name, value);
    }
  }
  return kAsfHeadSectionEnd;
}

// The line of coordinates behind "/XY...", after any empty lines: at least
// two numbers. Otherwise the line is taken as a head line again.
int iReadPointHead(AsfFile* file) {
  char* line = sAsfRecordLine(file);
  while (line) {
    if (boAsfEndsRecord(line)) {
      vAsfRecordHold(file);
      return line[0] == '[' ? kAsfHeadSectionEnd : kAsfHeadSkipped;
    }
    if (strncmp(line, "/XY", 3) == 0) {
      do {
        line = sAsfRecordLine(file);
      } while (line && line[0] == 0);
      if (!line) return kAsfHeadSectionEnd;
      double point[3] = {0.0, 0.0, 0.0};
      if (iAsfScanNumbers(line, point, 3) >= 2) {
        memcpy(file->adPoint, point, sizeof point);
        return boAsfPointInFilter(file) ? kAsfHeadRead : kAsfHeadSkipped;
      }
      continue;
    }
    char* name;
    char* value;
    vAsfSplitNameValue(line, &name, &value);
    if (strcmp(name, "_rot") == 0) {
      file->dRotation = dReadNumber(value) * kRadiansPerDegree;
    } else if (strcmp(name, "_align") == 0) {
      file->iAlign = iClampToInt32(lAsfReadLong(value));
    } else if (strcmp(name, "_label") == 0) {
      vAsfCopyText(file->acLabel, kAsfLabelSize, value);
    } else {
      vTakeCommonLine(file, name, value);
    }
    line = sAsfRecordLine(file);
  }
  return kAsfHeadSectionEnd;
}

// The head of a net or cloud ends at "/POINTS2" or "/POINTS". A record
// without points ends at the next record or the section's end, and is read
// all the same.
int iReadNetHead(AsfFile* file) {
  while (char* line = sAsfRecordLine(file)) {
    if (boAsfEndsRecord(line)) {
      vAsfRecordHold(file);
      return kAsfHeadRead;
    }
    if (line[0] == '/') {
      if (boAsfFirstWordIs(line, "/POINTS2")) {
        file->boPoints2 = true;
        return kAsfHeadRead;
      }
      if (boAsfFirstWordIs(line, "/POINTS")) return kAsfHeadRead;
      continue;
    }
    char* name;
    char* value;
    vAsfSplitNameValue(line, &name, &value);
    if (strcmp(name, "_#POINTS") == 0) {
      file->iPointCount = iClampToInt32(lAsfReadLong(value));
    } else if (strcmp(name, "_#TRIANGLES") == 0) {
      file->iTriangleCount = iClampToInt32(lAsfReadLong(value));
    } else if (strcmp(name, "_OFFSET_NE") == 0) {
      const char* cursor = value;
      boAsfScanNumber(&cursor, &file->dOffsetNorth);
      boAsfScanNumber(&cursor, &file->dOffsetEast);
    } else {
      vTakeCommonLine(file, name, value);
    }
  }
  // Cut at the end of the file: what was read stands.
  return kAsfHeadRead;
}

int iReadHead(AsfFile* file, AsfSection* section, int type) {
  if (file->boOldFormat) return iAsfOldRecordHead(file, section, type);
  switch (type) {
    case kAsfTypeLine:
    case kAsfTypePolygon:
      return iReadLineHead(file);
    case kAsfTypePoint:
    case kAsfTypeText:
      return iReadPointHead(file);
    default:
      return iReadNetHead(file);
  }
}

bool boHoldsRecords(int type) { return type >= kAsfTypeLine && type <= kAsfTypeCloud; }

}  // namespace

int iAsfObjectNext(AsfFile* file, AsfSection* section, long* outId) {
  if (outId) *outId = 0;
  if (!file || !section || !file->pReader) return -1;
  file->iPendingType = kAsfNoPendingType;
  int type = section->iType;
  if (!boHoldsRecords(type) || !boAsfRecordsBegin(file, section)) return -1;
  char letter = cAsfTypeLetter(type);
  while (char* line = sAsfRecordLine(file)) {
    if (line[0] == '[') {
      vAsfRecordHold(file);
      return -1;
    }
    if (line[0] != ':' || line[1] != letter) continue;
    long id = lAsfReadLong(line + 2);
    vAsfRecordReset(file, section);
    int head = iReadHead(file, section, type);
    if (head == kAsfHeadSectionEnd) return -1;
    if (head == kAsfHeadSkipped) continue;
    if (file->boOldFormat) {
      vAsfFieldBindingsCopy(section);
    } else {
      vAsfFieldValuesSplit(file, section);
    }
    file->iPendingType = type;
    if (outId) *outId = id;
    return type;
  }
  return -1;
}

bool boAsfObjectFind(AsfFile* file, AsfSection* section, long id) {
  if (!file || !section || !file->pReader || !boHoldsRecords(section->iType)) return false;
  if (!boAsfRecordsRewind(file, section)) return false;
  long found = 0;
  while (iAsfObjectNext(file, section, &found) >= 0) {
    if (found == id) return true;
  }
  return false;
}
