// SPDX-License-Identifier: MIT
#include "desktop/qtText.h"

#include <gtest/gtest.h>

namespace vk {
namespace {

TEST(QtTextTest, AShownTextLosesNoLetter) {
  const std::pair<std::string, QString> rows[] = {
      {"h\xC3\xB6he", QString::fromUtf8("h\u00F6he")},
      {"h\xF6he", QString::fromUtf8("h\u00F6he")},
      // A last byte that looks like the begin of a letter.
      {"caf\xE9", QString::fromUtf8("caf\u00E9")},
      {"\xC3", QString::fromUtf8("\u00C3")},
  };
  for (const auto& [bytes, shown] : rows) EXPECT_EQ(toQt(bytes), shown) << bytes;
}

}  // namespace
}  // namespace vk
