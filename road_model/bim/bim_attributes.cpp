#include "road_model/bim/bim_attributes.h"

#include <new>
#include <stdexcept>

RmBimAttributes* RmBimAttributesCreate() { return new (std::nothrow) RmBimAttributes(); }

void vRmBimAttributesDelete(RmBimAttributes** store) {
  if (!store) return;
  delete *store;
  *store = nullptr;
}

bool boRmBimLayerHasData(const RmBimAttributes* store, int32_t layer) {
  return store && store->LayersWithData.count(layer) != 0;
}

bool boRmBimHasSchema(const RmBimAttributes* store) { return store && !store->Schema.empty(); }

kvr::bim::BimAttributesDataSerializer& RmBimSerializerAt(const RmBimAttributes& store,
                                                         uint32_t key) {
  auto found = store.Serializers.find(key);
  if (found == store.Serializers.end() || !found->second) {
    throw std::out_of_range("invalid map<K, T> key");
  }
  return *found->second;
}
