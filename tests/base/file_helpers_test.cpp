#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#endif

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <utility>

#include "base/clipboard_file.h"
#include "base/file_names.h"
#include "base/file_times.h"
#include "base/platform.h"
#include "base/temp_files.h"
#include "tests/support/scratch_folder.h"

namespace {

TEST(FileNames, ValidNames) {
  for (const char* refused : {"", "nul.txt", "Com1", "lpt9.a.b", "AUX", "a.", "a ", "a:b", "a\\b",
                              "a/b", "a\"b", "a<b", "a>b", "a|b", "a?b", "a*b", "a\x1F" "b"}) {
    EXPECT_FALSE(boFileNameValid(refused)) << refused;
  }
  EXPECT_FALSE(boFileNameValid(nullptr));
  for (const char* accepted : {"COM10", "console", "nul_.txt", ".hidden", "road model.sfi",
                               "Gr\xF8" "ft.sfi", "a.b.c"}) {
    EXPECT_TRUE(boFileNameValid(accepted)) << accepted;
  }
}

TEST(FileNames, PathNamesAreCheckedOneByOne) {
  for (const char* path : {"/tmp/x/./../road.sfi~", "c:\\work\\road.sfi", "relative//road.sfi"}) {
    EXPECT_TRUE(boPathNamesValid(path)) << path;
  }
  for (const char* path : {"/tmp/a:b/road.sfi", "/tmp/con/road.sfi", "/tmp/road.sfi.", ""}) {
    EXPECT_FALSE(boPathNamesValid(path)) << path;
  }
  EXPECT_FALSE(boPathNamesValid(nullptr));
}

TEST(FileNames, SanitiseTakesOutWhatIsRefused) {
  for (auto [name, sanitised] :
       {std::pair<const char*, const char*>{"a<b>:c?.txt", "abc.txt"}, {"tab\there", "tabhere"},
        {"name. . ", "name"}, {"nul.txt", "nul_.txt"}, {"com1", "com1_"}, {"LPT1.", "LPT1_"},
        {"c|on", "con_"}, {"COM10", "COM10"}, {"?*", ""}, {nullptr, ""}}) {
    EXPECT_STREQ(sFileNameSanitise(name), sanitised) << (name ? name : "null");
  }
}

class TempFilesTest : public ::testing::Test {
 protected:
  void TearDown() override { vTempUseSystemFolder(false); }
  ScratchFolder folder_;
};

TEST_F(TempFilesTest, TempFileIsMadeBesideThePath) {
  std::string target = folder_ / "road.sfi";
  std::string first = sTempFileNear(target.c_str(), false);
  std::string second = sTempFileNear(target.c_str(), false);
  // The full path, in the system's own form.
  char expectedStart[4096];
  ASSERT_TRUE(boPlatformFullPath((folder_ / "$$$_").c_str(), expectedStart, sizeof expectedStart));
  EXPECT_EQ(first.compare(0, std::strlen(expectedStart), expectedStart), 0) << first;
  EXPECT_EQ(first.size(), std::strlen(expectedStart) + 6) << first;
  EXPECT_NE(first, second);
  EXPECT_TRUE(boPlatformFileExists(first.c_str()));
  EXPECT_EQ(sReadWholeFile(first), "");

#ifndef _WIN32
  // It takes the place of a model file, so it has the usual permissions.
  mode_t mask = umask(0);
  umask(mask);
  struct stat status;
  ASSERT_EQ(stat(first.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0666 & ~mask);
#endif
}

TEST_F(TempFilesTest, SystemFolderOnlyWhenAllowed) {
  EXPECT_STREQ(sTempFileNear("/x/road.sfi", true), "");
  vTempUseSystemFolder(true);
  char system[257];
  ASSERT_TRUE(boPlatformTempDirectory(system, sizeof system));
  std::string made = sTempFileNear("/x/road.sfi", true);
  EXPECT_EQ(made.compare(0, std::strlen(system) + 4, std::string(system) + "$$$_"), 0) << made;
  EXPECT_TRUE(boPlatformFileExists(made.c_str()));
  std::remove(made.c_str());
}

TEST_F(TempFilesTest, UnusableFolderGivesTheEmptyText) {
  // A plain file where the folder should be cannot take a file, even for root.
  std::string plain = folder_ / "plain";
  vWriteWholeFile(plain, "x");
  EXPECT_STREQ(sTempFileNear((plain + "/road.sfi").c_str(), false), "");
  EXPECT_STREQ(sTempFileNear((folder_ / "missing/road.sfi").c_str(), false), "");
}

// 2001-09-09 01:46:40 UTC: 10^9 seconds after 1970, in 100 ns ticks since 1601.
constexpr int64_t kBillennium = (1000000000LL + 11644473600LL) * 10000000LL;

bool boSetWriteTimeToBillennium(const std::string& path) {
#ifdef _WIN32
  HANDLE file = CreateFileA(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  FILETIME time = {static_cast<DWORD>(kBillennium), static_cast<DWORD>(kBillennium >> 32)};
  bool set = SetFileTime(file, nullptr, nullptr, &time) != 0;
  CloseHandle(file);
  return set;
#else
  struct timespec times[2] = {{1000000000, 0}, {1000000000, 0}};
  return utimensat(AT_FDCWD, path.c_str(), times, 0) == 0;
#endif
}

TEST(FileTimes, WriteTimeOfAFile) {
  ScratchFolder folder;
  std::string path = folder / "road.sfi";
  int64_t time = 0;
  EXPECT_FALSE(boFileGetTime(path.c_str(), &time));
  vWriteWholeFile(path, "x");

  ASSERT_TRUE(boSetWriteTimeToBillennium(path));
  ASSERT_TRUE(boFileGetTime(path.c_str(), &time));
  EXPECT_EQ(time, kBillennium);
  EXPECT_TRUE(boFileGetTime(path.c_str(), nullptr));
  EXPECT_EQ(iFileTimeCompare(time, lFileTimeNow()), -1);
  EXPECT_EQ(iFileTimeCompare(time, time), 0);
  EXPECT_EQ(iFileTimeCompare(time + 1, time), 1);
}

TEST(ClipboardFile, AppendsTheTextWithoutTerminator) {
  ScratchFolder folder;
  std::string path = folder / "clip.txt";
  vPlatformClipboardClear();
  vClipboardCopyToFile(path.c_str());
  EXPECT_FALSE(boPlatformFileExists(path.c_str()));

  vWriteWholeFile(path, "x");
  vPlatformClipboardSet("abc", 3);
  vClipboardCopyToFile(path.c_str());
  vPlatformClipboardSet("de\0zz", 5);
  vClipboardCopyToFile(path.c_str());
  EXPECT_EQ(sReadWholeFile(path), "xabcde");
  vPlatformClipboardClear();
  vClipboardCopyToFile(nullptr);
}

}  // namespace
