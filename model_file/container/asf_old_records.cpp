#include "model_file/container/asf_old_records.h"

#include <cstring>

#include "model_file/container/asf_head_reader.h"
#include "model_file/container/asf_keys_fields.h"
#include "model_file/container/asf_record_input.h"
#include "model_file/container/asf_record_numbers.h"

namespace {

// A value of an older record: 29 characters and a terminator.
constexpr size_t kOldValueSize = 30;

// A value in double quotes runs to the next quote; `outLength` receives its
// length.
const char* sUnquote(const char* value, size_t* outLength) {
  if (value[0] != '"') {
    *outLength = strlen(value);
    return value;
  }
  ++value;
  const char* close = strchr(value, '"');
  *outLength = close ? static_cast<size_t>(close - value) : strlen(value);
  return value;
}

void vCopyCut(char* out, size_t size, const char* text, size_t length) {
  if (length > size - 1) length = size - 1;
  memcpy(out, text, length);
  out[length] = 0;
}

// The values of an older record stand in the field value store in one slot
// of kOldValueSize bytes per field, made at the record's first value, so that
// the store does not move while the values are set.
char* pValueSlot(AsfFile* file, const AsfSection* section, int index) {
  if (file->uFieldStoreUsed == 0) {
    static const char kEmptySlot[kOldValueSize] = {};
    for (const AsfField* field = section->fields.pFirst; field; field = field->pNext) {
      if (!boAsfFieldStoreAppend(file, kEmptySlot, sizeof kEmptySlot)) break;
    }
  }
  size_t offset = static_cast<size_t>(index) * kOldValueSize;
  if (offset + kOldValueSize > file->uFieldStoreUsed) return nullptr;
  return file->pFieldStore + offset;
}

void vSetFieldValue(AsfFile* file, AsfSection* section, const char* name, const char* value) {
  int index = 0;
  AsfField* field = section->fields.pFirst;
  while (field && strcmp(field->sName, name) != 0) {
    field = field->pNext;
    ++index;
  }
  if (!field) return;
  char* slot = pValueSlot(file, section, index);
  if (!slot) return;
  size_t length = 0;
  const char* text = sUnquote(value, &length);
  vCopyCut(slot, kOldValueSize, text, length);
  field->sValue = slot;
}

void vTakeHeadLine(AsfFile* file, AsfSection* section, char* line) {
  char* name;
  char* value;
  vAsfSplitNameValue(line, &name, &value);
  if (strcmp(name, "poly") == 0) {
    file->boOldPolygon = true;
  } else if (strcmp(name, "rot") == 0 || strcmp(name, "ANG") == 0) {
    double rotation = 0.0;
    const char* cursor = value;
    boAsfScanNumber(&cursor, &rotation);
    file->dRotation = rotation;
  } else if (strcmp(name, "align") == 0) {
    long align = lAsfReadLong(value);
    file->iAlign = align > INT32_MAX || align < INT32_MIN ? 0 : static_cast<int32_t>(align);
  } else if (strcmp(name, "lbl") == 0) {
    size_t length = 0;
    const char* label = sUnquote(value, &length);
    vCopyCut(file->acLabel, kAsfLabelSize, label, length);
  } else {
    vSetFieldValue(file, section, name, value);
  }
}

}  // namespace

int iAsfOldRecordHead(AsfFile* file, AsfSection* section, int type) {
  bool positioned = type == kAsfTypePoint || type == kAsfTypeText;
  while (char* line = sAsfRecordLine(file)) {
    if (boAsfEndsRecord(line)) {
      vAsfRecordHold(file);
      if (!positioned) return kAsfHeadRead;
      return line[0] == '[' ? kAsfHeadSectionEnd : kAsfHeadSkipped;
    }
    if (!boAsfIsPointLine(line)) {
      vTakeHeadLine(file, section, line);
      continue;
    }
    if (!positioned) {
      vAsfRecordHold(file);
      return kAsfHeadRead;
    }
    double point[3] = {0.0, 0.0, 0.0};
    if (iAsfScanNumbers(line, point, 3) >= 2) {
      memcpy(file->adPoint, point, sizeof point);
      return boAsfPointInFilter(file) ? kAsfHeadRead : kAsfHeadSkipped;
    }
  }
  return positioned ? kAsfHeadSectionEnd : kAsfHeadRead;
}
