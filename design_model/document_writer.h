// Writes a design into its document, through the operations of the design
// model alone, so that any design can be written. Members follow the order
// of the document's description; every member is written, also at its
// default.
#pragma once

#include <string_view>
#include <vector>

#include "design_model/design_model.h"
#include "design_model/json_text.h"

namespace NpDesignModel {

void vWriteInData(JsonText& json, const CInData& in);
void vWritePavementSection(JsonText& json, const CIPavementSection& section);
void vWritePavementTemplate(JsonText& json, const CIPavementTemplate& pavementTemplate);
void vWriteDetailedPavementLayer(JsonText& json, const CIDetailedPavementLayer& layer);
void vWriteResultData(JsonText& json, const CResultData& results);

// A surface number: its decimal, and its serial number when it has one.
void vWriteSurfaceNumber(JsonText& json, std::string_view name, const CSurfaceNumber& number);

// A member whose value is an array of objects, each written by `writeItem`.
template <class Item, class WriteItem>
void vWriteList(JsonText& json, std::string_view name, const std::vector<const Item*>& items,
                WriteItem writeItem) {
  json.Key(name);
  json.BeginArray();
  for (const Item* item : items) writeItem(json, *item);
  json.EndArray();
}

}  // namespace NpDesignModel
