// Code list texts: point codes in their decimal form, separated by commas,
// each item a single code ("3.05") or an inclusive range ("1.01:1.99"). An
// item may stand in parentheses, which group the numbers of one item.
#pragma once

// Whether `code` (a PCODE) lies in the list. A null or empty list holds every
// code.
bool boCodeInList(const char* list, int code);

// Whether the numbers of the list stand in ascending order, each item on its
// own: a group opened with "(" must close within its item. An empty list is
// in order.
bool boCodeListIsAscending(const char* list);
