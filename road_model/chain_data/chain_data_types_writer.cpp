#include "road_model/chain_data/chain_data_types_writer.h"

#include <cstdio>
#include <string>
#include <vector>

#include "parameters/inif_writer.h"
#include "road_model/chain_data/chain_data_types.h"

namespace {

void vAppendInteger(std::string& out, const char* name, int value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%s:%d ", name, value);
  out += buffer;
}

void vAppendReal(std::string& out, const char* name, float value) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%s:%g ", name, static_cast<double>(value));
  out += buffer;
}

// `name:"text" `; a double quote inside would end the text early on reading
// and is left out.
void vAppendQuoted(std::string& out, const char* name, const char* text) {
  out += name;
  out += ":\"";
  for (const char* c = text; *c; ++c) {
    if (*c != '"') out += *c;
  }
  out += "\" ";
}

std::string sTypeValue(const RmChainDataType& type) {
  std::string value;
  vAppendQuoted(value, "Descr", type.Descr);
  vAppendInteger(value, "InfoType", type.InfoType);
  if (type.InheritType != 0) vAppendInteger(value, "InheritType", type.InheritType);
  if (type.OwnerType != 0) vAppendInteger(value, "OwnerType", type.OwnerType);
  if (type.ReflineType != 0) vAppendInteger(value, "ReflineType", type.ReflineType);
  if (type.PTheme[0]) vAppendQuoted(value, "PTheme", type.PTheme);
  if (type.LTheme[0]) vAppendQuoted(value, "LTheme", type.LTheme);
  value += "Fields:(";
  int count = type.FieldCount < kRmChainTypeFieldMax ? type.FieldCount : kRmChainTypeFieldMax;
  for (int i = 0; i < count; ++i) {
    if (i > 0) value += ';';
    value += type.FieldNames[i];
    if (type.FieldKinds[i] == kRmChainFieldText) value += ",s";
  }
  value += ')';
  return value;
}

std::string sDrawValue(const RmChainDataDraw& draw, bool plan) {
  std::string value;
  vAppendInteger(value, "LType", draw.LType);
  vAppendReal(value, "LScale", draw.LScale);
  vAppendInteger(value, "LColor", draw.LColor);
  if (draw.Fig[0]) vAppendQuoted(value, "Fig", draw.Fig);
  vAppendInteger(value, "FigColor", draw.FigColor);
  vAppendInteger(value, "FigRotMet", draw.FigRotMet);
  vAppendReal(value, "FScale", draw.FScale);
  vAppendInteger(value, "Text", draw.Text);
  vAppendInteger(value, "TextFrame", draw.TextFrame);
  vAppendInteger(value, "TextEraseBackground", draw.TextEraseBackground);
  vAppendInteger(value, "TextColor", draw.TextColor);
  vAppendReal(value, "TextH", draw.TextH);
  vAppendReal(value, "TextRot", draw.TextRot);
  vAppendReal(value, "TextDx", draw.TextDx);
  vAppendReal(value, "TextDy", draw.TextDy);
  if (plan) vAppendInteger(value, "GdpLayer", draw.GdpLayer);
  value.pop_back();  // the blank behind the last value
  return value;
}

template <typename ValueOf>
std::vector<KvrInifEntry> EntriesOf(const RmChainDataTypes* types, ValueOf valueOf) {
  std::vector<KvrInifEntry> entries;
  entries.reserve(types->Types.size());
  for (const RmChainDataType& type : types->Types) {
    if (type.Type > 0) entries.push_back({std::to_string(type.Type), valueOf(type)});
  }
  return entries;
}

}  // namespace

void vRmChainDataTypesWrite(const char* path, const RmChainDataTypes* types) {
  if (!types) return;
  boKvrInifWriteSection(path, "ChainDataTypes", EntriesOf(types, sTypeValue), false);
}

void vRmChainDataDrawWrite(const char* path, const RmChainDataTypes* types, bool keep) {
  if (!types) return;
  boKvrInifWriteSection(
      path, "ChainDataPlanDraw",
      EntriesOf(types, [](const RmChainDataType& type) { return sDrawValue(type.PlanDraw, true); }),
      keep);
  boKvrInifWriteSection(
      path, "ChainDataSectionDraw",
      EntriesOf(types,
                [](const RmChainDataType& type) { return sDrawValue(type.SectionDraw, false); }),
      keep);
}
