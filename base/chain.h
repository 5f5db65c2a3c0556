// The chain: a singly linked list without a head.
//
// The chain is the bare form of every intrusive list here. An element is a
// record whose first word is its `next` pointer; the chain is known only by a
// pointer to its first element. Elements are zeroed heap blocks.
#pragma once

#include <cstdint>
#include <cstring>

// Comparison for sorting: the arguments are pointers to element pointers, as
// qsort hands them over.
using ListCompare = int (*)(const void* a, const void* b);

// The `next` word at the start of an element. Read and written bytewise so
// that any record type that begins with a pointer can be linked.
inline void* pLinkNext(const void* element) {
  void* next;
  std::memcpy(&next, element, sizeof next);
  return next;
}
inline void vLinkSetNext(void* element, void* next) { std::memcpy(element, &next, sizeof next); }

// A zeroed heap element of `size` bytes (at least the link), linked in front
// of `before`, or at the end when `before` is null or not in the chain.
// Null when memory ran out.
void* ChainNewObj(void** head, void* before, int32_t size);

// Frees every element; the chain becomes empty.
void vChainFree(void** head);

// Unlinks `element` and frees it. An element that is not in the chain is
// left alone.
void vChainRemove(void** head, void* element);

// Takes `element` out of the chain without freeing it.
void vChainUnlink(void** head, void* element);

// Links an existing element in front of `before`, or at the end when
// `before` is null. A `before` that is not in the chain changes nothing.
void vChainLink(void** head, void* before, void* element);

// Moves `element` in front of `before` (null: to the end). Nothing happens
// when `element` is null or equal to `before`, or when `before` is not in the
// chain.
void vChainMove(void** head, void* element, void* before);

// Sorts the chain that starts at `first` and returns the new first element.
// The order of equal elements is not kept. Fewer than two elements are left
// as they are.
void* ChainSort(void* first, ListCompare compare);

// Copies every element of the chain at `first` into new heap blocks of
// `size` bytes and appends the copies to the chain at `target`. Returns the
// count; -1 when memory ran out, after freeing what was copied, with
// `target` as it was. A null `first` gives 0.
int iChainCopy(const void* first, void** target, int32_t size);

// The number of elements from `first` on.
long lChainCount(const void* first);
