// Field values of the record being read, their bindings, and the filter.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_handle.h"
#include "model_file/container/asf_keys_fields.h"
#include "tests/model_file/container/asf_test_util.h"

namespace {

// Reads the joined values as a record reader does: reset, append the pieces
// of the value lines, split.
void vReadValues(AsfFile* file, AsfSection* section, const char* first, const char* second) {
  vAsfFieldValuesReset(file, section);
  boAsfFieldStoreAppend(file, first, strlen(first));
  if (second) boAsfFieldStoreAppend(file, second, strlen(second));
  vAsfFieldValuesSplit(file, section);
}

std::string Value(AsfFile* file, AsfSection* section, int index) {
  const char* value = nullptr;
  boAsfFieldValueAt(file, section, index, &value);
  return value;
}

}  // namespace

TEST(AsfFields, ValuesAreSplitAtUnescapedSemicolonsAndCopiedToBindings) {
  OwnedFile file(AsfFileCreate(nullptr));
  AsfSection* section = AsfSectionAdd(file, "L", kAsfTypeLine);
  for (const char* name : {"CHAIN", "NAME", "NOTE", "EMPTY"}) {
    vAsfFieldNameSet(file, section, iAsfFieldCount(file, section), name);
  }
  char name[8] = "old";
  char note[64] = "old";
  char missing[8] = "old";
  vAsfFieldBind(file, section, "NAME", note, sizeof note);
  vAsfFieldBind(file, section, "NAME", name, sizeof name);  // rebinds
  vAsfFieldBind(file, section, "NOTE", note, sizeof note);
  vAsfFieldBind(file, section, "GONE", missing, sizeof missing);
  for (int i = 0; i < 8; ++i) {
    vAsfFieldBind(file, section, ("X" + std::to_string(i)).c_str(), missing, sizeof missing);
  }
  EXPECT_EQ(section->iBindingCount, kAsfMaxFieldBindings);

  // A value cut between two lines is mended by the joining.
  vReadValues(file, section, "12.5;Centre \\; li", "ne;a\\nb;;");
  EXPECT_EQ(Value(file, section, 0), "12.5");
  EXPECT_EQ(Value(file, section, 1), "Centre ; line");
  EXPECT_EQ(Value(file, section, 2), "a\\nb");
  EXPECT_EQ(Value(file, section, 3), "");
  EXPECT_FALSE(boAsfFieldValueAt(file, section, 4, nullptr));
  EXPECT_STREQ(name, "Centre ");  // cut to its buffer
  EXPECT_STREQ(note, "a\\nb");
  EXPECT_STREQ(missing, "");

  // The iterator skips empty values and stops at the end.
  const char* field;
  const char* value;
  std::string seen;
  while (boAsfFieldNext(file, section, &field, &value)) seen += std::string(field) + "=" + value + ",";
  EXPECT_EQ(seen, "CHAIN=12.5,NAME=Centre ; line,NOTE=a\\nb,");

  // A record with fewer values leaves the rest empty; nothing of the last
  // record stays.
  vReadValues(file, section, "7", nullptr);
  EXPECT_EQ(Value(file, section, 0), "7");
  EXPECT_EQ(Value(file, section, 1), "");
  EXPECT_STREQ(name, "");
  EXPECT_TRUE(boAsfFieldNext(file, section, &field, &value));
  EXPECT_FALSE(boAsfFieldNext(file, section, &field, &value));
}

TEST(AsfFields, FilterIsRoundedOutwardAndCleared) {
  OwnedFile file(AsfFileCreate(nullptr));
  AsfExtent filter{-5.5, -2.1, 4.2, 7.0};
  vAsfFilterSet(file, &filter);
  ASSERT_NE(file->pFilter, nullptr);
  EXPECT_THAT(file->aiFilter, testing::ElementsAre(-6, -3, 5, 7));
  vAsfFilterSet(file, nullptr);
  EXPECT_EQ(file->pFilter, nullptr);
}
