// SPDX-License-Identifier: MIT
//
// The measurement conditions a recorder was given, decoded from the text of SET into what the
// hardware does: microseconds, samples, scale of a reading. A reading is the whole number that MON
// shows and that a recording stores: microstrain (or millivolt) at 2.0 V excitation, tenths of it
// on the ranges with a decimal; at 0.5 V a reading stands for four times as much.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "instrument/simulator/clock.h"

namespace vksim {

inline constexpr int kChannels = 4;

enum class Model { kVK240Q, kVK240Qe, kVK480Q, kVK480Qe };

[[nodiscard]] std::string_view modelName(Model model);
[[nodiscard]] std::optional<Model> modelNamed(std::string_view name);
[[nodiscard]] bool isHighFamily(Model model);     ///< the two VK-480Q models
[[nodiscard]] bool hasAnalogOutput(Model model);  ///< the two "e" models

enum class Slope { kOff, kUp, kDown };

struct ChannelConditions {
  int fullScale = 0;   ///< of a reading
  double perUnit = 1;  ///< readings per microstrain or millivolt
  double cutoff = 0;   ///< Hz, 0 without filter
  Slope slope = Slope::kOff;
  double level = 0;  ///< percent of full scale
};

struct Conditions {
  std::string text;
  int channels = kChannels;
  std::array<ChannelConditions, kChannels> channel;
  char triggerMode = 'C';  ///< 'S'ingle, 'C'ontinue, 'F'ree run
  Micros interval = 0;     ///< between two samples
  int prePercent = 0;
  std::int64_t samples = 0;

  /// Samples kept from before the trigger. 100 percent means 99, and the store is limited.
  [[nodiscard]] std::int64_t preSamples() const;
};

/// Nothing when a recorder of that model refuses the text.
[[nodiscard]] std::optional<Conditions> parseConditions(std::string_view text, Model model);
/// What a recorder leaves the factory with.
[[nodiscard]] std::string_view factoryConditions(Model model);

/// "200U", "001M", "001S": microseconds. Nothing for an interval that no recorder has.
[[nodiscard]] std::optional<Micros> parseInterval(std::string_view code);

}  // namespace vksim
