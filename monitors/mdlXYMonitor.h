// SPDX-License-Identifier: MIT
// What an X-Y monitor shows: one channel against another as a line that grows reading by reading,
// and a pointer at the latest point. The line goes into the hidden twin as readings are taken;
// show() copies it to the visible picture and lays grid and centre lines over it. Of each pair,
// element 0 is the Y axis and element 1 the X axis.
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

class XYMonitor {
 public:
  explicit XYMonitor(XYMonitorRec& record) : record_(record) {}

  /// A blank plot in the colours of the record; the extremes stay.
  void init(const std::array<int32_t, kXYAxes>& slots, clsSurface& sub);
  /// Scales for a plot of this size, without the line so far.
  void resize(int width, int height, clsSurface& sub);
  /// One reading for each axis.
  void take(std::span<const std::string_view> readings, clsSurface& sub);
  /// An axis, or both, have lost their boxes.
  void loseAxis(std::size_t axis);
  void lose();
  /// Empties the line; the plot follows with the next sample.
  void clear(clsSurface& sub);
  /// The slider of an axis; the line so far stays where it is.
  void setOffset(std::size_t axis, int32_t offset);
  void reloadUnit(std::size_t axis);

  /// False when nothing changed.
  bool show(clsSurface& wave, const clsSurface& sub);
  bool pointerVisible() const { return pointerVisible_; }
  /// The latest point on the plot.
  int32_t pointerX() const;
  int32_t pointerY() const;

  /// New text of a label, if it changed since the last call.
  std::optional<std::string> takeValueText(std::size_t axis) { return axes_.at(axis).label.take(); }
  std::optional<std::string> takeUnitText(std::size_t axis);
  /// "1000ue/div".
  std::string scaleText(std::size_t axis) const;
  /// Value of the slider's position.
  std::string offsetText(std::size_t axis) const;

  const Extremes& extremes(std::size_t axis) const { return axes_.at(axis).extremes; }

 private:
  enum class Unit { kKept, kReload, kNone };
  struct Axis {
    int32_t slot = 0;
    Extremes extremes;
    bool wasConnected = false;
    float scale = 0;  ///< pixels per unit
    int32_t centre = 0;
    int32_t gndOffsetPx = 0;
    float last = 0;  ///< row or column of the previous point
    ReadingLabel label;
    Unit unit = Unit::kKept;
  };

  void scaleAxis(std::size_t axis, int extent);
  void shiftAxis(std::size_t axis);
  float takeAxis(std::size_t axis, std::string_view reading);
  void drawXYSample(float vy, float vx, clsSurface& sub);

  XYMonitorRec& record_;
  std::array<Axis, kXYAxes> axes_;
  bool firstSample_ = true;
  bool cleared_ = true;  ///< since the last line
  bool pointerVisible_ = false;
  // What the next show() brings to the picture.
  bool blank_ = true;
  bool sample_ = false;
  bool overlays_ = true;
  bool pointer_ = false;
};

struct XYMetrics {
  int serial;   ///< width of a serial label
  int channel;  ///< width of a channel label
  int line;     ///< height of a label
  int button;   ///< height of a button
};

/// The labels of an axis, one below the other; rows without room are left out.
struct XYBlock {
  int serial = -1;   ///< top of the row, -1 without one
  int channel = -1;  ///< the same as that of the serial where both go into one row
  int value = -1;
  int unit = -1;  ///< beside the value, or at the right of the channel where that leaves no room
  int scale = -1;
  int offset = -1;
};

struct XYLayout {
  MonitorPlace wave;  ///< square
  std::array<MonitorPlace, kXYAxes> slider;
  int column;  ///< left edge of the labels
  int columnWidth;
  int valueHeight;  ///< of the row with the value, which grows with the window
  std::array<XYBlock, kXYAxes> block;
  MonitorPlace frame;
};
XYLayout xyLayout(int width, int height, const XYMetrics& metrics);

}  // namespace vk
