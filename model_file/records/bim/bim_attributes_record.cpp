#include "model_file/records/bim/bim_attributes_record.h"

#include <string>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_sections.h"
#include "model_file/container/asf_writer.h"
#include "road_model/bim/bim_attributes.h"
#include "road_model/codes/layer_id.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"

namespace {

std::string sLayerNumber(const RmLayerName* name) {
  return std::to_string(iRmLayerIdToFile(name->Id));
}

bool boLayerHasData(const RmModel* model, const RmLayerName* name) {
  return boRmBimLayerHasData(RmModelGetBimAttributes(model), iRmLayerIdToFile(name->Id));
}

bool boHasData(const RmModel* model, const RmRecordFamily&) {
  const RmLayerNames* names = RmModelGetLayerNames(model);
  for (RmLayerName* name = RmLayerNamesGetFirst(names); name; name = RmLayerNameGetNext(name)) {
    if (boLayerHasData(model, name)) return true;
  }
  return false;
}

// Hands the layer serializer each layer that carries attributes. A store
// without it throws std::out_of_range.
void vPrepareData(AsfFile*, AsfSection*, const RmModel* model, const RmRecordFamily&) {
  const RmBimAttributes* store = RmModelGetBimAttributes(model);
  const RmLayerNames* names = RmModelGetLayerNames(model);
  for (RmLayerName* name = RmLayerNamesGetFirst(names); name; name = RmLayerNameGetNext(name)) {
    if (!boLayerHasData(model, name)) continue;
    RmBimSerializerAt(*store, kRmBimLayerKey).Serialize(sLayerNumber(name).c_str());
  }
}

// The bodies hold no records: each is its head alone.
void vWriteEmptyBody(AsfFile* file, AsfSection* section, const RmModel*, const RmRecordFamily&) {
  boAsfSectionStart(file, section);
}

void vReadData(AsfFile* file, AsfSection*, RmModel* model, const RmRecordFamily&) {
  const RmBimAttributes* store = RmModelGetBimAttributes(model);
  if (!store || !AsfSectionFind(file, "LAYERNAMES", iAsfTypeOfLetter('O'))) return;
  const RmLayerNames* names = RmModelGetLayerNames(model);
  for (RmLayerName* name = RmLayerNamesGetFirst(names); name; name = RmLayerNameGetNext(name)) {
    RmBimSerializerAt(*store, kRmBimLayerKey).Deserialize(sLayerNumber(name).c_str());
  }
}

bool boHasSchema(const RmModel* model, const RmRecordFamily&) {
  return boRmBimHasSchema(RmModelGetBimAttributes(model));
}

}  // namespace

const RmRecordFamily kRmBimAttributesDataFamily = {
    .Keyword = "BIM_ATTRIBUTES_DATA",
    .Letter = 'O',
    .HasContent = boHasData,
    .Prepare = vPrepareData,
    .Write = vWriteEmptyBody,
    .Read = vReadData,
};

const RmRecordFamily kRmBimAttributesSchemaFamily = {
    .Keyword = "BIM_ATTRIBUTES_SCHEMA",
    .Letter = 'O',
    .HasContent = boHasSchema,
    .Write = vWriteEmptyBody,
};
