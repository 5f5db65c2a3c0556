// Copy and paste of one section of a model: the pasted section is read in
// the current form and comes back as it was copied.
#include <gtest/gtest.h>

#include <string>

#include "base/platform.h"
#include "model_file/records/frame/section_clipboard.h"
#include "model_file/records/surfaces/surf_gen_record.h"
#include "model_file/records/tables/chain_range_families.h"
#include "model_file/records/tables/closed_ditches_record.h"
#include "model_file/records/tables/pavement_record.h"
#include "model_file/records/tables/side_boundaries_record.h"
#include "model_file/records/tables/surface_border_lines_record.h"
#include "model_file/records/tables/vips_special_gradings_record.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

namespace {

struct PairCase {
  const RmRecordFamily* Family;
  const char* Fixture;
};

// An empty model as an older file of version 3 loads it.
ModelPtr OlderEmptyModel() {
  return ReadModel(sModelHead({"DATAVERSION 3"}, {"MASSCALC"}) + "[+O_MASSCALC]\r\n[END]\r\n");
}

TEST(SectionClipboard, EveryPairPastesWhatWasCopied) {
  const PairCase cases[] = {
      {&kRmSurfGenFamily, "surfaces.sfi"},
      {&kRmSideBoundariesFamily, "side_tables.sfi"},
      {&kRmSurfaceBorderLinesFamily, "side_tables.sfi"},
      {&kRmClosedDitchesFamily, "side_tables.sfi"},
      {&kRmFillDitchesFamily, "chain_range_tables.sfi"},
      {&kRmVipsSpecialGradingsFamily, "gradings.sfi"},
      {&kRmPavementFamily, "pavement.sfi"},
  };
  for (const PairCase& c : cases) {
    ModelPtr source = ReadModel(
        sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) + "/records/" + c.Fixture));
    ASSERT_NE(source, nullptr) << c.Fixture;
    const std::string copied = sSectionBody(sWrittenModel(source.get()), c.Family->Keyword);
    ASSERT_NE(copied, "<none>") << c.Family->Keyword;
    ASSERT_TRUE(boRmSectionCopy(*c.Family, source.get())) << c.Family->Keyword;

    ModelPtr target = OlderEmptyModel();
    ASSERT_NE(target, nullptr);
    ASSERT_TRUE(boRmSectionPaste(*c.Family, target.get())) << c.Family->Keyword;
    EXPECT_EQ(sSectionBody(sWrittenModel(target.get()), c.Family->Keyword), copied)
        << c.Family->Keyword;
    EXPECT_EQ(target->DataVersion, 3);
  }
}

TEST(SectionClipboard, NothingToCopyOrPaste) {
  ModelPtr empty = OlderEmptyModel();
  vPlatformClipboardClear();
  EXPECT_FALSE(boRmSectionCopy(kRmSurfGenFamily, empty.get()));
  EXPECT_FALSE(boRmSectionPaste(kRmSurfGenFamily, empty.get()));
}

}  // namespace
