// SPDX-License-Identifier: MIT
//
// One recorder box: conditions, card, inputs, and the measurement as a state machine on recorder
// time. Its own moves are timed events (a trigger in its signal, the end of a recording, the end of
// writing); what comes from outside (start, stop, manual trigger) is called on it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "instrument/simulator/card.h"
#include "instrument/simulator/conditions.h"
#include "instrument/simulator/faults.h"
#include "instrument/simulator/recording.h"

namespace vksim {

enum class State { kWaiting = 1, kArmed = 2, kRecording = 3, kWriting = 4, kNoCapacity = 5 };

enum class Role { kMaster, kSlave };

/// Moments in recorder time against the calendar: they differ when recorder time runs faster.
struct TimeBase {
  Micros now = 0;       ///< recorder time
  Micros calendar = 0;  ///< since 1970, the PC's
  double speed = 1;
};

class Recorder {
 public:
  Recorder(std::string id, Model model, int serial);

  // What it is, and what was done to it from outside.
  std::string id;  ///< stays when the serial number is rewritten
  Model model;
  int serial;
  Role role = Role::kMaster;
  bool plugged = true;
  bool upgradeMode = false;
  std::string bootRom = "1.02";
  std::string mainRom = "2.10";
  Card card;
  Inputs inputs;
  Faults faults;

  // What it was told.
  std::array<std::string, kChannels> units;
  std::array<std::string, kChannels> coefficientTexts;
  std::array<bool, kChannels> balanceOff{};
  std::vector<std::string> adjustments;  ///< arguments of ADJ, in order
  Micros clockCorrection = 0;

  // A program image on its way.
  int imageBlock = 0;  ///< of PWE, 0 to 3
  std::int64_t imageBytes = 0;

  [[nodiscard]] State state() const { return state_; }
  [[nodiscard]] bool isMeasuring() const;
  /// Null when the stored conditions are not normal.
  [[nodiscard]] const Conditions* conditions() const;
  [[nodiscard]] const std::string& conditionsText() const { return conditionsText_; }
  /// False, and nothing changed, when the text is refused.
  bool setConditions(std::string_view text);
  /// Stores whatever it is, as a recorder with a spoilt memory does.
  void forceConditions(std::string text);
  void setSignal(std::size_t channel, const Signal& signal);

  [[nodiscard]] DateTime dateAt(Micros moment, const TimeBase& base) const;
  [[nodiscard]] bool isUsed(std::size_t channel) const;
  [[nodiscard]] int liveReading(std::size_t channel, Micros now) const;
  [[nodiscard]] bool hasRoom() const;

  // The measurement. `freeRun` and `continuing` are the master's.
  void arm(Micros now, bool continuing);
  void trigger(Micros now);
  void halt(const TimeBase& base);
  /// The moment of the next move it makes by itself; a slave sees no trigger of its own.
  [[nodiscard]] std::optional<Micros> nextEvent();
  /// Makes that move. `base.now` is its moment.
  void step(const TimeBase& base);
  /// Puts a recording on the card as if it had been made at `start`.
  void store(Recording recording, const DateTime& written);

 private:
  std::optional<Micros> findTrigger() const;
  bool crosses(std::size_t channel, int before, int after) const;
  void beginWriting(const TimeBase& base, std::int64_t frames);

  State state_ = State::kWaiting;
  std::string conditionsText_;
  std::optional<Conditions> conditions_;
  bool continuing_ = false;
  Micros armedAt_ = 0;
  std::optional<std::optional<Micros>> ownTrigger_;  // outer: searched for
  std::int64_t preFrames_ = 0;
  Micros triggeredAt_ = 0;
  Micros writtenAt_ = 0;
  Recording running_;
};

}  // namespace vksim
