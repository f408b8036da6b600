// SPDX-License-Identifier: MIT
// What a numerical monitor shows: one channel as a large number, the mean of some readings, with
// the held extremes and colours that tell a value outside its limits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/clsCanvas.h"
#include "monitors/mdlMonitorLogic.h"
#include "monitors/mdlNumRecord.h"

namespace vk {

class NumMonitor : public MonitorLogic {
 public:
  explicit NumMonitor(const NumMonitorRec& record);

  void init(std::span<const int32_t> slots) override;
  void resize(int width, int height) override;
  void take(std::span<const std::string_view> readings) override;
  void clear() override;
  void reloadUnit(std::size_t channel) override;
  bool show(const MonitorSurfaces& surfaces) override;
  ChannelLabels labels(std::size_t channel) override;

  /// Colours of the unit, those of the last drawn value.
  Colour unitBack() const { return unit_.back; }
  Colour unitFore() const { return unit_.fore; }

 private:
  struct Colours {
    Colour back = kDarkGrey;
    Colour fore = kWhite;
  };
  enum class Shown { kNothing, kValue, kUnused, kLost };
  enum class Label { kKept, kText, kNone };
  struct HoldLabel {
    Label state = Label::kKept;
    float value = 0;
  };

  std::optional<std::string> takeHold(HoldLabel& label) const;
  void takeLost();
  void takeReading(std::string_view reading);
  void holdValue(float value);
  void finishMean(double mean);
  void judge(double mean);
  void lookAs(Shown shown);
  void drawNumValue(clsSurface& twin, int monitorWidth, int monitorHeight) const;

  const NumMonitorRec& record_;
  int32_t slot_ = 0;
  Extremes extremes_;
  double avgSum_ = 0;
  int64_t avgCount_ = 0;
  int32_t lastPoint_;
  bool wasConnected_ = false;

  bool inNormal_ = true;
  bool colorChanged_ = false;
  Colours draw_;  ///< for the next value that is drawn
  Colours sub_;   ///< of the picture
  Colours unit_;

  Shown shown_ = Shown::kNothing;
  double mean_ = 0;
  Colour wipe_ = kDarkGrey;  ///< what mean_ leaves beside itself
  bool changed_ = true;
  HoldLabel maxLabel_;
  HoldLabel minLabel_;
  UnitLabel unitLabel_;
};

/// With "+" in front of a positive value, "Overflow" when longer than the display.
std::string signedText(float value, int32_t point);
std::string signedText(double value, int32_t point);

/// Walks the font of the picture, a point a step, until the widest expected number fits.
void fitValueFont(clsCanvas& picture);
/// The same for the widest expected unit, whose line stays within the picture.
void fitUnitFont(clsCanvas& picture);
/// Height of a line in the font of the unit.
int unitLineHeight(const clsCanvas& picture);

}  // namespace vk
