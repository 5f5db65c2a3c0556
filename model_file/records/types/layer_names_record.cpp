#include "model_file/records/types/layer_names_record.h"

#include "base/fields.h"
#include "model_file/container/asf_file.h"
#include "model_file/records/types/vocabulary_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"

namespace {

constexpr char kGuid[] = "GUID";

bool boComposed(const RmLayerName& name) { return name.ComposedType != 0; }

// The lines behind the GUID. Those of a composed layer stand only for one.
constexpr RmVocabularyLine<RmLayerName> kLines[] = {
    {.Keyword = "COMPOSEDTYPE", .When = RmWhen::kNotZero, .Integer = &RmLayerName::ComposedType},
    {.Keyword = "KEEPOPENSPACES",
     .When = RmWhen::kNotZero,
     .Integer = &RmLayerName::KeepOpenSpaces,
     .Applies = boComposed},
    {.Keyword = "CLOSECONTOUR",
     .When = RmWhen::kNotZero,
     .Integer = &RmLayerName::CloseContour,
     .Applies = boComposed},
    {.Keyword = "DELETEREDUNANTPOINTS",
     .When = RmWhen::kNotZero,
     .Integer = &RmLayerName::DeleteRedundantPoints,
     .Applies = boComposed},
    {.Keyword = "ADDCENTERPOINTIFMISSING",
     .When = RmWhen::kIsZero,
     .Integer = &RmLayerName::AddCenterPointIfMissing,
     .Default = 1,
     .Applies = boComposed},
    {.Keyword = "LAYERSJOIN",
     .When = RmWhen::kNotOne,
     .Integer = &RmLayerName::LayersJoin,
     .Default = 1,
     .Applies = boComposed},
    {.Keyword = "LAYERS",
     .ListAt = [](RmLayerName* name) { return &name->Layers; },
     .Applies = boComposed},
    {.Keyword = "CATEGORY", .When = RmWhen::kNotZero, .Integer = &RmLayerName::Category},
    {.Keyword = "PRIORITY", .When = RmWhen::kNotZero, .Integer = &RmLayerName::Priority},
};

void vWriteName(AsfFile* file, AsfSection* section, const RmLayerName* name) {
  char quoted[kRecordQuoteSize];
  char pres[kRmPresentationTextSize] = "";
  if (boRmPresentationIsSet(&name->Pres)) sRmPresentationFormat(&name->Pres, pres, sizeof pres);
  boRecordWrite(file, section, " %u %s %s", static_cast<unsigned>(iRmLayerIdToFile(name->Id)),
                sQuote(quoted, sizeof quoted, name->Name), pres);
  if (name->Guid[0]) boRecordWrite(file, section, "%s %s", kGuid, name->Guid);
  vRmVocabularyLinesWrite<RmLayerName>(file, section, *name, kLines);
}

// " <layer> <name> [presentation]": the record of the layer, made when the
// list has none, gets the name and the drawing. A number that is no layer
// starts no record, and the lines behind it are passed over.
RmLayerName* StartName(RmLayerNames* names, RecordLine* line) {
  vRecordLineStart(line, line->Text);
  RmLayerId id = RmLayerIdOfFileNumber(iRecordInteger(line));
  if (!boRmLayerIdValid(id)) return nullptr;
  RmLayerName* name = RmLayerNameSet(names, id, sRecordToken(line));
  if (name && !boRecordAtEnd(line)) vRmPresentationParse(&name->Pres, line->Cursor);
  return name;
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmLayerNamesGetFirst(RmModelGetLayerNames(model)) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  for (const RmLayerName* name = RmLayerNamesGetFirst(RmModelGetLayerNames(model)); name;
       name = name->Next) {
    vWriteName(file, section, name);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmLayerNames* names = RmLayerNamesCreate();
  if (!names) return;
  RmLayerName* current = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      current = StartName(names, &line);
    } else if (current && std::strcmp(line.Token, kGuid) == 0) {
      // An empty value keeps the fresh GUID of a new record.
      const char* guid = sRecordToken(&line);
      if (*guid) vRmLayerNameSetGuid(current, guid);
    } else if (current) {
      boRmVocabularyLineRead<RmLayerName>(&line, current, kLines);
    }
  }
  vRmModelSetLayerNames(model, names);
}

}  // namespace

const RmRecordFamily kRmLayerNamesFamily = {
    .Keyword = "LAYERNAMES",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
