// SPDX-License-Identifier: MIT
#include "base/mdlText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace vk {

namespace {

constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

// --- decimal digits of a value ---------------------------------------------------------------

/// value = 0.d1 d2 d3 ... times 10^(exponent + 1); the first digit is not 0 unless the value is.
struct Decimal {
  bool negative = false;
  int exponent = 0;
  int count = 0;  // without trailing zeros; 0 for zero
  std::array<char, 20> digits{};

  bool zero() const { return count == 0; }
  /// The digit that stands for 10^power.
  char at(int power) const {
    const int index = exponent - power;
    return index >= 0 && index < count ? digits[index] : '0';
  }
  void dropZeros() {
    while (count > 0 && digits[count - 1] == '0') --count;
    if (count == 0) exponent = 0;
  }
};

Decimal decimalOfWhole(uint64_t magnitude, bool negative) {
  Decimal decimal;
  decimal.negative = negative;
  const auto end = std::to_chars(decimal.digits.data(),
                                 decimal.digits.data() + decimal.digits.size(), magnitude);
  decimal.count = static_cast<int>(end.ptr - decimal.digits.data());
  decimal.exponent = decimal.count - 1;
  decimal.dropZeros();
  return decimal;
}

/// `value` is finite.
Decimal decimalOf(double value, int significant) {
  Decimal decimal;
  decimal.negative = std::signbit(value);
  // "d.ddddddddddddddE-308"
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), std::abs(value),
                                 std::chars_format::scientific, significant - 1);
  const char* const mark = std::find(text.data(), end.ptr, 'e');
  for (const char* c = text.data(); c != mark; ++c) {
    if (*c != '.') decimal.digits[decimal.count++] = *c;
  }
  const char* const power = mark + (mark[1] == '+' ? 2 : 1);
  std::from_chars(power, end.ptr, decimal.exponent);
  decimal.dropZeros();
  return decimal;
}

constexpr std::array<double, 12> kPowers = {1e0, 1e1, 1e2, 1e3, 1e4,  1e5,
                                            1e6, 1e7, 1e8, 1e9, 1e10, 1e11};

/// A single of ordinary size has 24 bits; times a power of ten up to 11 (26 bits without the
/// factors of two) it still fits the 53 bits of a double, so the scaling below is exact. Converting
/// a recording writes tens of millions of these.
Decimal decimalOf(float value) {
  const double magnitude = std::abs(static_cast<double>(value));
  if (!(magnitude < 1e7)) return decimalOf(static_cast<double>(value), kSingleDigits);
  for (int shift = 0; shift < static_cast<int>(kPowers.size()); ++shift) {
    const double scaled = magnitude * kPowers[shift];
    if (scaled < 1e6) continue;
    Decimal decimal = decimalOfWhole(static_cast<uint64_t>(std::llrint(scaled)), value < 0);
    decimal.exponent -= shift;
    return decimal;
  }
  return decimalOf(static_cast<double>(value), kSingleDigits);
}

std::string textOfUnusual(double value) {
  if (std::isnan(value)) return "NaN";
  return value < 0 ? "-Infinity" : "Infinity";
}

// --- text of a decimal -----------------------------------------------------------------------

void appendExponent(std::string& text, int exponent, bool plus, std::size_t width) {
  if (exponent < 0 || plus) text += exponent < 0 ? '-' : '+';
  const auto digits = std::to_string(std::abs(exponent));
  if (digits.size() < width) text.append(width - digits.size(), '0');
  text += digits;
}

/// Positional while the exponent lies from -5 to `largest`, else scientific.
std::string shortestText(const Decimal& decimal, int largest) {
  if (decimal.zero()) return "0";
  std::string text;
  if (decimal.negative) text += '-';
  if (decimal.exponent < -5 || decimal.exponent > largest) {
    text += decimal.digits[0];
    if (decimal.count > 1) {
      text += '.';
      text.append(decimal.digits.data() + 1, static_cast<std::size_t>(decimal.count - 1));
    }
    text += 'E';
    appendExponent(text, decimal.exponent, true, 2);
    return text;
  }
  const int lowest = decimal.exponent - decimal.count + 1;
  for (int power = std::max(decimal.exponent, 0); power >= std::min(lowest, 0); --power) {
    if (power == -1) text += '.';
    text += decimal.at(power);
  }
  return text;
}

// --- number formats --------------------------------------------------------------------------

struct NumberFormat {
  std::string_view front;  // literal
  std::string_view back;   // literal
  int whole = 0;           // places in front of the point
  int wholeNeeded = 0;
  int fraction = 0;  // places behind the point
  int fractionNeeded = 0;
  bool point = false;
  bool scientific = false;
  bool exponentPlus = false;
  std::size_t exponentWidth = 0;
};

bool isPlace(char c) {
  return c == '0' || c == '#';
}

void parseExponent(std::string_view format, std::size_t& at, NumberFormat& parsed) {
  if (at + 2 >= format.size() || format[at] != 'E' || format[at + 2] != '0') return;
  if (format[at + 1] != '+' && format[at + 1] != '-') return;
  parsed.scientific = true;
  parsed.exponentPlus = format[at + 1] == '+';
  for (at += 2; at < format.size() && format[at] == '0'; ++at) ++parsed.exponentWidth;
}

