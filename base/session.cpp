#include "base/session.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/printf_format.h"

SessionContext* primarySession = nullptr;
SessionContext* currentSession = nullptr;

namespace {

constexpr uint64_t kSessionPoolChunkSize = 8192;
// Room for a looked-up key: file, section and a key of up to 255 characters.
constexpr int kSessionLookupSize = 341;
// The longest file name that the widening search tries.
constexpr int kSessionMaxFileName = 79;
// Keys from this length on compare above everything.
constexpr size_t kSessionLongKey = 254;

const char* sOrEmpty(const char* text) { return text ? text : ""; }

// Formats into `out` and ends the process when the result does not fit: a
// key that long is a fault of the program, not of the data.
KVRVIPS_PRINTF_FORMAT(3, 4) void vFormatKey(char* out, size_t size, const char* format,
                                                      ...) {
  va_list arguments;
  va_start(arguments, format);
  int length = std::vsnprintf(out, size, format, arguments);
  va_end(arguments);
  if (length < 0 || size_t(length) >= size) {
    std::fprintf(stderr, "kvrvips: session key of %d characters does not fit in %zu bytes: %s\n",
                 length, size, out);
    std::abort();
  }
}

// A copy of `text` in the context's pool; "" when the pool has no room.
const char* sPoolCopy(SessionContext* context, const char* text) {
  size_t size = std::strlen(sOrEmpty(text)) + 1;
  auto* copy = static_cast<char*>(pPoolAlloc(&context->pool, size));
  if (!copy) return "";
  std::memcpy(copy, sOrEmpty(text), size);
  return copy;
}

bool boIsDigit(char c) { return c >= '0' && c <= '9'; }

// Writes `key` into `out` of `width` blanks: its closing run of digits flush
// right, the rest flush left.
void vPadKey(const char* key, size_t length, size_t width, char* out) {
  size_t digitsStart = length;
  while (digitsStart > 0 && boIsDigit(key[digitsStart - 1])) digitsStart--;
  std::memset(out, ' ', width);
  out[width] = 0;
  std::memcpy(out, key, digitsStart);
  std::memcpy(out + width - (length - digitsStart), key + digitsStart, length - digitsStart);
}

void vFillOut(const char** out, const char* text) {
  if (out) *out = text;
}

// Walks from `from` to the first entry of the running scan's section and
// reports it.
bool boScanFrom(SessionContext* context, SessionEntry* from, const char** outKey,
                const char** outText, const char** outTag) {
  size_t prefixLength = std::strlen(context->scanPrefix);
  SessionEntry* entry = from;
  while (entry && std::strncmp(entry->key, context->scanPrefix, prefixLength) != 0)
    entry = entry->next;
  context->scanCursor = entry;
  vFillOut(outKey, entry ? entry->key + prefixLength : "");
  vFillOut(outText, entry ? entry->text : "");
  vFillOut(outTag, entry ? entry->tag : "");
  return entry != nullptr;
}

// The first dot-separated part of `key`, at most 79 characters of it.
void vFirstComponent(const char* key, char* out) {
  size_t length = std::strcspn(key, ".");
  if (length > size_t(kSessionMaxFileName)) length = kSessionMaxFileName;
  std::memcpy(out, key, length);
  out[length] = 0;
}

}  // namespace

SessionContext* pSessionCreate() {
  auto* context = static_cast<SessionContext*>(std::calloc(1, sizeof(SessionContext)));
  if (!context) return nullptr;
  vPoolInit(&context->pool, kSessionPoolChunkSize);
  context->hash = HashCreate(0, offsetof(SessionEntry, key), kHashKeyTextPointer);
  SLinkInit(&context->entries, sizeof(SessionEntry), &context->pool);
  context->sorted = 1;
  if (!primarySession) {
    primarySession = context;
    currentSession = context;
    return nullptr;
  }
  return context;
}

void vSessionSelect(SessionContext* context) {
  currentSession = context ? context : primarySession;
}

void vSessionClear() {
  SessionContext* context = currentSession;
  if (!context) return;
  HashClear(context->hash);
  vSLinkClear(&context->entries);
  vPoolDelete(&context->pool);
  // The cursor pointed into the pool that is gone.
  context->scanCursor = nullptr;
  context->scanPrefix[0] = 0;
}

void vSessionDelete(SessionContext* context) {
  // Deleting the primary context by name would leave its pointer dangling.
  if (context == primarySession) context = nullptr;
  vSessionSelect(context);
  SessionContext* deleted = currentSession;
  vSessionClear();
  if (deleted) HashDelete(&deleted->hash);
  if (context) {
    std::free(context);
    vSessionSelect(nullptr);
    return;
  }
  currentSession = nullptr;
  std::free(primarySession);
  primarySession = nullptr;
}

