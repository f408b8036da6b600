// SPDX-License-Identifier: MIT
// What a numerical monitor shows: one channel as a large number, the mean of some readings, with
// the held extremes and colours that tell a value outside its limits. Readings are only taken in;
// show() composes the last of them off-screen and copies it to the visible picture. Texts for
// labels are made when they are asked for.
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

class NumMonitor {
 public:
  explicit NumMonitor(const NumMonitorRec& record);

  /// Back to normal colours and an empty sum; the extremes stay.
  void init(int32_t slot);
  void take(std::string_view reading);
  /// The box is gone.
  void lose();
  /// Extremes back to their start values; the labels keep their texts until the next one.
  void clear();
  void reloadUnit();

  /// The next show() draws even though nothing has changed: the surfaces have.
  void drawAgain() { changed_ = true; }
  /// Draws into the hidden twin and from there to the visible picture; false when nothing changed.
  bool show(clsSurface& monitor, clsSurface& sub);

  /// New text of a label, if it was asked for since the last call.
  std::optional<std::string> takeMaxText() { return takeHold(maxLabel_); }
  std::optional<std::string> takeMinText() { return takeHold(minLabel_); }
  std::optional<std::string> takeUnitText();
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
  void holdValue(float value);
  void finishMean(double mean);
  void judge(double mean);
  void lookAs(Shown shown);
  void drawNumValue(clsSurface& sub, int monitorWidth, int monitorHeight) const;

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
  Label unitLabel_ = Label::kKept;
};

/// With "+" in front of a positive value, "Overflow" when longer than the display.
std::string signedText(float value, int32_t point);
std::string signedText(double value, int32_t point);

/// Walks the font of the picture, a point a step, until the widest expected number fits.
void fitValueFont(clsSurface& picture);
/// The same for the widest expected unit, whose line stays within the picture.
void fitUnitFont(clsSurface& picture);
/// Height of a line in the font of the unit.
int unitLineHeight(const clsSurface& picture);

/// Pixels that the column left of the number needs.
struct NumColumn {
  int width;   ///< of the wider one of the serial label and the buttons
  int line;    ///< height of a label
  int button;  ///< height of a button
};

struct NumLayout {
  MonitorPlace serial;
  MonitorPlace channel;
  MonitorPlace frame;
  MonitorPlace monitor;
  MonitorPlace unit;
  MonitorPlace max;
  MonitorPlace min;
  bool buttonsBeside;  ///< the buttons of the frame stand in a row, not in a column
};
NumLayout numLayout(int width, int height, const NumColumn& column);

}  // namespace vk
