#include "model_file/records/frame/record_line.h"
#include "model_file/records/types/mass_types_record.h"

#include "base/fields.h"
#include "base/text.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/types/vocabulary_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/mass_type_rules.h"
#include "road_model/names/mass_types.h"
#include "road_model/sections/section_set.h"

namespace {

constexpr char kMassType[] = ":MASSTYPE";
// Groups of older files that end a type as a new one does; their lines are
// passed over.
constexpr char kMeasurementDelivery[] = ":MEASUREMENTDELIVERY";
constexpr char kMeasurementDependencies[] = ":MEASUREMENTDEPENDENCIES";
constexpr char kChainRanges[] = "CHAINRANGES";
constexpr char kPres[] = "PRES";
// The older single forms of the area list: its layer and its code filter.
constexpr char kAreaLayer[] = "AREALAYER";
constexpr char kAreaSurfaceCodes[] = "AREASURFACECODES";

constexpr double kAbsent = -99999.0;

using Line = RmVocabularyLine<RmMassType>;

constexpr Line kLines[] = {
    {.Keyword = "CALCTYPE", .Integer = &RmMassType::CalcType},
    {.Keyword = "COMPOSEDTYPE", .Integer = &RmMassType::ComposedType},
    {.Keyword = "COMBINED_AREA_OPTYPE", .Integer = &RmMassType::CombinedAreaOpType},
    {.Keyword = "COMBINED_AREA_JOINMETHOD", .Integer = &RmMassType::CombinedAreaJoinMethod},
    {.Keyword = "CATEGORY", .When = RmWhen::kNotZero, .Integer = &RmMassType::Category},
    {.Keyword = "STANDARDCODEGROUP",
     .Format = "%s",
     .When = RmWhen::kNotEmpty,
     .Text = &RmMassType::StandardCodeGroup},
    {.Keyword = "STDCODE", .Format = "%s", .When = RmWhen::kNotEmpty, .Text = &RmMassType::StdCode},
    {.Keyword = "CPCODE", .Format = "%s", .When = RmWhen::kNotEmpty, .Text = &RmMassType::CpCode},
    {.Keyword = "BALACCOUNT", .When = RmWhen::kNotZero, .Integer = &RmMassType::BalAccount},
    {.Keyword = "BALFACTOR", .Format = "%.3f", .When = RmWhen::kNotZero, .Real = &RmMassType::BalFactor},
    {.Keyword = "POINTINTERVAL",
     .Format = "%.3f",
     .When = RmWhen::kNotZero,
     .Real = &RmMassType::PointInterval},
    {.Keyword = "RESLAYEREXT",
     .Format = "%.3f",
     .When = RmWhen::kNotZero,
     .Real = &RmMassType::ResLayerExt},
    {.Keyword = "RESLAYEREXT_RIGHT",
     .Format = "%.3f",
     .When = RmWhen::kAboveAbsent,
     .Real = &RmMassType::ResLayerExtRight,
     .Default = kAbsent},
    {.Keyword = "RESLAYERSUR",
     .Format = "%s",
     .When = RmWhen::kPresent,
     .Text = &RmMassType::ResLayerSur},
    {.Keyword = "RESLINELEFT",
     .When = RmWhen::kAboveAbsent,
     .Integer = &RmMassType::ResLineLeft,
     .Default = kAbsent},
    {.Keyword = "RESLINERIGHT",
     .When = RmWhen::kAboveAbsent,
     .Integer = &RmMassType::ResLineRight,
     .Default = kAbsent},
    {.Keyword = "EXTENTALLTHEO", .When = RmWhen::kNotZero, .Integer = &RmMassType::ExtentAllTheo},
    {.Keyword = "GENERATELAYER", .When = RmWhen::kNotZero, .Integer = &RmMassType::GenerateLayer},
    {.Keyword = "MINTHICKNESS",
     .Format = "%.3f",
     .When = RmWhen::kNotZero,
     .Real = &RmMassType::MinThickness},
    {.Keyword = "SCALEFACTOR",
     .Format = "%.3f",
     .When = RmWhen::kNotOne,
     .Real = &RmMassType::ScaleFactor,
     .Default = 1.0},
    {.Keyword = "CONVERSIONFACTOR",
     .Format = "%.3f",
     .When = RmWhen::kNotOne,
     .Real = &RmMassType::ConversionFactor,
     .Default = 1.0},
    {.Keyword = "CONVERSIONUNIT",
     .Format = "%s",
     .When = RmWhen::kNotEmpty,
     .Text = &RmMassType::ConversionUnit},
    {.Keyword = "RESTRICTIONLAYER",
     .Format = "%u",
     .When = RmWhen::kSet,
     .Layer = &RmMassType::RestrictionLayer},
    {.Keyword = "AREALAYERSJOIN",
     .When = RmWhen::kNotTwo,
     .IntegerAt = [](RmMassType* type) { return &type->AreaLayers.Join; },
     .Default = 2},
    {.Keyword = "AREALAYERS", .ListAt = [](RmMassType* type) { return &type->AreaLayers; }},
    {.Keyword = "FROMLAYERSJOIN",
     .When = RmWhen::kNotOne,
     .IntegerAt = [](RmMassType* type) { return &type->FromLayers.Join; },
     .Default = 1},
    {.Keyword = "FLAYERS", .ListAt = [](RmMassType* type) { return &type->FromLayers; }},
    {.Keyword = "FMASSES", .Masses = &RmMassType::FromMasses},
    {.Keyword = "TOLAYERSJOIN",
     .When = RmWhen::kNotZero,
     .IntegerAt = [](RmMassType* type) { return &type->ToLayers.Join; }},
    {.Keyword = "TOLAYERS", .ListAt = [](RmMassType* type) { return &type->ToLayers; }},
    {.Keyword = "TOMASSES", .Masses = &RmMassType::ToMasses},
    {.Keyword = "BASEMASSID", .When = RmWhen::kNotZero, .Integer = &RmMassType::BaseMassId},
    {.Keyword = "INFO", .Format = "%s", .When = RmWhen::kNotEmpty, .Text = &RmMassType::Info},
};


void vWriteType(AsfFile* file, AsfSection* section, const RmMassType* type) {
  char quoted[kRecordQuoteSize];
  boRecordWrite(file, section, "%s %d %s", kMassType, type->Number,
                sQuote(quoted, sizeof quoted, type->Name));
  vRmVocabularyLinesWrite<RmMassType>(file, section, *type, kLines);
  const RmMassChainRange* range = ListFirst<RmMassChainRange>(&type->ChainRanges);
  if (range) boRecordWrite(file, section, "%s", kChainRanges);
  for (; range; range = range->Next) {
    boRecordWrite(file, section, " %.4lf %.4lf %d %d", range->Range[0], range->Range[1], range->A,
                  range->B);
  }
  if (boRmPresentationIsSet(&type->Pres)) {
    char pres[kRmPresentationTextSize];
    boRecordWrite(file, section, "%s %s", kPres,
                  sRmPresentationFormat(&type->Pres, pres, sizeof pres));
  }
}

// The single entry that the older forms fill: the area list's first.
RmLayerListEntry* SingleAreaEntry(RmMassType* type) {
  RmLayerListEntry* entry = RmLayerListGetFirst(&type->AreaLayers);
  if (entry) return entry;
  RmLayerId none;
  vRmLayerIdClear(&none);
  return RmLayerListAdd(&type->AreaLayers, none);
}

void vReadKeyword(RmMassType* type, RecordLine* line) {
  const char* keyword = line->Token;
  if (boRmVocabularyLineRead<RmMassType>(line, type, kLines)) return;
  if (boRecordIs(keyword, kPres)) {
    vRmPresentationParse(&type->Pres, rm_vocabulary_detail::sRestOfLine(line));
  } else if (boRecordIs(keyword, kAreaLayer)) {
    RmLayerListEntry* entry = SingleAreaEntry(type);
    if (entry) entry->Id = RmLayerIdOfFileNumber(iRecordInteger(line));
  } else if (boRecordIs(keyword, kAreaSurfaceCodes)) {
    RmLayerListEntry* entry = SingleAreaEntry(type);
    if (entry) vRmLayerListEntrySetFilter(entry, sRecordToken(line));
  }
}

void vReadRange(RmMassType* type, RecordLine* line) {
  vRecordLineStart(line, line->Text);
  double start = dRecordNumber(line);
  double end = dRecordNumber(line);
  int a = iRecordInteger(line);
  int b = iRecordInteger(line);
  RmMassChainRangeAdd(type, start, end, a, b);
}

void vReadTypes(AsfFile* file, AsfSection* section, RmMassTypes* types) {
  RmMassType* current = nullptr;
  bool inRanges = false;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (current && inRanges) vReadRange(current, &line);
      continue;
    }
    inRanges = false;
    const char* keyword = line.Token;
    if (boRecordIs(keyword, kMassType) || boRecordIs(keyword, kMeasurementDelivery) ||
        boRecordIs(keyword, kMeasurementDependencies)) {
      vRmMassTypesPut(types, current);
      current = nullptr;
      if (!boRecordIs(keyword, kMassType)) continue;
      current = RmMassTypeCreate();
      if (!current) continue;
      current->Number = iRecordInteger(&line);
      sHeapSet(&current->Name, sRecordToken(&line));
    } else if (current && boRecordIs(keyword, kChainRanges)) {
      inRanges = true;
    } else if (current) {
      vReadKeyword(current, &line);
    }
  }
  vRmMassTypesPut(types, current);
}

