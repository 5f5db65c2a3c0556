// Fresh GUIDs for the records of the model's vocabulary: 36 characters, upper
// case hexadecimal in the groups 8-4-4-4-12, without braces.
#pragma once

#include <cstddef>
#include <cstdint>

inline constexpr size_t kRmGuidTextSize = 37;  // 36 characters and a terminator

// Writes a new random GUID (version 4) into `out`, which has room for
// kRmGuidTextSize bytes.
void vRmFreshGuid(char* out);

// Starts the calling thread's GUIDs over from `seed`, so that the same work
// gives the same GUIDs: for output that is compared byte for byte. Fresh
// GUIDs are otherwise seeded from the system's random device.
void vRmFreshGuidSeed(uint64_t seed);
