// SPDX-License-Identifier: MIT
// From the six characters of a reading to what a monitor shows: the value in the unit of its
// channel, the held extremes, and the texts that all kinds of monitor have in common. Slots are
// rows 1 to 8 of the box table, channels count from 1; both may come from a file and be nonsense.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "recorder/mdlChannelScale.h"
#include "recorder/mdlWireText.h"

namespace vk {

/// A channel that its box does not use.
inline constexpr std::string_view kUnusedReading = "------";
/// A channel without a live box, and the whole reply of a box that failed.
inline constexpr std::string_view kLostReading = "*";

/// Rows 1 to 8.
bool isBoxSlot(int32_t slot);
/// The reading of a channel in a reply to MON; empty where there is none.
std::string_view readingOf(std::string_view reply, int32_t channel);

/// The reading in the unit of its channel: times its coefficient, a tenth of that in a range with
/// a decimal, four times that with an excitation of 0.5 V, each step in single precision. Empty
/// when the text is no number, or slot or channel do not exist.
std::optional<float> toDisplayValue(std::string_view text, int32_t slot, int32_t channel);
/// Of no effect when slot or channel do not exist.
ChannelScale scaleOf(int32_t slot, int32_t channel);

/// The largest and smallest value since opening or clearing. The first sample sets only the
/// maximum.
struct Extremes {
  static constexpr float kMaxStart = -9999999999.0F;
  static constexpr float kMinStart = 9999999999.0F;
  enum class Change { kNone, kMax, kMin };

  float max = kMaxStart;
  float min = kMinStart;

  Change hold(float value);
};

/// What the label of a channel's value says; made a text only when that is asked for.
class ReadingLabel {
 public:
  enum class Says { kNothing, kValue, kUnused, kError, kLost };

  void say(Says says) { now_ = {says, 0}; }
  void say(float value) { now_ = {Says::kValue, value}; }
  Says says() const { return now_.says; }
  /// The text, if it is another than at the last call.
  std::optional<std::string> take();

 private:
  struct State {
    Says says = Says::kNothing;
    float value = 0;
    bool operator==(const State&) const = default;
  };
  State now_;
  State taken_;
};

/// What the label of a channel's unit says: nothing new, the unit of its box, or none.
class UnitLabel {
 public:
  void reload() { next_ = Next::kUnit; }
  void lose() { next_ = Next::kNone; }
  /// The text, or `none` in place of it, if it was asked for since the last call.
  std::optional<std::string> take(int32_t slot, int32_t channel, std::string_view none = {});

 private:
  enum class Next { kKept, kUnit, kNone };
  Next next_ = Next::kKept;
};

std::string monitorCaption(std::size_t index, std::string_view caption);
/// The user's title out of a window's caption.
std::string titleOfCaption(std::string_view windowCaption, std::size_t index);
/// "Ser: 4810021", "Ch: 1".
std::string serialLabel(int32_t serial);
std::string channelLabel(int32_t channel);
/// Unit of the channel; empty without a box.
std::string unitLabel(int32_t slot, int32_t channel);

}  // namespace vk
