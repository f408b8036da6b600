// SPDX-License-Identifier: MIT
// A round dial of 270 degrees, from the bottom clockwise to the right, with a needle for the value,
// marks for its extremes and a lamp in the free quadrant that tells a value beyond the scale. The
// static dial is drawn once to a picture of its own; each shown reading starts from a copy of it
// in a hidden picture, so that the needle needs no erasing. No window is needed here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/mdlAxis.h"
#include "monitors/mdlCircleRecord.h"
#include "monitors/mdlMonitorLogic.h"
#include "monitors/mdlMonitorPicture.h"

namespace vk {

/// What the dial takes from the desktop.
struct CircleColours {
  Colour form = 0;
  Colour button = 0;
};

/// What stands around the dial, from the bottom clockwise.
struct CircleScale {
  std::string offset;
  std::string oneThird;
  std::string twoThirds;
  std::string full;
};
CircleScale circleScale(const CircleMonitorRec& record);

/// Its extra surface holds the dial without needle and marks; all three have the same size.
class CircleMonitor : public MonitorLogic {
 public:
  explicit CircleMonitor(const CircleMonitorRec& record) : record_(record) {}

  void init(std::span<const int32_t> slots) override;
  void resize(int width, int height) override;
  void take(std::span<const std::string_view> readings) override;
  void clear() override;
  void reloadUnit(std::size_t channel) override;
  bool show(const MonitorSurfaces& surfaces) override;
  ChannelLabels labels(std::size_t channel) override;

  /// For the dial of the next resize().
  void setColours(CircleColours colours) { colours_ = colours; }
  /// "Y:1000ue[FS]".
  std::string scaleText() const;
  const Extremes& extremes() const { return extremes_; }

 private:
  enum class Side { kAbove, kBelow };  ///< of the scale; its needle lies on its end or its start
  struct Point {
    int x;
    int y;
  };
  struct Direction {
    double x;
    double y;
  };

  void drawDial(clsCanvas& dial) const;
  void drawTicks(clsCanvas& dial, int stepDegrees, int from, int to, Colour colour) const;
  void drawLampFrame(clsCanvas& dial) const;
  void drawEmpty(const MonitorSurfaces& surfaces) const;
  void drawNeedle(const MonitorSurfaces& surfaces) const;
  void drawMark(clsCanvas& twin, float value, Colour colour) const;
  void lineAlong(clsCanvas& picture, Direction direction, double from, double to,
                 Colour colour) const;
  Point pointAt(Direction direction, double part) const;
  Direction directionOf(float value) const;
  Direction peggedDirection(Side side) const;
  std::optional<Side> sideOf(float value) const;

  const CircleMonitorRec& record_;
  CircleColours colours_;
  int32_t slot_ = 0;
  Axis<double> degrees_;  ///< of a value, clockwise from the right
  int32_t centerX_ = 0;
  int32_t centerY_ = 0;
  int32_t dialRadius_ = 0;

  Extremes extremes_;
  float value_ = 0;
  bool pending_ = false;  ///< a reading that show() has not drawn
  bool empty_ = true;     ///< a dial without a needle comes first
  bool wasConnected_ = false;
  ReadingLabel label_;
  UnitLabel unit_;

  void takeReading(std::string_view reading);

  struct Drawn {
    float value;
    Extremes extremes;
  };
  std::optional<Drawn> drawn_;  ///< what the visible picture shows, if it has a needle
};

}  // namespace vk
