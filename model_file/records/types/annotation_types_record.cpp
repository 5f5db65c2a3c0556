#include "model_file/records/types/annotation_types_record.h"

#include "base/fields.h"
#include "base/text.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/types/vocabulary_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/annotation_types.h"
#include "road_model/sections/section_set.h"

namespace {

constexpr char kAnnotationType[] = ":ANNOTATIONTYPE";

using Line = RmVocabularyLine<RmAnnotationType>;
using Type = RmAnnotationType;

constexpr Line kLines[] = {
    {.Keyword = "ANNOTATIONMETHOD", .Integer = &Type::AnnotationMethod},
    {.Keyword = "ANNOTATIONPOSITION", .Integer = &Type::AnnotationPosition},
    {.Keyword = "LAYER", .Format = "%u", .When = RmWhen::kSet, .Layer = &Type::Layer},
    {.Keyword = "APPLAYER",
     .Format = "%s",
     .When = RmWhen::kNotEmpty,
     .Text = &Type::AppLayer,
     .Quoted = true},
    {.Keyword = "FLAGS", .Integer = &Type::Flags},
    {.Keyword = "SURFACECODES",
     .Format = "%s",
     .When = RmWhen::kPresent,
     .Text = &Type::SurfaceCodes},
    {.Keyword = "ANNOTOFFSET", .Format = "%.3lf", .Real = &Type::AnnotOffset},
    {.Keyword = "CHAINDEPTH", .Format = "%.3lf", .Real = &Type::ChainDepth},
    {.Keyword = "DIFFLAYER", .Format = "%u", .When = RmWhen::kSet, .Layer = &Type::DiffLayer},
    {.Keyword = "DIFF2LAYER", .Format = "%u", .When = RmWhen::kSet, .Layer = &Type::Diff2Layer},
    {.Keyword = "REMOVEVALUESHEIGHTRELCL",
     .Format = "%.3lf",
     .When = RmWhen::kAboveAbsent,
     .Real = &Type::RemoveValuesHeightRelCl,
     .Default = -99999.0},
    {.Keyword = "REMOVENEGVALUES", .When = RmWhen::kNotZero, .Integer = &Type::RemoveNegValues},
    {.Keyword = "DIFFMARKMETHOD", .Integer = &Type::DiffMarkMethod},
    {.Keyword = "DIFFFLAGS", .Integer = &Type::DiffFlags},
    {.Keyword = "DIFFAPPROXDIST", .Format = "%.3lf", .Real = &Type::DiffApproxDist},
    {.Keyword = "DIFFMAX", .Format = "%.3lf", .Real = &Type::DiffMax},
    {.Keyword = "PCODE", .Integer = &Type::Pcode},
    {.Keyword = "DISTANCE", .Format = "%.3lf", .Real = &Type::Distance},
    {.Keyword = "LINENAME",
     .Format = "%s",
     .When = RmWhen::kNotEmpty,
     .Text = &Type::LineName,
     .Quoted = true},
    {.Keyword = "LINESFLAGS", .Integer = &Type::LinesFlags},
    {.Keyword = "ANNOTATIONPEN", .Integer = &Type::AnnotationPen},
    {.Keyword = "TEXTPEN", .Integer = &Type::TextPen},
    {.Keyword = "TEXTHEIGHT", .Format = "%.3lf", .Real = &Type::TextHeight},
};

RmAnnotationTypes* TypesOf(const RmModel* model, const RmRecordFamily& family) {
  return family.SectionSet == kRmLongSections ? RmModelGetLSectAnnotationTypes(model)
                                              : RmModelGetCSectAnnotationTypes(model);
}

bool boPresent(const RmModel* model, const RmRecordFamily& family) {
  return RmAnnotationTypesGetFirst(TypesOf(model, family)) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily& family) {
  char quoted[kRecordQuoteSize];
  for (const Type* type = RmAnnotationTypesGetFirst(TypesOf(model, family)); type;
       type = type->Next) {
    boRecordWrite(file, section, "%s %d %s", kAnnotationType, type->Number,
                  sQuote(quoted, sizeof quoted, type->Name));
    vRmVocabularyLinesWrite<Type>(file, section, *type, kLines);
  }
}

// A number that stands twice: the later group wins, from the defaults.
Type* StartType(RmAnnotationTypes* types, RecordLine* line) {
  int number = iRecordInteger(line);
  Type* type = RmAnnotationTypeFind(types, number);
  if (type) {
    vRmAnnotationTypeDefaults(type);
    type->Number = number;
  } else {
    type = RmAnnotationTypeAdd(types, number);
  }
  if (type) sHeapSet(&type->Name, sRecordToken(line));
  return type;
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily& family) {
  bool cross = family.SectionSet != kRmLongSections;
  RmAnnotationTypes* types = RmAnnotationTypesCreate(cross ? kRmCrossSections : kRmLongSections);
  if (!types) return;
  Type* current = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (std::strcmp(line.Token, kAnnotationType) == 0) {
      current = StartType(types, &line);
    } else if (current) {
      boRmVocabularyLineRead<Type>(&line, current, kLines);
    }
  }
  if (cross) {
    vRmModelSetCSectAnnotationTypes(model, types);
  } else {
    vRmModelSetLSectAnnotationTypes(model, types);
  }
}

}  // namespace

constexpr RmRecordFamily kRmCrossAnnotationTypesFamily = {
    .Keyword = "CSECTANOTATIONTYPES",
    .Letter = 'O',
    .SectionSet = kRmCrossSections,
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};

const RmRecordFamily kRmLongAnnotationTypesFamily =
    RmRecordFamilyForSet(kRmCrossAnnotationTypesFamily, "LSECTANOTATIONTYPES", kRmLongSections);
