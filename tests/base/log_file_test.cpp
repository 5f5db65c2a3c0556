#include "base/log_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <regex>
#include <string>
#include <thread>
#include <vector>

#include "base/platform.h"
#include "base/system_error.h"
#include "tests/support/captured_messages.h"
#include "tests/support/scratch_folder.h"

namespace {

// The system's wording for an error code, as the log shows it.
std::string sErrorText(int code) {
  char text[512];
  boSystemErrorText(code, text, sizeof text);
  return text;
}

// The code of a log file in a folder that does not exist.
#ifdef _WIN32
constexpr int kMissingFolder = 3;  // ERROR_PATH_NOT_FOUND
#else
constexpr int kMissingFolder = ENOENT;
#endif

class LogFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    formerName_ = sLogGetFileName();
    formerLongStamp_ = iLogSetLongStamp(false);
    lLogResetErrors();
    vLogDeferErrors(false);
    vLogReportWriteErrors(false);
    logPath_ = folder_ / "import.log";
    vLogSetFileName(logPath_.c_str());
  }
  void TearDown() override {
    vLogSetFileName(formerName_.c_str());
    iLogSetLongStamp(formerLongStamp_ != 0);
    vLogDeferErrors(false);
    vLogReportWriteErrors(false);
    lLogResetErrors();
  }

  CapturedMessages shown_;
  ScratchFolder folder_;
  std::string logPath_;
  std::string formerName_;
  int formerLongStamp_ = 0;
};

const char* const kDateStamp = R"(\d{4}\.\d{2}\.\d{2}: )";

TEST_F(LogFileTest, EveryLineEndBecomesCrLfBehindOneStamp) {
  vLogWrite("first\nsecond\r\nthird\rfourth %d%s", 42, "!");
  vLogWrite(nullptr);
  vLogWrite("end\n");

  std::string expected = std::string("^") + kDateStamp + "first\r\nsecond\r\nthird\r\nfourth 42!\r\n" +
                         kDateStamp + "\r\n" + kDateStamp + "end\r\n\r\n$";
  std::string written = sReadWholeFile(logPath_);
  EXPECT_TRUE(std::regex_match(written, std::regex(expected))) << written;
  EXPECT_TRUE(shown_.boxes().empty());

  std::remove(logPath_.c_str());
  EXPECT_EQ(iLogSetLongStamp(true), 0);
  EXPECT_EQ(iLogSetLongStamp(true), 1);
  vLogWrite("x");
  written = sReadWholeFile(logPath_);
  EXPECT_TRUE(std::regex_match(written, std::regex(R"(\d{4}\.\d{2}\.\d{2}_\d{2}:\d{2}:\d{2}: x\r\n)")))
      << written;
}

TEST_F(LogFileTest, OverlongLineIsCutAt4093AndStillClosed) {
  std::string text(5000, 'a');
  vLogWrite("%s", text.c_str());
  std::string written = sReadWholeFile(logPath_);
  ASSERT_EQ(written.size(), 4095u);
  const size_t stampLength = 12;  // "yyyy.mm.dd: "
  EXPECT_EQ(written.substr(stampLength), std::string(4093 - stampLength, 'a') + "\r\n");

  // A line end that no longer fits whole is left out rather than split.
  std::remove(logPath_.c_str());
  std::string nearlyFull(4093 - stampLength - 1, 'b');
  vLogWrite("%s\nc", nearlyFull.c_str());
  EXPECT_EQ(sReadWholeFile(logPath_).substr(stampLength), nearlyFull + "\r\n");
}

TEST_F(LogFileTest, FailedOpenIsShownWithCodeTextAndPath) {
  vLogSetFileName("");
  vLogWrite("lost");
  ASSERT_EQ(shown_.boxes().size(), 1u);
  EXPECT_EQ(shown_.boxes()[0].text, "Logfile errno: 2 " + sErrorText(2) + "\n");
  EXPECT_EQ(shown_.boxes()[0].type, 0x2030u | kMbTopmost);
  EXPECT_EQ(lLogGetErrorCount(), 0);
  EXPECT_FALSE(boLogGetError(nullptr, nullptr, 0));
}

