// SPDX-License-Identifier: MIT
// The strip chart of one channel, which enters at the right edge and scrolls left by elapsed time.
// Each reading is taken in at once: extremes, offset cancel, sweep. What it leaves to be drawn is
// collected and drawn at the next frame, with one scroll for all of it: the picture is the same as
// if each sample had been drawn by itself. Rows and columns are pixels, times are milliseconds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "monitors/mdlMonitorLogic.h"
#include "monitors/mdlMonitorPicture.h"
#include "monitors/mdlWaveRecord.h"

namespace vk {

/// Its twin holds the trace alone, its extra surface is the strip with the path of the extremes.
class WaveMonitor : public MonitorLogic {
 public:
  /// Changes of slider and check box go into the record.
  explicit WaveMonitor(WaveMonitorRec& record) : record_(record) {}

  void init(std::span<const int32_t> slots) override;
  void resize(int width, int height) override;
  void take(std::span<const std::string_view> readings) override;
  void clear() override;
  void reloadUnit(std::size_t channel) override;
  bool show(const MonitorSurfaces& surfaces) override;
  ChannelLabels labels(std::size_t channel) override;

  void moveGround(int32_t position);
  void setOffsetCancel(bool on);
  void setPaused(bool on);

  std::string xScaleText() const;
  std::string yScaleText() const;
  std::string offsetText() const;
  const Extremes& extremes() const { return extremes_; }
  int32_t cancelOffsetPx() const { return cancelOffsetPx_; }

 private:
  /// What one sample adds: so many columns, crossed by a line between two rows.
  struct Stroke {
    int32_t step;
    int32_t fromRow;
    int32_t toRow;
  };

  void setScale();
  void setAxis();
  float rowOf(float value) const;
  void takeLost();
  void takeUnused();
  void takeReading(std::string_view reading);
  void collectOffset(std::string_view reading);
  void addSample(float value);
  void addStroke(Stroke stroke);
  void addMarks();
  void addMark(float value, Colour colour);
  void blank();
  std::size_t firstVisible(int32_t& columns) const;
  void showMarks(clsSurface& marks);
  bool showStrokes(clsSurface& twin);

  WaveMonitorRec& record_;
  int32_t slot_ = 0;
  int32_t width_ = 1;
  int32_t height_ = 1;
  Extremes extremes_;
  float scaleY_ = 0;  ///< pixels per unit
  ValueAxis axis_;
  int32_t centerY_ = 0;
  int32_t centerX_ = 0;
  int32_t gndOffsetPx_ = 0;
  int32_t cancelOffsetPx_ = 0;

  uint32_t lastTime_ = 0;
  float sweepFrac_ = 0;
  float lastY_ = 0;
  float lastValue_ = 0;
  int64_t offsetSum_ = 0;
  int32_t offsetCount_ = 0;
  bool offsetMeasuring_ = false;
  bool isPaused_ = false;
  bool wasConnected_ = false;
  bool firstSample_ = true;

  ReadingLabel label_;
  UnitLabel unit_;
  std::vector<Stroke> strokes_;
  std::vector<ExtremeMark> marks_;
  bool hasMarks_ = false;  ///< on the strip or waiting for it
  bool blankWave_ = false;
  bool blankSub_ = false;
  bool blankMarks_ = false;
  bool overlays_ = false;
};

}  // namespace vk
