// SPDX-License-Identifier: MIT
#include "instrument/simulator/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vksim {

std::optional<std::int64_t> digits(std::string_view text) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.empty() || text.size() > 18 || !std::all_of(text.begin(), text.end(), isDigit))
    return std::nullopt;
  std::int64_t value = 0;
  for (const char c : text) value = value * 10 + (c - '0');
  return value;
}

std::optional<std::int64_t> whole(std::string_view text) {
  const bool minus = text.starts_with('-');
  if (minus || text.starts_with('+')) text.remove_prefix(1);
  const auto value = digits(text);
  if (!value) return std::nullopt;
  return minus ? -*value : *value;
}

std::optional<double> real(std::string_view text) {
  if (text.starts_with('+')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) return std::nullopt;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
    return std::nullopt;
  return value;
}

std::string_view trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> items;
  for (;;) {
    const auto at = text.find(separator);
    items.emplace_back(text.substr(0, at));
    if (at == std::string_view::npos) return items;
    text.remove_prefix(at + 1);
  }
}

std::vector<std::string> words(std::string_view text) {
  std::vector<std::string> items;
  for (const std::string& item : split(text, ' '))
    if (const auto word = trim(item); !word.empty()) items.emplace_back(word);
  return items;
}

}  // namespace vksim
