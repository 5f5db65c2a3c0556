#include "base/dlink.h"

#include <cstdlib>

#include "base/messages.h"

namespace {

constexpr int32_t kDLinkBytes = sizeof(DLink);

}  // namespace

void DLinkInit(ListHead* head, int32_t size, Pool* pool) { SLinkInit(head, size, pool); }

void* DLinkNewObj(ListHead* head, void* before, const void* source) {
  if (!head) return nullptr;
  void* element = pListNewElement(head, head->size, kDLinkBytes);
  if (!element) return nullptr;
  if (source && head->size > 0) std::memcpy(element, source, size_t(head->size));
  vDLinkLink(head, before, element);
  return element;
}

void* pDLinkNewObj(ListHead* head, void* before, const void* source, int32_t sizeOfSource) {
  if (!head) return nullptr;
  if (sizeOfSource != head->size) vMessageWarn("pDLinkNewObj: Wrong size of object to copy");
  return DLinkNewObj(head, before, source);
}

void vDLinkDeleteObj(ListHead* head, void* element) {
  if (!head || !element) return;
  vDLinkUnlink(head, element);
  vListReleaseElement(head, element);
}

void vDLinkClear(ListHead* head) { vSLinkClear(head); }

void* DLinkCopy(const ListHead* source, ListHead* target, Pool* pool) {
  if (!source || !target || source == target) return nullptr;
  DLinkInit(target, source->size, pool);
  void* copy = nullptr;
  for (void* walk = source->first; walk; walk = pLinkNext(walk)) {
    copy = DLinkNewObj(target, nullptr, walk);
    if (!copy) return nullptr;
  }
  return copy;
}

void vDLinkLink(ListHead* head, void* before, void* element) {
  if (!head || !element) return;
  if (!before) {
    vLinkSetNext(element, nullptr);
    vLinkSetPrev(element, head->last);
    if (head->last)
      vLinkSetNext(head->last, element);
    else
      head->first = element;
    head->last = element;
    return;
  }
  void* previous = pLinkPrev(before);
  vLinkSetNext(element, before);
  vLinkSetPrev(element, previous);
  vLinkSetPrev(before, element);
  if (previous)
    vLinkSetNext(previous, element);
  else
    head->first = element;
}

void vDLinkUnlink(ListHead* head, void* element) {
  if (!head || !element) return;
  void* previous = pLinkPrev(element);
  void* next = pLinkNext(element);
  // An element whose open ends are not the list's ends is not in this list.
  if ((!previous && head->first != element) || (!next && head->last != element)) return;
  if (previous)
    vLinkSetNext(previous, next);
  else
    head->first = next;
  if (next)
    vLinkSetPrev(next, previous);
  else
    head->last = previous;
  vLinkSetNext(element, nullptr);
  vLinkSetPrev(element, nullptr);
}

void vDLinkMove(ListHead* head, void* element, void* before) {
  if (!head || !element || element == before) return;
  vDLinkUnlink(head, element);
  vDLinkLink(head, before, element);
}

void vDLinkSort(ListHead* head, ListCompare compare) {
  if (!head || !head->first || !pLinkNext(head->first)) return;
  head->first = ChainSort(head->first, compare);
  void* previous = nullptr;
  for (void* walk = head->first; walk; walk = pLinkNext(walk)) {
    vLinkSetPrev(walk, previous);
    previous = walk;
  }
  head->last = previous;
}
