// SPDX-License-Identifier: MIT
// How long a read waits for its reply, in seconds, for the length of a scope.
#pragma once

#include <tuple>
#include <utility>

#include "link/vk240q_lib.h"

namespace vk {

inline constexpr int kTimeoutDefault = 7;
inline constexpr int kTimeoutCheck = 60;
inline constexpr int kTimeoutUpgrade = 40;

/// Nests: its end gives back what held before, kTimeoutDefault outside of all.
class ReadTimeoutGuard {
 public:
  explicit ReadTimeoutGuard(int seconds) : before_(std::exchange(now_, seconds)) { apply(); }
  ~ReadTimeoutGuard() {
    now_ = before_;
    apply();
  }
  ReadTimeoutGuard(const ReadTimeoutGuard&) = delete;
  ReadTimeoutGuard& operator=(const ReadTimeoutGuard&) = delete;

 private:
  static void apply() { std::ignore = Vk240qSetReadTimeout(now_); }

  inline static int now_ = kTimeoutDefault;
  const int before_;
};

}  // namespace vk
