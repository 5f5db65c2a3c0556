#include "base/slink.h"

#include <cstdlib>
#include <cstring>

#include "base/messages.h"

namespace {

constexpr int32_t kSLinkBytes = sizeof(SLink);

void vAppend(ListHead* head, void* element) {
  vLinkSetNext(element, nullptr);
  if (head->last)
    vLinkSetNext(head->last, element);
  else
    head->first = element;
  head->last = element;
}

// Links `element` behind `previous`, or as the first with `previous` null.
void vLinkBehind(ListHead* head, void* previous, void* element) {
  if (previous) {
    vLinkSetNext(element, pLinkNext(previous));
    vLinkSetNext(previous, element);
  } else {
    vLinkSetNext(element, head->first);
    head->first = element;
  }
  if (head->last == previous) head->last = element;
}

// Finds `element` and its predecessor; false when it is not in the list.
bool boFind(const ListHead* head, const void* element, void** previous) {
  void* before = nullptr;
  for (void* walk = head->first; walk; walk = pLinkNext(walk)) {
    if (walk == element) {
      *previous = before;
      return true;
    }
    before = walk;
  }
  return false;
}

// Takes a found element out, given its predecessor.
void vCutOut(ListHead* head, void* previous, void* element) {
  void* next = pLinkNext(element);
  if (previous)
    vLinkSetNext(previous, next);
  else
    head->first = next;
  if (head->last == element) head->last = previous;
}

}  // namespace

void* pListNewElement(const ListHead* head, int32_t size, int32_t linkBytes) {
  uint64_t bytes = size > linkBytes ? uint64_t(size) : uint64_t(linkBytes);
  if (head->pool) return pPoolAlloc(head->pool, bytes);
  return std::calloc(1, bytes);
}

void vListReleaseElement(ListHead* head, void* element) {
  if (head->pool) {
    if (head->size > 0) head->pool->garbage += uint64_t(head->size);
  } else {
    std::free(element);
  }
}

void SLinkInit(ListHead* head, int32_t size, Pool* pool) {
  if (!head) return;
  head->first = nullptr;
  head->last = nullptr;
  head->size = size;
  head->pool = pool;
}

void* SLinkNewObj(ListHead* head, void* before, const void* source) {
  if (!head) return nullptr;
  return SLinkNewSizeObj(head, head->size, before, source);
}

void* SLinkNewSizeObj(ListHead* head, int32_t size, void* before, const void* source) {
  if (!head) return nullptr;
  void* element = pListNewElement(head, size, kSLinkBytes);
  if (!element) return nullptr;
  if (source && size > 0) std::memcpy(element, source, size_t(size));
  vLinkSetNext(element, nullptr);
  if (!before) {
    vAppend(head, element);
    return element;
  }
  void* previous = nullptr;
  if (boFind(head, before, &previous)) {
    vLinkBehind(head, previous, element);
    return element;
  }
  vMessageWarn("SLinkNewSizeObj InsertBefore not found");
  vAppend(head, element);
  return element;
}

void* pSLinkNewObj(ListHead* head, void* before, const void* source, int32_t sizeOfSource) {
  if (!head) return nullptr;
  if (sizeOfSource != head->size) vMessageWarn("pSLinkNewObj: Wrong size of object in list");
  return SLinkNewObj(head, before, source);
}

void* SLinkNewObjAfter(ListHead* head, void* after, const void* source) {
  if (!head) return nullptr;
  void* element = pListNewElement(head, head->size, kSLinkBytes);
  if (!element) return nullptr;
  if (source && head->size > 0) std::memcpy(element, source, size_t(head->size));
  vLinkBehind(head, after, element);
  return element;
}

void vSLinkDeleteObj(ListHead* head, void* element) {
  if (!head || !element) return;
  void* previous = nullptr;
  if (!boFind(head, element, &previous)) return;
  vCutOut(head, previous, element);
  vListReleaseElement(head, element);
}

void vSLinkClear(ListHead* head) {
  if (!head) return;
  void* walk = head->first;
  while (walk) {
    void* next = pLinkNext(walk);
    vListReleaseElement(head, walk);
    walk = next;
  }
  head->first = nullptr;
  head->last = nullptr;
}

void* SLinkCopy(const ListHead* source, ListHead* target, Pool* pool) {
  if (!source || !target || source == target) return nullptr;
  SLinkInit(target, source->size, pool);
  void* copy = nullptr;
  for (void* walk = source->first; walk; walk = pLinkNext(walk)) {
    copy = SLinkNewObj(target, nullptr, walk);
    if (!copy) return nullptr;
  }
  return copy;
}

void vSLinkReverse(ListHead* head) {
  if (!head) return;
  void* reversed = nullptr;
  void* walk = head->first;
  while (walk) {
    void* next = pLinkNext(walk);
    vLinkSetNext(walk, reversed);
    reversed = walk;
    walk = next;
  }
  head->last = head->first;
  head->first = reversed;
}

void vSLinkLink(ListHead* head, void* before, void* element) {
  if (!head || !element) return;
  if (!before) {
    vAppend(head, element);
    return;
  }
  void* previous = nullptr;
  if (boFind(head, before, &previous)) vLinkBehind(head, previous, element);
}

void vSLinkUnlink(ListHead* head, void* element) {
  if (!head || !element) return;
  void* previous = nullptr;
  if (!boFind(head, element, &previous)) return;
  vCutOut(head, previous, element);
  vLinkSetNext(element, nullptr);
}

void vSLinkMove(ListHead* head, void* element, void* before) {
  if (!head || !element || element == before) return;
  void* previous = nullptr;
  // A `before` outside the list would leave the element linked nowhere.
  if (before && !boFind(head, before, &previous)) return;
  vSLinkUnlink(head, element);
  vSLinkLink(head, before, element);
}

void* SLinkPrev(const ListHead* head, const void* element) {
  if (!head) return nullptr;
  if (!element) return head->last;
  void* previous = nullptr;
  if (!boFind(head, element, &previous)) return nullptr;
  return previous;
}

void vSLinkSort(ListHead* head, ListCompare compare) {
  if (!head || !head->first || !pLinkNext(head->first)) return;
  head->first = ChainSort(head->first, compare);
  void* last = head->first;
  while (void* next = pLinkNext(last)) last = next;
  head->last = last;
}

bool boSLinkRotate(ListHead* head, void* element) {
  if (!head || !element || element == head->first) return false;
  void* previous = SLinkPrev(head, element);
  if (!previous) return false;
  vLinkSetNext(head->last, head->first);
  vLinkSetNext(previous, nullptr);
  head->last = previous;
  head->first = element;
  return true;
}

long lSLinkCount(const ListHead* head) { return head ? lChainCount(head->first) : 0; }

void* SLinkNth(const ListHead* head, long n) {
  if (!head || n < 0) return nullptr;
  void* walk = head->first;
  while (walk && n-- > 0) walk = pLinkNext(walk);
  return walk;
}
