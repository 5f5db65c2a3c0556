// The session context: a dictionary of three-part keys for one conversion.
//
// Every key is `file.section.key` and carries a text and a tag. The factory
// settings are read into the current context at the start of a conversion
// and looked up from everywhere during it. Entries are kept in a list in
// natural key order (so that a section scans in order, "x.9" before "x.10")
// and in a hash table for lookups. All memory of a context lives in its pool.
//
// Two process-wide pointers carry the state, with no lock: the session is
// used by one thread at a time.
#pragma once

#include <cstdint>

#include "base/hash_table.h"
#include "base/pool.h"
#include "base/slink.h"

// One entry, a node of the context's list.
struct SessionEntry {
  SessionEntry* next;
  const char* key;   // the whole key `file.section.key`, a copy in the pool
  const char* text;  // the value, a copy in the pool, never null
  const char* tag;   // the tag, a copy in the pool, never null
};
static_assert(sizeof(SessionEntry) == 32, "session entries are list elements of 32 bytes");

// Room for a composed key and for a scan's prefix, terminator included.
inline constexpr int kSessionKeySize = 200;
// The longest key part that sSessionGet looks up.
inline constexpr int kSessionMaxLookupKey = 255;

struct SessionContext {
  ListHead entries;                   // all entries, in key order when sorted
  HashTable* hash;                    // the entries by whole key
  char scanPrefix[kSessionKeySize];   // `file.section.` of the running scan
  SessionEntry* scanCursor;           // where the running scan stands
  Pool pool;                          // entries, their texts, hash nodes
  int32_t sorted;                     // 1: insert in key order; 0: append
};

// The first context created, and the one every dictionary operation uses.
extern SessionContext* primarySession;
extern SessionContext* currentSession;

// Makes a context. The first one becomes the primary and current context,
// and the result is null; a later one is returned and not selected. Null
// also when the context could not be allocated; then nothing changed.
SessionContext* pSessionCreate();

// Selects `context`, or the primary context when it is null.
void vSessionSelect(SessionContext* context);

// Empties the current context; it stays usable.
void vSessionClear();

// Deletes `context` and selects the primary one again. With null (or the
// primary context itself) deletes the primary context and leaves no session.
void vSessionDelete(SessionContext* context);

// Sets whether new entries go in key order (1) or to the end (0). Returns
// the current context.
SessionContext* vSessionSetSorted(int32_t flag);

// Adds an entry; null arguments count as empty texts. A key that is added
// twice stands twice. A composed key of more than 199 characters ends the
// process.
void vSessionAdd(const char* file, const char* section, const char* key, const char* text,
                 const char* tag);

// The text under `file.section.key`, and its tag through `outTag` when that
// is given. Never null: a missing key gives "" and an empty tag. With an
// empty `file` every file of the dictionary is tried. A `key` of more than
// 255 characters gives "" at once and leaves `outTag` alone.
const char* sSessionGet(const char* file, const char* section, const char* key,
                        const char** outTag);

// Starts a scan of the entries of `file.section` in list order. Fills the
// first entry's key (the part behind `file.section.`), text and tag; every
// out argument may be null. False, with empty texts, when there is none.
bool boSessionGetFirst(const char* file, const char* section, const char** outKey,
                       const char** outText, const char** outTag);

// Goes on with the running scan; false, with empty texts, at its end.
bool boSessionGetNext(const char** outKey, const char** outText, const char** outTag);

// The natural order of two keys: below, equal to or above zero. A closing
// number compares by value when what stands in front of it is equal. When
// either key has 254 or more characters the result is 1; otherwise an empty
// `a` gives -1 and an empty `b` 1.
int iSessionKeyCompare(const char* a, const char* b);
