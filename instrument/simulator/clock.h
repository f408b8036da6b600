// SPDX-License-Identifier: MIT
//
// The time that passes between the program and the recorders, in microseconds from an arbitrary
// start. A user's recorders run on the steady clock; a test turns a virtual one, and a read that
// has to wait for a late reply turns it as well.
#pragma once

#include <chrono>
#include <cstdint>
#include <thread>

namespace vksim {

using Micros = std::int64_t;
inline constexpr Micros kSecond = 1'000'000;

class Clock {
 public:
  virtual ~Clock() = default;
  [[nodiscard]] virtual Micros now() const = 0;
  virtual void wait(Micros duration) = 0;
};

class VirtualClock : public Clock {
 public:
  [[nodiscard]] Micros now() const override { return now_; }
  void wait(Micros duration) override { now_ += duration; }

 private:
  Micros now_ = 0;
};

class SteadyClock : public Clock {
 public:
  [[nodiscard]] Micros now() const override {
    const auto since = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::microseconds>(since).count();
  }
  void wait(Micros duration) override {
    std::this_thread::sleep_for(std::chrono::microseconds(duration));
  }
};

}  // namespace vksim
