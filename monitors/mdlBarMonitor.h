// SPDX-License-Identifier: MIT
// Up to four channels as bars from a common ground level. The picture holds nothing older than the
// last readings, so each frame draws it as a whole from the state that the readings left. Rows and
// columns are pixels, bars count from 0.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/clsSurface.h"
#include "monitors/mdlMonitorPicture.h"
#include "monitors/mdlMonitorRecords.h"
#include "monitors/mdlMonitorValue.h"

namespace vk {

/// Left and right columns of the four bars: four units each, a unit between them and at the edges.
struct BarEdges {
  std::array<int32_t, kBars> left{};
  std::array<int32_t, kBars> right{};
};
BarEdges barEdges(int width);

class BarMonitor {
 public:
  /// Changes of the slider go into the record.
  explicit BarMonitor(BarMonitorRec& record) : record_(record) {}

  /// Takes the record over; boxSlots are the boxes' rows of the table, one for each bar.
  void init(const std::array<int32_t, kBars>& boxSlots, int width, int height);
  void resize(int width, int height);

  /// One reading for each bar.
  void take(std::span<const std::string_view> readings);
  /// No bar has a live box.
  void lose();
  void loseBar(std::size_t bar);
  /// Grid and zero line over what the picture shows.
  void showEmpty();
  void clear();
  void moveGround(int32_t position);

  /// Draws what has changed since the last call, by way of the twin.
  void show(clsSurface& wave, clsSurface& sub);
  /// Text for the bar's value, when it has changed since the last call.
  std::optional<std::string> newValueText(std::size_t bar) { return bars_.at(bar).label.take(); }
  /// True once after the bar has lost its box: its unit goes.
  bool takeUnitLoss(std::size_t bar);

  std::string scaleText(std::size_t bar) const;
  std::string unitText(std::size_t bar) const;
  const Extremes& extremes(std::size_t bar) const { return bars_[bar].extremes; }

 private:
  struct Bar {
    int32_t slot = 0;
    Extremes extremes;
    float scaleY = 0;  ///< pixels per unit
    int32_t gndOffsetPx = 0;
    bool wasConnected = false;
    ReadingLabel label;
    bool unitIsLost = false;
    float value = 0;  ///< of the last reading, 0 without one
    bool drawn = false;
  };

  bool anyConnected() const;
  void setScales();
  bool takeBar(std::size_t index, std::string_view reading);
  float rowOf(const Bar& bar, float value) const;
  void drawBars(clsSurface& wave, clsSurface& sub) const;
  void drawMarks(clsSurface& sub, std::size_t index) const;
  void drawZero(clsSurface& wave, int32_t row) const;

  BarMonitorRec& record_;
  std::array<Bar, kBars> bars_;
  BarEdges edges_;
  int32_t width_ = 1;
  int32_t height_ = 1;
  int32_t centerY_ = 0;
  bool stale_ = true;  ///< the next readings are drawn even if they equal the last ones
  bool drawBars_ = false;
  bool blankWave_ = false;
  bool blankSub_ = false;
  std::optional<int32_t> zeroRow_;  ///< grid and a zero line in this row are to be drawn
};

/// Where everything in the window goes. A place without a size is for a control that finds no room.
struct BarLayout {
  MonitorPlace picWave;
  MonitorPlace sdrYPos;
  MonitorPlace fraSet;
  std::array<MonitorPlace, kBars> picCh;
  bool buttonsBeside = false;  ///< the buttons of the frame stand in a row, not in a column
};

/// What the controls need, which depends on font and style.
struct BarRoom {
  int sliderWidth = 1;
  int buttonWidth = 1;
  int buttonHeight = 1;
  int panelRow = 4;  ///< width of the four panels side by side
};

BarLayout barLayout(int width, int height, const BarRoom& room);

}  // namespace vk
