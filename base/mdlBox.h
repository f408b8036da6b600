// SPDX-License-Identifier: MIT
// The message boxes of the program. While it ends none is shown, and every question counts as
// closed without an answer.
#pragma once

#include <string_view>

#include "base/clsDesktop.h"

namespace vk {

/// With OK.
void showBox(std::string_view title, std::string_view text, BoxIcon icon = BoxIcon::kExclamation);
/// With OK and Cancel; true for OK.
bool confirmBox(std::string_view title, std::string_view text, BoxIcon icon);
/// With Yes and No; true for anything but No, so that a closed box lets the work go on.
bool unlessNo(std::string_view title, std::string_view text, BoxIcon icon);

}  // namespace vk
