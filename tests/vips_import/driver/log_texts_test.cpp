// The texts of the import log that stand on their own: open errors and the
// labels of the design's version and type.
#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "vips_import/driver/open_errors.h"
#include "vips_import/driver/version_labels.h"

TEST(OpenErrorText, ACodeRunsOnIntoTheTextsAfterIt) {
  EXPECT_STREQ(sVipsOpenErrorText(-5), "File already openFile access denied");
  EXPECT_STREQ(sVipsOpenErrorText(-9), "File access denied");
  EXPECT_STREQ(sVipsOpenErrorText(-1),
               "File found ok"
               "File not accessable (cannot be opened)"
               "Illegal file (cannot read content properly)"
               "File version is incorrect"
               "File already open"
               "File access denied");
  for (int code : {-6, -7, -8, 0, 1, -10, INT_MIN, INT_MAX}) {
    EXPECT_STREQ(sVipsOpenErrorText(code), "") << code;
  }
}

TEST(VersionLabels, VersionsMatchWithinATolerance) {
  EXPECT_STREQ(sVipsVersionLabel(7.5), "Np18.30");
  EXPECT_STREQ(sVipsVersionLabel(8.200005), "Np20");
  EXPECT_STREQ(sVipsVersionLabel(8.199995), "Np20");
  EXPECT_STREQ(sVipsVersionLabel(8.20002), "Unknown");
  EXPECT_STREQ(sVipsVersionLabel(9.0), "Unknown");

  EXPECT_STREQ(sVipsModelTypeLabel(0), "Unknown");
  EXPECT_STREQ(sVipsModelTypeLabel(4), "Unknown");
}
