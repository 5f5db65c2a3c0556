#include "base/pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/captured_messages.h"

namespace {

class PoolTest : public ::testing::Test {
 protected:
  void SetUp() override { vPoolInit(&pool, 64); }
  void TearDown() override { vPoolDelete(&pool); }
  int ChunkCount() const {
    int count = 0;
    for (PoolChunk* chunk = pool.first; chunk; chunk = chunk->next) count++;
    return count;
  }
  static char* Data(PoolChunk* chunk) { return reinterpret_cast<char*>(chunk) + sizeof(PoolChunk); }
  static bool AllZero(const char* bytes, size_t size) {
    return std::all_of(bytes, bytes + size, [](char c) { return c == 0; });
  }

  CapturedMessages shown;
  Pool pool;
};

TEST_F(PoolTest, HandsOutRoundedZeroedBlocksFrontToBack) {
  void* nothing = pPoolAlloc(&pool, 0);  // even 0 bytes need a chunk
  EXPECT_EQ(nothing, Data(pool.first));
  auto* a = static_cast<char*>(pPoolAlloc(&pool, 3));
  auto* b = static_cast<char*>(pPoolAlloc(&pool, 9));
  EXPECT_EQ(a, Data(pool.first));
  EXPECT_EQ(b, a + 8);
  EXPECT_EQ(pPoolAlloc(&pool, 0), b + 16);  // points at the next free byte
  EXPECT_EQ(pool.left, 40u);
  EXPECT_TRUE(AllZero(a, 64));

  // An oversized request gets a chunk of exactly its rounded size; the next
  // one starts a chunk of the default size.
  void* big = pPoolAlloc(&pool, 100);
  EXPECT_EQ(big, Data(pool.current));
  EXPECT_EQ(pool.current->size, 104u);
  EXPECT_EQ(pool.left, 0u);
  void* next = pPoolAlloc(&pool, 8);
  EXPECT_EQ(next, Data(pool.current));
  EXPECT_EQ(pool.current->size, 64u);
  EXPECT_EQ(ChunkCount(), 3);
}

TEST_F(PoolTest, ReleaseOfAllKeepsTheFirstChunkZeroed) {
  auto* first = static_cast<char*>(pPoolAlloc(&pool, 24));
  std::memset(first, 0x5A, 24);
  pPoolAlloc(&pool, 48);
  pool.garbage = 40;
  vPoolRelease(&pool, nullptr);
  EXPECT_EQ(ChunkCount(), 1);
  EXPECT_EQ(pool.left, 64u);
  EXPECT_EQ(pool.garbage, 0u);
  EXPECT_TRUE(AllZero(first, 64));
  EXPECT_EQ(pPoolAlloc(&pool, 8), first);
}

TEST_F(PoolTest, ReleaseOfTheTailOfTheCurrentChunkOnly) {
  auto* a = static_cast<char*>(pPoolAlloc(&pool, 16));
  auto* b = static_cast<char*>(pPoolAlloc(&pool, 16));
  std::memset(a, 1, 32);
  vPoolRelease(&pool, b);
  EXPECT_EQ(pool.left, 48u);
  EXPECT_TRUE(AllZero(b, 48));
  EXPECT_EQ(a[15], 1);
  EXPECT_EQ(pPoolAlloc(&pool, 8), b);

  pPoolAlloc(&pool, 64);
  uint64_t left = pool.left;
  vPoolRelease(&pool, a);  // in an earlier chunk: not honoured
  EXPECT_EQ(ChunkCount(), 2);
  EXPECT_EQ(pool.left, left);
  EXPECT_TRUE(shown.boxes().empty());

  vPoolRelease(&pool, Data(pool.current) + 64);  // just behind the data
  ASSERT_EQ(shown.boxes().size(), 1u);
  EXPECT_EQ(shown.boxes()[0].text, "Free too much of pool tail?");
  EXPECT_EQ(shown.boxes()[0].type & kMbIconError, unsigned(kMbIconError));
}

TEST_F(PoolTest, DeleteLeavesAReusablePool) {
  pPoolAlloc(&pool, 8);
  pool.garbage = 16;
  vPoolDelete(&pool);
  EXPECT_EQ(lPoolGetGarbage(&pool), 0u);
  // The chunk size stays: the next block starts a chunk of the old size.
  EXPECT_NE(pPoolAlloc(&pool, 8), nullptr);
  EXPECT_EQ(pool.current->size, 64u);
}

TEST_F(PoolTest, ConcurrentAllocationsNeverOverlap) {
  constexpr int kThreads = 4;
  constexpr int kBlocks = 2000;
  std::vector<std::vector<uint64_t*>> blocks(kThreads);
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; t++) {
    threads.emplace_back([&, t] {
      for (int i = 0; i < kBlocks; i++) {
        auto* block = static_cast<uint64_t*>(pPoolAlloc(&pool, 16));
        block[0] = uint64_t(t);
        block[1] = uint64_t(i);
        blocks[t].push_back(block);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (int t = 0; t < kThreads; t++) {
    for (int i = 0; i < kBlocks; i++) {
      ASSERT_EQ(blocks[t][i][0], uint64_t(t));
      ASSERT_EQ(blocks[t][i][1], uint64_t(i));
    }
  }
}

}  // namespace
