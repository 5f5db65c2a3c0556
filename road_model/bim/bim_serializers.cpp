#include "road_model/bim/bim_serializers.h"

namespace kvr::bim {

// No record form of BIM attributes exists in this library: a host that keeps
// them overrides these.
void BimAttributesDataSerializer::Serialize(const char*) {}
void BimAttributesDataSerializer::Deserialize(const char*) {}

void LayerBimAttributesDataSerializer::Serialize(const char*) {}
void LayerBimAttributesDataSerializer::Deserialize(const char*) {}

}  // namespace kvr::bim
