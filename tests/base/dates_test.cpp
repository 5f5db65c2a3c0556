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
  struct Case {
    const char* text;
    bool parsed;
    int date, time;
    bool dateOnly;
  };
  for (const Case& c :
       {Case{"2024.03.01_14:05:09", true, 20240301, 140509, false},
        Case{"2024.03.01_14:05", true, 20240301, 140500, false},
        Case{"2024.3.1_14", true, 20240301, 0, true}, Case{"2024.03", false, 0, 0, false}}) {
    int y = -1, m = -1, d = -1, h = -1, mi = -1, s = -1;
    bool dateOnly = !c.dateOnly;
    EXPECT_EQ(boDateParse(c.text, &y, &m, &d, &h, &mi, &s, &dateOnly), c.parsed) << c.text;
    EXPECT_EQ(y * 10000 + m * 100 + d, c.date) << c.text;
    EXPECT_EQ(h * 10000 + mi * 100 + s, c.time) << c.text;
    if (c.parsed) {
      EXPECT_EQ(dateOnly, c.dateOnly) << c.text;
    }
  }
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
