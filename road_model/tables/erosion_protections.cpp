#include "road_model/tables/erosion_protections.h"

#include <new>

#include "road_model/codes/pcode.h"

namespace {

template <typename T>
bool boHasIndex(const std::vector<T>* rows, int index) {
  return rows && index >= 0 && static_cast<size_t>(index) < rows->size();
}

}  // namespace

RmErosionProtections* RmErosionProtectionsCreate() {
  return new (std::nothrow) RmErosionProtections();
}

void vRmErosionProtectionsDelete(RmErosionProtections** table) {
  if (!table) return;
  delete *table;
  *table = nullptr;
}

void vRmErosionProtectionsCopy(RmErosionProtections* to, const RmErosionProtections* from) {
  if (to && from && to != from) *to = *from;
}

bool boRmErosionProtectionsIsEmpty(const RmErosionProtections* table) {
  return !table || (table->Left.empty() && table->Right.empty() && table->Packages.empty());
}

bool boRmErosionProtectionsHasRows(const RmErosionProtections* table) {
  return !boRmErosionProtectionsIsEmpty(table);
}

std::vector<RmErosionRange>* RmErosionRanges(RmErosionProtections* table, int side) {
  if (!table) return nullptr;
  if (side == kRmSideLeft) return &table->Left;
  if (side == kRmSideRight) return &table->Right;
  return nullptr;
}

const std::vector<RmErosionRange>* RmErosionRanges(const RmErosionProtections* table, int side) {
  return RmErosionRanges(const_cast<RmErosionProtections*>(table), side);
}

RmErosionRange* RmErosionRangeAdd(RmErosionProtections* table, int side, double from, double to,
                                  int32_t package) {
  std::vector<RmErosionRange>* ranges = RmErosionRanges(table, side);
  if (!ranges) return nullptr;
  return &ranges->emplace_back(RmErosionRange{from, to, package});
}

bool boRmErosionRangeHasRow(const RmErosionProtections* table, int side, int index) {
  return boHasIndex(RmErosionRanges(table, side), index);
}

RmErosionPackage* RmErosionPackageAdd(RmErosionProtections* table, int32_t number) {
  if (!table) return nullptr;
  RmErosionPackage& package = table->Packages.emplace_back();
  package.Number = number;
  return &package;
}

int iRmErosionPackageFindIndex(const RmErosionProtections* table, int32_t number) {
  if (!table) return -1;
  for (size_t index = 0; index < table->Packages.size(); ++index) {
    if (table->Packages[index].Number == number) return static_cast<int>(index);
  }
  return -1;
}

bool boRmErosionPackageHasRow(const RmErosionProtections* table, int index) {
  return table && boHasIndex(&table->Packages, index);
}

RmErosionHeightEntry* RmErosionHeightEntryAdd(RmErosionPackage* package, double a, double b,
                                              double c, double d) {
  if (!package) return nullptr;
  return &package->HeightEntries.emplace_back(RmErosionHeightEntry{{a, b, c, d}});
}
