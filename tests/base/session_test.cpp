#include "base/session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class SessionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(primarySession, nullptr);
    EXPECT_EQ(pSessionCreate(), nullptr);
    ASSERT_NE(primarySession, nullptr);
    EXPECT_EQ(currentSession, primarySession);
  }
  void TearDown() override {
    vSessionDelete(nullptr);
    EXPECT_EQ(primarySession, nullptr);
    EXPECT_EQ(currentSession, nullptr);
  }

  // "key=text" for each entry of a scan of `file.section`.
  static std::vector<std::string> Scan(const char* file, const char* section) {
    std::vector<std::string> found;
    const char* key = nullptr;
    const char* text = nullptr;
    for (bool more = boSessionGetFirst(file, section, &key, &text, nullptr); more;
         more = boSessionGetNext(&key, &text, nullptr))
      found.push_back(std::string(key) + "=" + text);
    EXPECT_STREQ(key, "");
    EXPECT_STREQ(text, "");
    return found;
  }
};

// Only a closing run of digits is aligned and compared by value; the rest
// compares from the left. An empty key comes first, even before itself, and
// a key too long to align comes last.
TEST(SessionKeyOrderTest, ClosingNumbersCompareByValueAndOddKeysStandApart) {
  std::string longKey(254, 'k');
  std::string shorter(253, 'k');  // one character less: the plain order holds again
  std::string digits(252, '1');
  struct Case {
    const char *a, *b;
    int sign;
  };
  for (auto [a, b, sign] :
       {Case{"a.b.9", "a.b.10", -1}, {"a.b.10", "a.b.9", 1}, {"x9", "x10", -1}, {"b1", "a10", 1},
        {"a.b.10x", "a.b.9x", -1}, {"a.b.9", "a.b.x", -1}, {"a.b.10", "a.b.x", -1}, {"", "", -1},
        {"", "a", -1}, {"a", "", 1}, {longKey.c_str(), "a", 1}, {"a", longKey.c_str(), 1},
        {"", longKey.c_str(), 1}, {"a", shorter.c_str(), -1}, {"1", digits.c_str(), -1}}) {
    int order = iSessionKeyCompare(a, b);
    EXPECT_EQ((order > 0) - (order < 0), sign) << a << " against " << b;
  }
}

TEST_F(SessionTest, ScanReturnsTheSectionInNaturalOrder) {
  vSessionAdd("a", "b", "10", "ten", "");
  vSessionAdd("a", "c", "1", "other section", "");
  vSessionAdd("a", "b", "x", "ex", "");
  vSessionAdd("a", "b", "9", "nine", "");
  EXPECT_EQ(Scan("a", "b"), (std::vector<std::string>{"9=nine", "10=ten", "x=ex"}));
  EXPECT_EQ(Scan("a", "c"), (std::vector<std::string>{"1=other section"}));
  EXPECT_TRUE(Scan("a", "d").empty());

  // Unsorted, entries keep the order in which they came.
  EXPECT_EQ(vSessionSetSorted(0), currentSession);
  vSessionAdd("u", "s", "10", "first", "");
  vSessionAdd("u", "s", "9", "second", "");
  EXPECT_EQ(Scan("u", "s"), (std::vector<std::string>{"10=first", "9=second"}));
}

TEST_F(SessionTest, GetGivesTextAndTagOrEmptyTexts) {
  vSessionAdd("a", "b", "x", "one", "tag1");
  vSessionAdd("a", "b", "x", "two", "tag2");
  EXPECT_EQ(Scan("a", "b"), (std::vector<std::string>{"x=one", "x=two"}));
  const char* tag = nullptr;
  EXPECT_STREQ(sSessionGet("a", "b", "x", &tag), "one");
  EXPECT_STREQ(tag, "tag1");

  vSessionAdd("f", "s", "k", "value", nullptr);
  vSessionAdd(nullptr, nullptr, nullptr, nullptr, nullptr);
  EXPECT_STREQ(sSessionGet("f", "s", "k", &tag), "value");
  EXPECT_STREQ(tag, "");
  tag = nullptr;
  EXPECT_STREQ(sSessionGet("f", "s", "K", &tag), "");
  EXPECT_STREQ(tag, "");
  // All parts null make the key "..", which is there with an empty text.
  EXPECT_EQ(Scan("", ""), (std::vector<std::string>{"="}));

  const char* key = "x";
  EXPECT_FALSE(boSessionGetNext(&key, nullptr, &tag));
  EXPECT_STREQ(key, "");
}

