// SPDX-License-Identifier: MIT
// The strip chart of one channel, which enters at the right edge and scrolls left by elapsed time.
// Each reading is taken in at once: extremes, offset cancel, sweep. What it leaves to be drawn is
// collected and drawn at the next frame, with one scroll for all of it: the picture is the same as
// if each sample had been drawn by itself. Rows and columns are pixels, times are milliseconds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/clsSurface.h"
#include "monitors/mdlMonitorPicture.h"
#include "monitors/mdlMonitorRecords.h"
#include "monitors/mdlMonitorValue.h"

namespace vk {

struct WavePictures {
  clsSurface& wave;   ///< what the user sees: the trace under its grid
  clsSurface& sub;    ///< the trace alone, as wide and high
  clsSurface& marks;  ///< the path of the extremes, as high
};

class WaveMonitor {
 public:
  /// Changes of slider and check box go into the record.
  explicit WaveMonitor(WaveMonitorRec& record) : record_(record) {}

  /// Takes the record over; slot is the box's row of the table.
  void init(int32_t slot, int width, int height);
  /// The picture's new size: a blank chart in the new scale.
  void resize(int width, int height);

  void take(std::string_view reading);
  /// The box is gone. True when it was there until now.
  bool lose();
  void clear();
  void moveGround(int32_t position);
  void setOffsetCancel(bool on);
  void setPaused(bool on);

  /// Draws what has changed since the last call.
  void show(const WavePictures& pictures);
  /// Text for the live value, when it has changed since the last call.
  std::optional<std::string> newValueText() { return label_.take(); }

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
  float rowOf(float value) const;
  void takeUnused();
  void collectOffset(std::string_view reading);
  void addSample(float value);
  void addStroke(Stroke stroke);
  void addMarks();
  void addMark(float value, Colour colour);
  void blank();
  std::size_t firstVisible(int32_t& columns) const;
  void showMarks(clsSurface& marks);
  bool showStrokes(clsSurface& sub);

  WaveMonitorRec& record_;
  int32_t slot_ = 0;
  int32_t width_ = 1;
  int32_t height_ = 1;
  Extremes extremes_;
  float scaleY_ = 0;  ///< pixels per unit
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
  bool offsetTicked_ = false;
  bool offsetMeasuring_ = false;
  bool isPaused_ = false;
  bool wasConnected_ = false;
  bool firstSample_ = true;

  ReadingLabel label_;
  std::vector<Stroke> strokes_;
  std::vector<ExtremeMark> marks_;
  bool hasMarks_ = false;  ///< on the strip or waiting for it
  bool blankWave_ = false;
  bool blankSub_ = false;
  bool blankMarks_ = false;
  bool overlays_ = false;
};

/// Where everything in the window goes. A place without a size is for a control that finds no room.
struct WaveLayout {
  MonitorPlace picWave;
  MonitorPlace picMaxMin;
  MonitorPlace sdrYPos;
  MonitorPlace lblOffSet;
  MonitorPlace lblMonitor;
  MonitorPlace lblUnitNum;
  MonitorPlace lblSerNum;
  MonitorPlace lblChNum;
  MonitorPlace fraSet;
  MonitorPlace lblYScale;
  MonitorPlace lblXScale;
  int valueFont = 1;  ///< heights of the letters' boxes, in pixels
  int unitFont = 1;
  int scaleFont = 1;
};

/// What the controls need, which depends on font and style.
struct WaveRoom {
  int line = 1;         ///< height of a small label
  int serialWidth = 1;  ///< of "Ser: 0000000"
  int offsetWidth = 1;  ///< of the longest usual ground level
  int sliderWidth = 1;
  int frameWidth = 1;
  int frameHeight = 1;
};

WaveLayout waveLayout(int width, int height, const WaveRoom& room);

}  // namespace vk
