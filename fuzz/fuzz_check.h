// SPDX-License-Identifier: MIT
// How a fuzz target says what must hold: a rule that is broken ends the program, which libFuzzer
// takes for a crash and keeps the input.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace vkfuzz {

/// `seen` goes to the log beside the rule, to tell how it was broken.
inline void require(bool holds, const char* rule, std::string_view seen = {}) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n  [%.*s]\n", rule, static_cast<int>(seen.size()), seen.data());
  std::abort();
}

inline std::string_view textOfInput(const uint8_t* data, std::size_t size) {
  // A null pointer comes with an empty input.
  return size == 0 ? std::string_view{}
                   : std::string_view(reinterpret_cast<const char*>(data), size);
}

/// Takes the text up to the separator, or all of it, off the front of `rest`.
inline std::string_view takeUpTo(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
  return part;
}

}  // namespace vkfuzz