NumberFormat parseFormat(std::string_view format) {
  NumberFormat parsed;
  std::size_t at = 0;
  while (at < format.size() && !isPlace(format[at]) && format[at] != '.') ++at;
  parsed.front = format.substr(0, at);
  for (; at < format.size() && isPlace(format[at]); ++at) {
    ++parsed.whole;
    // Every place behind a required one is required.
    if (format[at] == '0' || parsed.wholeNeeded > 0) ++parsed.wholeNeeded;
  }
  if (at < format.size() && format[at] == '.') {
    parsed.point = true;
    for (++at; at < format.size() && isPlace(format[at]); ++at) {
      ++parsed.fraction;
      if (format[at] == '0') parsed.fractionNeeded = parsed.fraction;
    }
  }
  parseExponent(format, at, parsed);
  parsed.back = format.substr(at);
  return parsed;
}

/// Rounded half away from zero, so that no digit stands below 10^lowest.
Decimal roundedAt(Decimal decimal, int lowest) {
  const int keep = decimal.exponent - lowest + 1;
  if (decimal.zero() || keep >= decimal.count) return decimal;
  const bool up = keep >= 0 && decimal.digits[keep] >= '5';
  decimal.count = std::max(keep, 0);
  if (up) {
    int last = decimal.count - 1;
    while (last >= 0 && decimal.digits[last] == '9') --last;
    if (last < 0) {
      ++decimal.exponent;
      decimal.digits[0] = '1';
    } else {
      ++decimal.digits[last];
    }
    decimal.count = std::max(last, 0) + 1;
  }
  decimal.dropZeros();
  return decimal;
}

std::string formatDecimal(Decimal decimal, std::string_view pattern) {
  const NumberFormat format = parseFormat(pattern);
  int exponent = 0;
  if (format.scientific && !decimal.zero()) {
    const int wholePlaces = std::max(format.whole, 1);
    decimal = roundedAt(decimal, decimal.exponent - wholePlaces + 1 - format.fraction);
    exponent = decimal.exponent - wholePlaces + 1;
    decimal.exponent -= exponent;
  } else {
    decimal = roundedAt(decimal, -format.fraction);
  }

  std::string text;
  if (decimal.negative && !decimal.zero()) text += '-';
  text += format.front;
  const int highest =
      decimal.zero() ? format.wholeNeeded - 1 : std::max(decimal.exponent, format.wholeNeeded - 1);
  for (int power = highest; power >= 0; --power) text += decimal.at(power);
  if (format.point) text += '.';
  const int places =
      std::clamp(decimal.count - decimal.exponent - 1, format.fractionNeeded, format.fraction);
  for (int place = 1; place <= places; ++place) text += decimal.at(-place);
  if (format.scientific) {
    text += 'E';
    appendExponent(text, exponent, format.exponentPlus, format.exponentWidth);
  }
  text += format.back;
  return text;
}

// --- text to number --------------------------------------------------------------------------

/// A text that has the form of a number, taken to pieces.
struct NumberText {
  bool negative = false;
  bool commas = false;
  std::string_view body;  // digits, commas, point, exponent; no sign, no blanks
  int64_t magnitude = 0;  // power of ten of the first digit that is not 0
  bool allZero = true;
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string_view withoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Digits of the mantissa; `at` moves behind them. False when there is none.
bool scanMantissa(std::string_view body, std::size_t& at, NumberText& number) {
  int64_t wholeDigits = 0;  // counted from the first that is not 0
  bool any = false;
  for (; at < body.size() && (isDigit(body[at]) || (any && body[at] == ',')); ++at) {
    if (body[at] == ',') {
      number.commas = true;
      continue;
    }
    any = true;
    if (body[at] != '0') number.allZero = false;
    if (!number.allZero) ++wholeDigits;
  }
  number.magnitude = wholeDigits - 1;
  if (at == body.size() || body[at] != '.') return any;
  for (++at; at < body.size() && isDigit(body[at]); ++at) {
    any = true;
    if (number.allZero && body[at] == '0') --number.magnitude;
    if (body[at] != '0') number.allZero = false;
  }
  return any;
}

/// False when an exponent is begun and not finished.
bool scanExponent(std::string_view body, std::size_t& at, NumberText& number) {
  if (at == body.size() || (body[at] != 'E' && body[at] != 'e')) return true;
  ++at;
  bool negative = false;
  if (at < body.size() && (body[at] == '+' || body[at] == '-')) negative = body[at++] == '-';
  const auto first = at;
  int64_t exponent = 0;
  for (; at < body.size() && isDigit(body[at]); ++at) {
    exponent = std::min<int64_t>(exponent * 10 + (body[at] - '0'), int64_t{1} << 50);
  }
  number.magnitude += negative ? -exponent : exponent;
  return at > first;
}

std::optional<NumberText> scanNumber(std::string_view text) {
  NumberText number;
  number.body = withoutBlanks(text);
  if (number.body.empty()) return std::nullopt;
  if (number.body[0] == '+' || number.body[0] == '-') {
    number.negative = number.body[0] == '-';
    number.body.remove_prefix(1);
  }
  std::size_t at = 0;
  if (!scanMantissa(number.body, at, number) || !scanExponent(number.body, at, number) ||
      at != number.body.size()) {
    return std::nullopt;
  }
  return number;
}

template <typename Real>
std::optional<Real> readReal(std::string_view text) {
  const auto number = scanNumber(text);
  if (!number) return std::nullopt;
  // Zeros, and values below the smallest one, which no reader may take for an overflow.
  if (number->allZero || number->magnitude < std::numeric_limits<Real>::min_exponent10 - 40) {
    return Real{0};
  }
  if (number->magnitude > std::numeric_limits<Real>::max_exponent10) return std::nullopt;

  std::string compact;
  std::string_view body = number->body;
  if (number->commas) {
    compact.assign(body);
    compact.erase(std::remove(compact.begin(), compact.end(), ','), compact.end());
    body = compact;
  }
  Real value{};
  const auto end = std::from_chars(body.data(), body.data() + body.size(), value);
  if (end.ec == std::errc::result_out_of_range) {
    if (number->magnitude > 0) return std::nullopt;
    value = 0;
  }
  if (std::isinf(value)) return std::nullopt;
  return number->negative ? -value : value;
}

std::optional<int32_t> wholeOf(double value) {
  // The default rounding mode takes ties to the even neighbour.
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<int32_t>::min() &&
        whole <= std::numeric_limits<int32_t>::max())) {
    return std::nullopt;
  }
  return static_cast<int32_t>(whole);
}

