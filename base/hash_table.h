// A chained hash table over records that carry their own key.
//
// The table does not own its records: it holds a node per record, taken from
// its own pool, and finds a record by the key at a fixed offset inside it.
// Equal keys may stand side by side; a lookup finds the one added first.
#pragma once

#include <cstddef>
#include <cstdint>

#include "base/pool.h"

// What the key inside a record is (the table's keyLength).
enum : int32_t {
  kHashKeyTextPointer = -1,  // the record holds a pointer to a text
  kHashKeyText = 0,          // the record holds a text in place
  kHashKeyUint16 = 2,        // an unsigned 16-bit number
  kHashKeyUint32 = 4,        // an unsigned 32-bit number
  // any other positive length: a key of that many bytes
};

// The slot count that a request of 0 gives.
inline constexpr int32_t kHashDefaultSlots = 8191;
// The chunk size of the node pool.
inline constexpr uint64_t kHashPoolChunkSize = 16384;

struct HashNode {
  HashNode* next;
  void* element;
};

// One allocation: the fields, then `slotCount` slot heads.
struct HashTable {
  int32_t keyOffset;  // offset of the key inside a record
  int32_t keyLength;  // the kind of key, see above
  int32_t slotCount;  // number of slots, odd
  Pool pool;          // holds the nodes
  HashNode** slots;   // heads of the chains, behind the fields
};

// A table of `slots` slots (negative or 0: 8191; an even count is lowered
// by one). Shows "Out of mem" and returns null when it cannot be had.
HashTable* HashCreate(int32_t slots, int32_t keyOffset, int32_t keyLength);

// Enters `element` at the end of its key's chain. A failed node allocation
// leaves the table as it was.
void HashAdd(HashTable* table, void* element);

// The record with that key, or null. `key` is the text itself for text keys
// (also for kHashKeyTextPointer), else a pointer to the key bytes.
void* HashFind(const HashTable* table, const void* key);

// Takes out the first node whose record has the same key as `element`. The
// node's memory stays in the pool.
void HashRemove(HashTable* table, const void* element);

// Empties the table and gives back the nodes' memory; the table stays
// usable. Null is ignored.
void HashClear(HashTable* table);

// Clears and frees the table, and sets the pointer to null.
void HashDelete(HashTable** table);

// The length of a slot's chain; 0 for a slot outside the table.
int HashSlotLength(const HashTable* table, int32_t slot);

// Shows the table's size, its number of records, a histogram of the chain
// lengths, the average chain and the share of slots used, in a message box.
void HashShowStatistics(const HashTable* table);

// The 28-bit text hash of object-file symbol tables, over a terminated text
// or over `length` bytes. Bytes count as signed values.
uint32_t uHashText(const char* text);
uint32_t uHashBytes(const void* bytes, size_t length);
