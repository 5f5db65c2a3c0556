#include "road_model/names/owned_text.h"

#include <cstdlib>
#include <cstring>

void vRmOwnedTextSet(char** field, const char* value) {
  if (!field || *field == value) return;
  if (!value) {
    std::free(*field);
    *field = nullptr;
    return;
  }
  size_t size = std::strlen(value) + 1;
  char* block = static_cast<char*>(std::malloc(size));
  if (!block) return;
  std::memcpy(block, value, size);
  std::free(*field);
  *field = block;
}
