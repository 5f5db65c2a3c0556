#include "road_model/names/fresh_guid.h"

#include <cstdint>
#include <random>

namespace {

std::mt19937_64& Generator() {
  thread_local std::mt19937_64 generator{(uint64_t(std::random_device{}()) << 32) ^
                                         std::random_device{}()};
  return generator;
}

}  // namespace

void vRmFreshGuidSeed(uint64_t seed) { Generator().seed(seed); }

void vRmFreshGuid(char* out) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  uint64_t high = Generator()();
  uint64_t low = Generator()();
  // Version 4, variant 10.
  high = (high & ~uint64_t(0xF000)) | uint64_t(0x4000);
  low = (low & ~(uint64_t(0xC) << 60)) | (uint64_t(0x8) << 60);
  int nibble = 0;
  char* cursor = out;
  for (int group : {8, 4, 4, 4, 12}) {
    if (cursor != out) *cursor++ = '-';
    for (int i = 0; i < group; ++i, ++nibble) {
      uint64_t word = nibble < 16 ? high : low;
      int shift = 60 - 4 * (nibble % 16);
      *cursor++ = kDigits[(word >> shift) & 0xF];
    }
  }
  *cursor = 0;
}
