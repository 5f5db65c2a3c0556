#include "model_file/records/surfaces/surf_gen_record.h"

#include <cstdio>
#include <cstring>

#include "base/fields.h"
#include "base/numbers.h"
#include "model_file/records/frame/keyword_lines.h"
#include "model_file/records/frame/record_line.h"
#include "model_file/records/tables/surface_border_lines_record.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surface_ref_heights.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/tables/surface_border_lines.h"

namespace {

constexpr const char* kGroup = ":SURFACES";
constexpr const char* kSurface = ":SURFACE";
constexpr const char* kDescr = "DESCR";
constexpr const char* kRefHeights = ":SURFACEREFHEIGHTS";
constexpr const char* kBorderLines = ":GROUPSURFBOUND";
constexpr const char* kGroupEnd = ":GROUPEND";
// Older files wrote reference heights as ranges of one height.
constexpr int kLastRangedRefHeights = 5;


// Offsets this close to 0 are not written.
bool boOffset(float value) { return value >= 0.00001f || value <= -0.00001f; }

RmLayerId ClipLayerOf(int32_t number) {
  RmLayerId id;
  if (number < 0) {
    vRmLayerIdClear(&id);
    return id;
  }
  return RmLayerIdFromFile(number);
}

// The settings of a group, in the order of the file. The read-only lines of
// older files stand at the end: they are never written.
constexpr RmKeywordLine<RmSurfaceGroup> kGroupLines[] = {
    {.Keyword = "REFSURF", .Format = "%d", .Integer = &RmSurfaceGroup::RefSurf},
    {.Keyword = "REFHEIGHT",
     .Format = "%.4f",
     .GetReal = [](const RmSurfaceGroup& group) { return double(group.RefHeight); },
     .SetReal = [](RmSurfaceGroup* group, double value) { group->RefHeight = float(value); },
     .WrittenWhen = [](const RmSurfaceGroup& group) { return boIsPresent(group.RefHeight); }},
    {.Keyword = "CLIPLAYERLEFT",
     .Format = "%u",
     .GetInteger =
         [](const RmSurfaceGroup& group) { return iRmLayerIdToFile(group.ClipLayerLeft); },
     .SetInteger = [](RmSurfaceGroup* group,
                      int32_t value) { group->ClipLayerLeft = ClipLayerOf(value); },
     .WrittenWhen = [](const RmSurfaceGroup& group) {
       return boRmLayerIdValid(group.ClipLayerLeft);
     }},
    {.Keyword = "CLIPLAYERRIGHT",
     .Format = "%u",
     .GetInteger =
         [](const RmSurfaceGroup& group) { return iRmLayerIdToFile(group.ClipLayerRight); },
     .SetInteger = [](RmSurfaceGroup* group,
                      int32_t value) { group->ClipLayerRight = ClipLayerOf(value); },
     .WrittenWhen = [](const RmSurfaceGroup& group) {
       return boRmLayerIdValid(group.ClipLayerRight);
     }},
    {.Keyword = "TRIMLEFT",
     .Format = "%d",
     .Integer = &RmSurfaceGroup::TrimLeft,
     .WrittenWhen = [](const RmSurfaceGroup& group) { return group.TrimLeft != 0; }},
    {.Keyword = "TRIMRIGHT",
     .Format = "%d",
     .Integer = &RmSurfaceGroup::TrimRight,
     .WrittenWhen = [](const RmSurfaceGroup& group) { return group.TrimRight != 0; }},
    {.Keyword = "STARTTYPE",
     .Format = "%d",  // a long in the file; the same digits
     .GetInteger = [](const RmSurfaceGroup& group) { return group.Start.Type; },
     .SetInteger = [](RmSurfaceGroup* group, int32_t value) { group->Start.Type = value; }},
    {.Keyword = "STARTLAYERNOOREXTRALINE",
     .Format = "%.4f",
     .GetReal = [](const RmSurfaceGroup& group) { return double(group.Start.LayerNoOrExtraLine); },
     .SetReal = [](RmSurfaceGroup* group,
                   double value) { group->Start.LayerNoOrExtraLine = float(value); },
     .ValueWhenEmpty = kNullNumber,
     .WrittenWhen = [](const RmSurfaceGroup& group) {
       return group.Start.Type != kRmStartAtCentre;
     }},
    {.Keyword = "STARTPCODE2",
     .Format = "%.4f",
     .GetReal = [](const RmSurfaceGroup& group) { return double(group.Start.Pcode2); },
     .SetReal = [](RmSurfaceGroup* group, double value) { group->Start.Pcode2 = float(value); },
     .ValueWhenEmpty = kNullNumber,
     .WrittenWhen = [](const RmSurfaceGroup& group) {
       return group.Start.Type == kRmStartAtLayerCode;
     }},
    {.Keyword = "STARTXOFFSET",
     .Format = "%.4f",
     .GetReal = [](const RmSurfaceGroup& group) { return double(group.Start.XOffset); },
     .SetReal = [](RmSurfaceGroup* group, double value) { group->Start.XOffset = float(value); },
     .WrittenWhen = [](const RmSurfaceGroup& group) { return boOffset(group.Start.XOffset); }},
    {.Keyword = "STARTYOFFSET",
     .Format = "%.4f",
     .GetReal = [](const RmSurfaceGroup& group) { return double(group.Start.YOffset); },
     .SetReal = [](RmSurfaceGroup* group, double value) { group->Start.YOffset = float(value); },
     .WrittenWhen = [](const RmSurfaceGroup& group) { return boOffset(group.Start.YOffset); }},
};

// Lines of older files, read and never written.
constexpr RmKeywordLine<RmSurfaceGroup> kOlderGroupLines[] = {
    {.Keyword = "CLIPLAYER",
     .SetInteger =
         [](RmSurfaceGroup* group, int32_t value) {
           vRmSurfaceGroupSetClipLayer(group, ClipLayerOf(value), 0);
         }},
    {.Keyword = "STARTLAYERNO",
     .SetInteger =
         [](RmSurfaceGroup* group, int32_t value) {
           group->Start.LayerNoOrExtraLine = float(value);
           if (value != -2) group->Start.Type = kRmStartAtLayerCode;
         },
     .ValueWhenEmpty = -2},
    {.Keyword = "STARTPCODE",
     .SetInteger =
         [](RmSurfaceGroup* group, int32_t value) {
           group->Start.Pcode2 = value == kNullInteger ? float(kNullNumber)
                                                       : float(dRmPcodeToDouble(value));
         },
     .ValueWhenEmpty = kNullInteger},
    {.Keyword = "STARTLAYERNOORXOFFSET",
     .SetReal = [](RmSurfaceGroup* group,
                   double value) { group->Start.LayerNoOrExtraLine = float(value); }},
    {.Keyword = "STARTPCODEORYOFFSET",
     .SetReal = [](RmSurfaceGroup* group, double value) { group->Start.Pcode2 = float(value); }},
};

// ---- Writing ----

// A row's number as the file prints it: fixed decimals, closing zeros cut.
const char* sTrimmed(char* buffer, size_t size, const char* format, double value) {
  std::snprintf(buffer, size, format, value);
  return sTrimZeros(buffer);
}

void vWriteSurface(AsfFile* file, AsfSection* section, const RmSurface* surface) {
  if (surface->SecondNumber != 0) {
    boRecordWrite(file, section, "%s %d %d", kSurface, surface->Number, surface->SecondNumber);
  } else {
    boRecordWrite(file, section, "%s %d", kSurface, surface->Number);
  }
  if (surface->Descr) {
    char quoted[kRecordQuoteSize];
    boRecordWrite(file, section, "%s %s", kDescr, sQuote(quoted, sizeof quoted, surface->Descr));
  }
  for (const RmSurfaceRow* row = RmSurfaceRowsGetFirst(surface); row; row = row->Next) {
    char chain[32];
    char width[32];
    char slope[32];
    boRecordWrite(file, section, " %s %s %s %d", sTrimmed(chain, sizeof chain, "%.4f", row->Chain),
                  sTrimmed(width, sizeof width, "%.4f", row->Width),
                  sTrimmed(slope, sizeof slope, "%.5f", row->Slope), row->RowType);
  }
}

void vWriteGroup(AsfFile* file, AsfSection* section, const RmSurfaceGroup* group) {
  boRecordWrite(file, section, "%s %u", kGroup, unsigned(iRmLayerIdToFile(group->Id)));
  vRmKeywordLinesWrite<RmSurfaceGroup>(file, section, *group, kGroupLines);
  if (group->RefHeights) {
    boRecordWrite(file, section, "%s", kRefHeights);
    for (const RmSurfaceRefHeight* row = RmSurfaceRefHeightsGetFirst(group->RefHeights); row;
         row = row->Next) {
      boRecordWrite(file, section, " %.4f %.4f", row->Chain, double(row->Height));
    }
  }
  if (boRmSurfaceBorderLinesHasRows(group->BorderLines)) {
    boRecordWrite(file, section, "%s", kBorderLines);
    for (const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(group->BorderLines); row;
         row = row->Next) {
      vRmSurfaceBorderLineRowWrite(file, section, row);
    }
    boRecordWrite(file, section, "%s", kGroupEnd);
  }
  for (const RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
    vWriteSurface(file, section, surface);
  }
}

const RmSurfaceGroups* GroupsOf(const RmModel* model) {
  return RmSurfGenGet<kRmSurfaceGroupsSlot>(RmModelGetSurfGen(model));
}

bool boHasGroups(const RmModel* model, const RmRecordFamily&) {
  return boRmSurfaceGroupsHasRows(GroupsOf(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  for (const RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(GroupsOf(model)); group;
       group = group->Next) {
    vWriteGroup(file, section, group);
  }
}

// ---- Reading ----

// What the rows of the section belong to at a line.
enum class RowsOf { kNothing, kSurface, kRefHeights, kBorderLines };

struct GroupReader {
  RmSurfaceGroups* Groups;
  int DataVersion;
  RmSurfaceGroup* Group = nullptr;
  RmSurface* Surface = nullptr;
  RowsOf Rows = RowsOf::kNothing;
  bool DescrAllowed = false;
  // The end of the last ranged reference height row of an older file.
  bool HasRangeEnd = false;
  double RangeEnd = 0.0;
};

void vReadSurfaceRow(GroupReader* reader, RecordLine* line) {
  vRecordLineStart(line, line->Text);
  const double chain = dRecordNumber(line);
  RmSurfaceRow* row = RmSurfaceRowAddBehind(reader->Surface, chain);
  if (!row) return;
  row->Width = dRecordNumber(line);
  row->Slope = dRecordNumber(line);
  row->RowType = iRecordInteger(line);
}

void vAddRefHeight(RmSurfaceRefHeights* list, double chain, double height) {
  RmSurfaceRefHeight* row = RmSurfaceRefHeightAdd(list, chain);
  if (row) row->Height = float(height);
}

// A row of chainage and height; in older files a range of one height, with
// a gap in front of every range but the first.
void vReadRefHeightRow(GroupReader* reader, RecordLine* line) {
  RmSurfaceRefHeights* list = reader->Group->RefHeights;
  vRecordLineStart(line, line->Text);
  const double chain = dRecordNumber(line);
  if (reader->DataVersion > kLastRangedRefHeights) {
    vAddRefHeight(list, chain, dRecordNumber(line));
    return;
  }
  const double to = dRecordNumber(line);
  const double height = dRecordNumber(line);
  if (reader->HasRangeEnd) vAddRefHeight(list, reader->RangeEnd + 0.001, kNullNumber);
  vAddRefHeight(list, chain, height);
  vAddRefHeight(list, to, height);
  reader->HasRangeEnd = true;
  reader->RangeEnd = to;
}

void vReadRow(GroupReader* reader, RecordLine* line) {
  switch (reader->Rows) {
    case RowsOf::kSurface:
      if (reader->Surface) vReadSurfaceRow(reader, line);
      reader->DescrAllowed = false;
      break;
    case RowsOf::kRefHeights:
      vReadRefHeightRow(reader, line);
      break;
    case RowsOf::kBorderLines:
      vRmSurfaceBorderLineRowRead(line, reader->Group->BorderLines);
      break;
    case RowsOf::kNothing:
      break;
  }
}

void vReadKeyword(GroupReader* reader, RecordLine* line) {
  const char* keyword = line->Token;
  const bool descrAllowed = reader->DescrAllowed;
  reader->DescrAllowed = false;
  if (boRecordIs(keyword, kGroup)) {
    reader->Group = RmSurfaceGroupsAdd(reader->Groups, RmLayerIdFromFile(iRecordInteger(line)));
    reader->Surface = nullptr;
    reader->Rows = RowsOf::kNothing;
    return;
  }
  // Lines in front of the first group belong to none.
  if (!reader->Group) return;
  if (reader->Rows == RowsOf::kBorderLines && !boRecordIs(keyword, kGroupEnd)) {
    // Rows of border lines run to their end line; anything else between is
    // passed over.
    return;
  }
  reader->Rows = RowsOf::kNothing;
  if (boRecordIs(keyword, kSurface)) {
    const int32_t number = iRecordInteger(line);
    reader->Surface = RmSurfaceAdd(reader->Group, number);
    if (reader->Surface) reader->Surface->SecondNumber = iRecordInteger(line);
    reader->Rows = RowsOf::kSurface;
    reader->DescrAllowed = true;
  } else if (boRecordIs(keyword, kDescr)) {
    if (descrAllowed && reader->Surface) vRmSurfaceSetDescr(reader->Surface, sRecordToken(line));
    reader->Rows = RowsOf::kSurface;
  } else if (boRecordIs(keyword, kRefHeights)) {
    vRmSurfaceRefHeightsDelete(&reader->Group->RefHeights);
    reader->Group->RefHeights = RmSurfaceRefHeightsCreate();
    reader->HasRangeEnd = false;
    if (reader->Group->RefHeights) reader->Rows = RowsOf::kRefHeights;
  } else if (boRecordIs(keyword, kBorderLines)) {
    vRmSurfaceBorderLinesDelete(&reader->Group->BorderLines);
    reader->Group->BorderLines = RmSurfaceBorderLinesCreate();
    if (reader->Group->BorderLines) reader->Rows = RowsOf::kBorderLines;
  } else if (!boRmKeywordLineRead<RmSurfaceGroup>(line, reader->Group, kGroupLines)) {
    boRmKeywordLineRead<RmSurfaceGroup>(line, reader->Group, kOlderGroupLines);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen) return;
  RmSurfaceGroups* groups = RmSurfaceGroupsCreate();
  if (!groups) return;
  GroupReader reader{groups, model->DataVersion};
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      vReadRow(&reader, &line);
    } else {
      vReadKeyword(&reader, &line);
    }
  }
  vRmSurfGenSet<kRmSurfaceGroupsSlot>(gen, groups);
}

// ---- Build settings ----

// Files up to this version knew only the low twenty bits; the high twelve
// settings were on for them.
constexpr int kLastVersionWithoutHighSettings = 11;
constexpr uint32_t kHighSettings = 0xfff00000u;

constexpr RmKeywordLine<RmSurfGen> kBuildSettingsLines[] = {
    {.Keyword = "BUILDSETTINGS",
     .Format = "%d",
     .GetInteger = [](const RmSurfGen& gen) { return int32_t(gen.BuildSettings); },
     .SetInteger = [](RmSurfGen* gen, int32_t value) { gen->BuildSettings = uint32_t(value); }},
};

bool boHasSurfGen(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetSurfGen(model) != nullptr;
}

void vWriteBuildSettings(AsfFile* file, AsfSection* section, const RmModel* model,
                         const RmRecordFamily&) {
  vRmKeywordLinesWrite<RmSurfGen>(file, section, *RmModelGetSurfGen(model), kBuildSettingsLines);
}

void vReadBuildSettings(AsfFile* file, AsfSection* section, RmModel* model,
                        const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen) return;
  vRmKeywordLinesRead<RmSurfGen>(file, section, gen, kBuildSettingsLines);
  if (model->DataVersion <= kLastVersionWithoutHighSettings) gen->BuildSettings |= kHighSettings;
}

}  // namespace

const RmRecordFamily kRmBuildSettingsFamily = {
    .Keyword = "SURFGEN_BUILDSETTINGS",
    .Letter = 'O',
    .HasContent = boHasSurfGen,
    .Write = vWriteBuildSettings,
    .Read = vReadBuildSettings,
};

const RmRecordFamily kRmSurfGenFamily = {
    .Keyword = "SURFGEN",
    .Letter = 'O',
    .HasContent = boHasGroups,
    .Write = vWrite,
    .Read = vRead,
};
