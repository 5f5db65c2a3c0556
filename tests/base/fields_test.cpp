#include "base/fields.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

// Every token that sTokenNext cuts out of `text`, as "name" or "name=value".
Texts Tokens(char* text, char separator) {
  Texts tokens;
  char* value = nullptr;
  while (char* token = sTokenNext(&text, &value, separator)) {
    tokens.push_back(value ? std::string(token) + "=" + value : std::string(token));
  }
  EXPECT_EQ(*text, 0);
  return tokens;
}

TEST(Tokens, ReadASettingsEntryWithItsTag) {
  char entry[] = "\"Two words\" other tag:(Field:ABC (x y) Name:\"a b\")  ";
  EXPECT_EQ(Tokens(entry, ':'),
            (Texts{"Two words", "other", "tag=(Field:ABC (x y) Name:\"a b\")"}));
  char value[] = "(Field:ABC (x y) Name:\"a b\")";
  char* tag = sTokenParens(value);
  EXPECT_STREQ(tag, "Field:ABC (x y) Name:\"a b\"");
  EXPECT_EQ(Tokens(tag, ':'), (Texts{"Field=ABC", "(x y)", "Name=a b"}));
  char plain[] = "Two words";
  EXPECT_EQ(Tokens(plain, 0), (Texts{"Two", "words"}));
}

TEST(Tokens, ParensOnlyWhenTheTextEndsWithTheClosingOne) {
  char open[] = "tag:(a b";
  EXPECT_EQ(sTokenParens(open), nullptr);
  EXPECT_STREQ(open, "tag:(a b");
  char closed[] = "tag:(a (b))";
  EXPECT_STREQ(sTokenParens(closed), "a (b)");
  EXPECT_STREQ(closed, "tag:");
}

TEST(Fields, PlainFieldsEndWithANullCursor) {
  char out[4];
  const char* cursor = "ab;;toolong;";
  EXPECT_STREQ(sFieldNext(out, sizeof out, &cursor, ';'), "ab");
  EXPECT_STREQ(sFieldNext(out, sizeof out, &cursor, ';'), "");
  EXPECT_STREQ(sFieldNext(out, sizeof out, &cursor, ';'), "too");  // rest skipped
  ASSERT_NE(cursor, nullptr);
  EXPECT_EQ(*cursor, 0);
  EXPECT_STREQ(sFieldNext(out, sizeof out, &cursor, ';'), "");
  EXPECT_EQ(cursor, nullptr);
}

TEST(Fields, QuotedFieldsHoldTheSeparatorAndAreTrimmed) {
  char out[16];
  const char* cursor = "  \"x;y\" tail;\t\tab \t;\"cut here\";\"\"";
  EXPECT_STREQ(sFieldNextQuoted(out, sizeof out, &cursor, ';'), "x;y");
  EXPECT_STREQ(sFieldNextQuoted(out, sizeof out, &cursor, ';'), "ab");
  EXPECT_STREQ(sFieldNextQuoted(out, 4, &cursor, ';'), "cut");
  EXPECT_STREQ(sFieldNextQuoted(out, sizeof out, &cursor, ';'), "");
  ASSERT_NE(cursor, nullptr);

  cursor = "\tab\t";
  EXPECT_STREQ(sFieldNextQuoted(out, sizeof out, &cursor, '\t'), "");
  EXPECT_STREQ(sFieldNextQuoted(out, sizeof out, &cursor, '\t'), "ab");
}

TEST(Fields, ByIndexAndByValue) {
  char out[8];
  EXPECT_FALSE(boFieldGet("a;b", ';', 2, out, sizeof out));
  EXPECT_STREQ(out, "");
  EXPECT_TRUE(boFieldGet("a;b", ';', 1, out, sizeof out));
  EXPECT_STREQ(out, "b");
  EXPECT_TRUE(boFieldGet("a;;c", ';', 1, out, sizeof out));
  EXPECT_FALSE(boFieldGet("a;b;", ';', 2, out, sizeof out));
  EXPECT_FALSE(boFieldGet("", ';', 0, out, sizeof out));
  EXPECT_STREQ(sFieldGet("x; \"y z\" ;w", ';', 1), "y z");

  int index = -1;
  EXPECT_TRUE(boFieldFind("a;b;c", ';', "c", &index));
  EXPECT_EQ(index, 2);
  EXPECT_FALSE(boFieldFind("a;b;", ';', "", &index));
  EXPECT_EQ(index, 0);
}

