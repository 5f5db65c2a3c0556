// Line and polygon records: exact bytes of the element block with every
// element kind, the dimension lines, reading back to equal lines, the
// reading filter and damaged records.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "geometry/lines.h"
#include "geometry/point_text.h"
#include "geometry/polygon.h"
#include "model_file/container/asf_objects.h"
#include "tests/model_file/container/record_test_util.h"

namespace {

// Element data for the writer, by element position.
struct ElementTexts {
  std::vector<std::pair<LiElm, std::string>> texts;
};

bool boElementText(void* datum, const LiLine*, int32_t element, const char** text) {
  for (const auto& [elm, value] : static_cast<ElementTexts*>(datum)->texts) {
    if (elm == element) {
      *text = value.c_str();
      return true;
    }
  }
  return false;
}

// Collects what the reader hands over, up to a ")".
void vTakeElementText(void* datum, LiLine*, int32_t element, const char* text,
                      const char** end) {
  const char* close = text;
  while (*close && *close != ')') ++close;
  static_cast<ElementTexts*>(datum)->texts.emplace_back(element, std::string(text, close));
  *end = *close ? close + 1 : close;
}

const std::string kEveryKindFile =
    "[KVRFILE_ASCII]\r\n"
    "_VERSION 2\r\n"
    "_FILETYPE sfi\r\n"
    "_INDEX !!!!!!!!!!!!!!!!!!!!\r\n"
    "_EXTENT -50 -40 61 70 !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!\r\n"
    "[L_S]\r\n"
    "_EXTENT -50 -40 61 70 !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!\r\n"
    "_FIELDNAMES NAME;NOTE;\r\n"
    "[+L_S]\r\n"
    ":L 7\r\n"
    "_EXTENT -50 -40 61 70 \r\n"
    "_FIELDVALUES Main;two\\nlines;\r\n"
    "GUID \r\n"
    "/XY\r\n"
    "0 0 a2p 10 1 elmdata (first)\r\n"
    "10 0 a2p -12.5\r\n"
    "20 0 a3p\r\n"
    "22.928932 7.071068 elmdata (middle arc)\r\n"
    "35 10 clot 0.000000 100.000000 30.000000\r\n"
    "40 10 invis\r\n"
    "-50 -40 elmdata (" + std::string(110, 'x') + "\r\n"
    "!?\r\n"
    "61 70\r\n"
    "2.500001 -0\r\n"
    "[END]\r\n";

// Type and position of every element.
struct ReadElement {
  int iType;
  double x, y;
};

// Reads the next record of the section into a new line of `lines`; null at
// the end of the section.
LiLine* ReadNextLine(AsfFile* file, AsfSection* section, LiLines* lines) {
  long id = 0;
  if (iAsfObjectNext(file, section, &id) != kAsfTypeLine) return nullptr;
  LiLine* line = LiLinesCreate3dLine(lines, id);
  EXPECT_TRUE(boAsfLineRead(file, section, line));
  return line;
}

std::vector<ReadElement> Elements(const LiLine* line) {
  std::vector<ReadElement> elements;
  for (LiElm elm = LiElmGetFirst(line); elm != kLiNoElm; elm = LiElmGetNext(line, elm)) {
    ViPoint2d point;
    vLiElmGetP2d(line, elm, &point);
    elements.push_back({LiElmGetType(line, elm), point.x, point.y});
  }
  return elements;
}

std::vector<int> Types(const LiLine* line) {
  std::vector<int> types;
  for (const ReadElement& element : Elements(line)) types.push_back(element.iType);
  return types;
}

}  // namespace

TEST(AsfLineRecord, EveryElementKindIsWrittenInItsForm) {
  // A 2D line with an element of every kind and an extent that the points at
  // (-50, -40) and (61, 70) span. Each piece is set on its start point.
  OwnedLines lines(LiLinesCreate(0, 0));
  LiLine* line = LiLinesCreate2dLine(lines, 7);
  const double points[][2] = {{0, 0},    {10, 0},    {20, 0},  {30, 10}, {35, 10},
                              {40, 10},  {-50, -40}, {60, 70}, {61, 70}, {2.5000006, -0.0000001}};
  for (const auto& point : points) LiLineAddP(line, point[0], point[1], 0);
  EXPECT_TRUE(boLiElmSet2pArc(line, 0, 10, true));
  EXPECT_TRUE(boLiElmSet2pArc(line, 1, -12.5, false));
  EXPECT_TRUE(boLiElmSet3pArc(line, 2, 22.928932, 7.071068));
  EXPECT_TRUE(boLiElmSetType(line, 3, 3));
  EXPECT_TRUE(boLiElmSetClotoide(line, 4, 0, 100, 30));
  EXPECT_TRUE(boLiElmSetType(line, 5, kLiElmInvisible));
  EXPECT_TRUE(boLiElmSetType(line, 6, kLiElmStraightAlt));
  EXPECT_TRUE(boLiElmSetType(line, 7, 50));
  ElementTexts texts{{{0, "first"}, {2, "middle arc"}, {6, std::string(200, 'x')}}};
  FieldValues fields{{"Main", "two\r\nlines"}};
  RecordWriter writer(kAsfTypeLine, {"NAME", "NOTE"});
  EXPECT_TRUE(boAsfLineWriteElmData(writer.file, writer.section, line, boFieldValue, &fields,
                                    boElementText, &texts));
  EXPECT_EQ(writer.Finish(), kEveryKindFile);
}

