// SPDX-License-Identifier: MIT
//
// The scenario file: which recorders are there, what their sensors see, what is wrong with them.
// docs/simulator.md describes the text. A line that cannot be understood is told and skipped.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "instrument/simulator/bus.h"

namespace vksim {

struct StoredRecording {
  int channels = kChannels;
  std::string sampling;  ///< code as in the conditions
  std::int64_t frames = 0;

  bool operator==(const StoredRecording&) const = default;
};

struct BoxSetup {
  std::string id;  ///< the seven digits of the section
  // Fixed when the box first appears.
  Model model = Model::kVK480Q;
  std::string conditions;
  std::vector<std::string> units;
  std::vector<std::string> coefficients;
  std::string bootRom = "1.02";
  std::string mainRom = "2.10";
  std::vector<StoredRecording> recordings;
  // Followed while running.
  Role role = Role::kSlave;
  bool plugged = true;
  bool upgradeMode = false;
  bool cardInserted = true;
  bool cardFull = false;
  CardSpeed cardSpeed = CardSpeed::kFast;
  int cardMegabytes = 512;
  std::array<Signal, kChannels> signals;
  std::vector<Fault> faults;
};

struct Scenario {
  Timing timing{1.5, 20};
  double speed = 1;
  std::vector<BoxSetup> boxes;
  std::vector<std::string> problems;  ///< "line 3: ...", in order
};

/// The bus that is there without a scenario file.
[[nodiscard]] std::string_view defaultBus();
[[nodiscard]] Scenario parseScenario(std::string_view text);

/// Brings a bus to what the scenario says. Boxes that stay keep their card and their conditions.
void applyScenario(const Scenario& scenario, Bus& bus);

/// A scenario file that may change, come or go while the recorders run.
class ScenarioWatch {
 public:
  explicit ScenarioWatch(std::filesystem::path path) : path_(std::move(path)) {}
  /// The scenario when it has to be applied: the first time, and after a change of the file. Looks
  /// at most every 100 milliseconds. New problems go to `problems`, each only once.
  [[nodiscard]] std::optional<Scenario> poll(Micros now, std::vector<std::string>& problems);

 private:
  std::filesystem::path path_;
  bool first_ = true;
  Micros lastLook_ = 0;
  std::string stamp_;
  std::set<std::string> told_;
};

}  // namespace vksim
