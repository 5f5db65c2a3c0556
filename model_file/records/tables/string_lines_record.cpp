#include "model_file/records/tables/string_lines_record.h"

#include <cstdio>
#include <cstring>

#include "model_file/container/asf_sections.h"
#include "model_file/records/frame/record_line.h"
#include "model_file/records/lines/plan_lines_record.h"
#include "model_file/records/lines/ver_line_record.h"
#include "model_file/records/types/layer_list_line.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/string_lines.h"

namespace {

constexpr const char* kLayerKeyword = "LAYER";
constexpr const char* kLinesSection = "STRINGLINESSURFACES";
constexpr const char* kVerLinesSection = "VERLINESTRINGLINESSURFACES";

const RmStringLines* Table(const RmModel* model) {
  return RmSurfGenGet<kRmStringLinesSlot>(RmModelGetSurfGen(model));
}

unsigned uFileNumber(const RmStringLineLayer* layer) {
  return static_cast<unsigned>(iRmLayerIdToFile(layer->Id));
}

// The section name of a layer's lines, cut as the container cuts it.
void vSectionName(char (&name)[kAsfSectionNameSize], const char* kind,
                  const RmStringLineLayer* layer) {
  std::snprintf(name, sizeof name, "%s_%u", kind, uFileNumber(layer));
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmStringLinesHasRows(Table(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  for (const RmStringLineLayer* layer = RmStringLinesGetFirst(Table(model)); layer;
       layer = layer->Next) {
    boRecordWrite(file, section, "%s %u", kLayerKeyword, uFileNumber(layer));
  }
}

void vPrepareLines(AsfFile* file, AsfSection* section, const void* lines) {
  vRmLinesSetFieldNames(file, section, static_cast<const RmLines*>(lines));
}

void vWriteLines(AsfFile* file, AsfSection* section, const void* lines) {
  vRmLinesWriteRecords(file, section, static_cast<const RmLines*>(lines));
}

void vWriteVerLines(AsfFile* file, AsfSection* section, const void* lines) {
  vRmVerLinesWriteRecords(file, section, static_cast<const RmLines*>(lines));
}

// Per layer with lines, its line section and then, with vertical lines, its
// VERLINE section.
void vObjectSections(const RmModel* model, std::vector<RmObjectSection>* sections) {
  for (const RmStringLineLayer* layer = RmStringLinesGetFirst(Table(model)); layer;
       layer = layer->Next) {
    const RmLines* lines = RmStringLineGetLines(layer);
    if (iRmLinesGetCount(lines) < 1) continue;
    RmObjectSection& planLines = sections->emplace_back();
    vSectionName(planLines.Name, kLinesSection, layer);
    planLines.Letter = 'L';
    planLines.Object = lines;
    planLines.Prepare = vPrepareLines;
    planLines.Write = vWriteLines;
    if (!boRmLinesHaveVerLines(lines)) continue;
    RmObjectSection& verLines = sections->emplace_back();
    vSectionName(verLines.Name, kVerLinesSection, layer);
    verLines.Letter = 'O';
    verLines.Object = lines;
    verLines.Prepare = nullptr;
    verLines.Write = vWriteVerLines;
  }
}

// The lines of a layer from its sections; null when the file has no line
// section for it.
RmLines* ReadLayerLines(AsfFile* file, const RmStringLineLayer* layer, int dataVersion) {
  char name[kAsfSectionNameSize];
  vSectionName(name, kLinesSection, layer);
  AsfSection* section = AsfSectionFind(file, name, kAsfTypeLine);
  if (!section) return nullptr;
  RmLines* lines = RmLinesCreate();
  if (!lines) return nullptr;
  vRmLinesReadRecords(file, section, lines, dataVersion);
  vSectionName(name, kVerLinesSection, layer);
  section = AsfSectionFind(file, name, kAsfTypeOther);
  if (section) vRmVerLinesReadRecords(file, section, lines, dataVersion);
  return lines;
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  RmStringLines* table = gen ? RmStringLinesCreate() : nullptr;
  if (!table) return;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (std::strcmp(line.Token, kLayerKeyword) != 0) continue;
    RmLayerId id = RmLayerIdOfFileNumber(iRecordInteger(&line));
    if (boRmLayerIdValid(id)) RmStringLineAdd(table, id);
  }
  // The line sections are looked up once the layers' own section is read.
  for (RmStringLineLayer* layer = RmStringLinesGetFirst(table); layer; layer = layer->Next) {
    vRmStringLineSetLines(layer, ReadLayerLines(file, layer, model->DataVersion));
  }
  vRmSurfGenSet<kRmStringLinesSlot>(gen, table);
}

}  // namespace

const RmRecordFamily kRmStringLinesFamily = {
    .Keyword = "STRINGLINESLAYERS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
    .ObjectSections = vObjectSections,
};