TEST(AsfLineRecord, ReadingGivesTheLineBackLessWhatHasNoForm) {
  RecordReader reader(kEveryKindFile, kAsfTypeLine);
  ElementTexts read;
  vAsfElmReadCallbackSet(reader.file, vTakeElementText);
  long id = 0;
  ASSERT_EQ(reader.Next(&id), kAsfTypeLine);
  EXPECT_EQ(id, 7);
  OwnedLines lines(LiLinesCreate(0, 0));
  LiLine* line = LiLinesCreate2dLine(lines, id);
  ASSERT_TRUE(boAsfLineReadData(reader.file, reader.section, line, &read));
  EXPECT_FALSE(boLiLineIs3d(line));
  EXPECT_FALSE(boLiLineIsPolygon(line));
  EXPECT_STREQ(sLiLineGetGuid(line), "");
  EXPECT_EQ(ReadValues(reader.file, reader.section),
            (std::vector<std::string>{"Main", "two\\nlines"}));

  // The element of type 3 and the one without a form are gone, so that the
  // arc by three points ends in the point behind them; type 98 reads as a
  // straight.
  std::vector<ReadElement> elements = Elements(line);
  ASSERT_EQ(elements.size(), 8u);
  const int types[] = {kLiElmArc2p,     kLiElmArc2p, kLiElmArc3p, kLiElmClothoid,
                       kLiElmInvisible, 0,           0,           0};
  const double points[][2] = {{0, 0},    {10, 0},    {20, 0},  {35, 10},
                              {40, 10}, {-50, -40}, {61, 70}, {2.500001, 0}};
  for (size_t i = 0; i < elements.size(); ++i) {
    EXPECT_EQ(elements[i].iType, types[i]) << i;
    EXPECT_DOUBLE_EQ(elements[i].x, points[i][0]) << i;
    EXPECT_DOUBLE_EQ(elements[i].y, points[i][1]) << i;
  }
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(line, 0), 10);
  EXPECT_TRUE(boLiElmIsLarge(line, 0));
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(line, 1), -12.5);
  EXPECT_FALSE(boLiElmIsLarge(line, 1));
  ViPoint3d middle;
  vLiElmGetArcMiddle(line, 2, &middle);
  EXPECT_DOUBLE_EQ(middle.x, 22.928932);
  EXPECT_DOUBLE_EQ(middle.y, 7.071068);
  double startRadius = -1, endRadius = -1, a = -1;
  vLiElmGetClotoide(line, 3, &startRadius, &endRadius, &a);
  EXPECT_EQ(startRadius, 0);
  EXPECT_EQ(endRadius, 100);
  EXPECT_EQ(a, 30);

  // The element data of the arc's middle line belongs to the arc; the cut
  // text has no ")".
  using Texts = std::vector<std::pair<LiElm, std::string>>;
  EXPECT_EQ(read.texts, (Texts{{0, "first"}, {2, "middle arc"}, {5, std::string(110, 'x')}}));
  EXPECT_EQ(reader.Next(), -1);
}

