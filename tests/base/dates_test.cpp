#include "base/dates.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace {

TEST(Dates, FormatsTodayAndNow) {
  EXPECT_STREQ(sDateTimeFormat(2024, 3, 1, 14, 5, 9), "2024.03.01_14:05:09");
  EXPECT_TRUE(std::regex_match(sDateToday(), std::regex(R"(\d{4}\.\d{2}\.\d{2})")));
  EXPECT_TRUE(std::regex_match(sDateTimeNow(),
                               std::regex(R"(\d{4}\.\d{2}\.\d{2}_\d{2}:\d{2}:\d{2})")));
}

TEST(Dates, ParseFillsMissingFieldsWithZero) {
  int y, m, d, h, mi, s;
  bool dateOnly = false;
  EXPECT_TRUE(boDateParse("2024.03.01_14:05:09", &y, &m, &d, &h, &mi, &s, &dateOnly));
  EXPECT_EQ(y * 10000 + m * 100 + d, 20240301);
  EXPECT_EQ(h * 10000 + mi * 100 + s, 140509);
  EXPECT_FALSE(dateOnly);

  EXPECT_TRUE(boDateParse("2024.03.01_14:05", &y, &m, &d, &h, &mi, &s, &dateOnly));
  EXPECT_EQ(h * 10000 + mi * 100 + s, 140500);
  EXPECT_FALSE(dateOnly);

  EXPECT_TRUE(boDateParse("2024.3.1_14", &y, &m, &d, &h, &mi, &s, &dateOnly));
  EXPECT_EQ(y * 10000 + m * 100 + d, 20240301);
  EXPECT_EQ(h + mi + s, 0);
  EXPECT_TRUE(dateOnly);

  EXPECT_FALSE(boDateParse("2024.03", &y, &m, &d, &h, &mi, &s, &dateOnly));
  EXPECT_FALSE(boDateParse(nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                           nullptr));
}

TEST(Dates, ParseToTimeUsesTheTimeOfDayOnlyWithAllSixFields) {
  int64_t midnight = lDateParseToTime("2024.03.01");
  ASSERT_NE(midnight, -1);
  EXPECT_EQ(lDateParseToTime("2024.03.01_01:00:00") - midnight, 3600);
  EXPECT_EQ(lDateParseToTime("2024.03.01_01:00"), midnight);
  EXPECT_EQ(lDateParseToTime("2024"), -1);
  EXPECT_EQ(lDateParseToTime(nullptr), -1);
}

}  // namespace
