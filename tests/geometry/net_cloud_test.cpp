// Triangle nets, point clouds, points and texts.
#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>

#include "geometry/cloud.h"
#include "geometry/net.h"
#include "geometry/point_text.h"
#include "tests/geometry/geometry_test_util.h"

namespace {

std::array<int32_t, 3> Neighbours(const TrNet* net, int triangle) {
  TrTriangle found{};
  EXPECT_TRUE(boTrNetGetTriangle(net, triangle, &found)) << triangle;
  return {found.iNeighbour[0], found.iNeighbour[1], found.iNeighbour[2]};
}

}  // namespace

TEST(Net, NeighboursComeFromSharedEdges) {
  OwnedNet net(TrNetCreate());
  vTrNetExpandPointArray(net, 4);
  vTrNetSetP(net, 0, 0.0, 0.0, 1.0);
  vTrNetSetP(net, 1, 1.0, 0.0, 2.0);
  vTrNetSetP(net, 2, 1.0, 1.0, 3.0);
  vTrNetSetP(net, 3, 0.0, 1.0, 4.0);
  vTrNetSetP(net, 5, 2.0, 2.0, 5.0);  // beyond the count: the net grows
  EXPECT_EQ(iTrNetGetPointCount(net), 6);
  vTrNetExpandTringleArray(net, 3);
  vTrNetSetTriangle(net, 0, 0, 1, 2);
  vTrNetSetTriangle(net, 1, 0, 2, 3);
  vTrNetSetTriangle(net, 2, 2, 5, 3);
  vTrNetCalcNeighbours(net);
  // Triangle 0: across edge 0-1 nothing, across 1-2 nothing, across 2-0
  // triangle 1.
  EXPECT_EQ(Neighbours(net, 0), (std::array<int32_t, 3>{-1, -1, 1}));
  EXPECT_EQ(Neighbours(net, 1), (std::array<int32_t, 3>{0, 2, -1}));
  EXPECT_EQ(Neighbours(net, 2)[2], 1);

  EXPECT_FALSE(boTrNetSetTriangleNeighbours(net, 3, 0, 0, 0));
  TrTriangle triangle;
  EXPECT_FALSE(boTrNetGetTriangle(net, -1, &triangle));
}

TEST(Net, AttributesOffsetsAndTheCloudItBecomes) {
  OwnedNet net(TrNetCreate());
  // The names are those of the files, in capitals only.
  EXPECT_EQ(sTrNetGetPointAttribNameFromType(2), nullptr);
  EXPECT_EQ(iTrNetGetPointAttribTypeFromName("classification"), -1);
  EXPECT_EQ(iTrNetGetPointAttribTypeFromName(nullptr), -1);

  int size = 0;
  double offsetX = 0.0, offsetY = 0.0;
  EXPECT_FALSE(boTrNetGetBestCompressedSizeOffsetByExtent(net, &size, &offsetX, &offsetY));
  vTrNetSetP(net, 0, 6543210.75, 598765.25, 10.0);
  vTrNetSetP(net, 1, 6543300.5, 598700.0, 11.0);
  ASSERT_TRUE(boTrNetGetBestCompressedSizeOffsetByExtent(net, &size, &offsetX, &offsetY));
  EXPECT_EQ(size, 4);
  EXPECT_EQ(offsetX, 6543210.0);
  EXPECT_EQ(offsetY, 598700.0);
  // Too wide for 32-bit tenths of millimetres.
  vTrNetSetP(net, 2, 6543210.0 + 300000.0, 598700.0, 0.0);
  EXPECT_FALSE(boTrNetGetBestCompressedSizeOffsetByExtent(net, &size, &offsetX, &offsetY));

  // Attribute values need the attribute in use and an existing point; points
  // added later get the value 0.
  EXPECT_FALSE(boTrNetSetPointAttribInt(net, 1, 0, 5));
  vTrNetSetUsePointAttrib(net, 1, true);
  EXPECT_FALSE(boTrNetGetUsePointAttrib(net, 0));
  EXPECT_TRUE(boTrNetSetPointAttribInt(net, 1, 2, 17));
  EXPECT_FALSE(boTrNetSetPointAttribInt(net, 1, 3, 17));
  vTrNetSetP(net, 3, 1.0, 2.0, 3.0);
  EXPECT_EQ(iTrNetGetPointAttribInt(net, 1, 3), 0);

  // The cloud takes over points, attributes, offset, id and GUID; the net is
  // left empty.
  vTrNetSetCompressedSizeAndOffset(net, 4, 6543210.0, 598700.0);
  vTrNetSetGuid(net, "{net}");
  vTrNetSetTriangle(net, 0, 0, 1, 2);
  OwnedCloud cloud(PtCloudCreate());
  vPtCloudSetID(cloud, 12);
  vTrNetConvertToPointCloud(net, cloud);
  EXPECT_EQ(iPtCloudGetPointCount(cloud), 4);
  EXPECT_EQ(iTrNetGetPointCount(net), 0);
  EXPECT_EQ(iTrNetGetTriangleCount(net), 0);
  EXPECT_EQ(lPtCloudGetID(cloud), 12);
  EXPECT_STREQ(sPtCloudGetGuid(cloud), "{net}");
  EXPECT_TRUE(boPtCloudGetUsePointAttrib(cloud, 1));
  EXPECT_EQ(iPtCloudGetPointAttribInt(cloud, 1, 2), 17);
  ViPoint3d point;
  ASSERT_TRUE(boPtCloudGetP(cloud, 1, &point));
  EXPECT_EQ(point.x, 6543300.5);
  EXPECT_EQ(point.z, 11.0);
  ASSERT_TRUE(boPtCloudGetCompressedSizeAndOffset(cloud, &size, &offsetX, &offsetY));
  EXPECT_EQ(offsetY, 598700.0);
  ViExtent extent;
  vPtCloudGetExtent(cloud, &extent);
  EXPECT_EQ(extent.dMinX, 1.0);
  EXPECT_EQ(extent.dMaxX, 6843210.0);
}

TEST(PointText, LabelsAndGuidsAreCutToTheirSize) {
  OwnedText text(TeTextCreate());
  const std::string longLabel(600, 'L');
  vTeTextSetLabel(text, longLabel.c_str());
  EXPECT_EQ(strlen(sTeTextGetLabel(text)), static_cast<size_t>(kTeLabelMax));
  vTeTextSetLabel(text, nullptr);
  EXPECT_STREQ(sTeTextGetLabel(text), "");
  vTeTextSetGuid(text, sTeTextGetGuid(text));  // its own text
  EXPECT_STREQ(sTeTextGetGuid(text), "");
  EXPECT_STREQ(sTeTextGetLabel(nullptr), "");

  OwnedPoint point(PoPointCreate());
  vPoPointSetGuid(point, "0123456789012345678901234567890123456789012345678");
  EXPECT_EQ(strlen(sPoPointGetGuid(point)), static_cast<size_t>(kViGuidLength));
}
