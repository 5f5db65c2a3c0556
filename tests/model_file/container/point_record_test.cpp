// Point and text records: exact bytes with rotation in degrees, alignment
// and label, reading back, and the filter.
#include <gtest/gtest.h>

#include <string>

#include "geometry/point_text.h"
#include "model_file/container/asf_objects.h"
#include "tests/model_file/container/record_test_util.h"

namespace {

PoPoint* MakePoint(long id, double x, double rotation, const char* guid) {
  PoPoint* point = PoPointCreate();
  vPoPointSetID(point, id);
  vPoPointSetP(point, x, 200.5, 3);
  vPoPointSetRotation(point, rotation);
  vPoPointSetGuid(point, guid);
  return point;
}

TeText* MakeText(long id, double rotation, int align, const char* label) {
  TeText* text = TeTextCreate();
  vTeTextSetID(text, id);
  vTeTextSetP(text, 1, 2, 3);
  vTeTextSetRotation(text, rotation);
  vTeTextSetAlign(text, align);
  vTeTextSetLabel(text, label);
  return text;
}

}  // namespace

TEST(AsfPointRecord, PointsGoBothWaysWithRotationInDegrees) {
  OwnedPoint turned(MakePoint(11, 100.25, 0.5, "{P}"));
  // A rotation this close to 0 is not written and reads back as 0.
  OwnedPoint straight(MakePoint(12, -1, 0.000001, ""));
  FieldValues fields{{"12"}};
  RecordWriter writer(kAsfTypePoint, {"CODE"});
  EXPECT_TRUE(boAsfPointWrite(writer.file, writer.section, turned, boFieldValue, &fields));
  EXPECT_TRUE(boAsfPointWrite(writer.file, writer.section, straight, nullptr, nullptr));
  std::string bytes = writer.Finish();
  EXPECT_EQ(BodyOf(bytes),
            ":P 11\r\n_FIELDVALUES 12;\r\nGUID {P}\r\n_rot 28.65\r\n/XYZ\r\n100.25 200.5 3\r\n"
            ":P 12\r\n_FIELDVALUES ;\r\nGUID \r\n/XYZ\r\n-1 200.5 3\r\n");
  // The section's extent is that of the positions.
  EXPECT_NE(bytes.find("[P_S]\r\n_EXTENT -1 200 101 201 !"), std::string::npos);

  RecordReader reader(bytes, kAsfTypePoint);
  OwnedPoint copy(PoPointCreate());
  long id = 0;
  ASSERT_EQ(reader.Next(&id), kAsfTypePoint);
  EXPECT_EQ(id, 11);
  ASSERT_TRUE(boAsfPointRead(reader.file, reader.section, copy));
  EXPECT_FALSE(boAsfPointRead(reader.file, reader.section, copy));
  ViPoint3d position;
  vPoPointGetP(copy, &position);
  EXPECT_EQ(position.x, 100.25);
  EXPECT_EQ(position.z, 3);
  EXPECT_DOUBLE_EQ(dPoPointGetRotation(copy), 28.65 * 0.017453292519943295);
  EXPECT_STREQ(sPoPointGetGuid(copy), "{P}");
  ASSERT_EQ(reader.Next(&id), kAsfTypePoint);
  ASSERT_TRUE(boAsfPointRead(reader.file, reader.section, copy));
  EXPECT_EQ(dPoPointGetRotation(copy), 0);
  EXPECT_STREQ(sPoPointGetGuid(copy), "");
  EXPECT_EQ(reader.Next(&id), -1);
}

TEST(AsfPointRecord, TextsKeepAlignAndLabelAndEmptyLabelsAreLeftOut) {
  OwnedText sign(MakeText(21, -1.5707963267948966, 5, "Road 7"));
  vTeTextSetGuid(sign, "{T}");
  OwnedText blank(MakeText(22, 0, 2, ""));
  OwnedText broken(MakeText(23, 0, 0, "upper\nlower"));
  std::string bytes = WrittenRecords(kAsfTypeText, boAsfTextWrite, {sign, blank, broken});
  // The label is written as it stands: a line break in it breaks the record.
  EXPECT_EQ(BodyOf(bytes),
            ":T 21\r\nGUID {T}\r\n_rot -90.00\r\n_align 5\r\n_label Road 7\r\n/XYZ\r\n1 2 3\r\n"
            ":T 23\r\nGUID \r\n_label upper\nlower\r\n/XYZ\r\n1 2 3\r\n");

  RecordReader reader(bytes, kAsfTypeText);
  OwnedText copy(TeTextCreate());
  ASSERT_EQ(reader.Next(), kAsfTypeText);
  EXPECT_FALSE(boAsfPointRead(reader.file, reader.section, nullptr));
  ASSERT_TRUE(boAsfTextRead(reader.file, reader.section, copy));
  EXPECT_STREQ(sTeTextGetLabel(copy), "Road 7");
  EXPECT_EQ(iTeTextGetAlign(copy), 5);
  EXPECT_DOUBLE_EQ(dTeTextGetRotation(copy), -90.0 * 0.017453292519943295);
  ASSERT_EQ(reader.Next(), kAsfTypeText);
  ASSERT_TRUE(boAsfTextRead(reader.file, reader.section, copy));
  EXPECT_STREQ(sTeTextGetLabel(copy), "upper");
  EXPECT_EQ(iTeTextGetAlign(copy), 0);

  // A text whose label is empty reads as nothing.
  RecordReader empty(FileWithBody('T', "", ":T 8\r\n_label \r\n/XYZ\r\n1 1\r\n"), kAsfTypeText);
  ASSERT_EQ(empty.Next(), kAsfTypeText);
  EXPECT_FALSE(boAsfTextRead(empty.file, empty.section, copy));
}

TEST(AsfPointRecord, PositionsAreFoundBehindEmptyLinesAndFilteredWithBounds) {
  RecordReader reader(FileWithBody('P', "",
                                   // One number is no position: the line is passed and the
                                   // next "/XYZ" gives it.
                                   ":P 1\r\n/XYZ\r\n\r\n\r\n7\r\n/XYZ\r\n10 10\r\n"
                                   // Without a position the record is passed over.
                                   ":P 2\r\nGUID x\r\n"
                                   ":P 3\r\n/XYZ\r\n0 0 1\r\n"
                                   ":P 4\r\n/XYZ\r\n10.000001 5 1\r\n"
                                   ":T 5\r\n/XYZ\r\n1 1\r\n"
                                   ":P 6\r\n/XYZ\r\n"),
                      kAsfTypePoint);
  AsfExtent filter{0, 0, 10, 10};
  vAsfFilterSet(reader.file, &filter);
  EXPECT_EQ(RecordIds(reader), (std::vector<long>{1, 3}));

  vAsfFilterSet(reader.file, nullptr);
  ASSERT_TRUE(boAsfObjectFind(reader.file, reader.section, 1));
  OwnedPoint point(PoPointCreate());
  ASSERT_TRUE(boAsfPointRead(reader.file, reader.section, point));
  ViPoint3d position;
  vPoPointGetP(point, &position);
  EXPECT_EQ(position.x, 10);
  EXPECT_EQ(position.z, 0);
  EXPECT_TRUE(boAsfObjectFind(reader.file, reader.section, 4));
  EXPECT_FALSE(boAsfObjectFind(reader.file, reader.section, 5));
  EXPECT_FALSE(boAsfObjectFind(reader.file, reader.section, 6));
}
