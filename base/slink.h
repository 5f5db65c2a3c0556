// Singly linked intrusive lists with a head.
//
// The elements are the owner's own records: their first word is the `next`
// link, and the head says how large an element is and where it comes from.
// The list functions do not know what an element holds, and none of them
// frees anything that an element points to: an owner releases its elements'
// payload first and then clears the list.
//
// With a pool in the head, elements are zeroed pool memory, and deleting one
// only adds the head's `size` to the pool's garbage. Without a pool, an
// element is a zeroed heap block and deleting it frees it. A copy of an
// element copies `size` bytes and sets the links anew, so it shares every
// pointer with its source.
#pragma once

#include <cstdint>

#include "base/chain.h"
#include "base/pool.h"

// Element header of a singly linked list.
struct SLink {
  SLink* next;
};

// The head of a list, the same for SLink and DLink lists; a plain structure
// embedded in its owner.
struct ListHead {
  void* first;   // head of the list, null if empty
  void* last;    // tail of the list, null if empty
  int32_t size;  // size of an element in bytes, links included
  Pool* pool;    // where elements come from; null means the heap
};
static_assert(sizeof(ListHead) == 32, "list heads are embedded in records of fixed size");

// An element of `size` bytes from the head's pool or the heap, zeroed; at
// least `linkBytes` are taken so that the links always fit. Null when memory
// ran out.
void* pListNewElement(const ListHead* head, int32_t size, int32_t linkBytes);
// Gives an element back: garbage of the pool, or freed on the heap.
void vListReleaseElement(ListHead* head, void* element);

// Zeroes the head and stores `size` and `pool`.
void SLinkInit(ListHead* head, int32_t size, Pool* pool);

// A new element of the head's size, a copy of `source` if that is given,
// else zeroes. With `before` null it goes to the tail, else in front of
// `before`. Null when memory ran out, with the list unchanged.
void* SLinkNewObj(ListHead* head, void* before, const void* source);

// The same with an explicit allocation size, which wins over the head's. A
// `before` that is not in the list is reported and the element goes to the
// tail.
void* SLinkNewSizeObj(ListHead* head, int32_t size, void* before, const void* source);

// As SLinkNewObj, but reports a `sizeOfSource` that differs from the head's
// size, and goes on with the head's size.
void* pSLinkNewObj(ListHead* head, void* before, const void* source, int32_t sizeOfSource);

// A new element behind `after`; with `after` null in front of the first.
void* SLinkNewObjAfter(ListHead* head, void* after, const void* source);

// Unlinks the element and releases it. An element that is not in the list
// is left as it is.
void vSLinkDeleteObj(ListHead* head, void* element);

// Releases all elements; the list is empty. A null head is ignored.
void vSLinkClear(ListHead* head);

// Makes `target` a list of the source's element size on `pool` and copies
// every element of `source` into it, in order. Returns the last new element.
void* SLinkCopy(const ListHead* source, ListHead* target, Pool* pool);

// Reverses the order of the elements.
void vSLinkReverse(ListHead* head);

// Links an existing element in front of `before`, or at the tail with
// `before` null. A `before` that is not in the list changes nothing.
void vSLinkLink(ListHead* head, void* before, void* element);

// Takes the element out of the list without releasing it.
void vSLinkUnlink(ListHead* head, void* element);

// Moves `element` in front of `before` (null: to the tail). Nothing happens
// when `element` is null or equal to `before`, or when `before` is not in
// the list.
void vSLinkMove(ListHead* head, void* element, void* before);

// The element in front of `element`; with `element` null the tail. Null if
// `element` is the first or not in the list.
void* SLinkPrev(const ListHead* head, const void* element);

// Sorts the list with `compare` (arguments are pointers to element
// pointers). Not stable.
void vSLinkSort(ListHead* head, ListCompare compare);

// Makes `element` the first, keeping the circular order. False if it is the
// first already or not in the list.
bool boSLinkRotate(ListHead* head, void* element);

// The number of elements, counted by walking. Counts DLink lists as well.
long lSLinkCount(const ListHead* head);

// The element at index `n` from 0, or null.
void* SLinkNth(const ListHead* head, long n);

// Typed views for callers whose records begin with their own `next` link.
template <typename T>
inline T* ListFirst(const ListHead* head) {
  return static_cast<T*>(head->first);
}
template <typename T>
inline T* ListLast(const ListHead* head) {
  return static_cast<T*>(head->last);
}
template <typename T>
inline T* SLinkNewObjAs(ListHead* head, T* before = nullptr, const T* source = nullptr) {
  return static_cast<T*>(SLinkNewObj(head, before, source));
}
