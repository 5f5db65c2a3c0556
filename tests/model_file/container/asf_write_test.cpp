// Writing containers: exact bytes of head, directory, bodies and patched
// placeholders, on memory and on files.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_handle.h"
#include "tests/support/captured_messages.h"
#include "tests/model_file/container/asf_test_util.h"
#include "tests/support/scratch_folder.h"

namespace {

// Lines in front of a section with content, one behind the last, an empty
// point section and an O section with an extent.
void vWriteSample(AsfFile* file) {
  vAsfFileSetType(file, "sfi");
  vAsfKeySet(file, nullptr, "DATAVERSION", "13");
  vAsfKeySet(file, nullptr, "", "skipped");
  vAsfKeySet(file, nullptr, "NOTE", "two\r\nlines");
  vAsfKeySet(file, nullptr, "EMPTY", "");
  vAsfKeySet(file, nullptr, "DATAVERSION", "14");
  AsfSection* lines = AsfSectionAdd(file, "CHAIN", kAsfTypeLine);
  vAsfKeySet(file, lines, "COLOR", "3");
  vAsfFieldNameSet(file, lines, 0, "CHAIN");
  vAsfFieldNameSet(file, lines, 1, "TEMP");
  vAsfFieldNameSet(file, lines, 2, "CL");
  vAsfFieldNameSet(file, lines, 1, "NAME");
  vAsfFieldNameSet(file, lines, 5, "IGNORED");
  AsfSectionAdd(file, "NOTES", kAsfTypeOther);
  AsfSection* surfaces = AsfSectionAdd(file, "SURFGEN", kAsfTypeOther);
  AsfExtent small{1, 2, 3, 4};
  vAsfExtentSet(file, surfaces, &small);
  AsfSectionAdd(file, "EMPTY", kAsfTypePoint);
  AsfSectionAdd(file, "BEHIND", kAsfTypeOther);
  ASSERT_TRUE(boAsfFileWriteHead(file));
  AsfExtent chain{10.5, 20.2, 30.1, 40.9};
  vAsfExtentSet(file, lines, &chain);
  EXPECT_TRUE(boAsfSectionWriteLine(file, surfaces, ":SURFACES 1", 0));
  EXPECT_TRUE(boAsfSectionWriteLine(file, surfaces, "ROW 0 1 and more", 7));
}

const std::string kSampleBytes =
    "[KVRFILE_ASCII]\r\n"
    "_VERSION 2\r\n"
    "_FILETYPE sfi\r\n"
    "_INDEX !!!!!!!!!!!!!!!!!!!!\r\n"
    "_EXTENT 1 2 31 41 !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!\r\n"
    "DATAVERSION 14\r\n"
    "NOTE two\\nlines\r\n"
    "EMPTY \r\n"
    "[L_CHAIN]\r\n"
    "_EXTENT 10 20 31 41 !!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!\r\n"
    "COLOR 3\r\n"
    "_FIELDNAMES CHAIN;NAME;CL;\r\n"
    "[O_NOTES]\r\n"
    "[O_SURFGEN]\r\n"
    "_EXTENT 1 2 3 4 \r\n"
    "[P_EMPTY]\r\n"
    "_EXTENT 99999999 99999999 -99999999 -99999999 !!!!!!!!!!!!!!!!!!!!!!!!\r\n"
    "[O_BEHIND]\r\n"
    "[+L_CHAIN]\r\n"
    "[+O_NOTES]\r\n"
    "[+O_SURFGEN]\r\n"
    ":SURFACES 1\r\n"
    "ROW 0 1\r\n"
    "[END]\r\n";

}  // namespace

TEST(AsfWrite, MemoryHandleWritesHeadDirectoryBodiesAndPatchedPlaceholders) {
  OwnedFile file(AsfFileCreate(nullptr));
  ASSERT_NE(file, nullptr);
  EXPECT_STREQ(file->acPath, "ClipBoard");
  vWriteSample(file);
  EXPECT_TRUE(boAsfFileFinish(file));
  EXPECT_EQ(MemBytes(file), kSampleBytes);
  EXPECT_EQ(lAsfStreamLength(file), static_cast<int64_t>(kSampleBytes.size()));
  // Finishing runs once: neither a second call nor the close adds "[END]".
  EXPECT_TRUE(boAsfFileFinish(file));
  EXPECT_EQ(MemBytes(file), kSampleBytes);
  EXPECT_FALSE(boAsfFileWriteFailed(file));
}

