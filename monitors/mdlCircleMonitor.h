// SPDX-License-Identifier: MIT
// A round dial of 270 degrees, from the bottom clockwise to the right, with a needle for the value,
// marks for its extremes and a lamp in the free quadrant that tells a value beyond the scale. The
// static dial is drawn once to a picture of its own; each shown reading starts from a copy of it
// in a hidden picture, so that the needle needs no erasing. No window is needed here.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/clsSurface.h"
#include "monitors/mdlMonitorPicture.h"
#include "monitors/mdlMonitorRecords.h"
#include "monitors/mdlMonitorValue.h"

namespace vk {

/// All three have the same size.
struct CirclePictures {
  clsSurface& wave;  ///< what the user sees
  clsSurface& sub;   ///< where a reading is put together
  clsSurface& dial;  ///< without needle and marks
};

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
/// "Y:1000ue[FS]".
std::string circleScaleLabel(const CircleMonitorRec& record, std::string_view unit);

class CircleMonitor {
 public:
  /// Takes the record over; the extremes stay.
  void init(const CircleMonitorRec& record, int32_t slot);
  /// From now on values have their angles; before, every tick and needle points down.
  void startAngles();
  void resize(int width, int height);

  void take(std::string_view reading);
  /// True when the monitor had a box until now.
  bool lose();
  void clear(CirclePictures pictures);

  /// Without a needle until the next reading.
  void drawEmpty(CirclePictures pictures, CircleColours colours);
  /// Draws the last reading taken since the last call, unless it would look the same.
  void show(CirclePictures pictures);
  /// What the value's label shall say, when that is something else than at the last call.
  std::optional<std::string> newLabel() { return label_.take(); }

  bool wasConnected() const { return wasConnected_; }
  const Extremes& extremes() const { return extremes_; }

 private:
  enum class Side { kAbove, kBelow };  ///< of the scale; its needle lies on its end or its start
  struct Point {
    int x;
    int y;
  };
  struct Axis {
    double x;
    double y;
  };

  void drawDial(clsSurface& dial, CircleColours colours) const;
  void drawTicks(clsSurface& dial, int stepDegrees, int from, int to, Colour colour) const;
  void drawLampFrame(clsSurface& dial, CircleColours colours) const;
  void drawNeedle(CirclePictures pictures) const;
  void drawMark(clsSurface& sub, float value, Colour colour) const;
  void lineAlong(clsSurface& picture, Axis axis, double from, double to, Colour colour) const;
  Point pointAt(Axis axis, double part) const;
  Axis axisOf(float value) const;
  Axis peggedAxis(Side side) const;
  std::optional<Side> sideOf(float value) const;

  CircleMonitorRec record_;
  int32_t slot_ = 0;
  float degPerUnit_ = 0;
  double degToRad_ = 0;
  int32_t centerX_ = 0;
  int32_t centerY_ = 0;
  int32_t dialRadius_ = 0;

  Extremes extremes_;
  float value_ = 0;
  bool pending_ = false;  ///< a reading that show() has not drawn
  bool wasConnected_ = false;
  ReadingLabel label_;

  struct Drawn {
    float value;
    Extremes extremes;
  };
  std::optional<Drawn> drawn_;  ///< what the visible picture shows, if it has a needle
};

/// Where everything lies for a form of the given size. `line` is the height of a line of text in
/// the small font of the form. A size of 0 means that there is no room.
struct CircleLayout {
  MonitorPlace picture;
  MonitorPlace frame;
  bool frameInRow = false;  ///< the buttons side by side instead of one below the other
  MonitorPlace value;
  MonitorPlace unit;
  MonitorPlace serial;
  MonitorPlace channel;
  MonitorPlace yScale;
  MonitorPlace offset;
  MonitorPlace oneThird;
  MonitorPlace twoThirds;
  MonitorPlace full;
};
CircleLayout circleLayout(int width, int height, int line);

}  // namespace vk
