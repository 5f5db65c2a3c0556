// Doubly linked intrusive lists with a head.
//
// The same head and the same ownership rules as the SLink lists (see
// base/slink.h); an element begins with `next` and then `prev`. Where the
// SLink functions search, these trust the caller: an element or a `before`
// that is passed in is taken to be in the list.
#pragma once

#include <cstdint>
#include <cstring>

#include "base/slink.h"

// Element header of a doubly linked list.
struct DLink {
  DLink* next;
  DLink* prev;
};

// The `prev` word, second in an element.
inline void* pLinkPrev(const void* element) {
  void* prev;
  std::memcpy(&prev, static_cast<const char*>(element) + sizeof(void*), sizeof prev);
  return prev;
}
inline void vLinkSetPrev(void* element, void* prev) {
  std::memcpy(static_cast<char*>(element) + sizeof(void*), &prev, sizeof prev);
}

// Zeroes the head and stores `size` and `pool`.
void DLinkInit(ListHead* head, int32_t size, Pool* pool);

// A new element of the head's size, a copy of `source` if given, else
// zeroes; at the tail with `before` null, else in front of `before`. Null
// when memory ran out, with the list unchanged.
void* DLinkNewObj(ListHead* head, void* before, const void* source);

// As DLinkNewObj, but reports a `sizeOfSource` that differs from the head's
// size, and goes on with the head's size.
void* pDLinkNewObj(ListHead* head, void* before, const void* source, int32_t sizeOfSource);

// Unlinks the element and releases it.
void vDLinkDeleteObj(ListHead* head, void* element);

// Releases all elements; the list is empty. A null head is ignored.
void vDLinkClear(ListHead* head);

// Makes `target` a list of the source's element size on `pool` and copies
// every element of `source` into it, in order. Returns the last new element.
void* DLinkCopy(const ListHead* source, ListHead* target, Pool* pool);

// Links an existing element in front of `before`, or at the tail with
// `before` null.
void vDLinkLink(ListHead* head, void* before, void* element);

// Takes the element out of the list without releasing it.
void vDLinkUnlink(ListHead* head, void* element);

// Moves `element` in front of `before` (null: to the tail). Nothing happens
// when `element` is null or equal to `before`.
void vDLinkMove(ListHead* head, void* element, void* before);

// Sorts the list with `compare` (arguments are pointers to element
// pointers) and repairs every `prev`. Not stable.
void vDLinkSort(ListHead* head, ListCompare compare);

template <typename T>
inline T* DLinkNewObjAs(ListHead* head, T* before = nullptr, const T* source = nullptr) {
  return static_cast<T*>(DLinkNewObj(head, before, source));
}