TEST(AsfWrite, FileHandleWritesTheSameBytes) {
  ScratchFolder folder;
  std::string path = folder / "sample.sfi";
  {
    OwnedFile file(AsfFileCreate(path.c_str()));
    ASSERT_NE(file, nullptr);
    vWriteSample(file);
    EXPECT_FALSE(boAsfMemGet(file, nullptr, nullptr));
  }
  EXPECT_EQ(sReadWholeFile(path), kSampleBytes);

  // Bodies far longer than the file's write buffer, by lines, by short blocks
  // of lines and by blocks longer than the buffer: the bytes of memory.
  auto writeLong = [](AsfFile* file) {
    vWriteSample(file);
    std::string shortBlock;
    std::string longBlock;
    for (int i = 0; i < 6000; ++i) {
      std::string line = " " + std::to_string(i) + " 1.5 -2\r\n";
      if (i < 40) shortBlock += line;
      longBlock += line;
    }
    AsfSection* behind = file->pLastSection;
    for (int i = 0; i < 12; ++i) {
      EXPECT_TRUE(boAsfSectionWriteLine(file, behind, "LAYER 12", 0));
      const std::string& block = i % 3 == 0 ? longBlock : shortBlock;
      EXPECT_TRUE(boAsfSectionWriteText(file, behind, block.data(), block.size()));
    }
  };
  OwnedFile memory(AsfFileCreate(nullptr));
  writeLong(memory);
  ASSERT_TRUE(boAsfFileFinish(memory));
  std::string longPath = folder / "long.sfi";
  {
    OwnedFile file(AsfFileCreate(longPath.c_str()));
    ASSERT_NE(file, nullptr);
    writeLong(file);
  }
  EXPECT_EQ(sReadWholeFile(longPath), MemBytes(memory));
}

TEST(AsfWrite, KeyLinesAreCutToTheirBuffers) {
  OwnedFile file(AsfFileCreate(nullptr));
  std::string longName(300, 'N');
  std::string longValue(12000, 'v');
  vAsfKeySet(file, nullptr, longName.c_str(), "lost");
  vAsfKeySet(file, nullptr, "K", longValue.c_str());
  AsfSection* section = AsfSectionAdd(file, "S", kAsfTypeOther);
  vAsfKeySet(file, section, "K", longValue.c_str());
  // An escape that no longer fits ends the value.
  std::string nearEnd = std::string(9996, 'w') + "\n";
  vAsfKeySet(file, section, "B", nearEnd.c_str());
  ASSERT_TRUE(boAsfFileWriteHead(file));
  // Head keys: 256 bytes with the terminator. Section keys: 10,000 bytes.
  std::string expected = "[KVRFILE_ASCII]\r\n_VERSION 2\r\n_FILETYPE \r\n"
                         "_INDEX !!!!!!!!!!!!!!!!!!!!\r\n"
                         "_EXTENT 99999999 99999999 -99999999 -99999999 !!!!!!!!!!!!!!!!!!!!!!!!\r\n" +
                         std::string(254, 'N') + " \r\n" + "K " + std::string(253, 'v') + "\r\n" +
                         "[O_S]\r\n" + "K " + std::string(9997, 'v') + "\r\n" + "B " +
                         std::string(9996, 'w') + "\r\n";
  EXPECT_EQ(MemBytes(file), expected);
}

