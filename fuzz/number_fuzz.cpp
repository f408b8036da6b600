// SPDX-License-Identifier: MIT
// Numbers: a first line to read, a second line that is a format, eight bytes of a value. Reading is
// held against the C library, which rounds correctly; texts of numbers must read back.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "base/mdlText.h"
#include "fuzz/fuzz_check.h"

using vkfuzz::require;

namespace {

constexpr std::size_t kMostPrinted = 340;  // digits of the largest double, sign, point, exponent
constexpr double kNearlyLargest = 1.79769313486231e308;

template <typename Number>
Number fromBytes(std::string_view bytes) {
  Number number{};
  if (!bytes.empty()) {
    std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof(number)));
  }
  return number;
}

std::string printed(double value, int digits) {
  char text[64];
  std::snprintf(text, sizeof(text), "%.*g", digits, value);
  return text;
}

// --- reading ---------------------------------------------------------------------------------

void checkReading(const std::string& text) {
  const auto value = vk::readDouble(text);
  const auto single = vk::readSingle(text);
  const auto whole = vk::readWhole(text);
  require(vk::readDouble("  " + text + " ") == value, "blanks around do not count", text);
  if (!value) {
    require(!single && !whole, "no number is none of any kind", text);
    return;
  }
  require(text.find_first_not_of("+-0123456789.,eE ") == std::string::npos,
          "a number has no other characters", text);
  std::string plain = text;
  std::erase(plain, ',');
  require(*value == std::strtod(plain.c_str(), nullptr), "a double as the C library's", text);
  const float expected = std::strtof(plain.c_str(), nullptr);
  require(std::isinf(expected) ? !single : single == expected, "a single as the C library's", text);

  const double nearest = std::nearbyint(*value);
  const bool fits = std::fabs(nearest + 0.5) <= 2147483648.0;
  require(whole.has_value() == fits, "a whole number has 32 bits", text);
  require(!whole || *whole == nearest, "a whole number is the nearest, ties to even", text);
}

// --- shortest texts --------------------------------------------------------------------------

std::optional<float> readAs(float, std::string_view text) {
  return vk::readSingle(text);
}
std::optional<double> readAs(double, std::string_view text) {
  return vk::readDouble(text);
}

/// A text of this many digits is a fixed point of reading and writing.
template <typename Real>
void checkShortest(Real value, int digits) {
  const std::string text = vk::textOf(value);
  if (!std::isfinite(value)) {
    require(!vk::readDouble(text), "no number reads as none", text);
    return;
  }
  const double wide = static_cast<double>(value);
  if (std::fabs(wide) < kNearlyLargest) {
    require(vk::readDouble(text) == std::strtod(printed(wide, digits).c_str(), nullptr),
            "the text has the right digits", text);
  }
  require(text != "-0", "zero has no sign", text);
  if (const auto again = readAs(value, text)) {
    require(vk::textOf(*again) == text, "a text comes back", text);
  }
}

// --- formats ---------------------------------------------------------------------------------

bool isPlaces(std::string_view text) {
  return text.find_first_not_of("0#") == std::string_view::npos;
}

/// "#0.00" and its like: no literal but the point.
bool isPlainFormat(std::string_view format) {
  const std::size_t point = std::min(format.find('.'), format.size());
  const std::string_view fraction = format.substr(std::min(point + 1, format.size()));
  return point > 0 && isPlaces(format.substr(0, point)) && isPlaces(fraction);
}

/// `digits` is how many of the value's own are kept.
template <typename Number>
void checkPlain(Number number, std::string_view format, int digits) {
  const double value = static_cast<double>(number);
  const std::string text = vk::formatNumber(number, format);
  const std::size_t point = std::min(format.find('.'), format.size());
  const std::size_t places = format.size() - std::min(point + 1, format.size());
  const std::size_t shown = text.size() - std::min(text.find('.') + 1, text.size());
  require((text.find('.') != std::string::npos) == (point < format.size()), "the point is literal",
          text);
  if (point < format.size()) require(shown <= places, "no more decimals than places", text);
  // "#" alone shows a zero as nothing.
  if (text.empty() || text == ".") return;
  const auto read = vk::readDouble(text);
  // Fifteen digits may round the largest doubles up to what no double holds.
  if (!read && std::fabs(value) >= kNearlyLargest) return;
  require(read.has_value(), "a formatted number is a number", text);
  const double half =
      0.5 * std::pow(10.0, -static_cast<double>(std::min<std::size_t>(places, 300)));
  const double slack = std::fabs(value) * std::pow(10.0, 1 - digits);
  require(std::fabs(*read - value) <= half * 1.000001 + slack, "the value is rounded", text);
  require(text[0] != '-' || *read < 0, "zeros have no sign", text);
}

template <typename Number>
void checkFormat(Number number, std::string_view format, int digits) {
  const std::string text = vk::formatNumber(number, format);
  require(text.size() <= format.size() + kMostPrinted, "a format bounds the text", text);
  if (!std::isfinite(static_cast<double>(number)) || format.empty()) {
    require(text == vk::textOf(number), "no format, the shortest text", text);
    return;
  }
  if (isPlainFormat(format)) checkPlain(number, format, digits);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  std::string_view rest = vkfuzz::textOfInput(data, size);
  const std::string text(vkfuzz::takeUpTo(rest, '\n'));
  const std::string_view format = vkfuzz::takeUpTo(rest, '\n');
  checkReading(text);

  const auto single = fromBytes<float>(rest);
  const auto real = fromBytes<double>(rest);
  const auto whole = fromBytes<int32_t>(rest);
  checkShortest(single, 7);
  checkShortest(real, 15);
  require(vk::readWhole(vk::textOf(whole)) == whole, "a whole number comes back");
  checkFormat(single, format, 7);
  checkFormat(real, format, 15);
  checkFormat(whole, format, 15);
  if (const auto value = vk::readDouble(text)) {
    checkShortest(*value, 15);
    checkFormat(*value, format, 15);
  }
  if (const auto value = vk::readSingle(text)) {
    checkShortest(*value, 7);
    checkFormat(*value, format, 7);
  }
  return 0;
}
