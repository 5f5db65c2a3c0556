// The import flag word on the command line: decimal or hexadecimal, 32 bits.
#include "tools/import_flags.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(ImportFlagsText, ReadsDecimalAndHexadecimalWords) {
  // A leading zero does not make an octal number.
  const std::pair<const char*, uint32_t> words[] = {
      {"65535", 65535u},          {"0", 0u},     {"010", 10u},
      {"0xFfFf", 65535u},         {"0X0c", 12u}, {"4294967295", 4294967295u},
      {"0xffffffff", 4294967295u}};
  for (const auto& [text, value] : words) {
    uint32_t flags = 7;
    EXPECT_TRUE(boParseImportFlags(text, &flags)) << text;
    EXPECT_EQ(flags, value) << text;
  }
}

TEST(ImportFlagsText, RefusesAnythingElseAndKeepsTheOldValue) {
  const char* refused[] = {"",     "0x",  "-1", "+1", " 1", "1 ", "12a", "0x1g", "4294967296",
                           "0x100000000", "99999999999999999999999", "1.0", "0b1"};
  for (const char* text : refused) {
    uint32_t flags = 5;
    EXPECT_FALSE(boParseImportFlags(text, &flags)) << text;
    EXPECT_EQ(flags, 5u) << text;
  }
  uint32_t flags = 5;
  EXPECT_FALSE(boParseImportFlags(nullptr, &flags));
  EXPECT_EQ(flags, 5u);
  EXPECT_FALSE(boParseImportFlags("1", nullptr));
}

}  // namespace
