// The container over the clipboard.
#include <gtest/gtest.h>

#include <string>

#include "base/platform.h"
#include "model_file/container/asf_clipboard.h"
#include "tests/model_file/container/asf_test_util.h"
#include "tests/support/scratch_folder.h"

TEST(AsfClipboard, CopyAndPasteASection) {
  AsfFile* copy = AsfClipboardCreate();
  ASSERT_NE(copy, nullptr);
  AsfSection* section = AsfSectionAdd(copy, "PAVEMENT", kAsfTypeOther);
  vAsfKeySet(copy, nullptr, "LAYERONLY", "1");
  ASSERT_TRUE(boAsfFileWriteHead(copy));
  boAsfSectionWriteLine(copy, section, "ROW 1", 0);
  ASSERT_TRUE(boAsfClipboardCommit(copy));

  OwnedFile paste(AsfClipboardOpen());
  ASSERT_NE(paste, nullptr);
  EXPECT_STREQ(sAsfFileGetType(paste), "sfi");
  EXPECT_STREQ(sAsfKeyGetValue(paste, nullptr, "LAYERONLY"), "1");
  // The pasted handle holds its own copy of the bytes.
  vPlatformClipboardClear();
  section = AsfSectionFind(paste, "PAVEMENT", kAsfTypeOther);
  EXPECT_EQ(SectionLines(paste, section), std::vector<std::string>{"ROW 1"});
}

TEST(AsfClipboard, PasteRefusesOtherFileTypesAndEmptiness) {
  vPlatformClipboardClear();
  EXPECT_EQ(AsfClipboardOpen(), nullptr);
  std::string other =
      "[KVRFILE_ASCII]\r\n_FILETYPE gfi\r\n[O_A]\r\n[+O_A]\r\n[END]\r\n";
  vPlatformClipboardSet(other.data(), other.size());
  EXPECT_EQ(AsfClipboardOpen(), nullptr);
  std::string upper = "[KVRFILE_ASCII]\r\n_FILETYPE SFI\r\n[O_A]\r\n[END]\r\n";
  vPlatformClipboardSet(upper.data(), upper.size());
  EXPECT_NE(OwnedFile(AsfClipboardOpen()), nullptr);
  // A handle on a file is no clipboard copy; it is closed all the same.
  ScratchFolder folder;
  EXPECT_FALSE(boAsfClipboardCommit(AsfFileCreate((folder / "model.sfi").c_str())));
  vPlatformClipboardClear();
}
