#include "model_file/records/tables/vips_special_gradings_record.h"

#include <cstring>

#include "model_file/records/frame/record_line.h"
#include "model_file/records/types/layer_list_line.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/vips_special_gradings.h"

namespace {

constexpr const char* kEntryKeyword = ":VIPSSPECIALGRADINGS";
constexpr const char* kMinThickLeftKeyword = "MINTHICKLEFTPCODE";
constexpr const char* kMinThickRightKeyword = "MINTHICKRIGHTPCODE";
constexpr const char* kLeftKeyword = ":LEFTSIDE";
constexpr const char* kRightKeyword = ":RIGHTSIDE";
constexpr const char* kSurfaceKeyword = ":VIPSSPECIALGRADINGSURFACE";

const RmVipsSpecialGradings* Table(const RmModel* model) {
  return RmSurfGenGet<kRmVipsSpecialGradingsSlot>(RmModelGetSurfGen(model));
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmVipsSpecialGradingsHasRows(Table(model));
}

void vWriteSide(AsfFile* file, AsfSection* section, const char* keyword, const ListHead* side) {
  if (!RmVipsGradingSurfacesGetFirst(side)) return;
  boRecordWrite(file, section, "%s", keyword);
  for (const RmVipsGradingSurface* surface = RmVipsGradingSurfacesGetFirst(side); surface;
       surface = surface->Next) {
    boRecordWrite(file, section, "%s %d", kSurfaceKeyword, surface->Surface);
    for (const RmVipsGradingRow* row = RmVipsGradingRowsGetFirst(surface); row; row = row->Next) {
      boRecordWrite(file, section, " %.3f %.3f %.3f %d %d %d %.3f %.3f %d %.3f %.3f %.3f",
                    row->Chain, row->Height, row->Width, row->WidthPcode, row->AlignmentId,
                    row->WidthMethod, row->WidthOffset, row->Slope, row->SlopeMethod, row->Extra1,
                    row->Extra2, row->BeamSlope);
    }
  }
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  for (const RmVipsSpecialGrading* entry = RmVipsSpecialGradingsGetFirst(Table(model)); entry;
       entry = entry->Next) {
    boRecordWrite(file, section, "%s %u", kEntryKeyword,
                  static_cast<unsigned>(iRmLayerIdToFile(entry->Id)));
    if (boRmVipsMinThickLeftKept(entry)) {
      boRecordWrite(file, section, "%s %d", kMinThickLeftKeyword, entry->MinThickLeftPcode);
    }
    if (boRmVipsMinThickRightKept(entry)) {
      boRecordWrite(file, section, "%s %d", kMinThickRightKeyword, entry->MinThickRightPcode);
    }
    vWriteSide(file, section, kLeftKeyword, &entry->Left);
    vWriteSide(file, section, kRightKeyword, &entry->Right);
  }
}

// A new row of the surface; what the line leaves out keeps its default.
void vReadRow(RecordLine* line, RmVipsGradingSurface* surface) {
  RmVipsGradingRow* row = RmVipsGradingRowAdd(surface);
  if (!row) return;
  vRecordLineStart(line, line->Text);
  row->Chain = dRecordNumber(line, row->Chain);
  row->Height = dRecordNumber(line, row->Height);
  row->Width = dRecordNumber(line, row->Width);
  row->WidthPcode = iRecordInteger(line, row->WidthPcode);
  row->AlignmentId = iRecordInteger(line, row->AlignmentId);
  row->WidthMethod = iRecordInteger(line, row->WidthMethod);
  row->WidthOffset = dRecordNumber(line, row->WidthOffset);
  row->Slope = dRecordNumber(line, row->Slope);
  row->SlopeMethod = iRecordInteger(line, row->SlopeMethod);
  row->Extra1 = dRecordNumber(line, row->Extra1);
  row->Extra2 = dRecordNumber(line, row->Extra2);
  row->BeamSlope = dRecordNumber(line, row->BeamSlope);
}

// The entry of the layer that the line names; null for a number that is no
// layer.
RmVipsSpecialGrading* StartEntry(RmVipsSpecialGradings* table, RecordLine* line) {
  RmLayerId id = RmLayerIdOfFileNumber(iRecordInteger(line));
  return boRmLayerIdValid(id) ? RmVipsSpecialGradingAdd(table, id) : nullptr;
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  RmVipsSpecialGradings* table = gen ? RmVipsSpecialGradingsCreate() : nullptr;
  if (!table) return;
  RmVipsSpecialGrading* entry = nullptr;
  ListHead* side = nullptr;
  RmVipsGradingSurface* surface = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (surface) vReadRow(&line, surface);
      continue;
    }
    // Any other line ends the rows of the surface.
    surface = nullptr;
    if (std::strcmp(line.Token, kEntryKeyword) == 0) {
      entry = StartEntry(table, &line);
      side = nullptr;
    } else if (!entry) {
      continue;
    } else if (std::strcmp(line.Token, kMinThickLeftKeyword) == 0) {
      entry->MinThickLeftPcode = iRecordInteger(&line);
    } else if (std::strcmp(line.Token, kMinThickRightKeyword) == 0) {
      entry->MinThickRightPcode = iRecordInteger(&line);
    } else if (std::strcmp(line.Token, kLeftKeyword) == 0) {
      side = RmVipsSpecialGradingSide(entry, kRmSideLeft);
    } else if (std::strcmp(line.Token, kRightKeyword) == 0) {
      side = RmVipsSpecialGradingSide(entry, kRmSideRight);
    } else if (std::strcmp(line.Token, kSurfaceKeyword) == 0) {
      surface = RmVipsGradingSurfaceAdd(side);
      if (surface) surface->Surface = iRecordInteger(&line);
    }
  }
  vRmSurfGenSet<kRmVipsSpecialGradingsSlot>(gen, table);
}

}  // namespace

const RmRecordFamily kRmVipsSpecialGradingsFamily = {
    .Keyword = "VIPSSPECIALGRADINGS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
