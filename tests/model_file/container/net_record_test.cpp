// Net and cloud records: exact bytes with offsets, points, triangles and
// attribute blocks, reading back, the older point and triangle forms, and
// counts and indexes that a damaged file gets wrong.
#include <gtest/gtest.h>

#include <string>

#include "geometry/cloud.h"
#include "geometry/net.h"
#include "model_file/container/asf_objects.h"
#include "tests/model_file/container/record_test_util.h"

namespace {

// A cloud of `count` points along x, classified by their index.
PtCloud* MakeCloud(long id, int count) {
  PtCloud* cloud = PtCloudCreate();
  vPtCloudSetID(cloud, id);
  for (int i = 0; i < count; ++i) vPtCloudSetP(cloud, i, i, 0, 0);
  if (count > 0) vPtCloudSetUsePointAttrib(cloud, kViPointAttribClass, true);
  for (int i = 0; i < count; ++i) boPtCloudSetPointAttribInt(cloud, kViPointAttribClass, i, i);
  return cloud;
}

ViPoint3d PointOf(const TrNet* net, int index) {
  ViPoint3d point{};
  EXPECT_TRUE(boTrNetGetP(net, index, &point)) << index;
  return point;
}

TrTriangle TriangleOf(const TrNet* net, int index) {
  TrTriangle triangle{};
  EXPECT_TRUE(boTrNetGetTriangle(net, index, &triangle)) << index;
  return triangle;
}

}  // namespace

TEST(AsfNetRecord, NetsAreWrittenAgainstTheirOffsetAndReadBack) {
  OwnedNet net(TrNetCreate());
  vTrNetSetID(net, 31);
  vTrNetSetGuid(net, "{N}");
  vTrNetSetP(net, 0, 1000.5, 2000.25, 10);
  vTrNetSetP(net, 1, 1010, 2000, 11.5);
  vTrNetSetP(net, 2, 1005, 2010.12346, 12);
  vTrNetSetTriangle(net, 0, 0, 1, 2);
  vTrNetSetUsePointAttrib(net, kViPointAttribIntensity, true);
  for (int i = 0; i < 3; ++i) boTrNetSetPointAttribInt(net, kViPointAttribIntensity, i, 5 + i);
  std::string bytes = WrittenRecords(kAsfTypeNet, boAsfNetWrite, {net});
  EXPECT_EQ(BodyOf(bytes),
            ":N 31\r\n_EXTENT 1000 2000 1010 2011 \r\nGUID {N}\r\n_#POINTS 3\r\n"
            "_#TRIANGLES 1\r\n_OFFSET_NE 1000.000000 2000.000000\r\n"
            "/POINTS2\r\n0.5 0.25 10\r\n10 0 11.5\r\n5 10.1235 12\r\n"
            "/TRIANGLES2\r\n0 1 2\r\n"
            "/PATTRIBS INTENSITY\r\n5 6 7\r\n");

  RecordReader reader(bytes, kAsfTypeNet);
  long id = 0;
  ASSERT_EQ(reader.Next(&id), kAsfTypeNet);
  EXPECT_EQ(id, 31);
  EXPECT_FALSE(boAsfCloudRead(reader.file, reader.section, OwnedCloud(PtCloudCreate())));
  OwnedNet copy(TrNetCreate());
  ASSERT_TRUE(boAsfNetRead(reader.file, reader.section, copy));
  EXPECT_STREQ(sTrNetGetGuid(copy), "{N}");
  ASSERT_EQ(iTrNetGetPointCount(copy), 3);
  for (int i = 0; i < 3; ++i) {
    const ViPoint3d want = PointOf(net, i);
    const ViPoint3d got = PointOf(copy, i);
    EXPECT_TRUE(Near(got, want.x, want.y, 0.00005)) << i;
    EXPECT_NEAR(got.z, want.z, 0.00005) << i;
    EXPECT_EQ(iTrNetGetPointAttribInt(copy, kViPointAttribIntensity, i), 5 + i);
  }
  EXPECT_FALSE(boTrNetGetUsePointAttrib(copy, kViPointAttribClass));
  int size = 0;
  double offsetX = 0;
  double offsetY = 0;
  ASSERT_TRUE(boTrNetGetCompressedSizeAndOffset(copy, &size, &offsetX, &offsetY));
  EXPECT_EQ(offsetX, 1000);
  EXPECT_EQ(offsetY, 2000);
  ASSERT_EQ(iTrNetGetTriangleCount(copy), 1);
  EXPECT_EQ(TriangleOf(copy, 0).iPoint[2], 2);
  EXPECT_EQ(TriangleOf(copy, 0).iNeighbour[0], -1);
  EXPECT_EQ(reader.Next(&id), -1);
}

