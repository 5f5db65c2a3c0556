#include "model_file/records/tables/superstruct_record.h"

#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/chain_range_members.h"
#include "road_model/tables/chain_range_table.h"
#include "road_model/tables/pavement.h"
#include "road_model/tables/pavement_packages.h"

namespace {

constexpr const char* kUnderMedianKeyword = "UNDERMEDIAN";
constexpr const char* kStoneSlopeSideKeyword = "STONESLOPESIDE";
constexpr const char* kStoneSlopeIntermedKeyword = "STONESLOPEINTERMED";
constexpr const char* kExcavationSlopeKeyword = "EXCAVATIONSLOPE";
constexpr const char* kChainKeyword = ":SUPERCHAIN";
constexpr const char* kSurfaceKeywords[] = {":SURFACESOIL", ":SURFACEROCK"};
constexpr const char* kPackageNames[] = {"Soil %d", "Rock %d"};

// The layer positions that the three values of the older form fill.
constexpr int kOldPositions[] = {0, 3, 6};
// Rows of the stone excavation slopes further apart than this leave a gap.
constexpr double kGap = 0.001;

struct ReadState {
  RmPavement* Pavement;
  RmChainRangeTable* Slopes = nullptr;  // made with the first row
  int32_t UnderMedian[3] = {};
  double Road[3] = {};                   // STONESLOPESIDE, STONESLOPEINTERMED, EXCAVATIONSLOPE
  RmPavementSection* Open[2] = {};       // the open range on soil and on rock
  RmPavementPackage* Package = nullptr;  // whose surfaces the rows are
  int Packages = 0;                      // packages made, both kinds
  int OfKind[2] = {};                    // packages made of each kind
};

RmChainRangeList* SlopeRows(ReadState* state) {
  if (!state->Slopes) state->Slopes = RmChainRangeTableCreate(&kRmStoneExcavationSlopes);
  return RmChainRangeTableGetRows(state->Slopes);
}

// A row of the stone excavation slopes over from..to, the side,
// intermediate and excavation slope alike on both sides.
void vSetSlopes(RmChainRangeList* list, RmChainRangeRow* row, double from, double to,
                const double (&slopes)[3]) {
  if (!row) return;
  vRmChainRangeSetRange(row, from, to);
  RmStoneExcavationSlope values{slopes[0], slopes[0], slopes[1], slopes[1], slopes[2], slopes[2]};
  vRmChainRangeSetRow(list, row, values);
}

void vOpenChain(RecordLine* line, ReadState* state) {
  double from = dRecordNumber(line);
  double to = dRecordNumber(line);
  double slopes[3];
  bool given = false;
  for (double& slope : slopes) {
    slope = dRecordNumber(line, kNullNumber);
    given = given || boIsPresent(slope);
  }
  for (int kind : {kRmPavementSoil, kRmPavementRock}) {
    state->Open[kind] = RmPavementSectionAdd(state->Pavement, from, kind);
    if (state->Open[kind]) state->Open[kind]->Range.High = to;
  }
  if (!given) return;
  RmChainRangeList* list = SlopeRows(state);
  vSetSlopes(list, RmChainRangeAdd(list, from), from, to, slopes);
}

void vOpenPackage(ReadState* state, int kind) {
  RmPavementPackage* package = RmPavementPackageAdd(state->Pavement, ++state->Packages);
  state->Package = package;
  if (!package) return;
  char name[32];
  std::snprintf(name, sizeof name, kPackageNames[kind], ++state->OfKind[kind]);
  vRmPavementPackageSetName(package, name);
  for (int i = 0; i < 3; ++i) package->UnderMedian[kOldPositions[i]] = state->UnderMedian[i];
  if (state->Open[kind]) state->Open[kind]->Package = package->Number;
}

void vReadSurfaceRow(RecordLine* line, RmPavementPackage* package) {
  RmPavementSurface* surface =
      RmPavementSurfaceAdd(package, static_cast<int32_t>(lParseInteger(line->Token, nullptr)));
  if (!surface) return;
  for (int position : kOldPositions) surface->Thickness[position] = dRecordNumber(line);
}

// The stretches of the soil ranges that no row of the stone excavation
// slopes covers get a row with the slopes of the whole road.
void vFillSlopeGaps(ReadState* state) {
  const RmPavementSection* range = RmPavementSectionsGetFirst(state->Pavement, kRmPavementSoil);
  if (!range) return;
  double start = range->Range.Low;
  double end = range->Range.High;
  for (; range; range = range->Next) {
    if (range->Range.Low < start) start = range->Range.Low;
    if (range->Range.High > end) end = range->Range.High;
  }
  RmChainRangeList* list = SlopeRows(state);
  if (!list) return;
  double from = start;
  for (RmChainRangeRow* row = RmChainRangeGetFirst(list); row; row = row->Next) {
    if (row->Range.Low - from > kGap) {
      vSetSlopes(list, RmChainRangeAddBefore(list, row), from, row->Range.Low, state->Road);
    }
    from = row->Range.High;
  }
  if (end - from > kGap || !RmChainRangeGetFirst(list)) {
    vSetSlopes(list, RmChainRangeAddBefore(list, nullptr), from, end, state->Road);
  }
}

void vReadLine(RecordLine* line, ReadState* state) {
  const char* key = line->Token;
  if (std::strcmp(key, kUnderMedianKeyword) == 0) {
    for (int32_t& value : state->UnderMedian) value = iRecordInteger(line);
  } else if (std::strcmp(key, kStoneSlopeSideKeyword) == 0) {
    state->Road[0] = dRecordNumber(line);
  } else if (std::strcmp(key, kStoneSlopeIntermedKeyword) == 0) {
    state->Road[1] = dRecordNumber(line);
  } else if (std::strcmp(key, kExcavationSlopeKeyword) == 0) {
    state->Road[2] = dRecordNumber(line);
  } else if (std::strcmp(key, kChainKeyword) == 0) {
    vOpenChain(line, state);
  } else if (std::strcmp(key, kSurfaceKeywords[kRmPavementSoil]) == 0) {
    vOpenPackage(state, kRmPavementSoil);
  } else if (std::strcmp(key, kSurfaceKeywords[kRmPavementRock]) == 0) {
    vOpenPackage(state, kRmPavementRock);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen || RmSurfGenGet<kRmPavementSlot>(gen)) return;
  ReadState state{RmPavementCreate()};
  if (!state.Pavement) return;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (state.Package) vReadSurfaceRow(&line, state.Package);
      continue;
    }
    state.Package = nullptr;
    vReadLine(&line, &state);
  }
  if (state.Road[0] != 0.0 || state.Road[1] != 0.0 || state.Road[2] != 0.0) {
    vFillSlopeGaps(&state);
  }
  vRmSurfGenSet<kRmPavementSlot>(gen, state.Pavement);
  if (state.Slopes) vRmSurfGenSet<kRmStoneExcavationSlopesSlot>(gen, state.Slopes);
}

}  // namespace

const RmRecordFamily kRmSuperstructFamily = {
    .Keyword = "SUPERSTRUCT",
    .Letter = 'O',
    .Read = vRead,
};
