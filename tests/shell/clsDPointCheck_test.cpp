// SPDX-License-Identifier: MIT
#include "shell/clsDPointCheck.h"

#include <gtest/gtest.h>

#include "tests/support/fake_desktop.h"

namespace vk {
namespace {

TEST(DPointCheck, OnlyAPointPassesAndTheLanguageSelectsTheMessage) {
  const std::string head = "box[VK-480Q CONTROLLER][", tail = "][ok][exclamation]\n";
  const std::string english =
      "From the \"Regional Settings Properties\" in the \"Control Panel\", change the decimal "
      "symbol "
      "of number to point \".\".   \r\nThereafter, restart the software.";
  const std::string japanese =
      "「コントロール "
      "パネル」の「地域のプロパティ」で、数値の小数点の記号をピリオド「.」に変更してください。   "
      "\r\nその後、ソフトウェアを再起動してください。";
  const std::tuple<const char*, int32_t, std::string> rows[] = {{".", 1, ""},
                                                                {"", 1, head + english + tail},
                                                                {"..", 1, head + english + tail},
                                                                {",", 0, head + japanese + tail},
                                                                {",", 2, head + tail}};
  for (const auto& [symbol, language, log] : rows) {
    vktest::FakeDesktop desktop;
    desktop.decimal = symbol;
    clsDPointCheck guard;
    guard.SetLanguage(language);
    EXPECT_EQ(guard.Check(), !log.empty()) << symbol;
    EXPECT_EQ(desktop.takeLog(), log);
  }
}

}  // namespace
}  // namespace vk
