// SPDX-License-Identifier: MIT
#include "instrument/simulator/conditions.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace vksim {
namespace {

// "channels mode interval samples pre | scale/per unit/cutoff/slope level" of channel 1 and 2, or
// "refused".
std::string told(std::string_view text, Model model = Model::kVK480Q) {
  const auto read = parseConditions(text, model);
  if (!read) return "refused";
  std::string line = fmt::format("{}{} {} {} {}", read->channels, read->triggerMode, read->interval,
                                 read->samples, read->preSamples());
  for (std::size_t c = 0; c < 2; ++c) {
    const ChannelConditions& channel = read->channel[c];
    line += fmt::format(" | {}/{:g}/{:g}/{}{:g}", channel.fullScale, channel.perUnit,
                        channel.cutoff, "-UD"[static_cast<int>(channel.slope)], channel.level);
  }
  return line;
}

TEST(Conditions, AreRead) {
  EXPECT_EQ(told("410200501031030PSCUUUU+010N000N000N000200U000128K", Model::kVK240Q),
            "4C 200 131072 0 | 10000/1/30/U10 | 20000/1/100/-0");
  // Tenths, half a volt, off; levels in both spellings and both directions.
  EXPECT_EQ(told("22414050501080707SDUUUM105P005N000N000001M030001M1022", Model::kVK480Qe),
            "2S 1000 1048576 131072 | 20000/2.5/10/D-10.5 | 2000/1/30000/U0.5");
  EXPECT_EQ(told("10805050504040404FUUUU-100N000N000N000001S050001K2222"),
            "1F 1000000 1024 512 | 30000/1/300/U-100 | 5000/1/300/-0");
  // The last share of the pre-area is 99 percent, and the store ends it.
  EXPECT_EQ(told("10505050507070707CUUUU+010N000N000N000005U100064K2222"),
            "1C 5 65536 64880 | 5000/1/10000/U10 | 5000/1/10000/-0");
  EXPECT_EQ(told("10505050507070707CUUUU+010N000N000N000001M100240M2222"),
            "1C 1000 251658240 262144 | 5000/1/10000/U10 | 5000/1/10000/-0");
}

TEST(Conditions, OfAWrongLengthOrSpellingAreRefused) {
  const std::string good(factoryConditions(Model::kVK480Q));
  const std::string low(factoryConditions(Model::kVK240Q));
  EXPECT_EQ(told("") + told(low) + told(good, Model::kVK240Q), "refusedrefusedrefused");
  const auto with = [](std::string text, std::size_t at, std::string_view code) {
    return text.replace(at, code.size(), code);
  };
  EXPECT_EQ(told(with(low, 1, "06"), Model::kVK240Q), "refused");
  const std::pair<std::size_t, const char*> codes[] = {
      {0, "3"},     {1, "09"},    {1, "25"},   {9, "09"},    {9, "PS"},    {17, "X"},
      {21, "X"},    {22, "+101"}, {22, "N01"}, {22, " "},    {38, "300U"}, {38, "000U"},
      {38, "002S"}, {42, "005"},  {42, "110"}, {45, "100K"}, {52, "3"}};
  for (const auto& [at, code] : codes) EXPECT_EQ(told(with(good, at, code)), "refused") << code;
}

TEST(Conditions, ThatTheHardwareCannotDoAreRefused) {
  // Channels, interval and size: the first of each pair is just possible, the second no more.
  const auto possible = [](Model model, std::string_view all) {
    std::string seen;
    for (; all.size() >= 9; all.remove_prefix(std::min<std::size_t>(all.size(), 10))) {
      std::string text(factoryConditions(model));
      text[0] = all[0];
      text.replace(38, 4, all.substr(1, 4)).replace(45, 4, all.substr(5, 4));
      seen += parseConditions(text, model) ? '+' : '-';
    }
    return seen;
  };
  EXPECT_EQ(possible(Model::kVK480Q,
                     "1005U064K 1005U032K 2010U032K 2005U064K 4020U016K 4010U032K 4020U016K "
                     "4020U008K 4050U004K 4100U001K 4200U001K 1001M240M 2001M120M 2001M240M "
                     "4001M060M 4001M120M"),
            "+-+-+-+-+-++"
            "+-+-");
  EXPECT_EQ(possible(Model::kVK240Q, "1050U004K 1020U016K 2100U002K 2050U004K 4200U002K 4100U002K"),
            "+-+-+-");
}

}  // namespace
}  // namespace vksim
