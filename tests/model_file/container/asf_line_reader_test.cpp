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

TEST(AsfLineReader, InPlaceGivesTheLinesOfTheBoundedRead) {
  // Every line with the number after it, read in place or bounded.
  auto lines = [](const std::string& bytes, size_t size, bool inPlace) {
    Reader reader(bytes);
    std::string fallback(size, 0);
    Lines read;
    for (;;) {
      const char* line = fallback.data();
      if (inPlace) {
        line = sAsfLineReadInPlace(reader.get(), fallback.data(), size);
        if (!line) break;
      } else if (!boAsfLineReadBounded(reader.get(), fallback.data(), size)) {
        break;
      }
      read.push_back(std::string(line) + "@" + std::to_string(reader.get()->iLine));
    }
    return read;
  };
  // Lines up to `offset` bytes in front of the buffer's edge, then `tail`.
  auto atEdge = [](size_t offset, const std::string& tail) {
    return std::string(kAsfReadBufferSize - offset - 8, 'p') + "\r\nxy\r\nz\n" + tail;
  };
  struct Case {
    std::string bytes;
    size_t size;
  };
  // The first line fills the buffer and leaves nothing pending after its
  // CR LF, so the lines behind it are in place.
  std::vector<Case> cases = {
      {"0\r\nlf\nlfcr\n\rcr\rcrlf\r\ncrcrlf\r\r\nlast", 16},
      {"0\r\na\r\rb\r\n\r\r\n\r\rc", 16},
      // Cut lines, one of exactly size - 1 bytes in front of a CR.
      {"0\r\nabcdefgh\r\nnext\nlongline\rlost\rlost\nfinal", 5},
      {"0\r\nabcd\rlost\nnext\n", 5},
      {"0\r\nabc\rkept\n", 5},
      // Lines longer than the buffer, cut and whole.
      {std::string(kAsfReadBufferSize + 10, 'q') + "\r\nz", 64},
      {"a\n" + std::string(kAsfReadBufferSize + 10, 'q') + "\r\nz", kAsfReadBufferSize + 20},
  };
  for (size_t offset = 0; offset < 6; ++offset) {
    for (const char* tail : {"line\r\nnext\r\n", "ab\r\r\ncd\n\re\r\rf", "end"}) {
      cases.push_back({atEdge(offset, tail), 64});
    }
  }
  for (const Case& c : cases) {
    EXPECT_EQ(lines(c.bytes, c.size, true), lines(c.bytes, c.size, false))
        << c.bytes.substr(c.bytes.size() > 40 ? c.bytes.size() - 40 : 0);
  }
}
