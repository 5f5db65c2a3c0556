// One section of an initialisation file rewritten: the other lines keep
// their bytes (line ends included), the new lines end in CR LF.
#include "parameters/inif_writer.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/scratch_folder.h"

TEST(InifWriter, KeepReplacesAKeyInPlaceAndDropsItsLaterDuplicates) {
  ScratchFolder folder;
  const std::string path = folder / "a.ini";
  vWriteWholeFile(path, "[Other]\nx=1\n[draw]\n; note\n7=old\n8=stays\n 7 =twice\n\n[Last]\ny=2");
  ASSERT_TRUE(boKvrInifWriteSection(path.c_str(), "Draw", {{"7", "new"}, {"9", "added"}}, true));
  EXPECT_EQ(sReadWholeFile(path),
            "[Other]\nx=1\n[draw]\n; note\n7=new\r\n8=stays\n9=added\r\n\n[Last]\ny=2");
  EXPECT_FALSE(boKvrInifWriteSection((folder / "no/such.ini").c_str(), "Draw", {}, false));
}