TEST(AsfLineRecord, DimensionPolygonMarkAndGuidGoBothWays) {
  OwnedLines lines(LiLinesCreate(0, 0));
  LiLine* spatial = LiLinesCreate3dLine(lines, 1);
  vLiLineSetPolygon(spatial, true);
  vLiLineSetGuid(spatial, "{0A1B}");
  LiLineAddP(spatial, 1.5, 2.25, 100.125);
  LiLineAddP(spatial, -3, 4, -0.5);
  LiLine* flat = LiLinesCreate2dLine(lines, 2);
  vLiLineSetHeight(flat, 12.5);
  LiLineAddP2d(flat, 5, 6);
  LiLine* empty = LiLinesCreate2dLine(lines, 3);

  std::string bytes = WrittenRecords(kAsfTypeLine, boAsfLineWrite, {spatial, flat, empty});
  EXPECT_EQ(BodyOf(bytes),
            ":L 1\r\n_EXTENT -3 2 2 4 \r\nGUID {0A1B}\r\n_ASPOLY\r\n/XYZ\r\n"
            "1.5 2.25 100.125\r\n-3 4 -0.5\r\n"
            ":L 2\r\n_EXTENT 5 6 5 6 \r\nGUID \r\n/XYH 12.500\r\n5 6\r\n"
            ":L 3\r\n_EXTENT 99999999 99999999 -99999999 -99999999 \r\nGUID \r\n/XY\r\n");

  RecordReader reader(bytes, kAsfTypeLine);
  OwnedLines copies(LiLinesCreate(0, 0));
  LiLine* copy = ReadNextLine(reader.file, reader.section, copies);
  ASSERT_NE(copy, nullptr);
  EXPECT_TRUE(boLiLineIs3d(copy));
  EXPECT_TRUE(boLiLineIsPolygon(copy));
  EXPECT_STREQ(sLiLineGetGuid(copy), "{0A1B}");
  ViPoint3d point;
  vLiElmGetP3d(copy, 1, &point);
  EXPECT_EQ(point.z, -0.5);
  copy = ReadNextLine(reader.file, reader.section, copies);
  ASSERT_NE(copy, nullptr);
  EXPECT_FALSE(boLiLineIs3d(copy));
  EXPECT_EQ(dLiLineGetHeight(copy), 12.5);
  EXPECT_EQ(iLiLineGetElmCount(copy), 1);
  // A record may be passed over without reading its elements.
  EXPECT_EQ(reader.Next(), kAsfTypeLine);
  EXPECT_EQ(reader.Next(), -1);
  EXPECT_EQ(reader.Next(), -1);
}

TEST(AsfLineRecord, PolygonsHaveTheirOwnSectionsAndReaders) {
  OwnedPolygons polygons(YgPolygonsCreate());
  YgPolygon* polygon = YgPolygonsCreatePolygon(polygons, 3);
  vLiLineSetGuid(polygon, "{G-1}");
  LiLineAddP2d(polygon, 0, 0);
  LiLineAddP2d(polygon, 10, 0);
  LiLineAddP2d(polygon, 10, 10);
  LiLineAddP2d(polygon, 0, 10);
  OwnedLine line(LiLineCreate(false));

  // Each kind goes only to a section of its own type.
  RecordWriter writer(kAsfTypePolygon, {});
  EXPECT_FALSE(boAsfLineWrite(writer.file, writer.section, line, nullptr, nullptr));
  EXPECT_FALSE(boAsfPointWrite(writer.file, writer.section, nullptr, nullptr, nullptr));
  EXPECT_TRUE(boAsfPolygonWrite(writer.file, writer.section, polygon, nullptr, nullptr));
  std::string bytes = writer.Finish();
  EXPECT_EQ(BodyOf(bytes),
            ":Y 3\r\n_EXTENT 0 0 10 10 \r\nGUID {G-1}\r\n/XY\r\n0 0\r\n10 0\r\n10 10\r\n0 10\r\n");

  RecordReader reader(bytes, kAsfTypePolygon);
  ASSERT_EQ(reader.Next(), kAsfTypePolygon);
  // A line reader does not take a polygon record, nor the other way round.
  EXPECT_FALSE(boAsfLineRead(reader.file, reader.section, line));
  OwnedPolygon copy(YgPolygonCreate());
  ASSERT_TRUE(boAsfPolygonRead(reader.file, reader.section, copy));
  EXPECT_FALSE(boAsfPolygonRead(reader.file, reader.section, copy));
  EXPECT_STREQ(sLiLineGetGuid(copy), "{G-1}");
  EXPECT_DOUBLE_EQ(dYgPolygonArea(copy, nullptr), 100.0);
}

TEST(AsfLineRecord, FilterPassesOverLinesOutsideAndFindLooksFromTheStart) {
  RecordReader reader(
      FileWithBody('L', "",
                   ":L 1\r\n_EXTENT 0 0 10 10 \r\nGUID \r\n/XY\r\n0 0\r\n10 10\r\n"
                   ":L 2\r\n_EXTENT 20 20 30 30 \r\nGUID \r\n/XY\r\n20 20\r\n30 30\r\n"
                   ":L 3\r\n_EXTENT 10 10 20 20 \r\nGUID \r\n/XY\r\n10 10\r\n20 20\r\n"),
      kAsfTypeLine);
  ASSERT_NE(reader.section, nullptr);
  // Rounded outward to 0 0 11 11: the third line touches it, the second not.
  AsfExtent filter{0.5, 0.5, 10.5, 10.5};
  vAsfFilterSet(reader.file, &filter);
  EXPECT_EQ(RecordIds(reader), (std::vector<long>{1, 3}));

  vAsfFilterSet(reader.file, nullptr);
  ASSERT_TRUE(boAsfObjectFind(reader.file, reader.section, 2));
  OwnedLine line(LiLineCreate(false));
  ASSERT_TRUE(boAsfLineRead(reader.file, reader.section, line));
  ViPoint2d point;
  vLiElmGetP2d(line, 1, &point);
  EXPECT_EQ(point.x, 30);
  EXPECT_TRUE(boAsfObjectFind(reader.file, reader.section, 1));
  EXPECT_FALSE(boAsfObjectFind(reader.file, reader.section, 9));
}

