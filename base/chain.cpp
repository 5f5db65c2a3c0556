#include "base/chain.h"

#include <cstdlib>

namespace {

// The link that points at `element`: the head itself or the `next` word of
// its predecessor. Null when `element` is not in the chain.
void* pLinkTo(void** head, const void* element) {
  if (*head == element) return head;
  for (void* walk = *head; walk; walk = pLinkNext(walk))
    if (pLinkNext(walk) == element) return walk;
  return nullptr;
}

// The last element of the chain, null when it is empty.
void* pChainLast(void* first) {
  if (!first) return nullptr;
  while (void* next = pLinkNext(first)) first = next;
  return first;
}

void vSetLink(void** head, void* link, void* to) {
  if (link == head)
    *head = to;
  else
    vLinkSetNext(link, to);
}

}  // namespace

void* ChainNewObj(void** head, void* before, int32_t size) {
  if (!head) return nullptr;
  size_t bytes = size > static_cast<int32_t>(sizeof(void*)) ? size_t(size) : sizeof(void*);
  void* element = std::calloc(1, bytes);
  if (!element) return nullptr;
  void* link = before ? pLinkTo(head, before) : nullptr;
  if (link) {
    vLinkSetNext(element, before);
    vSetLink(head, link, element);
  } else if (void* last = pChainLast(*head)) {
    vLinkSetNext(last, element);
  } else {
    *head = element;
  }
  return element;
}

void vChainFree(void** head) {
  if (!head) return;
  void* walk = *head;
  while (walk) {
    void* next = pLinkNext(walk);
    std::free(walk);
    walk = next;
  }
  *head = nullptr;
}

void vChainRemove(void** head, void* element) {
  if (!head || !element) return;
  void* link = pLinkTo(head, element);
  if (!link) return;
  vSetLink(head, link, pLinkNext(element));
  std::free(element);
}

void vChainUnlink(void** head, void* element) {
  if (!head || !element) return;
  void* link = pLinkTo(head, element);
  if (!link) return;
  vSetLink(head, link, pLinkNext(element));
  vLinkSetNext(element, nullptr);
}

void vChainLink(void** head, void* before, void* element) {
  if (!head || !element) return;
  if (!before) {
    vLinkSetNext(element, nullptr);
    if (void* last = pChainLast(*head))
      vLinkSetNext(last, element);
    else
      *head = element;
    return;
  }
  void* link = pLinkTo(head, before);
  if (!link) return;
  vLinkSetNext(element, before);
  vSetLink(head, link, element);
}

void vChainMove(void** head, void* element, void* before) {
  if (!head || !element || element == before) return;
  if (before && !pLinkTo(head, before)) return;
  vChainUnlink(head, element);
  vChainLink(head, before, element);
}

void* ChainSort(void* first, ListCompare compare) {
  long count = lChainCount(first);
  if (count < 2 || !compare) return first;
  auto** order = static_cast<void**>(std::malloc(sizeof(void*) * size_t(count)));
  if (!order) return first;
  long i = 0;
  for (void* walk = first; walk; walk = pLinkNext(walk)) order[i++] = walk;
  std::qsort(order, size_t(count), sizeof(void*), compare);
  for (i = 0; i + 1 < count; i++) vLinkSetNext(order[i], order[i + 1]);
  vLinkSetNext(order[count - 1], nullptr);
  first = order[0];
  std::free(order);
  return first;
}

int iChainCopy(const void* first, void** target, int32_t size) {
  if (!first || !target) return 0;
  void* copies = nullptr;
  void* last = nullptr;
  int count = 0;
  size_t bytes = size > static_cast<int32_t>(sizeof(void*)) ? size_t(size) : sizeof(void*);
  for (const void* walk = first; walk; walk = pLinkNext(walk)) {
    void* copy = std::malloc(bytes);
    if (!copy) {
      vChainFree(&copies);
      return -1;
    }
    std::memcpy(copy, walk, bytes);
    vLinkSetNext(copy, nullptr);
    if (last)
      vLinkSetNext(last, copy);
    else
      copies = copy;
    last = copy;
    count++;
  }
  if (void* end = pChainLast(*target))
    vLinkSetNext(end, copies);
  else
    *target = copies;
  return count;
}

long lChainCount(const void* first) {
  long count = 0;
  for (const void* walk = first; walk; walk = pLinkNext(walk)) count++;
  return count;
}
