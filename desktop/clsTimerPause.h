// SPDX-License-Identifier: MIT
// Keeps a timer still for the length of a scope and starts it again on every way out.
#pragma once

#include <QTimer>

namespace vk {

class clsTimerPause {
 public:
  explicit clsTimerPause(QTimer& timer) : timer_(timer) { timer_.stop(); }
  ~clsTimerPause() { timer_.start(); }
  clsTimerPause(const clsTimerPause&) = delete;
  clsTimerPause& operator=(const clsTimerPause&) = delete;

 private:
  QTimer& timer_;
};

}  // namespace vk
