#include "road_model/codes/layer_names.h"

#include "base/text.h"

RmLayerName* RmLayerNameFind(const RmLayerNames* names, RmLayerId id) {
  if (!names) return nullptr;
  for (RmLayerName* name = ListFirst<RmLayerName>(&names->Names); name; name = name->Next) {
    if (boRmLayerIdEquals(name->Id, id)) return name;
  }
  return nullptr;
}

const char* sRmLayerNameGetName(const RmLayerNames* names, RmLayerId id) {
  const RmLayerName* name = RmLayerNameFind(names, id);
  return name ? sOrEmpty(name->Name) : nullptr;
}
