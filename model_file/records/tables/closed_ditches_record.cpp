#include "model_file/records/tables/closed_ditches_record.h"

#include <cstring>

#include "model_file/records/frame/record_line.h"
#include "model_file/records/types/layer_list_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/closed_ditches.h"

namespace {

constexpr const char* kDitchKeyword = ":CLOSEDDITCH";
constexpr const char* kSectionKeyword = ":CLOSEDDITCH_CHAIN";

const RmClosedDitches* Table(const RmModel* model) {
  return RmSurfGenGet<kRmClosedDitchesSlot>(RmModelGetSurfGen(model));
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmClosedDitchesHasRows(Table(model));
}

void vReadPoint(RecordLine* line, RmClosedDitchSection* section) {
  RmClosedDitchPoint* point = RmClosedDitchPointAdd(section);
  if (!point) return;
  vRecordLineStart(line, line->Text);
  point->Distance = dRecordNumber(line);
  point->Elevation = dRecordNumber(line);
}

// The ditch of the layer that the line names; null for a number that is no
// layer.
RmClosedDitch* StartDitch(RmClosedDitches* table, RecordLine* line) {
  RmLayerId id = RmLayerIdOfFileNumber(iRecordInteger(line));
  return boRmLayerIdValid(id) ? RmClosedDitchAdd(table, id) : nullptr;
}

RmClosedDitchSection* StartSection(RmClosedDitch* ditch, RecordLine* line) {
  if (!ditch) return nullptr;
  RmClosedDitchSection* section = RmClosedDitchSectionAddSorted(ditch, dRecordNumber(line));
  if (section) section->ElevationMode = iRecordInteger(line);
  return section;
}

}  // namespace

RmClosedDitches* RmClosedDitchesRead(AsfFile* file, AsfSection* section) {
  RmClosedDitches* table = RmClosedDitchesCreate();
  if (!table) return nullptr;
  RmClosedDitch* ditch = nullptr;
  RmClosedDitchSection* open = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (open) vReadPoint(&line, open);
    } else if (std::strcmp(line.Token, kSectionKeyword) == 0) {
      open = StartSection(ditch, &line);
    } else if (std::strcmp(line.Token, kDitchKeyword) == 0) {
      ditch = StartDitch(table, &line);
      open = nullptr;
    } else {
      ditch = nullptr;
      open = nullptr;
    }
  }
  return table;
}

void vRmClosedDitchesWrite(AsfFile* file, AsfSection* section, const RmClosedDitches* ditches) {
  for (const RmClosedDitch* ditch = RmClosedDitchesGetFirst(ditches); ditch;
       ditch = ditch->Next) {
    boRecordWrite(file, section, "%s %u", kDitchKeyword,
                  static_cast<unsigned>(iRmLayerIdToFile(ditch->Id)));
    for (const RmClosedDitchSection* at = RmClosedDitchSectionsGetFirst(ditch); at;
         at = at->Next) {
      boRecordWrite(file, section, "%s %.4f %d", kSectionKeyword, at->Chain, at->ElevationMode);
      for (const RmClosedDitchPoint* point = RmClosedDitchPointsGetFirst(at); point;
           point = point->Next) {
        boRecordWrite(file, section, " %.3f %.3f", point->Distance, point->Elevation);
      }
    }
  }
}

namespace {

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmClosedDitchesWrite(file, section, Table(model));
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen) return;
  RmClosedDitches* table = RmClosedDitchesRead(file, section);
  if (table) vRmSurfGenSet<kRmClosedDitchesSlot>(gen, table);
}

}  // namespace

const RmRecordFamily kRmClosedDitchesFamily = {
    .Keyword = "CLOSEDDITCHES",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
