// Field values of geometry records: escapes, empty values, values cut
// between a `_FIELDVALUES` line and `_FIELDVALUES2` lines, and the joining
// that mends them on reading.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "geometry/point_text.h"
#include "model_file/container/asf_objects.h"
#include "tests/model_file/container/record_test_util.h"

namespace {

// Writes one point record per set of values, in a section with `names`.
std::string WritePoints(const std::vector<std::string>& names,
                        const std::vector<FieldValues*>& records) {
  OwnedPoint point(PoPointCreate());
  RecordWriter writer(kAsfTypePoint, names);
  for (FieldValues* values : records) {
    EXPECT_TRUE(boAsfPointWrite(writer.file, writer.section, point, values ? boFieldValue : nullptr,
                                values));
  }
  return writer.Finish();
}

// The field values of every record of the section.
std::vector<std::vector<std::string>> ReadAllValues(const std::string& bytes) {
  std::vector<std::vector<std::string>> records;
  RecordReader reader(bytes, kAsfTypePoint);
  while (reader.Next() >= 0) records.push_back(ReadValues(reader.file, reader.section));
  return records;
}

const char kPosition[] = "GUID \r\n/XYZ\r\n0 0 0\r\n";

}  // namespace

TEST(AsfFieldValues, EscapesAndEmptyValuesGoBothWays) {
  FieldValues escaped{{"a;b", "x\r\ny", ""}};
  // Values past the end of the caller's list are empty, as are all values
  // without a callback.
  FieldValues shortList{{"only"}};
  std::string bytes = WritePoints({"A", "B", "C"}, {&escaped, &shortList, nullptr});
  EXPECT_EQ(BodyOf(bytes), ":P 0\r\n_FIELDVALUES a\\;b;x\\ny;;\r\n" + std::string(kPosition) +
                               ":P 0\r\n_FIELDVALUES only;;;\r\n" + kPosition +
                               ":P 0\r\n_FIELDVALUES ;;;\r\n" + kPosition);
  EXPECT_EQ(ReadAllValues(bytes), (std::vector<std::vector<std::string>>{
                                      {"a;b", "x\\ny", ""}, {"only", "", ""}, {"", "", ""}}));

  // Without field names there is no value line at all.
  bytes = WritePoints({}, {&escaped});
  EXPECT_EQ(BodyOf(bytes), ":P 0\r\n" + std::string(kPosition));
}

TEST(AsfFieldValues, LongValuesGoOnInFurtherLinesAndAreJoinedAgain) {
  // "_FIELDVALUES ab;" is 16 bytes. With fewer than 3 bytes left in the
  // 9,999-byte line the value goes on in the next line, cut anywhere, but
  // never inside an escape.
  FieldValues plain{{"ab", std::string(9990, 'v'), "z"}};
  FieldValues escapeAtTheEnd{{"ab", std::string(9980, 'v') + ";w", "z"}};
  std::string bytes = WritePoints({"A", "B", "C"}, {&plain, &escapeAtTheEnd});
  EXPECT_EQ(BodyOf(bytes),
            ":P 0\r\n_FIELDVALUES ab;" + std::string(9981, 'v') + "\r\n" +
                "_FIELDVALUES2 " + std::string(9, 'v') + ";z;\r\n" + kPosition +
                ":P 0\r\n_FIELDVALUES ab;" + std::string(9980, 'v') + "\\;\r\n" +
                "_FIELDVALUES2 w;z;\r\n" + kPosition);
  EXPECT_EQ(ReadAllValues(bytes), (std::vector<std::vector<std::string>>{
                                      {"ab", std::string(9990, 'v'), "z"},
                                      {"ab", std::string(9980, 'v') + ";w", "z"}}));

  // A value three lines long.
  FieldValues huge{{std::string(25000, 'h')}};
  bytes = WritePoints({"H"}, {&huge});
  EXPECT_NE(bytes.find("\r\n_FIELDVALUES2 " + std::string(9983, 'h') + "\r\n_FIELDVALUES2 "),
            std::string::npos);
  EXPECT_EQ(ReadAllValues(bytes),
            (std::vector<std::vector<std::string>>{{std::string(25000, 'h')}}));
}

TEST(AsfFieldValues, ARowOfEmptyValuesLongerThanALineIsSplitToo) {
  std::vector<std::string> names;
  for (int i = 0; i < 10000; ++i) names.push_back("F" + std::to_string(i));
  std::string bytes = WritePoints(names, {nullptr});
  EXPECT_NE(bytes.find(":P 0\r\n_FIELDVALUES " + std::string(9986, ';') + "\r\n" +
                       "_FIELDVALUES2 " + std::string(14, ';') + "\r\nGUID "),
            std::string::npos);
  RecordReader reader(bytes, kAsfTypePoint);
  ASSERT_EQ(reader.Next(), kAsfTypePoint);
  // No field has a value, the last one included.
  const char* name = nullptr;
  const char* value = nullptr;
  EXPECT_FALSE(boAsfFieldNext(reader.file, reader.section, &name, &value));
  EXPECT_EQ(reader.Next(), -1);
}
