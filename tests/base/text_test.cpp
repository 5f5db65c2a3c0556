#include "base/text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace {

TEST(TextCopy, NeverWritesBeyondTheSize) {
  char buffer[8];
  std::memset(buffer, 'z', sizeof buffer);
  EXPECT_STREQ(sCopy(buffer, "abcdef", 1), "");
  EXPECT_EQ(buffer[1], 'z');
  EXPECT_STREQ(sCopy(buffer, "abcdef", 4), "abc");
  EXPECT_EQ(buffer[4], 'z');
  EXPECT_STREQ(sCopy(buffer, nullptr, sizeof buffer), "");

  sCopy(buffer, "ab", sizeof buffer);
  EXPECT_STREQ(sAppend(buffer, "cdefghij", 6), "abcde");
  EXPECT_STREQ(sAppend(buffer, "x", 6), "abcde");  // full: stays as it is
  EXPECT_STREQ(sAppend(buffer, "x", sizeof buffer), "abcdex");
}

TEST(TextCopy, FixedWidthFieldsPadAndTrim) {
  char column[8];
  std::memset(column, 'z', sizeof column);
  sPadTo(column, "ab", 5);
  EXPECT_EQ(std::string(column, 6), "ab   z");  // no terminator written
  sPadTo(column, "abcdefgh", 3);
  EXPECT_EQ(std::string(column, 6), "abc  z");

  char field[8] = {'a', 'b', ' ', 0, ' ', ' ', 'z', 'z'};
  EXPECT_STREQ(sTrimRightN(field, 6), "ab");

  char target[8];
  std::memset(target, 'z', sizeof target);
  EXPECT_STREQ(sFieldCopy(target, "name   and more", 6), "name");
  EXPECT_STREQ(sFieldCopy(target, "xy", 6), "xy");
  char text[] = "a b  ";
  EXPECT_STREQ(sTrimRight(text), "a b");
}

TEST(HeapText, SetReusesTheBlockAndEmptyFreesIt) {
  char* field = nullptr;
  EXPECT_STREQ(sHeapSet(&field, "longer text"), "longer text");
  char* block = field;
  EXPECT_STREQ(sHeapSet(&field, "short"), "short");
  EXPECT_EQ(field, block);
  sHeapSet(&field, field + 1);  // a part of itself
  EXPECT_STREQ(field, "hort");
  EXPECT_EQ(sHeapSet(&field, ""), nullptr);
  EXPECT_EQ(field, nullptr);

  EXPECT_STREQ(sHeapAppend(&field, "ab"), "ab");
  EXPECT_STREQ(sHeapAppend(&field, nullptr), "ab");
  EXPECT_STREQ(sHeapAppend(&field, field), "abab");
  vHeapFree(&field);
  EXPECT_EQ(field, nullptr);
  vHeapFree(&field);
}

// The comparison itself is the platform's, tested with the code page.
TEST(TextCompare, FindIgnoresCaseOfAsciiAndNorwegianLetters) {
  EXPECT_LT(iCompareNoCase(nullptr, "a"), 0);
  const char* text = "Veg \xC6RE og mer";
  EXPECT_EQ(sFindNoCase(text, "\xE6re"), text + 4);
  EXPECT_EQ(sFindNoCase(text, "MER"), text + 11);
  EXPECT_EQ(sFindNoCase(text, "merx"), nullptr);
  EXPECT_EQ(sFindNoCase(text, ""), text);
  EXPECT_EQ(sFindNoCase(nullptr, "a"), nullptr);
}

}  // namespace
