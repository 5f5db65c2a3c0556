#include "base/markers.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "base/platform.h"
#include "tests/support/scratch_folder.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

class MarkersTest : public ::testing::Test {
 protected:
  void SetUp() override {
    user_ = sUserName();
    ASSERT_FALSE(user_.empty());
  }
  // A file that exists, with `content`.
  std::string sFile(const std::string& name, const std::string& content = "model") {
    std::string path = folder_ / name;
    vWriteWholeFile(path, content);
    return path;
  }
  ScratchFolder folder_;
  std::string user_;
};

TEST_F(MarkersTest, TakingAndGivingUpAFreeFileAndDeletingItMarked) {
  std::string path = sFile("road.sfi");
  EXPECT_EQ(std::string(sMarkerFileName(path.c_str())), path + "~");
  EXPECT_EQ(iMarkerState(path.c_str(), nullptr), kMarkerFree);

  EXPECT_TRUE(boMarkerSet(path.c_str(), true));
  EXPECT_EQ(sReadWholeFile(path + "~"), user_);  // the name alone, no line end
  std::string owner;
  EXPECT_EQ(iMarkerState(path.c_str(), &owner), kMarkerMine);
  EXPECT_EQ(owner, user_);
  EXPECT_TRUE(boMarkerSet(path.c_str(), true));

  EXPECT_TRUE(boMarkerSet(path.c_str(), false));
  EXPECT_FALSE(boPlatformFileExists((path + "~").c_str()));
  EXPECT_FALSE(boMarkerSet(path.c_str(), false));

  // Deleting needs the marker and takes it along.
  EXPECT_FALSE(boFileDeleteMarked(path.c_str()));
  EXPECT_EQ(sReadWholeFile(path), "model");
  ASSERT_TRUE(boMarkerSet(path.c_str(), true));
  EXPECT_TRUE(boFileDeleteMarked(path.c_str()));
  EXPECT_FALSE(boPlatformFileExists(path.c_str()));
  EXPECT_FALSE(boPlatformFileExists((path + "~").c_str()));
}

TEST_F(MarkersTest, AnotherUsersMarkerIsLeftAlone) {
  std::string path = sFile("road.sfi");
  vWriteWholeFile(path + "~", "somebody-else");
  std::string owner;
  EXPECT_EQ(iMarkerState(path.c_str(), &owner), kMarkerSomeoneElse);
  EXPECT_EQ(owner, "somebody-else");
  EXPECT_FALSE(boMarkerSet(path.c_str(), true));
  EXPECT_FALSE(boMarkerSet(path.c_str(), false));
  EXPECT_EQ(sReadWholeFile(path + "~"), "somebody-else");
  EXPECT_FALSE(boFileDeleteMarked(path.c_str()));
  EXPECT_TRUE(boPlatformFileExists(path.c_str()));
}

TEST_F(MarkersTest, MarkerWriteAndRead) {
  std::string deep = folder_ / "new/sub/road.sfi~";
  EXPECT_TRUE(boMarkerWrite(deep.c_str(), "ola"));
  EXPECT_EQ(sReadWholeFile(deep), "ola");
  EXPECT_TRUE(boMarkerWrite(deep.c_str(), "k"));  // rewritten, not appended
  EXPECT_STREQ(sMarkerRead(deep.c_str()), "k");
#ifdef _WIN32
  // Hidden, and written over all the same.
  EXPECT_TRUE(GetFileAttributesA(deep.c_str()) & FILE_ATTRIBUTE_HIDDEN);
#endif

  EXPECT_FALSE(boMarkerWrite(deep.c_str(), ""));
  EXPECT_FALSE(boMarkerWrite((folder_ / "a:b/road.sfi~").c_str(), "ola"));
  EXPECT_FALSE(boPlatformFileExists((folder_ / "a:b").c_str()));

  std::string longName(150, 'x');
  vWriteWholeFile(deep, longName);
  EXPECT_EQ(std::string(sMarkerRead(deep.c_str())), std::string(99, 'x'));
  EXPECT_STREQ(sMarkerRead((folder_ / "none~").c_str()), "");
  EXPECT_EQ(iMarkerState(nullptr, nullptr), kMarkerFree);
  EXPECT_FALSE(boMarkerSet("", true));
}

TEST_F(MarkersTest, ListKeepsThePathsThatSucceeded) {
  std::string a = sFile("a.sfi"), b = sFile("b.sfi"), c = sFile("c.sfi");
  vWriteWholeFile(b + "~", "somebody-else");
  EXPECT_EQ(MarkerSetList({a, b, c}, true), (std::vector<std::string>{a, c}));
  EXPECT_EQ(MarkerSetList({a, b, c}, false), (std::vector<std::string>{a, c}));
  EXPECT_TRUE(MarkerSetList({}, true).empty());
}

