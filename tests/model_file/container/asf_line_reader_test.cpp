// The line reader: terminators, pending bytes, capacities, moving to a line.
#include "model_file/container/asf_line_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model_file/container/asf_stream.h"
#include "tests/support/owned.h"

namespace {

// A reader over a copy of `bytes`.
class Reader {
 public:
  explicit Reader(const std::string& bytes)
      : bytes_(bytes),
        stream_(AsfStreamOpenMem(bytes_.data(), bytes_.size())),
        reader_(AsfLineReaderCreate(stream_)) {}

  AsfLineReader* get() { return reader_; }

  // Every line with the line number after it, as "text@number".
  std::vector<std::string> All() {
    std::vector<std::string> lines;
    char line[64];
    while (iAsfLineRead(reader_, line, sizeof line - 1, nullptr) == kAsfLineComplete) {
      lines.push_back(std::string(line) + "@" + std::to_string(reader_->iLine));
    }
    return lines;
  }

 private:
  std::string bytes_;
  Owned<AsfStream, boAsfStreamClose> stream_;
  Owned<AsfLineReader, vAsfLineReaderDelete> reader_;
};

using Lines = std::vector<std::string>;

}  // namespace

TEST(AsfLineReader, AcceptsEveryTerminator) {
  Reader reader("lf\nlfcr\n\rcr\rcrlf\r\ncrcrlf\r\r\nlast");
  // The last line has no terminator: complete, but not counted.
  EXPECT_EQ(reader.All(), (Lines{"lf@1", "lfcr@2", "cr@3", "crlf@4", "crcrlf@5", "last@5"}));
  Reader empties("\n\n\r\n\r\n");
  EXPECT_EQ(empties.All(), (Lines{"@1", "@2", "@3", "@4"}));
}

TEST(AsfLineReader, CrCrWithoutLfGivesAnEmptyLineThatDoesNotCount) {
  Reader reader("a\r\rb\r\n\r\r");
  EXPECT_EQ(reader.All(), (Lines{"a@1", "@1", "b@2", "@3", "@3"}));
}

TEST(AsfLineReader, CapacityAndBoundedLines) {
  Reader reader("abcdef\nxy");
  char line[8];
  size_t length = 0;
  EXPECT_EQ(iAsfLineRead(reader.get(), line, 4, &length), kAsfLineFilled);
  EXPECT_EQ(std::string(line, length), "abcd");
  EXPECT_EQ(reader.get()->iLine, 0);
  EXPECT_EQ(iAsfLineRead(reader.get(), line, 4, &length), kAsfLineComplete);
  EXPECT_STREQ(line, "ef");
  EXPECT_EQ(reader.get()->iLine, 1);
  EXPECT_EQ(iAsfLineRead(reader.get(), line, 4, nullptr), kAsfLineComplete);
  EXPECT_EQ(iAsfLineRead(reader.get(), line, 4, nullptr), kAsfLineEnd);

  // A cut line loses its rest up to the next LF, also across CR-only ends.
  Reader bounded("abcdefgh\r\nnext\nlongline\rlost\rlost\nfinal");
  char cut[5];
  std::vector<std::string> lines;
  while (boAsfLineReadBounded(bounded.get(), cut, sizeof cut)) {
    lines.push_back(std::string(cut) + "@" + std::to_string(bounded.get()->iLine));
  }
  EXPECT_EQ(lines, (Lines{"abcd@1", "next@2", "long@3", "fina@4"}));
}

TEST(AsfLineReader, GoesToALineForwardAndBack) {
  Reader reader("zero\none\r\ntwo\rthree\n");
  char line[16];
  EXPECT_TRUE(boAsfLineGoTo(reader.get(), 2));
  ASSERT_TRUE(boAsfLineReadBounded(reader.get(), line, sizeof line));
  EXPECT_STREQ(line, "two");
  EXPECT_TRUE(boAsfLineGoTo(reader.get(), 1));
  ASSERT_TRUE(boAsfLineReadBounded(reader.get(), line, sizeof line));
  EXPECT_STREQ(line, "one");
  EXPECT_FALSE(boAsfLineGoTo(reader.get(), 9));
  EXPECT_FALSE(boAsfLineGoTo(reader.get(), -1));
  EXPECT_TRUE(boAsfLineGoTo(reader.get(), 0));
  ASSERT_TRUE(boAsfLineReadBounded(reader.get(), line, sizeof line));
  EXPECT_STREQ(line, "zero");
}

TEST(AsfLineReader, TerminatorsAcrossBufferRefills) {
  // CR LF and CR CR LF split at the edge of the 262,144-byte buffer.
  std::string bytes(kAsfReadBufferSize - 1, 'a');
  bytes += "\r\nb\r\n";
  bytes += std::string(kAsfReadBufferSize - 5, 'c') + "\r\r\nd";
  Reader reader(bytes);
  std::string line(kAsfReadBufferSize + 1, 0);
  std::vector<size_t> lengths;
  size_t length = 0;
  while (iAsfLineRead(reader.get(), line.data(), line.size() - 1, &length) == kAsfLineComplete) {
    lengths.push_back(length);
  }
  EXPECT_EQ(lengths, (std::vector<size_t>{kAsfReadBufferSize - 1, 1, kAsfReadBufferSize - 5, 1}));
  EXPECT_EQ(reader.get()->iLine, 3);
}