TEST_F(LogFileTest, DeferredFailuresKeepTheFirstReportAndCountAll) {
  vLogDeferErrors(true);
  std::string first = folder_ / "missing/first.log";
  std::string second = folder_ / "missing/second.log";
  vLogSetFileName(first.c_str());
  vLogWrite("one");
  vLogSetFileName(second.c_str());
  vLogWrite("two");

  EXPECT_TRUE(shown_.boxes().empty());
  EXPECT_EQ(lLogGetErrorCount(), 2);
  int code = 0;
  char text[512];
  ASSERT_TRUE(boLogGetError(&code, text, sizeof text));
  EXPECT_EQ(code, kMissingFolder);
  EXPECT_EQ(std::string(text), "Logfile open error (errno: " + std::to_string(kMissingFolder) +
                                   ", " + sErrorText(kMissingFolder) + ") on file: " + first);
  char cut[8];
  ASSERT_TRUE(boLogGetError(nullptr, cut, sizeof cut));
  EXPECT_STREQ(cut, "Logfile");

  EXPECT_EQ(lLogResetErrors(), 2);
  EXPECT_FALSE(boLogGetError(&code, text, sizeof text));
  EXPECT_EQ(lLogGetErrorCount(), 0);
}

TEST_F(LogFileTest, WriteFailureIsShownOnlyWhenAskedFor) {
  if (!boPlatformFileExists("/dev/full")) GTEST_SKIP() << "no /dev/full";
  vLogSetFileName("/dev/full");
  vLogWrite("quiet");
  EXPECT_TRUE(shown_.boxes().empty());

  vLogReportWriteErrors(true);
  vLogWrite("loud");
  ASSERT_EQ(shown_.boxes().size(), 1u);
  EXPECT_EQ(shown_.boxes()[0].text,
            std::string("Logfile write error, errno: 28 ") + std::strerror(ENOSPC) + "\n/dev/full");

  vLogDeferErrors(true);
  vLogWrite("kept");
  char text[512];
  ASSERT_TRUE(boLogGetError(nullptr, text, sizeof text));
  EXPECT_EQ(std::string(text), std::string("Logfile write error (errno: 28, ") +
                                   std::strerror(ENOSPC) + ") on file: /dev/full");
  EXPECT_EQ(shown_.boxes().size(), 1u);
}

TEST_F(LogFileTest, HeldFileIsTriedAgainBeforeItCountsAsFailed) {
  vLogDeferErrors(true);
  int error = 0;
  PlatformFile held = hPlatformFileOpen(logPath_.c_str(), PlatformOpenMode::kReadWriteAlways, true,
                                        &error);
  ASSERT_NE(held, kPlatformNoFile);

  auto start = std::chrono::steady_clock::now();
  vLogWrite("blocked");
  auto waited = std::chrono::steady_clock::now() - start;
  EXPECT_GE(waited, std::chrono::milliseconds(9 * 60));
  int code = 0;
  ASSERT_TRUE(boLogGetError(&code, nullptr, 0));
  EXPECT_EQ(code, kPlatformSharingViolation);
  EXPECT_EQ(lLogGetErrorCount(), 1);

  // Let go while the writer is still trying: the line gets through.
  lLogResetErrors();
  std::thread releaser([held] {
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    boPlatformFileClose(held);
  });
  vLogWrite("late");
  releaser.join();
  EXPECT_EQ(lLogGetErrorCount(), 0);
  EXPECT_TRUE(std::regex_match(sReadWholeFile(logPath_), std::regex(std::string(kDateStamp) + "late\r\n")));
}

TEST_F(LogFileTest, FileNameIsKeptToItsLimitAndTheFileCanBeDeleted) {
  std::string longName(300, 'n');
  vLogSetFileName(longName.c_str());
  EXPECT_EQ(std::string(sLogGetFileName()), std::string(256, 'n'));
  vLogSetFileName(nullptr);
  EXPECT_STREQ(sLogGetFileName(), "");

  vLogSetFileName(logPath_.c_str());
  vLogWrite("x");
  EXPECT_TRUE(boLogDelete());
  EXPECT_FALSE(boPlatformFileExists(logPath_.c_str()));
  EXPECT_FALSE(boLogDelete());
}

}  // namespace
