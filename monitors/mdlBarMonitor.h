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

#include "monitors/mdlBarRecord.h"
#include "monitors/mdlMonitorLogic.h"
#include "monitors/mdlMonitorPicture.h"

namespace vk {

/// Left and right columns of the four bars: four units each, a unit between them and at the edges.
struct BarEdges {
  std::array<int32_t, kBars> left{};
  std::array<int32_t, kBars> right{};
};
BarEdges barEdges(int width);

class BarMonitor : public MonitorLogic {
 public:
  /// Changes of the slider go into the record.
  explicit BarMonitor(BarMonitorRec& record) : record_(record) {}

  void init(std::span<const int32_t> slots) override;
  void resize(int width, int height) override;
  void take(std::span<const std::string_view> readings) override;
  void clear() override;
  void reloadUnit(std::size_t channel) override;
  bool show(const MonitorSurfaces& surfaces) override;
  ChannelLabels labels(std::size_t channel) override;

  void loseChannel(std::size_t bar);
  /// Grid and zero line over what the picture shows.
  void showEmpty();
  void moveGround(int32_t position);

  std::string scaleText(std::size_t bar) const;
  std::string unitText(std::size_t bar) const;
  const Extremes& extremes(std::size_t bar) const { return bars_[bar].extremes; }

 private:
  struct Bar {
    int32_t slot = 0;
    Extremes extremes;
    ValueAxis axis;
    int32_t zeroRow = 0;
    bool wasConnected = false;
    ReadingLabel label;
    UnitLabel unit;
    float value = 0;  ///< of the last reading, 0 without one
    bool drawn = false;
  };

  bool anyConnected() const;
  void setScales();
  void takeLost();
  bool takeBar(std::size_t index, std::string_view reading);
  void drawBars(clsSurface& wave, clsSurface& twin) const;
  void drawMarks(clsCanvas& twin, std::size_t index) const;
  void drawZero(clsCanvas& wave, int32_t row) const;

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

}  // namespace vk