TEST(AsfNetRecord, CloudsFillAttributeLinesToSixteenAndMayHaveNoPoints) {
  const int counts[] = {16, 0, 17};
  OwnedCloud full(MakeCloud(41, 16)), empty(MakeCloud(42, 0)), more(MakeCloud(43, 17));
  FieldValues fields{{"a"}};
  std::string bytes =
      WrittenRecords(kAsfTypeCloud, boAsfCloudWrite, {full, empty, more}, {"F"}, &fields);
  std::string body = BodyOf(bytes);
  EXPECT_EQ(body.substr(0, body.find(":C 43")),
            ":C 41\r\n_EXTENT 0 0 15 0 \r\n_FIELDVALUES a;\r\nGUID \r\n_#POINTS 16\r\n"
            "_OFFSET_NE 0.000000 0.000000\r\n/POINTS2\r\n"
            "0 0 0\r\n1 0 0\r\n2 0 0\r\n3 0 0\r\n4 0 0\r\n5 0 0\r\n6 0 0\r\n7 0 0\r\n"
            "8 0 0\r\n9 0 0\r\n10 0 0\r\n11 0 0\r\n12 0 0\r\n13 0 0\r\n14 0 0\r\n15 0 0\r\n"
            "/PATTRIBS CLASSIFICATION\r\n0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15\r\n"
            ":C 42\r\n_EXTENT 99999999 99999999 -99999999 -99999999 \r\n_FIELDVALUES a;\r\n"
            "GUID \r\n_#POINTS 0\r\n_OFFSET_NE 0.000000 0.000000\r\n");
  EXPECT_TRUE(body.ends_with(
      "/PATTRIBS CLASSIFICATION\r\n0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15\r\n16\r\n"));

  RecordReader reader(bytes, kAsfTypeCloud);
  for (int count : counts) {
    ASSERT_EQ(reader.Next(), kAsfTypeCloud) << count;
    EXPECT_EQ(ReadValues(reader.file, reader.section), std::vector<std::string>{"a"});
    OwnedCloud copy(PtCloudCreate());
    ASSERT_TRUE(boAsfCloudRead(reader.file, reader.section, copy));
    ASSERT_EQ(iPtCloudGetPointCount(copy), count);
    EXPECT_EQ(boPtCloudGetUsePointAttrib(copy, kViPointAttribClass), count > 0);
    if (count > 0) {
      EXPECT_EQ(iPtCloudGetPointAttribInt(copy, kViPointAttribClass, count - 1), count - 1);
      ViPoint3d last{};
      EXPECT_TRUE(boPtCloudGetP(copy, count - 1, &last));
      EXPECT_EQ(last.x, count - 1);
    }
  }
  EXPECT_EQ(reader.Next(), -1);
}

TEST(AsfNetRecord, OlderPointAndTriangleFormsCarryIndexesAndNeighbours) {
  RecordReader reader(
      FileWithBody('N', "",
                   ":N 5\r\n_#POINTS 3\r\n_#TRIANGLES 2\r\n/POINTS\r\n"
                   "0: 100 200 1\r\n1 110 200 2\r\n2000000000: 1 2 3\r\n2 : 100 210 3\r\n"
                   "/TRIANGLES\r\n0: 0 1 2 ( -1 1 -1\r\n1 2 1 0\r\n/OTHER\r\nx\r\n"
                   "/PATTRIBS CLASSIFICATION\r\n1 2\r\n3 4\r\n/PATTRIBS NOISE\r\n9\r\n"),
      kAsfTypeNet);
  ASSERT_EQ(reader.Next(), kAsfTypeNet);
  OwnedNet net(TrNetCreate());
  ASSERT_TRUE(boAsfNetRead(reader.file, reader.section, net));
  // The point with an index far beyond the others is passed.
  ASSERT_EQ(iTrNetGetPointCount(net), 3);
  EXPECT_EQ(PointOf(net, 2).y, 210);
  EXPECT_EQ(PointOf(net, 2).z, 3);
  ASSERT_EQ(iTrNetGetTriangleCount(net), 2);
  EXPECT_EQ(TriangleOf(net, 0).iNeighbour[1], 1);
  // Neighbours are not worked out for the older form.
  EXPECT_EQ(TriangleOf(net, 1).iPoint[0], 2);
  EXPECT_EQ(TriangleOf(net, 1).iNeighbour[2], -1);
  EXPECT_EQ(iTrNetGetPointAttribInt(net, kViPointAttribClass, 2), 3);
  EXPECT_FALSE(boTrNetGetUsePointAttrib(net, kViPointAttribIntensity));
}

TEST(AsfNetRecord, AbsurdCountsMakeRoomOnlyForWhatCanCome) {
  std::string bytes = FileWithBody(
      'N', "",
      ":N 6\r\n_#POINTS 2000000000\r\n_#TRIANGLES 2000000000\r\n_OFFSET_NE 10 x\r\n"
      "/POINTS2\r\n1 2 3\r\n4 5\r\n/TRIANGLES2\r\n0 5 -7\r\n"
      ":N 7\r\n_#POINTS -5\r\n/POINTS2\r\n1 1 1\r\n");
  RecordReader reader(bytes, kAsfTypeNet);
  ASSERT_EQ(reader.Next(), kAsfTypeNet);
  OwnedNet net(TrNetCreate());
  ASSERT_TRUE(boAsfNetRead(reader.file, reader.section, net));
  EXPECT_GE(iTrNetGetPointCount(net), 2);
  EXPECT_LT(iTrNetGetPointCount(net), static_cast<int>(bytes.size()));
  const ViPoint3d point = PointOf(net, 1);
  EXPECT_EQ(point.x, 14);
  EXPECT_EQ(point.y, 5);
  EXPECT_EQ(point.z, 0);
  // Indexes out of range stand as they were read.
  ASSERT_GE(iTrNetGetTriangleCount(net), 1);
  EXPECT_LT(iTrNetGetTriangleCount(net), static_cast<int>(bytes.size()));
  EXPECT_EQ(TriangleOf(net, 0).iPoint[1], 5);
  EXPECT_EQ(TriangleOf(net, 0).iPoint[2], -7);

  long id = 0;
  ASSERT_EQ(reader.Next(&id), kAsfTypeNet);
  EXPECT_EQ(id, 7);
  OwnedNet second(TrNetCreate());
  ASSERT_TRUE(boAsfNetRead(reader.file, reader.section, second));
  EXPECT_EQ(iTrNetGetPointCount(second), 1);
}
