// The BIM store of a model: serializers by a 32-bit key, the layers that
// carry attributes and the attribute schema. Nothing in this library makes
// a store, so a model's slot stays null unless a host sets one; the model
// file names the attribute sections and writes no records into them.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "road_model/bim/bim_serializers.h"

// The key under which the store keeps the serializer of layer attributes.
inline constexpr uint32_t kRmBimLayerKey = 100;

struct RmBimAttributes {
  std::map<uint32_t, std::unique_ptr<kvr::bim::BimAttributesDataSerializer>> Serializers;
  std::set<int32_t> LayersWithData;  // file numbers of layers with attributes
  std::vector<std::string> Schema;   // entries of the attribute schema
};

RmBimAttributes* RmBimAttributesCreate();
// Deletes the store and nulls the pointer. Null is accepted.
void vRmBimAttributesDelete(RmBimAttributes** store);

// Whether the layer of that file number carries attributes.
bool boRmBimLayerHasData(const RmBimAttributes* store, int32_t layer);
// Whether the store has a schema with an entry.
bool boRmBimHasSchema(const RmBimAttributes* store);

// The serializer of `key`. A missing key throws std::out_of_range with
// "invalid map<K, T> key".
kvr::bim::BimAttributesDataSerializer& RmBimSerializerAt(const RmBimAttributes& store,
                                                         uint32_t key);
