#include "base/temp_text.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <thread>

namespace {

// Every test starts from a ring that has not been made yet.
class TempTextTest : public ::testing::Test {
 protected:
  void SetUp() override { vTempRingRelease(); }
  void TearDown() override { vTempRingRelease(); }
};

TEST_F(TempTextTest, ATextEndingAtTheCapacityStartsAgainAtZero) {
  EXPECT_EQ(uTempRingCapacity(), 0u);  // made on first use
  auto* start = static_cast<char*>(pTempAlloc(100));
  auto* fits = static_cast<char*>(pTempAlloc(32767 - 100));
  EXPECT_EQ(fits, start + 100);
  EXPECT_EQ(uTempRingPosition(), 32767u);
  // One byte is left, and a block of one byte would end at the capacity.
  auto* wrapped = static_cast<char*>(pTempAlloc(1));
  EXPECT_EQ(wrapped, start);
  EXPECT_EQ(uTempRingPosition(), 1u);
}

TEST_F(TempTextTest, ARequestAboveTheCapacityGrowsTheRing) {
  auto* big = static_cast<char*>(pTempAlloc(40000));
  EXPECT_EQ(uTempRingCapacity(), 40512u);
  EXPECT_EQ(uTempRingPosition(), 40000u);
  // The big block stood at position 0: 512 more bytes end at the capacity
  // and land on it.
  EXPECT_EQ(pTempAlloc(512), big);
  EXPECT_EQ(uTempRingPosition(), 512u);
}

TEST_F(TempTextTest, CopyKeepsTheTerminator) {
  char* copy = sTempCopy("Gr\xF8" "ftemodel");
  EXPECT_STREQ(copy, "Gr\xF8" "ftemodel");
  EXPECT_EQ(uTempRingPosition(), 12u);
  EXPECT_STREQ(sTempCopy(nullptr), "");
  EXPECT_EQ(uTempRingPosition(), 13u);
}

TEST(FormatBufferTest, TruncatesAt2047Characters) {
  std::string longText(3000, 'x');
  char* text = sFormat("%s", longText.c_str());
  EXPECT_EQ(std::strlen(text), 2047u);
  EXPECT_STREQ(sFormat("%d-%s", 42, "a"), "42-a");
  EXPECT_EQ(sFormat("again"), text);  // one buffer, reused
}

TEST(FormatBufferTest, EachThreadHasItsOwnBuffer) {
  char* mine = sFormat("main %d", 1);
  std::string other;
  std::thread thread([&] {
    char* theirs = sFormat("thread %d", 2);
    other = theirs;
    EXPECT_NE(theirs, mine);
  });
  thread.join();
  EXPECT_STREQ(mine, "main 1");
  EXPECT_EQ(other, "thread 2");
}

}  // namespace
