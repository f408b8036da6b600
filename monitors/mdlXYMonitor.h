// SPDX-License-Identifier: MIT
// What an X-Y monitor shows: one channel against another as a line that grows reading by reading,
// and a pointer at the latest point. The line grows in the hidden twin; show()
// copies it to the visible picture and lays grid and centre lines over it. Of each pair,
// element 0 is the Y axis and element 1 the X axis.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "monitors/mdlMonitorLogic.h"
#include "monitors/mdlMonitorPicture.h"
#include "monitors/mdlXYRecord.h"

namespace vk {

class XYMonitor : public MonitorLogic {
 public:
  /// Changes of the sliders go into the record.
  explicit XYMonitor(XYMonitorRec& record) : record_(record) {}

  void init(std::span<const int32_t> slots) override;
  void resize(int width, int height) override;
  void take(std::span<const std::string_view> readings) override;
  void clear() override;
  void reloadUnit(std::size_t channel) override;
  bool show(const MonitorSurfaces& surfaces) override;
  ChannelLabels labels(std::size_t channel) override;

  /// An axis has lost its box.
  void loseChannel(std::size_t axis);
  /// The slider of an axis; the line so far stays where it is.
  void moveGround(std::size_t axis, int32_t position);
  bool pointerVisible() const { return pointerVisible_; }
  /// The latest point on the plot.
  int32_t pointerX() const;
  int32_t pointerY() const;

  /// "1000ue/div".
  std::string scaleText(std::size_t axis) const;
  /// Value of the slider's position.
  std::string offsetText(std::size_t axis) const;

  const Extremes& extremes(std::size_t axis) const { return axes_.at(axis).extremes; }

 private:
  struct Stroke {
    int32_t fromColumn;
    int32_t fromRow;
    int32_t column;
    int32_t row;
  };
  struct Channel {
    int32_t slot = 0;
    Extremes extremes;
    bool wasConnected = false;
    float scale = 0;  ///< pixels per unit
    int32_t centre = 0;
    ValueAxis axis;
    float last = 0;  ///< row or column of the previous point
    ReadingLabel label;
    UnitLabel unit;
  };

  void scaleAxis(std::size_t axis, int extent);
  void shiftAxis(std::size_t axis);
  float takeAxis(std::size_t axis, std::string_view reading);
  void takeLost();
  void addXYSample(float vy, float vx);
  void drawLine(clsSurface& twin);

  XYMonitorRec& record_;
  std::array<Channel, kXYAxes> axes_;
  std::vector<Stroke> strokes_;  ///< for the line, since the last show()
  bool firstSample_ = true;
  bool cleared_ = true;  ///< since the last line
  bool pointerVisible_ = false;
  // What the next show() brings to the picture.
  bool blank_ = true;
  bool blankLine_ = true;
  bool overlays_ = true;
  bool pointer_ = false;
};

}  // namespace vk
