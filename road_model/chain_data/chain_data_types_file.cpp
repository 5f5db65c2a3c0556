#include "road_model/chain_data/chain_data_types_file.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "parameters/inif_file.h"
#include "road_model/chain_data/chain_data_types.h"

namespace {

constexpr size_t kKeySize = 80;
constexpr size_t kValueSize = 2000;

// Walks the entries of one section of the file.
template <typename Visit>
void vForEachEntry(KvrInif* inif, const char* sectionName, Visit visit) {
  if (!boKvrInifSetSection(inif, sectionName)) return;
  char key[kKeySize];
  char value[kValueSize];
  for (bool more = boKvrInifGetFirstEntry(inif, key, sizeof key, value, sizeof value); more;
       more = boKvrInifGetNextEntry(inif, key, sizeof key, value, sizeof value)) {
    visit(key, value);
  }
}

// Walks the name:value tokens of an entry's value (cut up in place).
template <typename Visit>
void vForEachToken(char* text, Visit visit) {
  char* cursor = text;
  char* value = nullptr;
  while (char* name = sTokenNext(&cursor, &value, ':')) {
    if (value) visit(name, value);
  }
}

bool boIs(const char* name, const char* key) { return std::strcmp(name, key) == 0; }

// A value without the double quotes around it.
const char* sUnquoted(char* text) {
  size_t length = std::strlen(text);
  if (length >= 2 && text[0] == '"' && text[length - 1] == '"') {
    text[length - 1] = 0;
    return text + 1;
  }
  return text;
}

// The "(name,s;name;...)" list of a type's fields.
void vReadFields(RmChainDataType* entry, char* list) {
  size_t length = std::strlen(list);
  if (length >= 2 && list[0] == '(' && list[length - 1] == ')') {
    list[length - 1] = 0;
    ++list;
  }
  entry->FieldCount = 0;
  const char* cursor = list;
  char field[kValueSize];
  while (cursor && *cursor && entry->FieldCount < kRmChainTypeFieldMax) {
    sFieldNext(field, sizeof field, &cursor, ';');
    int index = entry->FieldCount++;
    char* kind = std::strchr(field, ',');
    entry->FieldKinds[index] = kRmChainFieldNumber;
    if (kind) {
      *kind = 0;
      if (kind[1] == 's') entry->FieldKinds[index] = kRmChainFieldText;
    }
    sCopy(entry->FieldNames[index], field, sizeof entry->FieldNames[index]);
  }
}

void vReadTypeToken(RmChainDataType* entry, const char* name, char* value) {
  if (boIs(name, "InfoType")) {
    entry->InfoType = std::atoi(value);
  } else if (boIs(name, "InheritType")) {
    entry->InheritType = std::atoi(value);
  } else if (boIs(name, "OwnerType")) {
    entry->OwnerType = std::atoi(value);
  } else if (boIs(name, "ReflineType")) {
    entry->ReflineType = std::atoi(value);
  } else if (boIs(name, "PTheme")) {
    sCopy(entry->PTheme, value, sizeof entry->PTheme);
  } else if (boIs(name, "LTheme")) {
    sCopy(entry->LTheme, value, sizeof entry->LTheme);
  } else if (boIs(name, "Descr")) {
    sCopy(entry->Descr, value, sizeof entry->Descr);
  } else if (boIs(name, "Fields")) {
    vReadFields(entry, value);
  }
}

// Whether two entries differ in what the types section holds.
bool boTypeDiffers(const RmChainDataType& a, const RmChainDataType& b) {
  return std::memcmp(&a, &b, offsetof(RmChainDataType, PlanDraw)) != 0;
}

void vTakeInheritedFields(RmChainDataTypes* types) {
  for (RmChainDataType& entry : types->Types) {
    if (entry.InheritType == 0 || entry.InheritType == entry.Type) continue;
    const RmChainDataType* base = RmChainDataTypeFind(types, entry.InheritType);
    if (!base) continue;
    entry.FieldCount = base->FieldCount;
    std::memcpy(entry.FieldNames, base->FieldNames, sizeof entry.FieldNames);
    std::memcpy(entry.FieldKinds, base->FieldKinds, sizeof entry.FieldKinds);
  }
}

// Sets the draw field `name`; false for a name that is no draw field.
bool boReadDrawToken(RmChainDataDraw* draw, const char* name, const char* value, bool plan) {
  struct IntegerKey {
    const char* Name;
    int32_t RmChainDataDraw::*Field;
  };
  struct RealKey {
    const char* Name;
    float RmChainDataDraw::*Field;
  };
  static constexpr IntegerKey kIntegers[] = {
      {"LType", &RmChainDataDraw::LType},         {"LColor", &RmChainDataDraw::LColor},
      {"FigColor", &RmChainDataDraw::FigColor},   {"FigRotMet", &RmChainDataDraw::FigRotMet},
      {"Text", &RmChainDataDraw::Text},           {"TextFrame", &RmChainDataDraw::TextFrame},
      {"TextColor", &RmChainDataDraw::TextColor},
  };
  static constexpr RealKey kReals[] = {
      {"LScale", &RmChainDataDraw::LScale}, {"FScale", &RmChainDataDraw::FScale},
      {"TextH", &RmChainDataDraw::TextH},   {"TextRot", &RmChainDataDraw::TextRot},
      {"TextDx", &RmChainDataDraw::TextDx}, {"TextDy", &RmChainDataDraw::TextDy},
  };
  for (const IntegerKey& key : kIntegers) {
    if (boIs(name, key.Name)) {
      draw->*key.Field = std::atoi(value);
      return true;
    }
  }
  for (const RealKey& key : kReals) {
    if (boIs(name, key.Name)) {
      draw->*key.Field = static_cast<float>(std::atof(value));
      return true;
    }
  }
  if (boIs(name, "Fig")) {
    sCopy(draw->Fig, value, sizeof draw->Fig);
  } else if (boIs(name, "TextEraseBackground")) {
    draw->TextEraseBackground = static_cast<uint8_t>(std::atoi(value));
  } else if (boIs(name, "GdpLayer") && plan) {
    draw->GdpLayer = std::atoi(value);
  } else {
    return false;
  }
  return true;
}

void vReadDrawSection(KvrInif* inif, RmChainDataTypes* types, bool plan) {
  vForEachEntry(inif, plan ? "ChainDataPlanDraw" : "ChainDataSectionDraw",
                [&](const char* key, char* value) {
                  int type = std::atoi(key);
                  RmChainDataType* entry = type > 0 ? RmChainDataTypeFind(types, type) : nullptr;
                  if (!entry) return;
                  RmChainDataDraw draw = RmChainDataDrawDefaults(plan);
                  bool frameGiven = false;
                  vForEachToken(value, [&](const char* name, char* text) {
                    if (boReadDrawToken(&draw, name, text, plan) && boIs(name, "TextFrame")) {
                      frameGiven = true;
                    }
                  });
                  if (plan && draw.Text == 5 && !frameGiven) draw.TextFrame = 3;
                  if (entry->InfoType == 3) draw.Text = 0;
                  (plan ? entry->PlanDraw : entry->SectionDraw) = draw;
                });
}

}  // namespace

