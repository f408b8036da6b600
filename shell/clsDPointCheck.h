// SPDX-License-Identifier: MIT
// The guard against a decimal comma: all files of the program hold numbers with a decimal point,
// so it does not run under a locale that writes another symbol.
#pragma once

#include <cstdint>
#include <string>

namespace vk {

class clsDPointCheck {
 public:
  /// 0 selects the Japanese message, 1 the English one; any other value leaves it empty.
  void SetLanguage(int32_t language);
  /// True when the locale is refused; the message was then shown.
  bool Check() const;

 private:
  std::string message_;
};

}  // namespace vk
