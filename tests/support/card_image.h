// SPDX-License-Identifier: MIT
// Builds the root directory of a card, entry by entry.
#pragma once

#include <cstdint>
#include <string>

namespace vktest {

struct CardImage {
  std::string bytes;

  /// `name` is padded to the eleven characters of name and extension.
  CardImage& entry(std::string name, uint32_t size, uint32_t date = 0, uint32_t time = 0) {
    std::string item(32, '\0');
    name.resize(11, ' ');
    item.replace(0, 11, name);
    put(item, 22, time, 2);
    put(item, 24, date, 2);
    put(item, 28, size, 4);
    bytes += item;
    return *this;
  }
  /// The two entries that every card begins with.
  CardImage& head() { return entry("VK-9480", 0).entry("SYSTEM  DAT", 99); }
  /// All 16384 bytes.
  std::string whole() const {
    std::string image = bytes;
    image.resize(16384, '\0');
    return image;
  }

  static uint32_t date(uint32_t year, uint32_t month, uint32_t day) {
    return (year - 1980) << 9 | month << 5 | day;
  }
  static uint32_t time(uint32_t hour, uint32_t minute, uint32_t second) {
    return hour << 11 | minute << 5 | second / 2;
  }

 private:
  static void put(std::string& item, std::size_t at, uint32_t value, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      item[at + i] = static_cast<char>(value >> (8 * i) & 255);
    }
  }
};

}  // namespace vktest