TEST_F(MarkersTest, MoveTakesTheMarkerAlong) {
  std::string from = sFile("from.sfi", "content");
  std::string to = folder_ / "to.sfi";
  EXPECT_FALSE(boFileMoveMarked(from.c_str(), to.c_str()));  // the user does not hold `from`

  ASSERT_TRUE(boMarkerSet(from.c_str(), true));
  vWriteWholeFile(to + "~", "somebody-else");
  EXPECT_FALSE(boFileMoveMarked(from.c_str(), to.c_str()));
  EXPECT_TRUE(boPlatformFileExists(from.c_str()));

  std::remove((to + "~").c_str());
  EXPECT_TRUE(boFileMoveMarked(from.c_str(), to.c_str()));
  EXPECT_EQ(sReadWholeFile(to), "content");
  EXPECT_FALSE(boPlatformFileExists(from.c_str()));
  EXPECT_FALSE(boPlatformFileExists((from + "~").c_str()));
  EXPECT_EQ(iMarkerState(to.c_str(), nullptr), kMarkerMine);

  // A file that does not exist moves only its marker.
  std::string gone = folder_ / "gone.sfi";
  ASSERT_TRUE(boMarkerSet(gone.c_str(), true));
  std::string other = folder_ / "other.sfi";
  EXPECT_TRUE(boFileMoveMarked(gone.c_str(), other.c_str()));
  EXPECT_EQ(iMarkerState(gone.c_str(), nullptr), kMarkerFree);
  EXPECT_EQ(iMarkerState(other.c_str(), nullptr), kMarkerMine);
}

TEST_F(MarkersTest, MoveOntoItselfChangesNothing) {
  std::string path = sFile("Road.sfi", "content");
  ASSERT_TRUE(boMarkerSet(path.c_str(), true));
  std::string sameText = folder_ / "ROAD.SFI";
  EXPECT_TRUE(boFileMoveMarked(path.c_str(), sameText.c_str()));
#ifndef _WIN32
  EXPECT_FALSE(boPlatformFileExists(sameText.c_str()));  // Windows: the same file by name
#endif
  EXPECT_EQ(sReadWholeFile(path), "content");

  std::filesystem::create_directories(folder_ / "sub");
  for (const std::string& otherSpelling : {folder_ / "./Road.sfi", folder_ / "sub/../Road.sfi"}) {
    EXPECT_TRUE(boFileMoveMarked(path.c_str(), otherSpelling.c_str())) << otherSpelling;
    EXPECT_EQ(sReadWholeFile(path), "content");
    EXPECT_EQ(iMarkerState(path.c_str(), nullptr), kMarkerMine);
  }
}

TEST_F(MarkersTest, FailedMoveGivesBackTheTargetsMarker) {
  std::string from = sFile("from.sfi");
  ASSERT_TRUE(boMarkerSet(from.c_str(), true));
  // `to` is a folder with something in it, which a move cannot replace.
  std::string to = folder_ / "to.sfi";
  ASSERT_TRUE(std::filesystem::create_directories(to + "/inside"));
  EXPECT_FALSE(boFileMoveMarked(from.c_str(), to.c_str()));
  EXPECT_FALSE(boPlatformFileExists((to + "~").c_str()));
  EXPECT_EQ(iMarkerState(from.c_str(), nullptr), kMarkerMine);
  EXPECT_TRUE(boPlatformFileExists(from.c_str()));
}

TEST(MarkerPrefix, MarksFreeAndForeignFiles) {
  EXPECT_EQ(sMarkerPrefix(kMarkerFree, "ola"), "#");
  EXPECT_EQ(sMarkerPrefix(kMarkerMine, "ola"), "");
  EXPECT_EQ(sMarkerPrefix(kMarkerSomeoneElse, "ola"), "#(ola) ");
  EXPECT_EQ(sMarkerPrefix(kMarkerSomeoneElse, nullptr), "#() ");
  EXPECT_EQ(sMarkerPrefix(7, "ola"), "");
}

// A host's hook takes a call over completely.
int iHookState(const char*, std::string* outOwner) {
  if (outOwner) *outOwner = "host";
  return kMarkerSomeoneElse;
}
std::vector<std::string> movesSeen;
bool boHookMove(const char* from, const char* to) {
  movesSeen.push_back(std::string(from) + " " + to);
  return true;
}

TEST_F(MarkersTest, HostHooksTakeOver) {
  MarkerHooks former = pfnMarkerHooks;
  pfnMarkerHooks.pfnState = &iHookState;
  pfnMarkerHooks.pfnMove = &boHookMove;
  movesSeen.clear();
  std::string path = sFile("road.sfi");
  std::string owner;
  int state = iMarkerState(path.c_str(), &owner);
  bool taken = boMarkerSet(path.c_str(), true);  // no hook of its own: asks the state hook
  bool moved = boFileMoveMarked(path.c_str(), "x");
  pfnMarkerHooks = former;

  EXPECT_EQ(state, kMarkerSomeoneElse);
  EXPECT_EQ(owner, "host");
  EXPECT_FALSE(taken);
  EXPECT_TRUE(moved);
  EXPECT_EQ(movesSeen, std::vector<std::string>{path + " x"});
  EXPECT_TRUE(boPlatformFileExists(path.c_str()));
  EXPECT_FALSE(boPlatformFileExists((path + "~").c_str()));
}

}  // namespace
