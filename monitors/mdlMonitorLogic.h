// SPDX-License-Identifier: MIT
// What every kind of monitor does with readings, in the same words for all of them. Its window
// makes surfaces and labels, hands readings to take() in every pass of the cycle, and brings what
// they left to the screen by show() and labels() once a frame. One way tells a lost box and an
// unused channel to every kind: a reading that is kLostReading or kUnusedReading.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/clsSurface.h"
#include "monitors/mdlMonitorRow.h"
#include "monitors/mdlMonitorValue.h"

namespace vk {

struct MonitorSurfaces {
  clsSurface& shown;            ///< what the user sees
  clsSurface& twin;             ///< as large and out of sight: where that is put together
  clsSurface* extra = nullptr;  ///< of a wave the strip of marks, of a circle the dial alone
};

/// New texts of a channel's labels; nothing for one that keeps its text.
struct ChannelLabels {
  std::optional<std::string> value;
  std::optional<std::string> unit;
  std::optional<std::string> max;
  std::optional<std::string> min;
};

class MonitorLogic {
 public:
  MonitorLogic() = default;
  MonitorLogic(const MonitorLogic&) = delete;
  MonitorLogic& operator=(const MonitorLogic&) = delete;
  virtual ~MonitorLogic() = default;

  /// Takes the record over and starts the trace anew; the extremes stay. `slots` are the boxes'
  /// rows of the table, one for each channel. A resize() follows before anything is shown.
  virtual void init(std::span<const int32_t> slots) = 0;
  /// The shown picture has another size: scales for it, and no trace so far.
  virtual void resize(int width, int height) = 0;

  /// One reading for each channel. Neither draws nor makes texts.
  virtual void take(std::span<const std::string_view> readings) = 0;
  /// No channel has a live box.
  void lose() {
    static constexpr auto kAllLost = filled<std::string_view, kMostChannels>(kLostReading);
    take(kAllLost);
  }
  /// The Clear button: extremes and trace start anew with the next readings.
  virtual void clear() = 0;
  /// Makes the unit of a channel be said again.
  virtual void reloadUnit(std::size_t channel) = 0;

  /// Draws what has changed since the last call; false when nothing has.
  virtual bool show(const MonitorSurfaces& surfaces) = 0;
  /// What the labels of a channel shall say, as far as that is new since the last call.
  virtual ChannelLabels labels(std::size_t channel) = 0;
};

}  // namespace vk