std::size_t characterCount(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
  }));
}

char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

TypeMismatch::TypeMismatch(std::string_view text)
    : std::runtime_error("Type mismatch: \"" + std::string(text.substr(0, 80)) + "\"") {}

std::optional<double> readDouble(std::string_view text) {
  return readReal<double>(text);
}

std::optional<float> readSingle(std::string_view text) {
  return readReal<float>(text);
}

std::optional<int32_t> readWhole(std::string_view text) {
  const auto value = readDouble(text);
  return value ? wholeOf(*value) : std::nullopt;
}

int32_t toWhole(std::string_view text) {
  if (const auto value = readWhole(text)) return *value;
  throw TypeMismatch(text);
}

float toSingle(std::string_view text) {
  if (const auto value = readSingle(text)) return *value;
  throw TypeMismatch(text);
}

double toDouble(std::string_view text) {
  if (const auto value = readDouble(text)) return *value;
  throw TypeMismatch(text);
}

int32_t roundWhole(double value) {
  if (const auto whole = wholeOf(value)) return *whole;
  throw TypeMismatch(textOf(value));
}

std::string textOf(float value) {
  if (!std::isfinite(value)) return textOfUnusual(value);
  return shortestText(decimalOf(value), kSingleDigits - 1);
}

std::string textOf(double value) {
  if (!std::isfinite(value)) return textOfUnusual(value);
  return shortestText(decimalOf(value, kDoubleDigits), kDoubleDigits - 1);
}

std::string textOf(int32_t value) {
  return std::to_string(value);
}

std::string textOf(int64_t value) {
  return std::to_string(value);
}

std::string formatNumber(float value, std::string_view format) {
  if (format.empty() || !std::isfinite(value)) return textOf(value);
  return formatDecimal(decimalOf(value), format);
}

std::string formatNumber(double value, std::string_view format) {
  if (format.empty() || !std::isfinite(value)) return textOf(value);
  return formatDecimal(decimalOf(value, kDoubleDigits), format);
}

std::string formatNumber(int32_t value, std::string_view format) {
  if (format.empty()) return textOf(value);
  const auto magnitude = static_cast<uint64_t>(std::abs(static_cast<int64_t>(value)));
  return formatDecimal(decimalOfWhole(magnitude, value < 0), format);
}

std::string formatText(std::string_view text, std::string_view format) {
  const auto count = characterCount(text);
  std::string result(count < format.size() ? format.size() - count : 0, ' ');
  return result += text;
}

std::string mid(std::string_view text, std::size_t position, std::size_t length) {
  const std::size_t first = position > 0 ? position - 1 : 0;
  if (first >= text.size()) return {};
  return std::string(text.substr(first, length));
}

std::string mid(std::string_view text, std::size_t position) {
  return mid(text, position, std::string_view::npos);
}

std::string left(std::string_view text, std::size_t length) {
  return std::string(text.substr(0, length));
}

std::string right(std::string_view text, std::size_t length) {
  return std::string(text.substr(text.size() - std::min(length, text.size())));
}

std::string trim(std::string_view text) {
  return std::string(withoutBlanks(text));
}

std::size_t positionOf(std::string_view text, std::string_view part) {
  const auto found = text.find(part);
  return found == std::string_view::npos ? 0 : found + 1;
}

bool contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool equalNoCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowered(x) == lowered(y); });
}

}  // namespace vk
