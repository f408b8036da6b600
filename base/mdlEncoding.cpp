// SPDX-License-Identifier: MIT
#include "base/mdlEncoding.h"

#include <cstddef>
#include <cstdint>

namespace vk {

namespace {

constexpr std::size_t kInvalid = 0;

/// The letter that the text begins with and its length in bytes, kInvalid for none.
std::size_t firstLetter(std::string_view text, uint32_t& letter) {
  // What the lead byte of a sequence of that length looks like, and the least letter it may hold.
  constexpr struct {
    unsigned char mask, lead;
    uint32_t least;
  } kSequences[] = {
      {0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}};
  const auto lead = static_cast<unsigned char>(text.front());
  std::size_t length = 1;
  for (const auto& sequence : kSequences) {
    if ((lead & sequence.mask) != sequence.lead) {
      ++length;
      continue;
    }
    if (length > text.size()) return kInvalid;
    letter = lead & static_cast<unsigned char>(~sequence.mask);
    for (const char next : text.substr(1, length - 1)) {
      if ((static_cast<unsigned char>(next) & 0xC0) != 0x80) return kInvalid;
      letter = letter << 6 | (static_cast<unsigned char>(next) & 0x3F);
    }
    const bool surrogate = letter >= 0xD800 && letter <= 0xDFFF;
    return letter < sequence.least || letter > 0x10FFFF || surrogate ? kInvalid : length;
  }
  return kInvalid;
}

}  // namespace

bool isUtf8(std::string_view text) {
  for (uint32_t letter = 0; !text.empty();) {
    const std::size_t length = firstLetter(text, letter);
    if (length == kInvalid) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::optional<std::string> toLatin1(std::string_view utf8) {
  std::string latin;
  for (uint32_t letter = 0; !utf8.empty();) {
    const std::size_t length = firstLetter(utf8, letter);
    if (length == kInvalid || letter > 0xFF) return std::nullopt;
    latin += static_cast<char>(letter);
    utf8.remove_prefix(length);
  }
  return latin;
}

}  // namespace vk
