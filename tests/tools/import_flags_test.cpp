// The import flag word on the command line: decimal or hexadecimal, 32 bits.
#include <gtest/gtest.h>

#include "tools/import_flags.h"

namespace {

TEST(ImportFlagsText, ReadsDecimalAndHexadecimalWords) {
  uint32_t flags = 7;
  EXPECT_TRUE(boParseImportFlags("65535", &flags));
  EXPECT_EQ(flags, 65535u);
  EXPECT_TRUE(boParseImportFlags("0", &flags));
  EXPECT_EQ(flags, 0u);
  // A leading zero does not make an octal number.
  EXPECT_TRUE(boParseImportFlags("010", &flags));
  EXPECT_EQ(flags, 10u);
  EXPECT_TRUE(boParseImportFlags("0xFfFf", &flags));
  EXPECT_EQ(flags, 65535u);
  EXPECT_TRUE(boParseImportFlags("0X0c", &flags));
  EXPECT_EQ(flags, 12u);
  EXPECT_TRUE(boParseImportFlags("4294967295", &flags));
  EXPECT_EQ(flags, 4294967295u);
  EXPECT_TRUE(boParseImportFlags("0xffffffff", &flags));
  EXPECT_EQ(flags, 4294967295u);
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
