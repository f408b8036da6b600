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
class ReadTimeout {
 public:
  explicit ReadTimeout(int seconds) : before_(std::exchange(now_, seconds)) { apply(); }
  ~ReadTimeout() {
    now_ = before_;
    apply();
  }
  ReadTimeout(const ReadTimeout&) = delete;
  ReadTimeout& operator=(const ReadTimeout&) = delete;

 private:
  static void apply() { std::ignore = Vk240qSetReadTimeout(now_); }

  inline static int now_ = kTimeoutDefault;
  const int before_;
};

}  // namespace vk
