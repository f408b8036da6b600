// SPDX-License-Identifier: MIT
// Numbers to text and text to numbers, the only place that converts what a user, a file or an
// instrument wrote. Texts are UTF-8, positions are 1-based, the decimal symbol is always a point.
//
// Two roundings exist: a conversion to a whole number takes ties to the even neighbour, a number
// format takes ties away from zero, on the decimal digits that the shortest text of the value has.
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vk {

/// A text that is no number, or a number that its type cannot hold.
class TypeMismatch : public std::runtime_error {
 public:
  explicit TypeMismatch(std::string_view text);
};

// --- text to number -------------------------------------------------------------------------
// Accepted: blanks, one optional sign, digits with commas anywhere after the first digit, an
// optional point with digits (no comma behind it), at least one digit in all, an optional
// exponent (e or E, optional sign, digits), blanks. Nothing else is a number.

/// Ties to even; throws TypeMismatch when the text is no number or the result leaves 32 bits.
int32_t toWhole(std::string_view text);
/// Throws TypeMismatch when the text is no number or overflows a single.
float toSingle(std::string_view text);
/// Throws TypeMismatch when the text is no number or overflows a double.
double toDouble(std::string_view text);
/// The same without an exception: empty when the text does not read.
std::optional<int32_t> readWhole(std::string_view text);
std::optional<float> readSingle(std::string_view text);
std::optional<double> readDouble(std::string_view text);
/// Ties to even; throws TypeMismatch when the result leaves 32 bits or the value is no number.
int32_t roundWhole(double value);

// --- number to text -------------------------------------------------------------------------

/// Seven significant digits, no trailing zeros, "0.5" with its leading zero, never "-0";
/// scientific ("1E+07", "3E-06") when the decimal exponent is outside -5 to 6.
std::string textOf(float value);
/// The same with fifteen digits; scientific outside -5 to 14.
std::string textOf(double value);
std::string textOf(int32_t value);
std::string textOf(int64_t value);

/// Number formats: "0" a required digit, "#" an optional one, "." the point (literal, also when
/// no digit follows), "+" literal, "E+00" an exponent with sign and two digits. A minus sign
/// stands in front of the whole formatted text; a result of zeros only has none. An empty format
/// gives textOf(value).
std::string formatNumber(float value, std::string_view format);
std::string formatNumber(double value, std::string_view format);
std::string formatNumber(int32_t value, std::string_view format);

/// "@@@@": right-justified in as many characters as the format has; a longer text stands whole.
std::string formatText(std::string_view text, std::string_view format);

// --- pieces of text -------------------------------------------------------------------------

/// `length` characters from the 1-based position on; what is not there is left out.
std::string mid(std::string_view text, std::size_t position, std::size_t length);
/// From the 1-based position to the end.
std::string mid(std::string_view text, std::size_t position);
std::string left(std::string_view text, std::size_t length);
std::string right(std::string_view text, std::size_t length);
/// Without the blanks at both ends (blanks only; tabs and line ends stay).
std::string trim(std::string_view text);
/// 1-based position of the first occurrence, 0 when there is none.
std::size_t positionOf(std::string_view text, std::string_view part);
bool contains(std::string_view text, std::string_view part);
/// ASCII letters only, for keys, extensions and model texts.
bool equalNoCase(std::string_view a, std::string_view b);

}  // namespace vk
