// Lists of records handed out as vectors of pointers to their interfaces.
#pragma once

#include <vector>

namespace NpDesignModel {

// A fresh vector of pointers to the records of `records`, in their order.
template <class Interface, class Record>
std::vector<const Interface*> PointersTo(const std::vector<Record>& records) {
  std::vector<const Interface*> pointers;
  pointers.reserve(records.size());
  for (const Record& record : records) pointers.push_back(&record);
  return pointers;
}

}  // namespace NpDesignModel