TEST_F(SessionTest, EmptyFileWidensTheSearchToEveryFile) {
  vSessionAdd("Afile", "section", "other", "a", "");
  vSessionAdd("Afile", "section", "other2", "a", "");
  vSessionAdd("Sfile", "section", "key", "found", "T");
  vSessionAdd("", "empty", "key", "in no file", "");
  const char* tag = nullptr;
  EXPECT_STREQ(sSessionGet("", "section", "key", &tag), "found");
  EXPECT_STREQ(tag, "T");
  EXPECT_STREQ(sSessionGet("", "empty", "key", nullptr), "in no file");
  EXPECT_STREQ(sSessionGet("", "section", "missing", &tag), "");
  EXPECT_STREQ(tag, "");
  // A file that is given is not widened.
  EXPECT_STREQ(sSessionGet("Afile", "section", "key", nullptr), "");
}

TEST_F(SessionTest, LookupKeyLimit) {
  std::string key255(255, 'k');
  std::string key256(256, 'k');
  const char* tag = "sentinel";
  EXPECT_STREQ(sSessionGet("f", "s", key255.c_str(), &tag), "");
  EXPECT_STREQ(tag, "");  // looked up and not found
  tag = "sentinel";
  EXPECT_STREQ(sSessionGet("f", "s", key256.c_str(), &tag), "");
  EXPECT_STREQ(tag, "sentinel");  // refused before any lookup
  // A composed key beyond the lookup room cannot be there either.
  std::string file(200, 'f');
  EXPECT_STREQ(sSessionGet(file.c_str(), "s", key255.c_str(), &tag), "");
  EXPECT_STREQ(tag, "");
}

TEST_F(SessionTest, ComposedKeyOf199CharactersFitsAndLongerEndsTheProcess) {
  std::string key195(195, 'k');  // "f.s." + 195 = 199 characters
  vSessionAdd("f", "s", key195.c_str(), "fits", "");
  EXPECT_STREQ(sSessionGet("f", "s", key195.c_str(), nullptr), "fits");
  std::string key196(196, 'k');
  EXPECT_DEATH(vSessionAdd("f", "s", key196.c_str(), "", ""), "does not fit");
  std::string section(197, 's');
  EXPECT_DEATH(boSessionGetFirst("f", section.c_str(), nullptr, nullptr, nullptr), "does not fit");
}

TEST_F(SessionTest, ClearEmptiesTheContextAndKeepsItUsable) {
  vSessionAdd("f", "s", "k", "v", "");
  ASSERT_TRUE(boSessionGetFirst("f", "s", nullptr, nullptr, nullptr));
  vSessionClear();
  EXPECT_STREQ(sSessionGet("f", "s", "k", nullptr), "");
  EXPECT_FALSE(boSessionGetNext(nullptr, nullptr, nullptr));
  vSessionAdd("f", "s", "k", "again", "");
  EXPECT_STREQ(sSessionGet("f", "s", "k", nullptr), "again");
}

TEST_F(SessionTest, ASecondContextIsReturnedAndNotSelected) {
  vSessionAdd("f", "s", "k", "primary", "");
  SessionContext* second = pSessionCreate();
  ASSERT_NE(second, nullptr);
  EXPECT_EQ(currentSession, primarySession);

  vSessionSelect(second);
  EXPECT_STREQ(sSessionGet("f", "s", "k", nullptr), "");
  vSessionAdd("f", "s", "k", "second", "");
  EXPECT_STREQ(sSessionGet("f", "s", "k", nullptr), "second");
  vSessionSelect(nullptr);
  EXPECT_STREQ(sSessionGet("f", "s", "k", nullptr), "primary");

  vSessionDelete(second);
  EXPECT_EQ(currentSession, primarySession);
  EXPECT_STREQ(sSessionGet("f", "s", "k", nullptr), "primary");
}

}  // namespace