TEST(AsfLineRecord, DamagedRecordsReadAsFarAsTheyGo) {
  // Record 1 has no element block and is passed over; record 2 has lines
  // that are no points, numbers that do not parse, an unknown word, an arc
  // without a radius, a clothoid that would wind up without end and an arc
  // without its middle point; the section ends in the middle of record 3.
  RecordReader reader(
      FileWithBody('L', "",
                   ":L 1\r\nGUID abc\r\n"
                   ":L 2\r\nGUID " +
                       std::string(60, 'g') +
                       "\r\n/XY\r\n"
                       "note\r\n0 0 elmdata\r\n5 x\r\n-\r\n10 0 strange a2p\r\n"
                       "20 0 clot 0.000001 50 20\r\n12 3 a3p\r\n:L 3\r\n_EXTENT 1 2\r\n"),
      kAsfTypeLine);
  OwnedLines lines(LiLinesCreate(0, 0));
  LiLine* line = ReadNextLine(reader.file, reader.section, lines);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(lLiLineGetID(line), 2);
  EXPECT_EQ(std::string(sLiLineGetGuid(line)), std::string(46, 'g'));
  std::vector<ReadElement> elements = Elements(line);
  ASSERT_EQ(elements.size(), 6u);
  EXPECT_EQ(elements[1].x, 5);
  EXPECT_EQ(elements[1].y, 0);
  EXPECT_EQ(elements[2].x, 0);
  // What cannot be laid between its points stays a straight.
  EXPECT_THAT(Types(line), testing::Each(0));
  EXPECT_EQ(reader.Next(), -1);
}

TEST(AsfLineRecord, OlderRecordsOfEveryKindReadFromOneLayer) {
  std::string bytes =
      "[HEAD]\r\nFILETYPE \"sfi\"\r\n[ROADS]\r\n"
      ":L 4\r\nNAME \"A very long name of more than 29 characters\"\r\nKIND ditch\r\n"
      "poly 1\r\n0 0\r\n10 0 a2p 10\r\n10 10 invis\r\n\r\n"
      ":P 6\r\nANG 1.25\r\n3 4\r\n"
      ":L 5\r\nKIND \"kerb\"\r\n"
      ":T 7\r\nrot 0.5\r\nalign 3\r\nlbl \"Main road\"\r\n7 8 9\r\n";
  RecordReader roads(bytes, kAsfTypeLine, "ROADS");
  ASSERT_NE(roads.section, nullptr);
  OwnedLines lines(LiLinesCreate(0, 0));
  LiLine* line = ReadNextLine(roads.file, roads.section, lines);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(ReadValues(roads.file, roads.section),
            (std::vector<std::string>{"A very long name of more than", "ditch"}));
  EXPECT_TRUE(boLiLineIsPolygon(line));
  EXPECT_FALSE(boLiLineIs3d(line));
  EXPECT_EQ(Types(line), (std::vector<int>{0, kLiElmArc2p, kLiElmInvisible}));
  // A record without number lines is a line without elements.
  line = ReadNextLine(roads.file, roads.section, lines);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(lLiLineGetID(line), 5);
  EXPECT_EQ(ReadValues(roads.file, roads.section), (std::vector<std::string>{"", "kerb"}));
  EXPECT_FALSE(boLiLineIsPolygon(line));
  EXPECT_EQ(iLiLineGetElmCount(line), 0);
  EXPECT_EQ(roads.Next(), -1);

  // Points and texts of the same layer, their rotation as it stands.
  RecordReader points(bytes, kAsfTypePoint, "ROADS");
  EXPECT_EQ(RecordIds(points), std::vector<long>{6});
  ASSERT_TRUE(boAsfObjectFind(points.file, points.section, 6));
  OwnedPoint point(PoPointCreate());
  ASSERT_TRUE(boAsfPointRead(points.file, points.section, point));
  EXPECT_EQ(dPoPointGetRotation(point), 1.25);
  RecordReader texts(bytes, kAsfTypeText, "ROADS");
  ASSERT_EQ(texts.Next(), kAsfTypeText);
  OwnedText text(TeTextCreate());
  ASSERT_TRUE(boAsfTextRead(texts.file, texts.section, text));
  EXPECT_EQ(dTeTextGetRotation(text), 0.5);
  EXPECT_EQ(iTeTextGetAlign(text), 3);
  EXPECT_STREQ(sTeTextGetLabel(text), "Main road");
  ViPoint3d position;
  vTeTextGetP(text, &position);
  EXPECT_EQ(position.z, 9);
}
