// The code word of a point, the layers of a section and the points of a
// layer as lists.
#include <gtest/gtest.h>

#include <vector>

#include "road_model/sections/layer.h"
#include "road_model/sections/section.h"
#include "tests/road_model/layer_test_util.h"

namespace {

std::vector<int> LayerFileNumbers(const RmSection* section) {
  std::vector<int> numbers;
  for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
    numbers.push_back(iRmLayerIdToFile(layer->Id));
  }
  return numbers;
}

}  // namespace

TEST(PointCode, CodeAndMarkShareOneWordWithoutDisturbingEachOther) {
  RmPoint point{};
  vRmPointSetMark(&point, 2);
  vRmPointSetPcode(&point, -1);
  EXPECT_EQ(point.Code, 0x02FFFFFFu);
  EXPECT_EQ(iRmPointGetPcode(&point), -1);
  EXPECT_EQ(iRmPointGetMark(&point), 2);

  // The bits above the mark survive every write of code or mark.
  point.Code |= 0xFC000000u;
  vRmPointSetPcode(&point, 30105);
  EXPECT_EQ(point.Code, 0xFE007599u);
  vRmPointSetMark(&point, 1);
  EXPECT_EQ(iRmPointGetPcode(&point), 30105);
  EXPECT_EQ(point.Code >> 24, 0xFDu);

  // The ends of the 24-bit range, and the sentinel.
  for (int code : {8388607, -8388608, -99999}) {
    vRmPointSetPcode(&point, code);
    EXPECT_EQ(iRmPointGetPcode(&point), code);
    EXPECT_EQ(iRmPointGetMark(&point), 1) << code;
  }
}

TEST(SectionLayers, LayersTakeTheirSortedPlaceAndDuplicatesGoBehind) {
  SectionPtr section(RmSectionCreateFree());
  RmLayer* second = RmLayerAdd(section.get(), RmLayerIdMake(2, 5));
  RmLayerAdd(section.get(), RmLayerIdMake(1, 3));
  RmLayerAdd(section.get(), RmLayerIdMake(2, 1));
  RmLayerAdd(section.get(), RmLayerIdMake(4, 0));
  RmLayer* user = RmLayerAdd(section.get(), RmLayerIdMake(1, 100));
  RmLayer* duplicate = RmLayerAdd(section.get(), RmLayerIdMake(2, 5));
  EXPECT_EQ(LayerFileNumbers(section.get()), (std::vector<int>{31, 1001, 12, 52, 52, 4}));
  EXPECT_EQ(second->Next, duplicate);
  EXPECT_EQ(RmLayerFind(section.get(), RmLayerIdMake(2, 5)), second);
  EXPECT_EQ(RmLayerFind(section.get(), RmLayerIdMake(2, 6)), nullptr);
  EXPECT_TRUE(boRmSectionHasLayerType(section.get(), 4));
  EXPECT_FALSE(boRmSectionHasLayerType(section.get(), 3));

  // Placing by position does not look at the order; sorting puts it right.
  RmLayerAddAt(section.get(), RmSectionLayersGetFirst(section.get()), RmLayerIdMake(3, 7));
  vRmSectionSortLayers(section.get());
  EXPECT_EQ(LayerFileNumbers(section.get()), (std::vector<int>{31, 1001, 12, 52, 52, 73, 4}));

  // The theoretical layers below 100 go, the user layer stays.
  vRmSectionRemoveTheoreticalLayers(section.get());
  EXPECT_EQ(RmSectionLayersGetFirst(section.get()), user);
  EXPECT_EQ(iRmSectionLayersGetCount(section.get()), 6);
}

