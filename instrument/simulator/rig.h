// SPDX-License-Identifier: MIT
//
// All recorders that hang together: time passes for them in the order of their events, and the
// slaves follow the first master. Results are 0 or the number that goes behind "ERR,".
#pragma once

#include <memory>
#include <vector>

#include "instrument/simulator/recorder.h"

namespace vksim {

class Rig {
 public:
  std::vector<std::unique_ptr<Recorder>> recorders;

  explicit Rig(Micros calendar = 0) { base_.calendar = calendar; }

  [[nodiscard]] const TimeBase& base() const { return base_; }
  void setSpeed(double speed) { base_.speed = speed; }
  /// Lets that much of the user's time pass.
  void pass(Micros duration);

  [[nodiscard]] int run(Recorder& recorder);
  [[nodiscard]] int halt(Recorder& recorder);
  [[nodiscard]] int manualTrigger(Recorder& recorder);

 private:
  [[nodiscard]] std::vector<Recorder*> slavesOf(const Recorder& recorder) const;
  void advanceTo(const TimeBase& target);
  void triggerAll(Recorder& master, Micros now);

  TimeBase base_;
};

}  // namespace vksim
