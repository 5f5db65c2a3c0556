#include "base/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <string>
#include <utility>

namespace {

std::string sPrinted(double value, int decimals) {
  char buffer[32];
  return sPrintNumber(buffer, sizeof buffer, value, decimals, nullptr);
}

// What a reader gives for `text`: the value and the bytes it took.
template <typename Number>
std::pair<Number, long> Read(Number (*reader)(const char*, const char**), const char* text) {
  const char* end = nullptr;
  Number value = reader(text, &end);
  return {value, end - text};
}

TEST(ParseInteger, TakesTheByteWhereDigitsAreMissingAsOne) {
  EXPECT_EQ(Read(lParseInteger, "  -12x"), std::pair(-12L, 5L));
  EXPECT_EQ(Read(lParseInteger, "+7 8"), std::pair(7L, 2L));
  EXPECT_EQ(Read(lParseInteger, "x"), std::pair(72L, 1L));
  EXPECT_EQ(Read(lParseInteger, "-x"), std::pair(-72L, 2L));
  EXPECT_EQ(Read(lParseInteger, ""), std::pair(-48L, 1L));  // behind the terminator
  EXPECT_EQ(lParseInteger(nullptr, nullptr), 0);
  // Long digit runs stay within 32 bits.
  EXPECT_EQ(Read(lParseInteger, " 1234567890;"), std::pair(1234567890L, 11L));
  EXPECT_EQ(lParseInteger("12345678901", nullptr), INT32_MAX);
  EXPECT_EQ(lParseInteger("-99999999999", nullptr), INT32_MIN);
}

TEST(ParseNumber, ReadsTheFileFormsAndKeepsTheirQuirks) {
  EXPECT_EQ(Read(dParseNumber, "-0.25"), std::pair(-0.25, 5L));
  EXPECT_EQ(Read(dParseNumber, " -1.5"), std::pair(-1.5, 5L));
  EXPECT_EQ(Read(dParseNumber, "12.5x"), std::pair(12.5, 4L));
  EXPECT_EQ(Read(dParseNumber, "1e5"), std::pair(1.0, 1L));
  EXPECT_EQ(Read(dParseNumber, ""), std::pair(-48.0, 1L));
  EXPECT_EQ(dParseNumber(nullptr, nullptr), 0.0);
  // The terminator behind the point is read as a digit: 3 + (0 - 48) / 10.
  auto [value, taken] = Read(dParseNumber, "3.");
  EXPECT_NEAR(value, -1.8, 1e-12);
  EXPECT_EQ(taken, 3);
  // Ten digits behind the point are read by the C library, exponent and all.
  auto [library, libraryTaken] = Read(dParseNumber, "2.1234567891e2 z");
  EXPECT_DOUBLE_EQ(library, 212.34567891);
  EXPECT_EQ(libraryTaken, 14);
}

TEST(PrintNumber, RoundsWithAStepJustBelowOneHalf) {
  EXPECT_EQ(sPrinted(1.5, 3), "1.5");
  EXPECT_EQ(sPrinted(2.0, 3), "2");
  EXPECT_EQ(sPrinted(0.0005, 3), "0");
  EXPECT_EQ(sPrinted(0.00051, 3), "0.001");
  EXPECT_EQ(sPrinted(-0.0001, 3), "-0");
  EXPECT_EQ(sPrinted(-2.5, 0), "-2");
  EXPECT_EQ(sPrinted(1.23456789, 9), "1");            // scale 0: the integer alone
  EXPECT_EQ(sPrinted(1.123456789, 12), "1.12345679");  // above 9 means 8
  EXPECT_EQ(sPrinted(2147483647.0, 0), "2147483647");

  char small[4];
  char* end = nullptr;
  EXPECT_STREQ(sPrintNumber(small, sizeof small, -12.5, 3, &end), "-12");
  EXPECT_EQ(end, small + 3);
}

// Coordinates of the kind a model file holds, already at the writer's number
// of decimals: the text must be printf's (closing zeros dropped) and read
// back to the same number.
TEST(PrintNumber, TypicalCoordinatesRoundTripAtFourAndSixDecimals) {
  for (int decimals : {4, 6}) {
    double scale = std::pow(10.0, decimals);
    for (int i = 0; i < 20000; ++i) {
      double raw = (i % 2 ? -1.0 : 1.0) * std::fmod(i * 7919.123456789 + i * i * 0.37, 7.0e6);
      double value = std::round(raw * scale) / scale;
      std::string text = sPrinted(value, decimals);

      char expected[64];
      sFormatNumber(value, 0, decimals, '.', expected, sizeof expected);
      if (std::string(expected) == "-0") std::strcpy(expected, "0");
      ASSERT_EQ(text, expected) << "value " << value;

      const char* end = nullptr;
      double back = dParseNumber(text.c_str(), &end);
      ASSERT_EQ(*end, 0);
      ASSERT_NEAR(back, value, 1e-9 * std::max(1.0, std::fabs(value))) << text;
    }
  }
}

TEST(PrintInteger, WritesSignAndDigits) {
  char buffer[32];
  char* end = nullptr;
  EXPECT_STREQ(sPrintInteger(buffer, sizeof buffer, -42, &end), "-42");
  EXPECT_EQ(end, buffer + 3);
  EXPECT_STREQ(sPrintInteger(buffer, sizeof buffer, 0, nullptr), "0");
  EXPECT_STREQ(sPrintInteger(buffer, sizeof buffer, LONG_MIN, nullptr),
               std::to_string(LONG_MIN).c_str());
}

TEST(WriteDigits, EveryCountOfDigitsOddAndEven) {
  // The digits go in two at a time from the back: a lone first digit and
  // the widest value are where that would slip.
  for (uint64_t value : {0ull, 7ull, 10ull, 99ull, 100ull, 1009ull, 123456789ull,
                         10000000000ull, 18446744073709551615ull}) {
    char buffer[24];
    char* end = pWriteDigits(buffer, value);
    EXPECT_EQ(std::string(buffer, end), std::to_string(value));
  }
}

TEST(TrimZeros, CutsClosingZerosAndABarePoint) {
  for (auto [text, trimmed] : {std::pair{"1.500", "1.5"}, {"2.000", "2"}, {"100", "100"},
                               {"0.000", "0"}, {".", "."}, {"10.0", "10"}}) {
    std::string copy = text;
    EXPECT_STREQ(sTrimZeros(copy.data()), trimmed) << text;
  }
}

TEST(NumberText, AcceptsOnlyPlainSignedDecimals) {
  for (const char* yes : {"12", "-1.5", "+.5", "5.", "  7", ""}) {
    EXPECT_TRUE(boIsNumberText(yes)) << yes;
  }
  for (const char* no : {".", "-", "-.", "1-", "1.2.3", "1 ", "1e5", "1,5"}) {
    EXPECT_FALSE(boIsNumberText(no)) << no;
  }
  EXPECT_EQ(dParseNumberComma(" 1,25"), 1.25);
  EXPECT_EQ(dParseNumberComma("abc"), 0.0);
}

TEST(FormatNumber, TrimsWithoutWidthAndAlignsWithOne) {
  char buffer[32];
  EXPECT_STREQ(sFormatNumber(1.5, 0, 3, ',', buffer, sizeof buffer), "1,5");
  EXPECT_STREQ(sFormatNumber(2.0, 0, 3, '.', buffer, sizeof buffer), "2");
  EXPECT_STREQ(sFormatNumber(2.5, 0, 0, '.', buffer, sizeof buffer), "2");  // printf: to even
  EXPECT_STREQ(sFormatNumber(1.25, 8, 3, '.', buffer, sizeof buffer), "   1.250");
  EXPECT_STREQ(sFormatNumber(1.25, -7, 1, '.', buffer, sizeof buffer), "1.2    ");
  char small[4];
  EXPECT_STREQ(sFormatNumber(12345.0, 0, 0, '.', small, sizeof small), "123");
}

TEST(NumberComparisons, RoundToStepTakesHalvesAwayFromZero) {
  EXPECT_EQ(dRoundToStep(-2.5, 1.0), -3.0);
  EXPECT_EQ(dRoundToStep(7.3, 0.5), 7.5);
  EXPECT_EQ(dRoundToStep(7.3, 0.0), 7.3);
  EXPECT_FALSE(boEqual(1.0, 1.0 + 1.1e-5));
}

}  // namespace
