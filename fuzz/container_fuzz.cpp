// Opens arbitrary bytes as a container in memory and reads all of it: the
// head keys, every section with its keys and field names, the lines of
// every O section and the geometry objects of every other section. What was
// read is then written to a new container, which must open again with the
// same number of sections.
#include <cstddef>
#include <cstdint>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_objects.h"

namespace {

// Takes an element's data up to its ")".
void vTakeElmData(void*, LiLine*, int32_t, const char* text, const char** end) {
  while (*text && *text != ')') ++text;
  *end = text;
}

// The section whose object was read last, and the field values of that
// object given back to the writer.
struct Source {
  AsfFile* file;
  AsfSection* section;
};

bool boCopyFieldValue(void* datum, const void*, int index, const char** text) {
  const Source* source = static_cast<const Source*>(datum);
  return boAsfFieldValueAt(source->file, source->section, index, text);
}

// Reads one object of the section's type and writes it to the copy.
void vCopyObject(AsfFile* file, AsfSection* section, AsfFile* copy, AsfSection* target, long id) {
  Source source{file, section};
  switch (iAsfSectionGetType(section)) {
    case kAsfTypeLine: {
      LiLine* line = LiLineCreate(false);
      boAsfLineReadData(file, section, line, nullptr);
      boAsfLineWrite(copy, target, line, boCopyFieldValue, &source);
      vLiLineDelete(&line);
      break;
    }
    case kAsfTypePolygon: {
      YgPolygon* polygon = YgPolygonCreate();
      boAsfPolygonRead(file, section, polygon);
      boAsfPolygonWrite(copy, target, polygon, boCopyFieldValue, &source);
      vYgPolygonDelete(&polygon);
      break;
    }
    case kAsfTypePoint: {
      PoPoint* point = PoPointCreate();
      vPoPointSetID(point, id);
      if (boAsfPointRead(file, section, point)) {
        boAsfPointWrite(copy, target, point, boCopyFieldValue, &source);
      }
      vPoPointDelete(&point);
      break;
    }
    case kAsfTypeText: {
      TeText* text = TeTextCreate();
      vTeTextSetID(text, id);
      if (boAsfTextRead(file, section, text)) {
        boAsfTextWrite(copy, target, text, boCopyFieldValue, &source);
      }
      vTeTextDelete(&text);
      break;
    }
    case kAsfTypeNet: {
      TrNet* net = TrNetCreate();
      boAsfNetRead(file, section, net);
      boAsfNetWrite(copy, target, net, boCopyFieldValue, &source);
      vTrNetDelete(&net);
      break;
    }
    case kAsfTypeCloud: {
      PtCloud* cloud = PtCloudCreate();
      boAsfCloudRead(file, section, cloud);
      boAsfCloudWrite(copy, target, cloud, boCopyFieldValue, &source);
      vPtCloudDelete(&cloud);
      break;
    }
    default:
      break;
  }
}

// Reads every object of the section into a geometry object and copies it;
// then looks for the first one again, and reads the section once more with
// a filter around the section's extent.
void vCopyObjects(AsfFile* file, AsfSection* section, AsfFile* copy, AsfSection* target) {
  long first = 0;
  long id = 0;
  for (int count = 0; iAsfObjectNext(file, section, &id) >= 0; ++count) {
    if (count == 0) first = id;
    vCopyObject(file, section, copy, target, id);
  }
  if (boAsfObjectFind(file, section, first)) vCopyObject(file, section, nullptr, nullptr, first);
  vAsfFilterSet(file, AsfExtentGet(file, section));
  if (AsfSectionFind(file, sAsfSectionGetName(section), iAsfSectionGetType(section))) {
    while (iAsfObjectNext(file, section, &id) >= 0) {
    }
  }
  vAsfFilterSet(file, nullptr);
}

void vReadKeys(AsfFile* file, AsfSection* section) {
  const char* name;
  const char* value;
  for (int i = 0; boAsfKeyAt(file, section, i, &name, &value); ++i) {
  }
}

void vCopyKeys(AsfFile* from, AsfSection* fromSection, AsfFile* to, AsfSection* toSection) {
  const char* name;
  const char* value;
  for (int i = 0; boAsfKeyAt(from, fromSection, i, &name, &value); ++i) {
    vAsfKeySet(to, toSection, name, value);
  }
}

int iSectionCount(AsfFile* file) {
  int count = 0;
  while (AsfSectionAt(file, count)) ++count;
  return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  AsfFile* file = AsfFileOpenMem(data, size);
  if (!file) return 0;
  vAsfElmReadCallbackSet(file, vTakeElmData);
  AsfFile* copy = AsfFileCreate(nullptr);
  vAsfFileSetType(copy, sAsfFileGetType(file));
  vReadKeys(file, nullptr);
  vCopyKeys(file, nullptr, copy, nullptr);

  int sections = 0;
  for (AsfSection* section; (section = AsfSectionAt(file, sections)) != nullptr; ++sections) {
    int type = iAsfSectionGetType(section);
    AsfSection* found = AsfSectionFind(file, sAsfSectionGetName(section), type);
    if (!found) __builtin_trap();
    AsfSection* target = AsfSectionAdd(copy, sAsfSectionGetName(found), type);
    vAsfExtentSet(copy, target, AsfExtentGet(file, found));
    vCopyKeys(file, found, copy, target);
    const char* name;
    for (int i = 0; boAsfFieldNameAt(file, found, i, &name); ++i) {
      vAsfFieldNameSet(copy, target, i, name);
    }
  }
  boAsfFileWriteHead(copy);
  for (int i = 0; i < sections; ++i) {
    AsfSection* section = AsfSectionAt(file, i);
    if (!section) continue;
    AsfSection* target = AsfSectionAt(copy, i);
    if (iAsfSectionGetType(section) != kAsfTypeOther) {
      vCopyObjects(file, section, copy, target);
      continue;
    }
    const char* line;
    size_t length;
    while (boAsfSectionNextLine(file, section, &line, &length)) {
      boAsfSectionWriteLine(copy, target, line, 0);
    }
  }
  vAsfFileClose(file);

  boAsfFileFinish(copy);
  const char* bytes;
  size_t byteCount;
  if (boAsfMemGet(copy, &bytes, &byteCount)) {
    AsfFile* again = AsfFileOpenMem(bytes, byteCount);
    if (sections > 0 && (!again || iSectionCount(again) != sections)) __builtin_trap();
    vAsfFileClose(again);
  }
  vAsfFileClose(copy);
  return 0;
}
