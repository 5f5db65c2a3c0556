// BIM_ATTRIBUTES_DATA and BIM_ATTRIBUTES_SCHEMA: the sections of BIM
// attributes. The file names them in its directory and their bodies stay
// empty: the attributes go through the serializers of the model's BIM store
// (road_model/bim/), which do nothing in this library.
//
// The data section is written when the model has layer names and a layer
// carries attributes; before the bodies are written, the layer serializer
// (key 100 of the store) is handed each such layer's number. A load with a
// store hands it every layer's number when the file has layer names. The
// schema section is written when the store's schema has an entry and is
// never read.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmBimAttributesDataFamily;
extern const RmRecordFamily kRmBimAttributesSchemaFamily;