SessionContext* vSessionSetSorted(int32_t flag) {
  if (currentSession) currentSession->sorted = flag;
  return currentSession;
}

void vSessionAdd(const char* file, const char* section, const char* key, const char* text,
                 const char* tag) {
  SessionContext* context = currentSession;
  if (!context) return;
  char wholeKey[kSessionKeySize];
  vFormatKey(wholeKey, sizeof wholeKey, "%s.%s.%s", sOrEmpty(file), sOrEmpty(section),
             sOrEmpty(key));

  ListHead* entries = &context->entries;
  SessionEntry* after = static_cast<SessionEntry*>(entries->last);
  if (context->sorted) {
    // Behind every entry that does not compare greater than the new key.
    after = nullptr;
    for (auto* walk = ListFirst<SessionEntry>(entries); walk; walk = walk->next) {
      if (iSessionKeyCompare(walk->key, wholeKey) > 0) break;
      after = walk;
    }
  }
  auto* entry = static_cast<SessionEntry*>(SLinkNewObjAfter(entries, after, nullptr));
  if (!entry) return;
  entry->key = sPoolCopy(context, wholeKey);
  HashAdd(context->hash, entry);
  entry->text = sPoolCopy(context, text);
  entry->tag = sPoolCopy(context, tag);
}

const char* sSessionGet(const char* file, const char* section, const char* key,
                        const char** outTag) {
  file = sOrEmpty(file);
  section = sOrEmpty(section);
  key = sOrEmpty(key);
  if (std::strlen(key) > size_t(kSessionMaxLookupKey)) return "";

  SessionContext* context = currentSession;
  char wholeKey[kSessionLookupSize];
  int length = std::snprintf(wholeKey, sizeof wholeKey, "%s.%s.%s", file, section, key);
  // A key longer than the room cannot be in the dictionary, nor can the
  // longer ones of a widening search.
  if (context && length > 0 && length < kSessionLookupSize) {
    if (auto* entry = static_cast<const SessionEntry*>(HashFind(context->hash, wholeKey))) {
      vFillOut(outTag, entry->tag);
      return entry->text;
    }
    if (!*file) {
      // Try the file of each entry in turn; only neighbours are compared, so
      // a file that comes back further on is tried again.
      char tried[kSessionMaxFileName + 1];
      auto* entry = ListFirst<const SessionEntry>(&context->entries);
      while (entry) {
        vFirstComponent(entry->key, tried);
        // An empty file name was the lookup above.
        if (*tried) {
          const char* text = sSessionGet(tried, section, key, outTag);
          if (*text) return text;
        }
        char next[kSessionMaxFileName + 1];
        do {
          entry = entry->next;
          if (entry) vFirstComponent(entry->key, next);
        } while (entry && std::strcmp(next, tried) == 0);
      }
    }
  }
  vFillOut(outTag, "");
  return "";
}

bool boSessionGetFirst(const char* file, const char* section, const char** outKey,
                       const char** outText, const char** outTag) {
  SessionContext* context = currentSession;
  if (!context) {
    vFillOut(outKey, "");
    vFillOut(outText, "");
    vFillOut(outTag, "");
    return false;
  }
  vFormatKey(context->scanPrefix, sizeof context->scanPrefix, "%s.%s.", sOrEmpty(file),
             sOrEmpty(section));
  return boScanFrom(context, ListFirst<SessionEntry>(&context->entries), outKey, outText, outTag);
}

bool boSessionGetNext(const char** outKey, const char** outText, const char** outTag) {
  SessionContext* context = currentSession;
  if (!context || !context->scanCursor) {
    vFillOut(outKey, "");
    vFillOut(outText, "");
    vFillOut(outTag, "");
    return false;
  }
  return boScanFrom(context, context->scanCursor->next, outKey, outText, outTag);
}

int iSessionKeyCompare(const char* a, const char* b) {
  a = sOrEmpty(a);
  b = sOrEmpty(b);
  size_t lengthA = std::strlen(a);
  size_t lengthB = std::strlen(b);
  if (lengthA >= kSessionLongKey || lengthB >= kSessionLongKey) return 1;
  if (lengthA == 0) return -1;
  if (lengthB == 0) return 1;
  if (!boIsDigit(a[lengthA - 1]) || !boIsDigit(b[lengthB - 1])) return std::strcmp(a, b);

  size_t width = lengthA > lengthB ? lengthA : lengthB;
  char paddedA[kSessionLongKey + 1];
  char paddedB[kSessionLongKey + 1];
  vPadKey(a, lengthA, width, paddedA);
  vPadKey(b, lengthB, width, paddedB);
  return std::strcmp(paddedA, paddedB);
}