RmMassTypes* TypesOf(const RmModel* model, const RmRecordFamily& family) {
  return family.SectionSet == kRmLongSections ? RmModelGetLSectMassTypes(model)
                                              : RmModelGetCSectMassTypes(model);
}

bool boPresent(const RmModel* model, const RmRecordFamily& family) {
  return RmMassTypesGetFirst(TypesOf(model, family)) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily& family) {
  for (const RmMassType* type = RmMassTypesGetFirst(TypesOf(model, family)); type;
       type = type->Next) {
    vWriteType(file, section, type);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily& family) {
  bool cross = family.SectionSet != kRmLongSections;
  RmMassTypes* types = RmMassTypesCreate(cross ? kRmMassTypesCross : kRmMassTypesLong);
  if (!types) return;
  vReadTypes(file, section, types);
  if (cross) vRmMassTypesRewriteOldRules(types);
  vRmMassTypesDeriveCategories(types);
  vRmMassTypesStampKind(types);
  if (cross) {
    vRmModelSetCSectMassTypes(model, types);
  } else {
    vRmModelSetLSectMassTypes(model, types);
  }
}

}  // namespace

constexpr RmRecordFamily kRmCrossMassTypesFamily = {
    .Keyword = "CSECTMASSTYPES",
    .Letter = 'O',
    .SectionSet = kRmCrossSections,
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};

const RmRecordFamily kRmLongMassTypesFamily =
    RmRecordFamilyForSet(kRmCrossMassTypesFamily, "LSECTMASSTYPES", kRmLongSections);
