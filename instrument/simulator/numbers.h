// SPDX-License-Identifier: MIT
//
// Reading numbers from wire and scenario texts. Whole text or nothing, and never by the locale of
// the program that happens to load the library.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vksim {

/// Digits only, at most 18 of them.
[[nodiscard]] std::optional<std::int64_t> digits(std::string_view text);
/// Optional sign and digits.
[[nodiscard]] std::optional<std::int64_t> whole(std::string_view text);
/// Optional sign, digits with or without a point, optional exponent; finite.
[[nodiscard]] std::optional<double> real(std::string_view text);

[[nodiscard]] std::string_view trim(std::string_view text);
/// Always one item more than there are separators.
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);
/// Items between runs of blanks; none for a blank text.
[[nodiscard]] std::vector<std::string> words(std::string_view text);

}  // namespace vksim
