// Layer identities: which surface a layer of a section is.
//
// An id is the pair of a layer type and a number within the type, kept in one
// 64-bit value with the type in the low half. The model file spells it
// Type + 10*Number. -1 in either half is a wildcard in filters.
#pragma once

#include <cstdint>

struct RmLayerId {
  uint32_t Type;
  int32_t Number;
};
static_assert(sizeof(RmLayerId) == 8, "a layer id is one 64-bit value");

// Layer types.
enum : uint32_t {
  kRmLayerTheoretical = 1,
  kRmLayerPhysical = 2,
  kRmLayerTheoretical2 = 3,
  kRmLayerPhysical2 = 4,
  kRmLayerShortTextOnly = 5,
  kRmLayerTheoreticalLike = 8,
  kRmLayerAdvanced = 9,
};

RmLayerId RmLayerIdMake(uint32_t type, int32_t number);
// The id as one value (type low, number high) and back.
uint64_t uRmLayerIdPack(RmLayerId id);
RmLayerId RmLayerIdUnpack(uint64_t packed);

bool boRmLayerIdEquals(RmLayerId a, RmLayerId b);
// Each half equal, or the filter's half -1.
bool boRmLayerIdMatches(RmLayerId id, RmLayerId filter);
// Type at least 1 and number at least 0.
bool boRmLayerIdValid(RmLayerId id);
// The empty id: type 0, number -2.
void vRmLayerIdClear(RmLayerId* id);

bool RmLayerIdIsTheoretical(RmLayerId id);
bool RmLayerIdIsPhysical(RmLayerId id);
bool RmLayerIdIsTheoreticalOrEight(RmLayerId id);

// The file's number of an id, Type + 10*Number, and back.
int iRmLayerIdToFile(RmLayerId id);
RmLayerId RmLayerIdFromFile(int value);

// Position of `id` in an array, -1 when absent or `count` is not positive.
int iRmLayerIdFindIndex(const RmLayerId* ids, int count, RmLayerId id);
// Whether a ';'-separated list of file numbers holds `id`.
bool boRmLayerListHas(const char* text, RmLayerId id);

// A surface layer whose points follow the coded side rules: theoretical or
// type 8, and not one of the numbers 3, 4, 6, 7.
bool boRmLayerIsSurfaceKind(RmLayerId id);

// Number sets of the theoretical type.
bool boRmLayerNumberIs30s(int number);
bool boRmLayerNumberIs40s(int number);
bool boRmLayerNumberIsSurfaceExtra(int number);
bool boRmLayerNumberIsSetA(int number);
bool boRmLayerNumberIsSetB(int number);
bool boRmLayerNumberIsUser(int number);

// Derived layers, which stand for a combination of other layers: physical
// 80 to 84 and 96 to 99, theoretical 97 to 99.
bool boRmLayerIsDerived(RmLayerId id);
// Whether a derived id stands for the physical group `group` (1 to 5).
bool boRmLayerDerivedFromGroup(RmLayerId derived, int group);
// 2 for number 98, 3 for theoretical 97, otherwise 1.
int iRmLayerDerivedKind(RmLayerId id);
