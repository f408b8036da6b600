// SPDX-License-Identifier: MIT
// Raises a flag for the length of a scope, so that no way out of a function forgets to lower it.
#pragma once

namespace vk {

template <typename Flag>
class FlagGuard {
 public:
  explicit FlagGuard(Flag& flag) : flag_(flag) { flag_ = Flag(1); }
  ~FlagGuard() { flag_ = Flag(0); }
  FlagGuard(const FlagGuard&) = delete;
  FlagGuard& operator=(const FlagGuard&) = delete;

 private:
  Flag& flag_;
};

}  // namespace vk
