#include "model_file/records/tables/chain_range_families.h"

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "model_file/records/tables/chain_range_records.h"
#include "road_model/tables/chain_range_members.h"
#include "road_model/tables/chain_range_table.h"

namespace {

constexpr const char* kReal = "%.3f";
constexpr const char* kInteger = "%d";
constexpr const char* kRange3 = " %.3f %.3f";
constexpr const char* kRange4 = " %.4f %.4f";

// The older rock bench row: the range, then two reals for the left side and
// two for the right, the first two fields of a bench; a row makes a row on
// each side.
void vReadOldRockBenchRow(RecordLine* line, RmChainRangeTable* table) {
  double from = dParseNumber(line->Token, nullptr);
  double to = dRecordNumber(line);
  for (int side = 1; side <= 2; ++side) {
    RmChainRangeRow* row = RmChainRangeAdd(RmChainRangeTableGetSide(table, side), from);
    if (!row) continue;
    vRmChainRangeSetRange(row, from, to);
    for (int field = 0; field < 2; ++field) {
      vRmChainRangeRowSetField(row, kRmRockBenches.Fields[field], dRecordNumber(line, kNullNumber));
    }
  }
}

constexpr RmChainRangeRecordField kRockBenchFields[] = {
    {0, nullptr, kReal}, {1, nullptr, kReal}, {2, nullptr, kReal}, {3, nullptr, kReal}};
constexpr RmChainRangeRecordField kRockBenchTableLines[] = {
    {kRmMinSlopeBuild, "MINSLOPEBUILD", kReal}};
constexpr RmChainRangeRecord kRockBenchRecord = {
    .Slot = kRmRockBenchesSlot,
    .Kind = &kRmRockBenches,
    .RangeFormat = kRange4,
    .RowKeyword = nullptr,
    .Fields = kRockBenchFields,
    .TableLines = kRockBenchTableLines,
    .LastOldFormVersion = 1,
    .ReadOldRow = vReadOldRockBenchRow,
};

constexpr RmChainRangeRecordField kMinDitchDepthFields[] = {{0, nullptr, kReal},
                                                            {1, nullptr, kReal}};
constexpr RmChainRangeRecord kMinDitchDepthRecord = {
    .Slot = kRmMinDitchDepthsSlot,
    .Kind = &kRmMinDitchDepths,
    .RangeFormat = kRange3,
    .RowKeyword = nullptr,
    .Fields = kMinDitchDepthFields,
    .TableLines = {},
};

// A slope left out of a row is not given.
constexpr RmChainRangeRecordField kStoneExcavationSlopeFields[] = {
    {0, "STONESLOPESIDELEFT", kReal, kNullNumber},
    {1, "STONESLOPESIDERIGHT", kReal, kNullNumber},
    {2, "STONESLOPEINTERMEDLEFT", kReal, kNullNumber},
    {3, "STONESLOPEINTERMEDRIGHT", kReal, kNullNumber},
    {4, "EXCAVATIONSLOPELEFT", kReal, kNullNumber},
    {5, "EXCAVATIONSLOPERIGHT", kReal, kNullNumber},
};
constexpr RmChainRangeRecord kStoneExcavationSlopeRecord = {
    .Slot = kRmStoneExcavationSlopesSlot,
    .Kind = &kRmStoneExcavationSlopes,
    .RangeFormat = "STONEEXCAVATIONSLOPE %.4f %.4f",
    .RowKeyword = "STONEEXCAVATIONSLOPE",
    .Fields = kStoneExcavationSlopeFields,
    .TableLines = {},
};

constexpr RmChainRangeRecordField kDeepRockBlastFields[] = {
    {0, nullptr, kReal},
    {1, nullptr, kReal},
    {2, nullptr, kReal},
    {3, nullptr, kInteger},
    {4, nullptr, kReal, kNullNumber},
    {5, nullptr, kInteger, kNullInteger},
    {6, nullptr, kInteger, kNullInteger},
    {7, nullptr, kInteger, kNullInteger},
    {8, nullptr, kInteger},
};
constexpr RmChainRangeRecord kDeepRockBlastRecord = {
    .Slot = kRmDeepRockBlastsSlot,
    .Kind = &kRmDeepRockBlasts,
    .RangeFormat = kRange3,
    .RowKeyword = nullptr,
    .Fields = kDeepRockBlastFields,
    .TableLines = {},
};

constexpr RmChainRangeRecord kFillDitchRecord = {
    .Slot = kRmFillDitchesSlot,
    .Kind = &kRmFillDitches,
    .RangeFormat = kRange3,
    .RowKeyword = nullptr,
    .Fields = {},
    .TableLines = {},
};

// The minimum fill height and the largest terrain slope stay out of the file.
constexpr RmChainRangeRecordField kRemovalTopsoilFields[] = {
    {0, nullptr, kInteger},           {1, nullptr, kInteger}, {2, nullptr, kReal, kNullNumber},
    {3, nullptr, kReal, kNullNumber}, {4, nullptr, kInteger},
};
constexpr RmChainRangeRecord kRemovalTopsoilRecord = {
    .Slot = kRmRemovalTopsoilsSlot,
    .Kind = &kRmRemovalTopsoils,
    .RangeFormat = kRange3,
    .RowKeyword = nullptr,
    .Fields = kRemovalTopsoilFields,
    .TableLines = {},
};

constexpr RmChainRangeRecordField kUnsuitableSoilFields[] = {{0, nullptr, kInteger}};
constexpr RmChainRangeRecord kUnsuitableSoilRecord = {
    .Slot = kRmUnsuitableSoilsSlot,
    .Kind = &kRmUnsuitableSoils,
    .RangeFormat = kRange3,
    .RowKeyword = nullptr,
    .Fields = kUnsuitableSoilFields,
    .TableLines = {},
};

constexpr RmChainRangeRecordField kSoilCutPlasterFields[] = {{0, nullptr, kReal},
                                                             {1, nullptr, kReal}};
constexpr RmChainRangeRecord kSoilCutPlasterRecord = {
    .Slot = kRmSoilCutPlastersSlot,
    .Kind = &kRmSoilCutPlasters,
    .RangeFormat = kRange3,
    .RowKeyword = nullptr,
    .Fields = kSoilCutPlasterFields,
    .TableLines = {},
};

template <const RmChainRangeRecord& Record>
bool boHasContent(const RmModel* model, const RmRecordFamily&) {
  return boRmChainRangeRecordHasContent(Record, model);
}

template <const RmChainRangeRecord& Record>
void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmChainRangeRecordWrite(Record, file, section, model);
}

