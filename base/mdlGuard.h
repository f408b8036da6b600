// SPDX-License-Identifier: MIT
// States that hold for the length of a scope, so that no way out of a function forgets to end them.
// Each nests: the inner end gives back what the outer begin had set.
#pragma once

#include <utility>

#include "base/clsDesktop.h"

namespace vk {

/// Raises a flag: a form at work, an exchange under way, a list being filled.
template <typename Flag>
class FlagGuard {
 public:
  explicit FlagGuard(Flag& flag) : flag_(flag), before_(std::exchange(flag, Flag(1))) {}
  ~FlagGuard() { flag_ = before_; }
  FlagGuard(const FlagGuard&) = delete;
  FlagGuard& operator=(const FlagGuard&) = delete;

 private:
  Flag& flag_;
  const Flag before_;
};

/// The pointer as an hourglass.
class HourglassGuard {
 public:
  HourglassGuard() {
    if (depth_++ == 0) desktop().setHourglass(true);
  }
  ~HourglassGuard() {
    if (--depth_ == 0) desktop().setHourglass(false);
  }
  HourglassGuard(const HourglassGuard&) = delete;
  HourglassGuard& operator=(const HourglassGuard&) = delete;

 private:
  inline static int depth_ = 0;
};

}  // namespace vk
