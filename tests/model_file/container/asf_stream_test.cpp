// Memory streams under the container; file streams are read and written
// through the container in asf_read_test and asf_write_test.
#include "model_file/container/asf_stream.h"

#include <gtest/gtest.h>

#include <string>

TEST(AsfStream, MemoryBlockGrowsByAGrowingStep) {
  AsfStream* stream = AsfStreamCreateMem();
  ASSERT_NE(stream, nullptr);
  std::string chunk(kAsfMemStep, 'x');
  EXPECT_EQ(uAsfStreamWrite(stream, chunk.data(), chunk.size()), chunk.size());
  EXPECT_EQ(stream->pMem->uCapacity, kAsfMemStep);
  EXPECT_EQ(uAsfStreamWrite(stream, "y", 1), 1u);
  // The step grows by half of itself, then fills the need.
  EXPECT_EQ(stream->pMem->uStep, kAsfMemStep * 3 / 2);
  EXPECT_EQ(stream->pMem->uCapacity, kAsfMemStep + kAsfMemStep * 3 / 2);
  EXPECT_EQ(lAsfStreamSize(stream), static_cast<int64_t>(kAsfMemStep + 1));

  // Overwriting in place keeps the length; a write behind the end leaves
  // zeroes in the gap.
  EXPECT_TRUE(boAsfStreamSeek(stream, 0, 0));
  EXPECT_EQ(uAsfStreamWrite(stream, "ab", 2), 2u);
  EXPECT_EQ(lAsfStreamSize(stream), static_cast<int64_t>(kAsfMemStep + 1));
  EXPECT_TRUE(boAsfStreamSeek(stream, 2, 2));
  EXPECT_EQ(uAsfStreamWrite(stream, "z", 1), 1u);
  const unsigned char* data = stream->pMem->pData;
  EXPECT_EQ(data[0], 'a');
  EXPECT_EQ(data[kAsfMemStep], 'y');
  EXPECT_EQ(data[kAsfMemStep + 1], 0);
  EXPECT_EQ(data[kAsfMemStep + 3], 'z');
  EXPECT_TRUE(boAsfStreamClose(stream));
}

TEST(AsfStream, ReadOnlyBlockReadsWhatIsLeftAndRefusesWrites) {
  const char bytes[] = "0123456789";
  AsfStream* stream = AsfStreamOpenMem(bytes, 10);
  char out[16] = {};
  EXPECT_TRUE(boAsfStreamSeek(stream, 4, 0));
  EXPECT_TRUE(boAsfStreamSeek(stream, 2, 1));
  EXPECT_EQ(uAsfStreamRead(stream, out, sizeof out), 4u);
  EXPECT_EQ(std::string(out, 4), "6789");
  EXPECT_EQ(uAsfStreamRead(stream, out, sizeof out), 0u);
  // Positions outside the block read nothing.
  EXPECT_TRUE(boAsfStreamSeek(stream, -20, 2));
  EXPECT_EQ(uAsfStreamRead(stream, out, sizeof out), 0u);
  EXPECT_TRUE(boAsfStreamSeek(stream, 50, 0));
  EXPECT_EQ(uAsfStreamRead(stream, out, sizeof out), 0u);
  EXPECT_EQ(lAsfStreamTell(stream), 50);
  EXPECT_TRUE(boAsfStreamSeek(stream, 0, 0));
  EXPECT_EQ(uAsfStreamWrite(stream, "x", 1), 0u);
  EXPECT_EQ(bytes[0], '0');
  EXPECT_TRUE(boAsfStreamClose(stream));
}
