#include "base/hash_table.h"

#include <cstdlib>
#include <cstring>

#include "base/messages.h"
#include "base/temp_text.h"

namespace {

bool boTextKey(const HashTable* table) { return table->keyLength <= kHashKeyText; }

// The key of a record, in the form that HashFind takes.
const void* pElementKey(const HashTable* table, const void* element) {
  const char* field = static_cast<const char*>(element) + table->keyOffset;
  if (table->keyLength == kHashKeyTextPointer) {
    const char* text;
    std::memcpy(&text, field, sizeof text);
    return text ? text : "";
  }
  return field;
}

uint32_t uHashStep(uint32_t hash, signed char c) {
  hash = (hash << 4) + static_cast<uint32_t>(static_cast<int32_t>(c));
  uint32_t high = hash & 0xF0000000u;
  if (high) hash ^= high >> 24;
  return hash & 0x0FFFFFFFu;
}

int32_t iSlotOf(const HashTable* table, const void* key) {
  uint32_t hash;
  switch (table->keyLength) {
    case kHashKeyTextPointer:
    case kHashKeyText:
      hash = uHashText(static_cast<const char*>(key));
      break;
    case kHashKeyUint16: {
      uint16_t value;
      std::memcpy(&value, key, sizeof value);
      hash = value;
      break;
    }
    case kHashKeyUint32:
      std::memcpy(&hash, key, sizeof hash);
      break;
    default:
      hash = uHashBytes(key, size_t(table->keyLength));
      break;
  }
  return static_cast<int32_t>(hash % uint32_t(table->slotCount));
}

bool boKeysEqual(const HashTable* table, const void* a, const void* b) {
  if (boTextKey(table))
    return std::strcmp(static_cast<const char*>(a), static_cast<const char*>(b)) == 0;
  return std::memcmp(a, b, size_t(table->keyLength)) == 0;
}

// Appends `piece` to `text` of `size` bytes, cutting what does not fit.
void vAppendText(char* text, size_t size, const char* piece) {
  size_t used = std::strlen(text);
  size_t room = size - 1 - used;
  size_t length = std::strlen(piece);
  if (length > room) length = room;
  std::memcpy(text + used, piece, length);
  text[used + length] = 0;
}

}  // namespace

uint32_t uHashText(const char* text) {
  uint32_t hash = 0;
  if (!text) return hash;
  for (; *text; text++) hash = uHashStep(hash, static_cast<signed char>(*text));
  return hash;
}

uint32_t uHashBytes(const void* bytes, size_t length) {
  uint32_t hash = 0;
  const auto* walk = static_cast<const char*>(bytes);
  for (size_t i = 0; i < length; i++) hash = uHashStep(hash, static_cast<signed char>(walk[i]));
  return hash;
}

HashTable* HashCreate(int32_t slots, int32_t keyOffset, int32_t keyLength) {
  if (slots <= 0) slots = kHashDefaultSlots;
  if (slots % 2 == 0) slots--;
  auto* table = static_cast<HashTable*>(
      std::calloc(1, sizeof(HashTable) + sizeof(HashNode*) * size_t(slots)));
  if (!table) {
    vMessageWarn("Out of mem");
    return nullptr;
  }
  table->keyOffset = keyOffset;
  // Every negative length is taken as a pointer to a text.
  table->keyLength = keyLength < 0 ? kHashKeyTextPointer : keyLength;
  table->slotCount = slots;
  vPoolInit(&table->pool, kHashPoolChunkSize);
  table->slots = reinterpret_cast<HashNode**>(table + 1);
  return table;
}

void HashAdd(HashTable* table, void* element) {
  if (!table || !element) return;
  int32_t slot = iSlotOf(table, pElementKey(table, element));
  auto* node = static_cast<HashNode*>(pPoolAlloc(&table->pool, sizeof(HashNode)));
  if (!node) return;
  node->element = element;
  node->next = nullptr;
  HashNode** link = &table->slots[slot];
  while (*link) link = &(*link)->next;
  *link = node;
}

void* HashFind(const HashTable* table, const void* key) {
  if (!table) return nullptr;
  if (!key) {
    if (!boTextKey(table)) return nullptr;
    key = "";
  }
  for (HashNode* node = table->slots[iSlotOf(table, key)]; node; node = node->next)
    if (boKeysEqual(table, pElementKey(table, node->element), key)) return node->element;
  return nullptr;
}

void HashRemove(HashTable* table, const void* element) {
  if (!table || !element) return;
  const void* key = pElementKey(table, element);
  for (HashNode** link = &table->slots[iSlotOf(table, key)]; *link; link = &(*link)->next) {
    if (boKeysEqual(table, pElementKey(table, (*link)->element), key)) {
      *link = (*link)->next;
      return;
    }
  }
}

void HashClear(HashTable* table) {
  if (!table) return;
  vPoolDelete(&table->pool);
  std::memset(table->slots, 0, sizeof(HashNode*) * size_t(table->slotCount));
}

void HashDelete(HashTable** table) {
  if (!table || !*table) return;
  HashClear(*table);
  std::free(*table);
  *table = nullptr;
}

int HashSlotLength(const HashTable* table, int32_t slot) {
  if (!table || slot < 0 || slot >= table->slotCount) return 0;
  int length = 0;
  for (HashNode* node = table->slots[slot]; node; node = node->next) length++;
  return length;
}

void HashShowStatistics(const HashTable* table) {
  if (!table) return;
  static constexpr int kBinLimits[] = {0,  1,  2,   3,    4,     5,     6, 7,
                                       8, 10, 20, 40, 100, 1000, 10000, 100000};
  constexpr int kBinCount = sizeof kBinLimits / sizeof kBinLimits[0];
  int bins[kBinCount] = {};
  int total = 0;
  int slotsUsed = 0;
  for (int32_t slot = 0; slot < table->slotCount; slot++) {
    int length = HashSlotLength(table, slot);
    total += length;
    if (length > 0) slotsUsed++;
    for (int bin = 0; bin < kBinCount; bin++) {
      if (kBinLimits[bin] >= length) {
        bins[bin]++;
        break;
      }
    }
  }

  char text[kFormatBufferSize] = "";
  vAppendText(text, sizeof text,
              sFormat("Hash statistics:\nTable size:%d\nTotal:%d\n", table->slotCount, total));
  for (int bin = 0; bin < kBinCount; bin++)
    vAppendText(text, sizeof text, sFormat("%5d- %d\n", kBinLimits[bin], bins[bin]));
  if (slotsUsed > 0)
    vAppendText(text, sizeof text, sFormat("Average chain %.2lf\n", double(total) / slotsUsed));
  vAppendText(text, sizeof text,
              sFormat("Slots used %.2lf%%", double(slotsUsed) * 100.0 / table->slotCount));
  vMessageInfo(text);
}
