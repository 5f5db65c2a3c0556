#include "road_model/tables/erosion_protections.h"

#include <gtest/gtest.h>

#include "road_model/codes/pcode.h"

TEST(ErosionProtections, AnyRangeOrPackageMakesTheTableNotEmptyAndRowsAreTestedByIndex) {
  RmErosionProtections* table = RmErosionProtectionsCreate();
  EXPECT_TRUE(boRmErosionProtectionsIsEmpty(table));
  EXPECT_TRUE(boRmErosionProtectionsIsEmpty(nullptr));
  EXPECT_FALSE(boRmErosionRangeHasRow(table, kRmSideLeft, 0));
  EXPECT_EQ(RmErosionRangeAdd(table, 3, 0.0, 1.0, 1), nullptr);
  RmErosionRangeAdd(table, kRmSideRight, 10.0, 20.0, 4);
  EXPECT_FALSE(boRmErosionProtectionsIsEmpty(table));
  EXPECT_TRUE(boRmErosionRangeHasRow(table, kRmSideRight, 0));
  EXPECT_FALSE(boRmErosionRangeHasRow(table, kRmSideRight, 1));
  EXPECT_FALSE(boRmErosionRangeHasRow(table, kRmSideRight, -1));
  EXPECT_FALSE(boRmErosionRangeHasRow(table, kRmSideLeft, 0));

  RmErosionProtections* other = RmErosionProtectionsCreate();
  RmErosionPackage* package = RmErosionPackageAdd(other, 4);
  package->Name = "Stein";
  RmErosionHeightEntryAdd(package, 1.0, 2.0, 3.0, 4.0);
  EXPECT_TRUE(boRmErosionProtectionsHasRows(other));
  EXPECT_EQ(iRmErosionPackageFindIndex(other, 4), 0);
  EXPECT_EQ(iRmErosionPackageFindIndex(other, 5), -1);

  vRmErosionProtectionsCopy(table, other);
  other->Packages[0].HeightEntries.clear();
  vRmErosionProtectionsDelete(&other);
  EXPECT_EQ(other, nullptr);
  EXPECT_TRUE(table->Right.empty());
  ASSERT_TRUE(boRmErosionPackageHasRow(table, 0));
  EXPECT_FALSE(boRmErosionPackageHasRow(table, 1));
  EXPECT_EQ(table->Packages[0].Name, "Stein");
  EXPECT_EQ(table->Packages[0].HeightEntries.size(), 1u);
  vRmErosionProtectionsDelete(&table);
  vRmErosionProtectionsDelete(&table);
}
