// SPDX-License-Identifier: MIT
#include "link/mdlCardDirectory.h"

#include <gtest/gtest.h>

#include "tests/support/card_image.h"

namespace vk {
namespace {

using namespace std::string_literals;
using vktest::CardImage;

/// The decoded texts, a line each, with the two sizes behind each.
std::string decoded(const std::string& image) {
  std::vector<CardFile> files = {{"left over", 1, 2}};
  const auto* bytes = reinterpret_cast<const unsigned char*>(image.data());
  EXPECT_EQ(decodeCardDirectory({bytes, image.size()}, files), 0);
  std::string text;
  for (const CardFile& file : files) {
    text += file.text + " " + std::to_string(file.size) + " " + std::to_string(file.headerSize);
    text += "\n";
  }
  return text;
}

TEST(CardDirectory, ListsDataFilesWithTheHeaderBeforeThem) {
  const uint32_t day = CardImage::date(2026, 1, 5);
  const uint32_t clock = CardImage::time(9, 45, 58);
  CardImage card;
  card.head()
      .entry("EARLY   DAT", 1, day, clock)  // no header yet
      .entry("SHORT   HED", 412)
      .entry("SHORT   DAT", 65536, day, clock)
      .entry("SAME    DAT", 2, CardImage::date(2107, 15, 31), 0xFFFF)  // keeps the header
      .entry("\xE5GONE   DAT", 3)
      .entry("lower   dat", 5)
      .entry("LONGNAMEHED", 123456)
      .entry("LONGNAMEDAT", 4294967295U, CardImage::date(1980, 0, 0), 0)
      .entry("        DAT", 2)
      .entry("\x83\xff\0 X   DAT"s, 3)
      .entry("\0"s, 0)
      .entry("BEHIND  DAT", 1);
  EXPECT_EQ(decoded(card.whole()),
            "EARLY.DAT,1,2026/01/05 09:45:58,00000 1 0\n"
            "SHORT.DAT,65536,2026/01/05 09:45:58,00412 65536 412\n"
            "SAME.DAT,2,2107/15/31 31:63:62,00412 2 412\n"
            "LONGNAME.DAT,4294967295,1980/00/00 00:00:00,123456 4294967295 123456\n"
            ".DAT,2,1980/00/00 00:00:00,123456 2 123456\n"
            "\x83\xff\0 X.DAT,3,1980/00/00 00:00:00,123456 3 123456\n"s);
}

TEST(CardDirectory, StopsAtTheEndOfTheImageAtFiveHundredTwelveEntriesAndAtAnyZero) {
  const CardImage card = CardImage{}.head().entry("A       DAT", 1);
  EXPECT_EQ(decoded(card.bytes), "A.DAT,1,1980/00/00 00:00:00,00000 1 0\n");
  EXPECT_EQ(decoded(card.bytes.substr(0, 95)), "");
  EXPECT_EQ(decoded(CardImage{}.entry("\0"s, 0).bytes + card.bytes), "");
  std::string full;
  for (int i = 0; i < 513; ++i) full += CardImage{}.entry("X       HED", 1).bytes;
  full.replace(512 * 32, 11, "X       DAT");
  EXPECT_EQ(decoded(full), "");
}

}  // namespace
}  // namespace vk
