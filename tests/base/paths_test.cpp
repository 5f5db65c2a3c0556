#include "base/paths.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

#include "base/platform.h"
#include "tests/support/scratch_folder.h"

namespace {

using Texts = std::array<const char*, 2>;
using Paths = std::array<const char*, 3>;

TEST(PathKinds, DrivesUncNamesAndRoots) {
  EXPECT_FALSE(boPathHasDrive("1:\\x"));
  EXPECT_TRUE(boPathIsAbsolute("\\\\server\\share"));
  EXPECT_FALSE(boPathIsAbsolute("\\x"));
  // The platform's root where that is '/'; on Windows the root of the current drive.
  EXPECT_EQ(boPathIsAbsolute("/home/x"), cPlatformPathSeparator() == '/');
  EXPECT_FALSE(boPathIsAbsolute(nullptr));
}

TEST(PathParts, DirectoryFileNameAndExtension) {
  for (auto [path, directory] : {Texts{"c:\\x", "c:\\"}, {"c:x", "c:"}, {"x", ""},
                                 {"a\\b/c.txt", "a\\b"}, {"c:/x/", "c:/x"}, {"/tmp/a", "/tmp"},
                                 {nullptr, ""}}) {
    EXPECT_STREQ(sPathDirectory(path), directory) << (path ? path : "null");
  }
#ifndef _WIN32
  EXPECT_STREQ(sPathDirectory("/a"), "/");  // the root of the POSIX form
#endif

  char out[kPathSize];
  EXPECT_STREQ(sPathFileNameTo("c:x", out, sizeof out), "x");
  EXPECT_STREQ(sPathFileNameTo("a/b\\c.gen", out, sizeof out), "c.gen");
  EXPECT_STREQ(sPathFileNameTo("d\\long.name", out, 5), "name");  // counted from the end
  EXPECT_STREQ(sPathBaseNameTo("c:\\v.d\\veg.tar.gen", out, sizeof out), "veg.tar");
  EXPECT_STREQ(sPathExtensionTo("c:\\v.d\\veg.gen", out, sizeof out), "gen");
  EXPECT_EQ(PathFindExtension("v.d/veg"), nullptr);

  char path[16] = "x\\a.gen";
  vPathSetExtension(path, "log", sizeof path);
  EXPECT_STREQ(path, "x\\a.log");
  vPathSetExtension(path, "", sizeof path);
  EXPECT_STREQ(path, "x\\a");
  vPathSetExtension(path, "toolongextension", sizeof path);
  EXPECT_STREQ(path, "x\\a.toolongexte");
}

TEST(PathJoin, KeepsWindowsRulesAndThePlatformsOwnForm) {
  for (auto [directory, joined] : {Texts{"c:\\a", "c:\\a\\b"}, {"c:", "c:b"}, {"", "b"},
                                   {"c:/a/", "c:/a/\\b"}}) {
    EXPECT_STREQ(sPathJoin(directory, "b"), joined) << directory;
  }
  // Paths of the platform's own form are joined with its separator.
  const std::string separator(1, cPlatformPathSeparator());
  EXPECT_EQ(std::string(sPathJoin("/tmp", "b")), "/tmp" + separator + "b");
#ifndef _WIN32
  EXPECT_STREQ(sPathJoin("/tmp/", "b"), "/tmp/b");
#endif
  char small[6];
  EXPECT_EQ(std::string(sPathJoinTo("abc", "def", small, sizeof small)), "abc" + separator + "d");

  char component[kPathSize];
  const char* rest = "c:\\a/b";
  for (const char* expected : {"c:", "a", "b"}) {
    rest = PathNextComponent(rest, component, sizeof component);
    EXPECT_STREQ(component, expected);
  }
  EXPECT_EQ(*rest, 0);
  EXPECT_EQ(PathNextComponent(nullptr, component, sizeof component), nullptr);
}

TEST(PathRelative, WalksSharedComponentsIgnoringCase) {
  std::string tooLong(kPathSize, 'a');
  for (auto [from, to, path] :
       {Paths{"c:\\a\\b", "c:\\a\\c\\f.txt", "..\\c\\f.txt"}, {"c:\\a", "C:\\A\\x\\y", "x\\y"},
        {"c:\\a\\b", "c:\\a", ".."}, {"c:\\a", "d:\\x", "d:\\x"}, {tooLong.c_str(), "a", ""},
        {"/data/veg", "/data/veg/m.sfi", "m.sfi"}}) {
    EXPECT_STREQ(sPathRelative(from, to), path) << from << " " << to;
  }
  // Taken against the first, relative only inside it.
  for (auto [from, to, path] :
       {Paths{"c:\\a", "b\\c.txt", "b\\c.txt"}, {"c:\\a", "d:\\x", "d:\\x"}}) {
    EXPECT_STREQ(sPathRelativeOrFull(from, to), path) << from << " " << to;
  }
#ifndef _WIN32
  // The POSIX form, which on Windows is a path on the current drive.
  EXPECT_STREQ(sPathRelative("/data/veg", "/data/bane/m.sfi"), "../bane/m.sfi");
  for (auto [from, to, path] :
       {Paths{"/data/veg", "sub/m.sfi", "sub/m.sfi"},
        {"/data/veg", "../bane/m.sfi", "/data/bane/m.sfi"},
        {"/data/veg", "/other/m.sfi", "/other/m.sfi"}}) {
    EXPECT_STREQ(sPathRelativeOrFull(from, to), path) << from << " " << to;
  }
#endif
}

TEST(PathSystem, FullPathsSamePlacesAndExistence) {
  char out[kPathSize];
#ifdef _WIN32
  EXPECT_STREQ(sPathFullTo("c:\\a\\.\\b\\..\\c", out, sizeof out), "c:\\a\\c");
#else
  EXPECT_STREQ(sPathFullTo("/a/./b/../c", out, sizeof out), "/a/c");
#endif
  EXPECT_STREQ(sPathFullTo("c:\\x\\y", out, sizeof out), "c:\\x\\y");
  EXPECT_EQ(sPathFullTo("", out, sizeof out), nullptr);
  EXPECT_STREQ(out, "");
  EXPECT_TRUE(boPathSame("/tmp/x/", "/TMP/x"));
  EXPECT_FALSE(boPathSame("/tmp/x", "/tmp/y"));

  ScratchFolder folder;
  ASSERT_FALSE(folder.path().empty());
  std::filesystem::create_directory(folder / "real");
  std::filesystem::create_directory(folder / "other");
#ifdef _WIN32
  // Without symbolic links: another spelling of the same folder.
  const std::string link = folder / "other/../REAL";
#else
  std::filesystem::create_directory_symlink(folder / "real", folder / "link");
  const std::string link = folder / "link";
#endif
  vWriteWholeFile(folder / "real/m.sfi", "x");

  std::string home = std::filesystem::current_path().string();
  EXPECT_EQ(iPathComparePlaces((folder / "real").c_str(), link.c_str()), 0);
  EXPECT_EQ(iPathComparePlaces((folder / "real").c_str(), (folder / "other").c_str()), 1);
  EXPECT_EQ(iPathComparePlaces((folder / "real").c_str(), (folder / "gone").c_str()), -1);
  EXPECT_EQ(std::filesystem::current_path().string(), home);

  EXPECT_STREQ(sPathInPlace(link.c_str(), (folder / "real/m.sfi").c_str()), "m.sfi");
  std::string elsewhere = folder / "other/m.sfi";
  EXPECT_EQ(sPathInPlace((folder / "real").c_str(), elsewhere.c_str()), elsewhere);

  EXPECT_TRUE(boFileExists((folder / "real/m.sfi").c_str()));
  EXPECT_FALSE(boFileExists(nullptr));

  char full[kPathSize];
  vPathMakeAbsolute(folder.path().c_str(), "other/../real/m.sfi", full, sizeof full);
  EXPECT_EQ(std::string(full), std::filesystem::path(folder / "real/m.sfi").make_preferred().string());
}

TEST(PathFilters, BuildDialogFilters) {
  char out[64];
  const char* plain[] = {"gen", "sfi", nullptr};
  EXPECT_STREQ(sFilterFromExtensions(plain, out, sizeof out), "*.gen|*.gen|*.sfi|*.sfi|");
  const char* whole[] = {"Models|*.sfi|", "gen", nullptr};
  EXPECT_STREQ(sFilterFromExtensions(whole, out, sizeof out), "Models|*.sfi|*.gen|*.gen|");
  EXPECT_EQ(sFilterFromExtensions(whole, out, 10), nullptr);
  char small[24];
  EXPECT_STREQ(sFilterFromExtensions(plain, small, sizeof small), "*.gen|*.gen|");

  EXPECT_STREQ(sFilterFromList("gen; sfi;", ';', "Models"), "Models (*.gen;*.sfi)|*.gen;*.sfi|");
}

}  // namespace
