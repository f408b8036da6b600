// SPDX-License-Identifier: MIT
// The two encodings of foreign texts. A whole text is UTF-8 when all its bytes are valid UTF-8,
// and Latin-1 otherwise, also when only its last letter is cut.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vk {

bool isUtf8(std::string_view text);
/// The Latin-1 bytes of a UTF-8 text; empty when it has a letter that Latin-1 lacks.
std::optional<std::string> toLatin1(std::string_view utf8);

}  // namespace vk
