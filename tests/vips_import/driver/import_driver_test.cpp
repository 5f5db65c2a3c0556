// The import driver on its own, where the export cannot reach it.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/vips_import/conversion_fixtures.h"
#include "vips_import/driver/import_driver.h"
#include "vips_import/driver/import_guarded.h"

TEST(VipsImport, WithoutAModelNoLogIsMadeAndTheLogPathIsEmpty) {
  ScratchFolder folder;
  vWriteWholeFile(folder / "veg.json", sDesignDocument(sInputOf("10.0", 1)));
  char unset[] = "<unset>";
  char* logFile = unset;
  EXPECT_EQ(iVipsImportGuarded((folder / "veg.json").c_str(), nullptr, kVipsImportFull,
                               &logFile, 0, 0),
            -1);
  ASSERT_NE(logFile, nullptr);
  EXPECT_STREQ(logFile, "");
  EXPECT_FALSE(std::filesystem::exists(folder / "veg.log"));

  // A caller that gives no place for the log path gets none written.
  EXPECT_EQ(iVipsImport((folder / "veg.json").c_str(), nullptr, kVipsImportFull, nullptr, 0, 0),
            -1);
}
