#include "road_model/tables/vips_special_gradings.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "road_model/codes/pcode.h"

namespace {

struct GradingsDeleter {
  void operator()(RmVipsSpecialGradings* table) const { vRmVipsSpecialGradingsDelete(&table); }
};
using GradingsPtr = std::unique_ptr<RmVipsSpecialGradings, GradingsDeleter>;

std::string sNumbers(const RmVipsSpecialGradings* table) {
  std::string text;
  for (const RmVipsSpecialGrading* entry = RmVipsSpecialGradingsGetFirst(table); entry;
       entry = RmVipsSpecialGradingGetNext(entry)) {
    text += std::to_string(entry->Id.Type) + "/" + std::to_string(entry->Id.Number) + " ";
  }
  return text;
}

}  // namespace

TEST(VipsSpecialGradings, EntriesAscendByNumberAndOnlyNumberTwoCarriesThicknessCodes) {
  GradingsPtr table(RmVipsSpecialGradingsCreate());
  RmVipsSpecialGradingAdd(table.get(), RmLayerIdMake(1, 10));
  RmVipsSpecialGrading* two = RmVipsSpecialGradingAdd(table.get(), RmLayerIdMake(1, 2));
  RmVipsSpecialGrading* other = RmVipsSpecialGradingAdd(table.get(), RmLayerIdMake(2, 2));
  RmVipsSpecialGrading* five = RmVipsSpecialGradingAdd(table.get(), RmLayerIdMake(1, 5));
  EXPECT_EQ(sNumbers(table.get()), "1/2 2/2 1/5 1/10 ");
  EXPECT_EQ(RmVipsSpecialGradingFind(table.get(), RmLayerIdMake(2, 2)), other);
  EXPECT_EQ(RmVipsSpecialGradingFind(table.get(), RmLayerIdMake(2, 5)), nullptr);

  // The defaults are the codes of 3.9999 on each side.
  EXPECT_EQ(two->MinThickLeftPcode, iRmPcodeFromDoubleSide(3.9999, kRmSideLeft));
  EXPECT_EQ(two->MinThickRightPcode, iRmPcodeFromDoubleSide(3.9999, kRmSideRight));
  EXPECT_EQ(two->MinThickLeftPcode, -39999);
  EXPECT_EQ(five->MinThickLeftPcode, -99999);
  EXPECT_EQ(five->MinThickRightPcode, -99999);

  // Kept in the file: number 2 only, valid, and not the default.
  EXPECT_FALSE(boRmVipsMinThickLeftKept(two));
  EXPECT_FALSE(boRmVipsMinThickRightKept(two));
  two->MinThickLeftPcode = -29999;
  EXPECT_TRUE(boRmVipsMinThickLeftKept(two));
  EXPECT_FALSE(boRmVipsMinThickRightKept(two));
  two->MinThickLeftPcode = -99999;
  two->MinThickRightPcode = 0;
  EXPECT_FALSE(boRmVipsMinThickLeftKept(two));
  EXPECT_FALSE(boRmVipsMinThickRightKept(two));
  five->MinThickLeftPcode = -29999;
  EXPECT_FALSE(boRmVipsMinThickLeftKept(five));

  vRmVipsSpecialGradingRemove(table.get(), other);
  EXPECT_EQ(sNumbers(table.get()), "1/2 1/5 1/10 ");
}

TEST(VipsSpecialGradings, ANewRowHasItsMarksAndACopyOwnsSurfacesAndRows) {
  GradingsPtr table(RmVipsSpecialGradingsCreate());
  EXPECT_FALSE(boRmVipsSpecialGradingsHasRows(table.get()));
  RmVipsSpecialGrading* entry = RmVipsSpecialGradingAdd(table.get(), RmLayerIdMake(1, 3));
  EXPECT_TRUE(boRmVipsSpecialGradingsHasRows(table.get()));
  EXPECT_EQ(RmVipsSpecialGradingSide(entry, 3), nullptr);
  RmVipsGradingSurface* surface =
      RmVipsGradingSurfaceAdd(RmVipsSpecialGradingSide(entry, kRmSideRight));
  surface->Surface = 7;
  RmVipsGradingRow* row = RmVipsGradingRowAdd(surface);
  EXPECT_EQ(row->Chain, -99999.0);
  EXPECT_EQ(row->Width, -99999.0);
  EXPECT_EQ(row->WidthPcode, -99999);
  EXPECT_EQ(row->AlignmentId, -99999);
  EXPECT_EQ(row->WidthMethod, -1);
  EXPECT_EQ(row->WidthOffset, -99999.0);
  EXPECT_EQ(row->SlopeMethod, -1);
  EXPECT_EQ(row->BeamSlope, -99999.0);
  row->Chain = 12.5;

  GradingsPtr copy(RmVipsSpecialGradingsCreate());
  vRmVipsSpecialGradingsCopy(copy.get(), table.get());
  vRmVipsSpecialGradingRemove(table.get(), entry);
  const RmVipsSpecialGrading* copied = RmVipsSpecialGradingsGetFirst(copy.get());
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(RmVipsGradingSurfacesGetFirst(&copied->Left), nullptr);
  const RmVipsGradingSurface* copiedSurface = RmVipsGradingSurfacesGetFirst(&copied->Right);
  ASSERT_NE(copiedSurface, nullptr);
  EXPECT_EQ(copiedSurface->Surface, 7);
  ASSERT_NE(RmVipsGradingRowsGetFirst(copiedSurface), nullptr);
  EXPECT_EQ(RmVipsGradingRowsGetFirst(copiedSurface)->Chain, 12.5);
}