TEST(Fields, ListReaderUnescapesQuotes) {
  char out[8];
  const char* cursor = "a :\"b:c\" x: d\\\"e : \"f\"\"g\"  :abcdefghij:k";
  std::string fields;
  while (boFieldNextList(&cursor, ':', out, sizeof out)) fields += std::string("[") + out + "]";
  EXPECT_EQ(fields, "[a][b:c][d\"e][f\"g][abcdefg][k]");
  EXPECT_FALSE(boFieldNextList(&cursor, ':', out, sizeof out));
  const char* none = nullptr;
  EXPECT_FALSE(boFieldNextList(&none, ':', out, sizeof out));
}

TEST(Fields, FirstWord) {
  char out[8];
  const char* cursor = nullptr;
  EXPECT_STREQ(sFirstWord(" \t\"two words\" rest", &cursor, out, sizeof out), "two wor");
  EXPECT_STREQ(cursor, " rest");
  EXPECT_STREQ(sFirstWord("\xE6gir  x", &cursor, out, sizeof out), "\xE6gir");
  EXPECT_STREQ(cursor, "  x");
  EXPECT_STREQ(sFirstWord(nullptr, &cursor, out, sizeof out), "");
  EXPECT_EQ(cursor, nullptr);
}

TEST(Quoting, QuotesOnlyTextWithBlanks) {
  char buffer[16];
  EXPECT_STREQ(sQuote(buffer, sizeof buffer, "a b"), "\"a b\"");
  EXPECT_STREQ(sQuote(buffer, sizeof buffer, "ab"), "ab");
  EXPECT_STREQ(sQuote(buffer, sizeof buffer, " \"ab\" "), "ab");
  EXPECT_STREQ(sQuote(buffer, sizeof buffer, "a\"b"), "ab");
  EXPECT_STREQ(sQuote(buffer, sizeof buffer, ""), "\"\"");
  EXPECT_STREQ(sQuote(buffer, sizeof buffer, " \" "), "\"\"");
  EXPECT_STREQ(sQuote(buffer, 5, "abcdef"), "ab");
  EXPECT_STREQ(sQuote(buffer, 6, "a bcdef"), "\"a b\"");
}

TEST(Quoting, TagWritersEscapeAndRefuseWhatDoesNotFit) {
  char buffer[64];
  char* cursor = buffer;
  size_t room = sizeof buffer;
  vTagAppendText(&cursor, &room, "Name:", "a \"b\"\\\r\n");
  vTagAppendInt(&cursor, &room, " Count:", -3);
  vTagAppendDouble(&cursor, &room, " Width:", 2.5, 3);
  EXPECT_STREQ(buffer, "Name:\"a \\\"b\\\"\\\\\\n\" Count:-3 Width:2.5");
  EXPECT_EQ(room, sizeof buffer - std::strlen(buffer));
  EXPECT_EQ(cursor, buffer + std::strlen(buffer));

  vTagAppendText(&cursor, &room, " Long:", std::string(room, 'x').c_str());
  EXPECT_EQ(cursor, buffer + std::strlen(buffer));

  // Escapes that outgrow the room are cut; the text stays terminated inside.
  char small[20];
  cursor = small;
  room = sizeof small;
  vTagAppendText(&cursor, &room, "", std::string(12, '"').c_str());
  std::string nineEscapes;
  for (int i = 0; i < 9; ++i) nineEscapes += "\\\"";
  EXPECT_EQ(std::string(small), nineEscapes);
  EXPECT_EQ(room, 2u);
}

}  // namespace