template <const RmChainRangeRecord& Record>
void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  vRmChainRangeRecordRead(Record, file, section, model);
}

template <const RmChainRangeRecord& Record>
constexpr RmRecordFamily ChainRangeFamily(const char* keyword) {
  return {.Keyword = keyword,
          .Letter = 'O',
          .HasContent = boHasContent<Record>,
          .Write = vWrite<Record>,
          .Read = vRead<Record>};
}

}  // namespace

const RmRecordFamily kRmRockBenchesFamily = ChainRangeFamily<kRockBenchRecord>("ROCKBENCHS");
const RmRecordFamily kRmMinDitchDepthsFamily =
    ChainRangeFamily<kMinDitchDepthRecord>("MINDITCHDEPTHS");
const RmRecordFamily kRmStoneExcavationSlopesFamily =
    ChainRangeFamily<kStoneExcavationSlopeRecord>("STONEEXCAVATIONSLOPES");
const RmRecordFamily kRmDeepRockBlastsFamily =
    ChainRangeFamily<kDeepRockBlastRecord>("DEEPROCKBLASTS");
const RmRecordFamily kRmFillDitchesFamily = ChainRangeFamily<kFillDitchRecord>("FILLDITCHES");
const RmRecordFamily kRmRemovalTopsoilsFamily =
    ChainRangeFamily<kRemovalTopsoilRecord>("REMOVALTOPSOILS");
const RmRecordFamily kRmUnsuitableSoilsFamily =
    ChainRangeFamily<kUnsuitableSoilRecord>("UNSUITABLESOILS");
const RmRecordFamily kRmSoilCutPlastersFamily =
    ChainRangeFamily<kSoilCutPlasterRecord>("SOILCUTPLASTERS");
