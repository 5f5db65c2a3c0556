#include "road_model/codes/layer_id.h"

#include <cstdlib>

RmLayerId RmLayerIdMake(uint32_t type, int32_t number) { return RmLayerId{type, number}; }

uint64_t uRmLayerIdPack(RmLayerId id) {
  return id.Type | (static_cast<uint64_t>(static_cast<uint32_t>(id.Number)) << 32);
}

RmLayerId RmLayerIdUnpack(uint64_t packed) {
  return RmLayerId{static_cast<uint32_t>(packed & 0xFFFFFFFFu),
                   static_cast<int32_t>(packed >> 32)};
}

bool boRmLayerIdEquals(RmLayerId a, RmLayerId b) {
  return a.Type == b.Type && a.Number == b.Number;
}

bool boRmLayerIdMatches(RmLayerId id, RmLayerId filter) {
  bool typeMatches = filter.Type == static_cast<uint32_t>(-1) || filter.Type == id.Type;
  bool numberMatches = filter.Number == -1 || filter.Number == id.Number;
  return typeMatches && numberMatches;
}

bool boRmLayerIdValid(RmLayerId id) {
  return id.Type >= 1 && id.Number > -1;
}

void vRmLayerIdClear(RmLayerId* id) { *id = RmLayerId{0, -2}; }

bool RmLayerIdIsTheoretical(RmLayerId id) {
  return id.Type == kRmLayerTheoretical || id.Type == kRmLayerTheoretical2;
}

bool RmLayerIdIsPhysical(RmLayerId id) {
  return id.Type == kRmLayerPhysical || id.Type == kRmLayerPhysical2;
}

bool RmLayerIdIsTheoreticalOrEight(RmLayerId id) {
  return RmLayerIdIsTheoretical(id) || id.Type == kRmLayerTheoreticalLike;
}

int iRmLayerIdToFile(RmLayerId id) { return static_cast<int>(id.Type) + 10 * id.Number; }

RmLayerId RmLayerIdFromFile(int value) {
  return RmLayerId{static_cast<uint32_t>(value % 10), value / 10};
}

int iRmLayerIdFindIndex(const RmLayerId* ids, int count, RmLayerId id) {
  for (int i = 0; ids && i < count; ++i) {
    if (boRmLayerIdEquals(ids[i], id)) return i;
  }
  return -1;
}

bool boRmLayerListHas(const char* text, RmLayerId id) {
  if (!text || !*text) return false;
  int wanted = iRmLayerIdToFile(id);
  const char* cursor = text;
  while (*cursor) {
    char* end = nullptr;
    long value = std::strtol(cursor, &end, 10);
    if (end != cursor && value == wanted) return true;
    while (*end && *end != ';') ++end;
    cursor = *end ? end + 1 : end;
  }
  return false;
}

bool boRmLayerIsSurfaceKind(RmLayerId id) {
  if (!RmLayerIdIsTheoreticalOrEight(id)) return false;
  int n = id.Number;
  return n != 3 && n != 4 && n != 6 && n != 7;
}

bool boRmLayerNumberIs30s(int number) { return number >= 30 && number <= 39; }

bool boRmLayerNumberIs40s(int number) { return number >= 40 && number <= 49; }

bool boRmLayerNumberIsSurfaceExtra(int number) {
  switch (number) {
    case 50: case 51: case 52: case 60: case 61: case 62: case 70: case 71: case 72: case 73:
      return true;
    default:
      return false;
  }
}

bool boRmLayerNumberIsSetA(int number) {
  return number == 1 || number == 6 || number == 7 || number == 9 || number == 10;
}

bool boRmLayerNumberIsSetB(int number) {
  switch (number) {
    case 0: case 3: case 4: case 40: case 41: case 42: case 43: case 45: case 46: case 47:
      return true;
    default:
      return false;
  }
}

bool boRmLayerNumberIsUser(int number) { return number >= 100; }

bool boRmLayerIsDerived(RmLayerId id) {
  int n = id.Number;
  if (RmLayerIdIsPhysical(id)) return (n >= 80 && n <= 84) || (n >= 96 && n <= 99);
  if (RmLayerIdIsTheoretical(id)) return n >= 97 && n <= 99;
  return false;
}

bool boRmLayerDerivedFromGroup(RmLayerId derived, int group) {
  if (RmLayerIdIsTheoretical(derived)) return true;
  switch (derived.Number) {
    case 80: case 81: case 82: case 83: case 84: return group == derived.Number - 79;
    case 96: return group >= 1 && group <= 3;
    case 97: return group == 1 || group == 2;
    case 98: case 99: return true;
    default: return false;
  }
}

int iRmLayerDerivedKind(RmLayerId id) {
  if (id.Number == 98) return 2;
  if (RmLayerIdIsTheoretical(id) && id.Number == 97) return 3;
  return 1;
}