bool boRmChainDataTypesRead(const char* path, RmChainDataTypes* types, bool viewOnly) {
  if (!types) return false;
  KvrInif* inif = pKvrInifOpenPrivate(path, 0);
  if (!inif) return false;
  if (!viewOnly) {
    types->InfoTypes.clear();
    vForEachEntry(inif, "ChainDataInfoTypes", [&](const char* key, char* value) {
      types->InfoTypes.push_back(RmChainDataInfoType{std::atoi(key), sUnquoted(value)});
    });
  }
  vForEachEntry(inif, "ChainDataTypes", [&](const char* key, char* value) {
    int type = std::atoi(key);
    if (type <= 0) return;
    RmChainDataType entry = RmChainDataTypeDefaults(type);
    vForEachToken(value, [&](const char* name, char* text) { vReadTypeToken(&entry, name, text); });
    RmChainDataType* existing = RmChainDataTypeFind(types, type);
    if (!existing) {
      types->Types.push_back(entry);
    } else if (boTypeDiffers(*existing, entry)) {
      entry.PlanDraw = existing->PlanDraw;
      entry.SectionDraw = existing->SectionDraw;
      *existing = entry;
    }
  });
  vTakeInheritedFields(types);
  vKvrInifClose(inif);
  return true;
}

bool boRmChainDataDrawRead(const char* path, RmChainDataTypes* types) {
  if (!types) return false;
  KvrInif* inif = pKvrInifOpenPrivate(path, 0);
  if (!inif) return false;
  vReadDrawSection(inif, types, true);
  vReadDrawSection(inif, types, false);
  vKvrInifClose(inif);
  return true;
}
