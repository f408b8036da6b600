// SPDX-License-Identifier: MIT
#include "base/mdlEncoding.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(EncodingTest, AWholeTextIsUtf8OrElseLatin1) {
  for (const char* good : {"", "abc", "\xC3\xBC", "a\xE3\x81\xB2", "\xF0\x9F\x98\x80",
                           "\xF4\x8F\xBF\xBF", "\xED\x9F\xBF"})
    EXPECT_TRUE(isUtf8(good)) << good;
  // Cut at the end, cut in the middle, no begin, too long, a surrogate, above the last letter.
  for (const char* bad :
       {"ab\xC3", "\xE3\x81", "\xF0\x9F\x98", "\xC3z", "\xE3\x81z", "\xBC", "\xC0\x80",
        "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"})
    EXPECT_FALSE(isUtf8(bad)) << bad;
}

TEST(EncodingTest, Latin1HasItsOwnLettersOnly) {
  EXPECT_EQ(toLatin1("a\xC2\x80\xC3\xBF"), "a\x80\xFF");
  EXPECT_EQ(toLatin1("\xC4\x80"), std::nullopt);
  EXPECT_EQ(toLatin1("\xE4"), std::nullopt);
}

}  // namespace
}  // namespace vk
