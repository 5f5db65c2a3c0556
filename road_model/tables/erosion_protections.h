// Erosion protections (EROSIONPROTECTIONS): chainage ranges on the left and
// on the right that name a protection package, and the packages, each with
// its height table.
//
// Ranges and packages are kept in the order they were added; a range names
// its package by number. A pointer that an Add gives stays good until the
// next Add to the same array.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct RmErosionRange {
  double FromChain;
  double ToChain;
  int32_t Package;  // the number of a package
};

struct RmErosionHeightEntry {
  double Values[4];
};

struct RmErosionPackage {
  int32_t Number;
  std::string Name;
  bool HeightTableRestriction;
  double HeightTableRestrictionValue;  // the real that goes with the flag
  double A;
  double B;
  double LowSoilCut[2];
  std::vector<RmErosionHeightEntry> HeightEntries;
};

struct RmErosionProtections {
  std::vector<RmErosionRange> Left;
  std::vector<RmErosionRange> Right;
  std::vector<RmErosionPackage> Packages;
};

// An empty table; null when memory ran out.
RmErosionProtections* RmErosionProtectionsCreate();
// Deletes the table and nulls the pointer. Null is accepted.
void vRmErosionProtectionsDelete(RmErosionProtections** table);
// Makes `to` a deep copy of `from`.
void vRmErosionProtectionsCopy(RmErosionProtections* to, const RmErosionProtections* from);
// True for null and for a table without ranges and packages.
bool boRmErosionProtectionsIsEmpty(const RmErosionProtections* table);
// The table is not empty.
bool boRmErosionProtectionsHasRows(const RmErosionProtections* table);

// ---- Ranges ----

// The ranges of a side (kRmSideLeft or kRmSideRight); null for any other
// side or a null table.
std::vector<RmErosionRange>* RmErosionRanges(RmErosionProtections* table, int side);
const std::vector<RmErosionRange>* RmErosionRanges(const RmErosionProtections* table, int side);
// Appends a range to a side; null for a side that is neither.
RmErosionRange* RmErosionRangeAdd(RmErosionProtections* table, int side, double from, double to,
                                  int32_t package);
// Whether the side has a range at `index`.
bool boRmErosionRangeHasRow(const RmErosionProtections* table, int side, int index);

// ---- Packages ----

// Appends a package of `number` with the name and all values empty.
RmErosionPackage* RmErosionPackageAdd(RmErosionProtections* table, int32_t number);
// The index of the first package of `number`, -1 when there is none.
int iRmErosionPackageFindIndex(const RmErosionProtections* table, int32_t number);
// Whether there is a package at `index`.
bool boRmErosionPackageHasRow(const RmErosionProtections* table, int index);
// Appends a row of the height table.
RmErosionHeightEntry* RmErosionHeightEntryAdd(RmErosionPackage* package, double a, double b,
                                              double c, double d);
