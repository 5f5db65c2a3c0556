#include "base/platform.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>

#include "base/process_runner.h"
#include "base/system_error.h"
#include "tests/support/scratch_folder.h"

namespace {

// Where the two systems differ, the Windows build expects the Windows way.
#ifdef _WIN32
constexpr bool kOnWindows = true;
#else
constexpr bool kOnWindows = false;
#endif

TEST(RunProcess, ExitCodesAndFailuresToStart) {
  // What arrives of a code: the whole of it on Windows, the low byte here.
  EXPECT_EQ(iPlatformExitCodeOf(1001), kOnWindows ? 1001 : 233);
  for (int code : {3, 1001, -1}) {
    std::string line = std::string(KVRVIPS_EXIT_WITH) + " " + std::to_string(code);
    EXPECT_EQ(iRunProcess(line.c_str()), iPlatformExitCodeOf(code)) << code;
  }
  for (const char* line : {"/no/such/program 1", "kvrvips_no_such_program_anywhere", "", "   "}) {
    EXPECT_EQ(iRunProcess(line), kRunProcessNotStarted) << line;
  }
  EXPECT_EQ(iRunProcess(nullptr), kRunProcessNotStarted);
}

TEST(RunProcess, CommandLineIsSplitAtBlanksAndCut) {
  // The helper writes the number of arguments that it saw to the count file.
  ScratchFolder folder;
  std::string countFile = folder / "count";
  std::string head = std::string(KVRVIPS_EXIT_WITH) + " 0 " + countFile;
  // "0", the count file, and a path with blanks that falls apart in three.
  EXPECT_EQ(iRunProcess((head + " /work/my road  model.gen").c_str()), 0);
  EXPECT_EQ(sReadWholeFile(countFile), "5");

  // Only the first 2000 characters of the line are used.
  std::string line = head;
  size_t wordsWithin = 0;
  while (line.size() + 2 <= 2000) {
    line += " x";
    ++wordsWithin;
  }
  std::string overlong = line + std::string(500, 'y') + " z z z";
  EXPECT_EQ(iRunProcess(overlong.c_str()), 0);
  // The cut glues a run of 'y' to the last 'x'; nothing behind it arrives.
  EXPECT_EQ(sReadWholeFile(countFile), std::to_string(2 + wordsWithin));
}

TEST(CodePage, NorwegianLettersAndTheEuroGoBothWays) {
  const char16_t wide[] = u"\u00C6\u00D8\u00C5\u00E6\u00F8\u00E5 \u20AC";
  char narrow[16];
  EXPECT_EQ(uPlatformWideToAnsi(wide, narrow, sizeof narrow), 8u);
  EXPECT_STREQ(narrow, "\xC6\xD8\xC5\xE6\xF8\xE5 \x80");
  char16_t back[16];
  EXPECT_EQ(uPlatformAnsiToWide(narrow, back, 16), 8u);
  EXPECT_EQ(std::u16string(back), std::u16string(wide));

  // Outside the code page: a letter, a symbol and a character beyond 16 bits.
  EXPECT_EQ(uPlatformWideToAnsi(u"a\u0100b\u2603c\U0001F600d", narrow, sizeof narrow), 7u);
  EXPECT_STREQ(narrow, "a?b?c?d");
  // Cut to the room given, always terminated.
  EXPECT_EQ(uPlatformWideToAnsi(wide, narrow, 4), 3u);
  EXPECT_STREQ(narrow, "\xC6\xD8\xC5");
  EXPECT_EQ(uPlatformAnsiToWide(nullptr, back, 16), 0u);
}

TEST(CodePage, CompareIgnoresTheCaseOfNorwegianLetters) {
  EXPECT_EQ(iPlatformCompareNoCase("\xC6\xD8\xC5", "\xE6\xF8\xE5", SIZE_MAX), 0);
  EXPECT_EQ(iPlatformCompareNoCase("Veg", "vEG", SIZE_MAX), 0);
  EXPECT_LT(iPlatformCompareNoCase("a", "B", SIZE_MAX), 0);
  EXPECT_EQ(iPlatformCompareNoCase("abX", "ABy", 2), 0);
  EXPECT_NE(iPlatformCompareNoCase("\xDF", "\xFF", SIZE_MAX), 0);  // sharp s has no capital
}

TEST(Paths, FullPathResolvesPointsByText) {
  ScratchFolder folder;
  char former[4096];
  ASSERT_TRUE(boPlatformCurrentDirectory(former, sizeof former));
  ASSERT_TRUE(boPlatformChangeDirectory(folder.path().c_str()));
  char here[4096];
  ASSERT_TRUE(boPlatformCurrentDirectory(here, sizeof here));
  std::string current = here;
  std::string parent = current.substr(0, current.find_last_of("/\\"));
  // "/" here, the current drive's root ("c:\\") on Windows.
  std::string root = current.substr(0, current.find_first_of("/\\") + 1);
  const char separator = cPlatformPathSeparator();

  char full[4096];
  EXPECT_TRUE(boPlatformFullPath(".", full, sizeof full));
  EXPECT_EQ(std::string(full), current);
  EXPECT_TRUE(boPlatformFullPath("..", full, sizeof full));
  EXPECT_EQ(std::string(full), parent);
  EXPECT_TRUE(boPlatformFullPath("a/./b/../c.sfi", full, sizeof full));
  EXPECT_EQ(std::string(full), current + separator + "a" + separator + "c.sfi");
  std::string fromRoot = std::string(1, separator) + ".." + separator + "x" + separator;
  EXPECT_TRUE(boPlatformFullPath(fromRoot.c_str(), full, sizeof full));
  EXPECT_EQ(std::string(full), root + "x" + separator);
  EXPECT_FALSE(boPlatformFullPath("a", full, 3));
  EXPECT_STREQ(full, "");

  ASSERT_TRUE(boPlatformChangeDirectory(former));
}

TEST(Files, ExclusiveOpenKeepsOtherWritersOut) {
  ScratchFolder folder;
  std::string path = folder / "held.sfi";
  vWriteWholeFile(path, "content");
  int error = 0;
  PlatformFile held =
      hPlatformFileOpen(path.c_str(), PlatformOpenMode::kReadWriteAlways, true, &error);
  ASSERT_NE(held, kPlatformNoFile);

  EXPECT_EQ(hPlatformFileOpen(path.c_str(), PlatformOpenMode::kReadWriteAlways, true, &error),
            kPlatformNoFile);
  EXPECT_EQ(error, kPlatformSharingViolation);
  // Making the file anew must not empty it while it is held.
  EXPECT_EQ(hPlatformFileOpen(path.c_str(), PlatformOpenMode::kReadWriteCreate, true, &error),
            kPlatformNoFile);
  // Readers that share are let in here; on Windows the holder shares
  // nothing, readers included.
  PlatformFile reader =
      hPlatformFileOpen(path.c_str(), PlatformOpenMode::kReadExisting, false, &error);
  EXPECT_EQ(reader != kPlatformNoFile, !kOnWindows);
  boPlatformFileClose(reader);

  EXPECT_TRUE(boPlatformFileClose(held));
  EXPECT_EQ(sReadWholeFile(path), "content");
  PlatformFile again =
      hPlatformFileOpen(path.c_str(), PlatformOpenMode::kReadWriteCreate, true, &error);
  ASSERT_NE(again, kPlatformNoFile);
  boPlatformFileClose(again);
  EXPECT_EQ(sReadWholeFile(path), "");
}

TEST(Files, SameFileByIdentityOrByFullPath) {
  ScratchFolder folder;
  std::string path = folder / "a.sfi";
  vWriteWholeFile(path, "x");
  EXPECT_TRUE(boPlatformSameFile(path.c_str(), (folder / "./a.sfi").c_str()));
  EXPECT_TRUE(boPlatformSameFile((folder / "n.sfi").c_str(), (folder / "sub/../n.sfi").c_str()));
  EXPECT_EQ(boPlatformSameFile(path.c_str(), (folder / "A.sfi").c_str()), kOnWindows);
  EXPECT_FALSE(boPlatformSameFile(path.c_str(), nullptr));
}

TEST(Files, FlushesReachFilesAndFoldersAndFailOnWhatIsNotThere) {
  ScratchFolder folder;
  std::string path = folder / "a.sfi";
  vWriteWholeFile(path, "x");
  EXPECT_TRUE(boPlatformFlushFile(path.c_str()));
  EXPECT_TRUE(boPlatformFlushDirectory(folder.path().c_str()));
  EXPECT_TRUE(boPlatformFlushDirectory(""));  // the current folder
  EXPECT_FALSE(boPlatformFlushFile((folder / "missing.sfi").c_str()));
  EXPECT_FALSE(boPlatformFlushFile(""));
  EXPECT_FALSE(boPlatformFlushDirectory(path.c_str()));
}

TEST(SystemErrors, TextsOfCodes) {
  char text[256];
  EXPECT_TRUE(boSystemErrorText(ENOENT, text, sizeof text));
  std::string whole = text;
#ifdef _WIN32
  // The system's wording, without the line end that it comes with.
  ASSERT_FALSE(whole.empty());
  EXPECT_EQ(whole.find_first_of("\r\n"), std::string::npos) << whole;
  EXPECT_NE(whole.back(), ' ');
  EXPECT_TRUE(boSystemErrorText(kPlatformSharingViolation, text, sizeof text));
  EXPECT_STRNE(text, "");
#else
  EXPECT_EQ(whole, std::strerror(ENOENT));
  // The sharing violation speaks of the file in use, not of its number's
  // other meaning on this system.
  EXPECT_TRUE(boSystemErrorText(kPlatformSharingViolation, text, sizeof text));
  EXPECT_STREQ(text, "The file is being used by another process");
#endif
  char small[5];
  EXPECT_TRUE(boSystemErrorText(ENOENT, small, sizeof small));
  EXPECT_EQ(std::string(small), whole.substr(0, 4));
  EXPECT_FALSE(boSystemErrorText(ENOENT, nullptr, 0));
}

TEST(Modules, LibrarySearchPathIsSetAndRestored) {
  // On Windows the DLL folder of the process; here a seam that keeps none.
  ScratchFolder folder;
  char path[2000];
  vPlatformSetLibrarySearchPath(folder.path().c_str());
  ASSERT_TRUE(boPlatformGetLibrarySearchPath(path, sizeof path));
  EXPECT_EQ(std::string(path), kOnWindows ? folder.path() : "");
  // An empty saved path goes back as null, which leaves no folder set.
  vPlatformSetLibrarySearchPath(nullptr);
  ASSERT_TRUE(boPlatformGetLibrarySearchPath(path, sizeof path));
  EXPECT_STREQ(path, "");
}

TEST(Modules, ModulePathNamesThisProgram) {
  char path[4096];
  ASSERT_TRUE(boPlatformModulePath(path, sizeof path));
  std::string name = std::string("kvrvips_base_tests") + kPlatformProgramSuffix;
  std::string module = path;
  ASSERT_GE(module.size(), name.size());
  EXPECT_EQ(module.substr(module.size() - name.size()), name);
  EXPECT_TRUE(boPlatformFileExists(path));
  EXPECT_FALSE(boPlatformModulePath(path, 4));
}

}  // namespace
