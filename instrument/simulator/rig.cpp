// SPDX-License-Identifier: MIT
#include "instrument/simulator/rig.h"

namespace vksim {
namespace {

enum Refusal {
  kDuringMeasurement = 10,
  kOnlyDuringMeasurement = 11,
  kIsSlave = 12,
  kNotWaitingForTrigger = 15,
  kNoCard = 50,
  kCardFull = 56,
  kSettingError = 61,
};

}  // namespace

void Rig::pass(Micros duration) {
  TimeBase target = base_;
  target.now += static_cast<Micros>(static_cast<double>(duration) * base_.speed);
  target.calendar += duration;
  advanceTo(target);
}

void Rig::advanceTo(const TimeBase& target) {
  const TimeBase from = base_;
  for (;;) {
    Recorder* next = nullptr;
    Micros at = target.now;
    for (const auto& recorder : recorders) {
      const auto event = recorder->nextEvent();
      if (!event || *event > at || (next != nullptr && *event == at)) continue;
      next = recorder.get();
      at = *event;
    }
    if (next == nullptr) break;
    // An event that was due before (a signal changed by hand) happens now.
    base_.now = std::max(at, base_.now);
    base_.calendar =
        from.calendar + static_cast<Micros>(static_cast<double>(base_.now - from.now) / from.speed);
    if (next->state() == State::kArmed)
      triggerAll(*next, base_.now);
    else
      next->step(base_);
  }
  base_ = target;
}

std::vector<Recorder*> Rig::slavesOf(const Recorder& recorder) const {
  std::vector<Recorder*> slaves;
  const Recorder* master = nullptr;
  for (const auto& one : recorders) {
    if (one->role == Role::kSlave) {
      if (!one->upgradeMode) slaves.push_back(one.get());
    } else if (master == nullptr) {
      master = one.get();
    }
  }
  if (master != &recorder) slaves.clear();
  return slaves;
}

void Rig::triggerAll(Recorder& master, Micros now) {
  master.trigger(now);
  for (Recorder* slave : slavesOf(master))
    if (slave->state() == State::kArmed) slave->trigger(now);
}

int Rig::run(Recorder& recorder) {
  if (recorder.role == Role::kSlave) return kIsSlave;
  if (recorder.isMeasuring()) return kDuringMeasurement;
  if (recorder.conditions() == nullptr) return kSettingError;
  if (!recorder.card.inserted) return kNoCard;
  if (!recorder.hasRoom()) return kCardFull;
  const bool continuing = recorder.conditions()->triggerMode == 'C';
  for (Recorder* slave : slavesOf(recorder))
    if (!slave->isMeasuring() && slave->hasRoom()) slave->arm(base_.now, continuing);
  recorder.arm(base_.now, continuing);
  advanceTo(base_);  // a free run is under way at once
  return 0;
}

int Rig::halt(Recorder& recorder) {
  if (recorder.role == Role::kSlave) return kIsSlave;
  if (recorder.state() == State::kWaiting) return kOnlyDuringMeasurement;
  recorder.halt(base_);
  for (Recorder* slave : slavesOf(recorder)) slave->halt(base_);
  return 0;
}

int Rig::manualTrigger(Recorder& recorder) {
  if (recorder.role == Role::kSlave) return kIsSlave;
  if (recorder.state() != State::kArmed) return kNotWaitingForTrigger;
  triggerAll(recorder, base_.now);
  return 0;
}

}  // namespace vksim
