#include "base/resources.h"

#include <gtest/gtest.h>

namespace {

TEST(Resources, UnknownIdsNameThemselves) {
  EXPECT_STREQ(sResourceText(7), "?:7");
  EXPECT_STREQ(sResourceText(-12), "?:-12");
  EXPECT_STREQ(sResourceTextOem(7), "?:7");
}

TEST(Resources, KeyTextIsItsOwnTranslation) {
  const char* key = "Save model as";
  EXPECT_EQ(sKvrPoGetText(key), key);
  EXPECT_STREQ(sKvrPoGetText(nullptr), "");
}

}  // namespace
