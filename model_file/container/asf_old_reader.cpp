#include "model_file/container/asf_old_reader.h"

#include <cstdio>
#include <cstring>

#include "model_file/container/asf_extent.h"
#include "model_file/container/asf_head_reader.h"
#include "model_file/container/asf_keys_fields.h"
#include "model_file/container/asf_sections.h"

namespace {

// Head lines of the older format are at most 255 characters.
constexpr size_t kOldHeadLineSize = 256;

// Words of object lines that are settings of the object, not fields.
constexpr const char* kNotFields[] = {"poly ", "ANG ", "rot ", "align ", "lbl "};

// A value in double quotes runs to the next quote.
char* sUnquote(char* value) {
  if (value[0] != '"') return value;
  ++value;
  char* close = strchr(value, '"');
  if (close) *close = 0;
  return value;
}

void vTakeOldHeadLine(AsfFile* file, char* line) {
  char* name;
  char* value;
  vAsfSplitNameValue(line, &name, &value);
  if (!boAsfNameUsable(name)) return;
  value = sUnquote(value);
  if (strcmp(name, "EXTENT") == 0) {
    if (!boAsfExtentScan(value, &file->extent)) vAsfExtentSetEmpty(&file->extent);
  } else if (strcmp(name, "VERSION") == 0) {
    file->iVersion = 1;
  } else if (strcmp(name, "FILETYPE") == 0) {
    vAsfFileSetType(file, value);
  } else {
    vAsfKeySet(file, nullptr, name, value);
  }
}

bool boIsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool boIsFieldLine(const char* line) {
  if (!boIsLetter(line[0]) && line[0] != '_') return false;
  for (const char* word : kNotFields) {
    if (strncmp(line, word, strlen(word)) == 0) return false;
  }
  return true;
}

// The sections that one layer "[NAME]" makes: lines, and on first need
// points, texts and polygons of the same name and line.
struct Layer {
  AsfSection* pLines;
  AsfSection* apOthers[3];  // types 1, 2, 3
  AsfSection* pCurrent;     // the section of the object being scanned
  bool boLineSeen;
};

AsfSection* OtherSection(AsfFile* file, Layer* layer, int type) {
  AsfSection*& section = layer->apOthers[type - kAsfTypePoint];
  if (!section) {
    section = AsfSectionAdd(file, layer->pLines->acName, type);
    if (section) section->iLine = layer->pLines->iLine;
  }
  return section;
}

void vTakeObjectHead(AsfFile* file, Layer* layer, const char* line) {
  switch (line[1]) {
    case 'L':
      layer->pCurrent = layer->pLines;
      layer->boLineSeen = true;
      break;
    case 'P': layer->pCurrent = OtherSection(file, layer, kAsfTypePoint); break;
    case 'T': layer->pCurrent = OtherSection(file, layer, kAsfTypeText); break;
    case 'Y': layer->pCurrent = OtherSection(file, layer, kAsfTypePolygon); break;
    default: layer->pCurrent = nullptr; break;
  }
}

void vTakeLayerLine(AsfFile* file, Layer* layer, const char* line) {
  if (line[0] == ':') {
    vTakeObjectHead(file, layer, line);
  } else if ((line[0] >= '0' && line[0] <= '9') || line[0] == '-') {
    double x;
    double y;
    AsfSection* section = layer->pCurrent ? layer->pCurrent : layer->pLines;
    if (sscanf(line, "%lf %lf", &x, &y) == 2) vAsfExtentAddPoint(&section->extent, x, y);
  } else if (layer->pCurrent && boIsFieldLine(line)) {
    size_t length = strcspn(line, " ");
    if (!AsfFieldFind(layer->pCurrent, line, length)) {
      vAsfFieldNameAppend(layer->pCurrent, line, length);
    }
  }
}

// Scans the layer whose "[NAME]" line is in the line buffer, up to the next
// "[" line or the end of the file. False at the end of the file.
bool boScanLayer(AsfFile* file) {
  char name[kAsfSectionNameSize];
  size_t length = 0;
  for (const char* at = file->acLine + 1; *at && *at != ']' && length < sizeof name - 1; ++at) {
    name[length++] = *at;
  }
  name[length] = 0;
  Layer layer{};
  layer.pLines = AsfSectionAdd(file, name, kAsfTypeLine);
  if (!layer.pLines) return false;
  layer.pLines->iLine = file->pReader->iLine;
  bool more = false;
  while (boAsfReadLine(file)) {
    if (file->acLine[0] == '[') {
      more = true;
      break;
    }
    vTakeLayerLine(file, &layer, file->acLine);
  }
  if (!layer.boLineSeen) {
    bool heldOthers = layer.apOthers[0] || layer.apOthers[1] || layer.apOthers[2];
    if (heldOthers) {
      vAsfSectionRemove(file, layer.pLines);
    } else {
      // A layer without objects holds plain text.
      layer.pLines->iType = kAsfTypeOther;
    }
  }
  return more;
}

}  // namespace

bool boAsfReadOldHead(AsfFile* file) {
  file->iVersion = 1;
  bool inSection = false;
  while (boAsfLineReadBounded(file->pReader, file->acLine, kOldHeadLineSize)) {
    if (file->acLine[0] == '[') {
      if (strncmp(file->acLine, "[LAYER_ATTRIBUTES]", 18) == 0) continue;
      inSection = true;
      break;
    }
    vTakeOldHeadLine(file, file->acLine);
  }
  while (inSection) inSection = boScanLayer(file);
  return file->pFirstSection != nullptr;
}