TEST(AsfWrite, FieldNamesLongerThanTheLineBufferStayOneLine) {
  OwnedFile file(AsfFileCreate(nullptr));
  AsfSection* section = AsfSectionAdd(file, "WIDE", kAsfTypeLine);
  std::string names;
  for (int i = 0; i < 1200; ++i) {
    std::string name = "FIELD" + std::to_string(1000 + i);
    vAsfFieldNameSet(file, section, i, name.c_str());
    names += name + ";";
  }
  EXPECT_EQ(iAsfFieldCount(file, section), 1200);
  ASSERT_TRUE(boAsfFileWriteHead(file));
  std::string line = "\r\n_FIELDNAMES " + names + "\r\n";
  EXPECT_GT(line.size(), 10000u);
  EXPECT_TRUE(MemBytes(file).ends_with(line));
}

TEST(AsfWrite, SectionNamesAreCutTo35Characters) {
  OwnedFile file(AsfFileCreate(nullptr));
  std::string name40 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789WXYZ";
  std::string name35 = name40.substr(0, 35);
  AsfSection* section = AsfSectionAdd(file, name40.c_str(), kAsfTypeOther);
  EXPECT_EQ(sAsfSectionGetName(section), name35);
  ASSERT_TRUE(boAsfFileWriteHead(file));
  boAsfSectionWriteLine(file, section, "x", 0);
  boAsfFileFinish(file);
  std::string bytes = MemBytes(file);
  EXPECT_NE(bytes.find("[O_" + name35 + "]\r\n"), std::string::npos);

  OwnedFile read(AsfFileOpenMem(bytes.data(), bytes.size()));
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(AsfSectionFind(read, name40.c_str(), kAsfTypeOther), nullptr);
  section = AsfSectionFind(read, name35.c_str(), kAsfTypeOther);
  ASSERT_NE(section, nullptr);
  EXPECT_EQ(SectionLines(read, section), std::vector<std::string>{"x"});
}

TEST(AsfWrite, BodiesFollowWhatWasWrittenLastAndUnknownTypesStopTheHead) {
  OwnedFile file(AsfFileCreate(nullptr));
  AsfSection* a = AsfSectionAdd(file, "A", kAsfTypeOther);
  AsfSection* b = AsfSectionAdd(file, "B", kAsfTypeOther);
  ASSERT_TRUE(boAsfFileWriteHead(file));
  boAsfSectionWriteLine(file, b, "b1", 0);
  // A was started in front of B with an empty body and cannot be reopened.
  boAsfSectionWriteLine(file, a, "a1", 0);
  std::string bytes = MemBytes(file);
  EXPECT_EQ(bytes.substr(bytes.find("[+")), "[+O_A]\r\n[+O_B]\r\nb1\r\na1\r\n");

  OwnedFile stopped(AsfFileCreate(nullptr));
  AsfSectionAdd(stopped, "A", kAsfTypeOther);
  AsfSection* odd = AsfSectionAdd(stopped, "ODD", 7);
  AsfSectionAdd(stopped, "C", kAsfTypeOther);
  EXPECT_FALSE(boAsfFileWriteHead(stopped));
  EXPECT_TRUE(MemBytes(stopped).ends_with("[O_A]\r\n"));
  EXPECT_FALSE(boAsfSectionWriteLine(stopped, odd, "x", 0));
}

TEST(AsfWrite, CreateFailureIsShownAndShortWritesStick) {
  {
    CapturedMessages shown;
    EXPECT_EQ(AsfFileCreate("/no-such-folder/model.sfi"), nullptr);
    EXPECT_EQ(shown.texts(),
              std::vector<std::string>{"Error creating:\n/no-such-folder/model.sfi"});
  }
  OwnedFile file(AsfFileCreate("/dev/full"));
  if (!file) GTEST_SKIP() << "no /dev/full here";
  AsfSection* section = AsfSectionAdd(file, "S", kAsfTypeOther);
  boAsfFileWriteHead(file);
  std::string line(200, 'x');
  bool failed = false;
  for (int i = 0; i < 1000 && !failed; ++i) failed = !boAsfSectionWriteLine(file, section, line.c_str(), 0);
  EXPECT_TRUE(failed);
  EXPECT_TRUE(boAsfFileWriteFailed(file));
  EXPECT_FALSE(boAsfFileFinish(file));
  EXPECT_TRUE(boAsfFileWriteFailed(file));
}
