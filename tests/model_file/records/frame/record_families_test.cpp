// The frame over all record families, through their descriptors: every
// family of the table is held by one of the fixtures, each fixture reads and
// writes back byte for byte, and each family's section comes back the same
// from a model that was read from it.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "model_file/records/bim/bim_attributes_record.h"
#include "model_file/records/frame/record_families.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

namespace {

const char* const kFixtures[] = {"head_sections.sfi", "plan_lines.sfi", "section_forms.sfi",
                                 "vocabulary.sfi", "road_class.sfi", "tunnel_chain.sfi",
                                 "gradings.sfi", "side_tables.sfi", "chain_range_tables.sfi",
                                 "surfaces.sfi", "pavement.sfi"};

// The head line of a family's body in a file: "[+L_]", "[+O_MASSCALC]".
std::string sBodyHead(const RmRecordFamily& family) {
  return std::string("[+") + family.Letter + "_" + family.Keyword + "]";
}

}  // namespace

TEST(RecordFamilies, EveryFamilyReadsBackWhatItWrote) {
  std::set<const RmRecordFamily*> held;
  for (const char* name : kFixtures) {
    const std::string bytes =
        sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) + "/records/" + name);
    ModelPtr model = ReadModel(bytes);
    ASSERT_NE(model, nullptr) << name;
    const std::string written = sWrittenModel(model.get());
    EXPECT_EQ(written, bytes) << name;
    ModelPtr again = ReadModel(written);
    ASSERT_NE(again, nullptr) << name;
    const std::string rewritten = sWrittenModel(again.get());
    for (const RmRecordFamily* family : RmRecordFamiliesInWriteOrder()) {
      const std::string body = sBody(written, sBodyHead(*family));
      EXPECT_EQ(sBody(rewritten, sBodyHead(*family)), body) << name << " " << family->Keyword;
      if (body != "<none>") held.insert(family);
    }
  }
  // A loaded model has no BIM store, so no fixture can hold the BIM
  // sections; their own tests write them.
  held.insert(&kRmBimAttributesDataFamily);
  held.insert(&kRmBimAttributesSchemaFamily);
  for (const RmRecordFamily* family : RmRecordFamiliesInWriteOrder()) {
    EXPECT_TRUE(held.count(family)) << "no fixture holds " << family->Keyword;
  }
}

TEST(RecordFamilies, EachSectionIsReadExactlyOnce) {
  auto written = RmRecordFamiliesInWriteOrder();
  auto read = RmRecordFamiliesInReadOrder();
  // A section without a reader (the BIM schema) is written only; one
  // without a writer (the older SUPERSTRUCT) is read only.
  auto readable = std::count_if(written.begin(), written.end(),
                                [](const RmRecordFamily* family) { return family->Read; });
  auto readOnly = std::count_if(read.begin(), read.end(),
                                [](const RmRecordFamily* family) { return !family->Write; });
  ASSERT_EQ(static_cast<long>(read.size()), readable + readOnly);
  for (const RmRecordFamily* family : written) {
    EXPECT_EQ(std::count(read.begin(), read.end(), family), family->Read ? 1 : 0)
        << family->Keyword;
  }
  for (const RmRecordFamily* family : read) {
    if (!family->Write) {
      EXPECT_EQ(std::count(read.begin(), read.end(), family), 1) << family->Keyword;
    }
  }
}