TEST(SectionLayers, CopyBetweenTheoreticalAndPhysicalKindsDropsTheCodes) {
  LayerPtr physical = MakeLayer(RmLayerIdMake(2, 1), {{-1, 10, -30105, 2.5, 2}, {1, 11, 30105}});
  vRmLayerSetBlockName(physical.get(), "Kum");
  LayerPtr theoretical = MakeLayer(RmLayerIdMake(1, 0), {{0, 0, 1}});

  vRmLayerCopyKeepId(theoretical.get(), physical.get());
  EXPECT_EQ(theoretical->Id.Type, 1u);
  EXPECT_EQ(Codes(theoretical.get()), (std::vector<int>{0, 0}));
  EXPECT_EQ(iRmPointGetMark(RmPointsGetFirst(theoretical.get())), 2);
  EXPECT_EQ(RmPointsGetFirst(theoretical.get())->Radius, 2.5f);
  EXPECT_STREQ(sRmLayerGetBlockName(theoretical.get()), "Kum");

  // The plain copy takes the id too; within one kind the codes stay.
  LayerPtr second = MakeLayer(RmLayerIdMake(4, 2), {});
  vRmLayerCopy(second.get(), physical.get());
  EXPECT_EQ(second->Id.Type, 2u);
  EXPECT_EQ(Codes(second.get()), (std::vector<int>{-30105, 30105}));
  // Type 8 counts as theoretical, type 9 as neither.
  LayerPtr eight = MakeLayer(RmLayerIdMake(8, 0), {});
  vRmLayerCopyKeepId(eight.get(), physical.get());
  EXPECT_EQ(Codes(eight.get()), (std::vector<int>{0, 0}));
  LayerPtr advanced = MakeLayer(RmLayerIdMake(9, 0), {});
  vRmLayerCopyKeepId(advanced.get(), physical.get());
  EXPECT_EQ(Codes(advanced.get()), (std::vector<int>{-30105, 30105}));
}

TEST(SectionLayers, BuildInfoIsMadeByTheFirstSetterWithItsDefaults) {
  LayerPtr layer = MakeLayer(RmLayerIdMake(1, 0), {});
  EXPECT_EQ(iRmLayerGetBuildMethod(layer.get()), 0);
  vRmLayerSetInterMethod(layer.get(), 3);
  EXPECT_EQ(iRmLayerGetBuildMethod(layer.get()), 1);
  // A copy from a layer without build info takes it away.
  LayerPtr plain = MakeLayer(RmLayerIdMake(1, 0), {});
  vRmLayerCopy(layer.get(), plain.get());
  EXPECT_EQ(layer->BuildInfo, nullptr);
}

TEST(LayerPoints, PointsAreAddedInPlaceAndWalkedOutwardPerSide) {
  LayerPtr layer = MakeLayer(RmLayerIdMake(2, 1), {{0, 10}, {2, 10}});
  RmPointAddSorted(layer.get(), 1, 11, 0);
  RmPointAddSorted(layer.get(), 2, 12, 0);  // in front of the equal offset
  RmPointAddAtEnd(layer.get(), 1, -1, 9, 0);
  EXPECT_EQ(Offsets(layer.get()), (std::vector<double>{-1, 0, 1, 2, 2}));
  EXPECT_EQ(Heights(layer.get()), (std::vector<double>{9, 10, 11, 12, 10}));

  // On side 2 a null start is the last point; on side 1 it fails.
  EXPECT_EQ(RmPointAddSlope(layer.get(), 1, nullptr, 3, 0.5, 0), nullptr);
  RmPoint* right = RmPointAddSlope(layer.get(), 2, nullptr, 3, -0.5, 20100);
  EXPECT_EQ(right, RmPointsGetLast(layer.get()));
  EXPECT_EQ(right->X, 5.0f);
  EXPECT_EQ(right->Z, 8.5f);
  RmPoint* left = RmPointAddSlope(layer.get(), 1, RmPointsGetFirst(layer.get()), 2, 0.25, 0);
  EXPECT_EQ(left, RmPointsGetFirst(layer.get()));
  EXPECT_EQ(left->X, -3.0f);
  EXPECT_EQ(left->Z, 9.5f);

  RmPoint* second = At(layer.get(), 1);
  EXPECT_EQ(RmPointGetOutward(second, 1), left);
  EXPECT_EQ(RmPointGetInward(second, 1), second->Next);
  EXPECT_EQ(RmPointGetOutward(second, 2), second->Next);
  EXPECT_EQ(RmPointGetOutward(second, 3), nullptr);

  vRmLayerReversePoints(layer.get());
  EXPECT_EQ(Offsets(layer.get()), (std::vector<double>{5, 2, 2, 1, 0, -1, -3}));
  std::vector<double> backwards;
  for (RmPoint* point = RmPointsGetLast(layer.get()); point; point = point->Prev) {
    backwards.push_back(point->X);
  }
  EXPECT_EQ(backwards, (std::vector<double>{-3, -1, 0, 1, 2, 2, 5}));
  vRmPointMoveBefore(layer.get(), RmPointsGetLast(layer.get()), RmPointsGetFirst(layer.get()));
  vRmPointRemove(layer.get(), At(layer.get(), 1));
  EXPECT_EQ(Offsets(layer.get()), (std::vector<double>{-3, 2, 2, 1, 0, -1}));
}
