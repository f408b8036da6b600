// SPDX-License-Identifier: MIT
#include "monitors/mdlNumMonitor.h"

#include <algorithm>
#include <utility>

#include "base/mdlText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

constexpr std::size_t kDisplayLength = 10;
constexpr int kLargestFont = 2000;  // points; ends the walk of a font that measures nothing
constexpr const char* kWidestValue = " +99.999999";
constexpr const char* kWidestUnit = " kg/mm2 ";
constexpr const char* kUnusedDisplay = " unused";
constexpr const char* kLostDisplay = " ---";
constexpr const char* kNoHold = "--- ";

template <typename Value>
std::string signedTextOf(Value value, int32_t point) {
  std::string text = formatNumber(value, textAt(decimalFormat, point));
  if (value > 0) text.insert(0, 1, '+');
  return text.size() > kDisplayLength ? "Overflow" : text;
}

/// Ends where the measure is within the tolerance, or before the step that would turn round: then
/// the smaller of the two sizes stands.
template <typename Measure>
void walkFont(clsCanvas& picture, int wanted, int tolerance, Measure measure) {
  int size = std::clamp(picture.fontSize(), 1, kLargestFont);
  int direction = 0;
  while (true) {
    picture.setFontSize(size);
    const int measured = measure();
    const int step = measured < wanted - tolerance ? 1 : measured > wanted + tolerance ? -1 : 0;
    if (step == 0) return;
    if (step == -direction) {
      if (step < 0) picture.setFontSize(size - 1);
      return;
    }
    if (size + step < 1 || size + step > kLargestFont) return;
    direction = step;
    size += step;
  }
}

}  // namespace

std::string signedText(float value, int32_t point) {
  return signedTextOf(value, point);
}

std::string signedText(double value, int32_t point) {
  return signedTextOf(value, point);
}

// --- readings -------------------------------------------------------------------------------

NumMonitor::NumMonitor(const NumMonitorRec& record)
    : record_(record), lastPoint_(record.NUM_POINT) {}

void NumMonitor::init(std::span<const int32_t> slots) {
  slot_ = slots.front();
  draw_ = {record_.NUM_BACK, record_.NUM_FORE};
  sub_ = draw_;
  unit_ = draw_;
  avgSum_ = 0;
  avgCount_ = 0;
  inNormal_ = true;
  wasConnected_ = true;
  colorChanged_ = false;
  lookAs(Shown::kNothing);
  unitLabel_.reload();
}

void NumMonitor::resize(int, int) {
  changed_ = true;
}

void NumMonitor::take(std::span<const std::string_view> readings) {
  if (readings.front() == kLostReading) return takeLost();
  takeReading(readings.front());
}

void NumMonitor::takeReading(std::string_view reading) {
  const auto value = toDisplayValue(reading, slot_, record_.NUM_CH);
  if (!value) {
    if (reading != kUnusedReading) return;
    if (shown_ != Shown::kUnused) lookAs(Shown::kUnused);
    maxLabel_.state = minLabel_.state = Label::kNone;
    return;
  }
  wasConnected_ = true;
  holdValue(*value);
  avgSum_ += *value;
  // A speed that is no number shows every reading.
  if (double{record_.NUM_SPEED} > avgCount_) {
    ++avgCount_;
    return;
  }
  const double mean = avgSum_ / (avgCount_ + 1);
  avgSum_ = 0;
  avgCount_ = 0;
  finishMean(mean);
}

void NumMonitor::holdValue(float value) {
  const auto change = extremes_.hold(value);
  const bool reformat = record_.NUM_POINT != lastPoint_;
  lastPoint_ = record_.NUM_POINT;
  if (reformat || change == Extremes::Change::kMax) maxLabel_ = {Label::kText, extremes_.max};
  if (reformat || change == Extremes::Change::kMin) minLabel_ = {Label::kText, extremes_.min};
}

void NumMonitor::finishMean(double mean) {
  if (colorChanged_) sub_ = unit_ = draw_;
  colorChanged_ = false;
  mean_ = mean;
  wipe_ = draw_.back;
  lookAs(Shown::kValue);
  // After the value has its colours: they change with the next one.
  if (record_.NUM_CVAL_ONOFF) judge(mean);
}

void NumMonitor::judge(double mean) {
  const double up = record_.NUM_CVAL_UP;
  const double down = record_.NUM_CVAL_DOWN;
  if (!inNormal_ && mean > down && mean < up) {
    inNormal_ = true;
    draw_ = {record_.NUM_BACK, record_.NUM_FORE};
    colorChanged_ = true;
  } else if (inNormal_ && (mean >= up || mean <= down)) {
    inNormal_ = false;
    draw_ = {record_.NUM_C_BACK, record_.NUM_C_FORE};
    colorChanged_ = true;
  }
}

void NumMonitor::takeLost() {
  if (!wasConnected_) return;
  wasConnected_ = false;
  sub_ = {record_.NUM_BACK, record_.NUM_FORE};
  lookAs(Shown::kLost);
  maxLabel_.state = minLabel_.state = Label::kNone;
  unitLabel_.lose();
}

void NumMonitor::clear() {
  extremes_ = {};
}

void NumMonitor::reloadUnit(std::size_t) {
  unitLabel_.reload();
}

void NumMonitor::lookAs(Shown shown) {
  shown_ = shown;
  changed_ = true;
}

// --- showing --------------------------------------------------------------------------------

bool NumMonitor::show(const MonitorSurfaces& surfaces) {
  if (!changed_) return false;
  changed_ = false;
  auto& twin = surfaces.twin;
  const int width = surfaces.shown.width();
  const int height = surfaces.shown.height();
  twin.clear(sub_.back);
  const auto print = [&](const char* text) {
    twin.text(0, (height - twin.textHeight(text)) / 2, text, sub_.fore);
  };
  switch (shown_) {
    case Shown::kNothing:
      break;
    case Shown::kValue:
      drawNumValue(twin, width, height);
      break;
    case Shown::kUnused:
      print(kUnusedDisplay);
      break;
    case Shown::kLost:
      print(kLostDisplay);
      break;
  }
  surfaces.shown.copy(twin, 0, 0, width, height, 0, 0);
  surfaces.shown.refresh();
  return true;
}

void NumMonitor::drawNumValue(clsSurface& twin, int monitorWidth, int monitorHeight) const {
  const std::string text = signedText(mean_, record_.NUM_POINT);
  twin.text(0, (monitorHeight - twin.textHeight(text)) / 2, text, sub_.fore);
  // Printed at the left, the number moves to the right edge, whatever is beside it goes.
  const int width = twin.textWidth(text);
  const int x = monitorWidth - width - 2;
  twin.copy(twin, x, 0, width + 2, twin.height(), 0, 0);
  twin.filledBox(0, 0, x, monitorHeight, wipe_);
}

std::optional<std::string> NumMonitor::takeHold(HoldLabel& label) const {
  switch (std::exchange(label.state, Label::kKept)) {
    case Label::kKept:
      break;
    case Label::kText:
      return signedText(label.value, record_.NUM_POINT);
    case Label::kNone:
      return kNoHold;
  }
  return std::nullopt;
}

ChannelLabels NumMonitor::labels(std::size_t) {
  return {std::nullopt, unitLabel_.take(slot_, record_.NUM_CH, kNoHold), takeHold(maxLabel_),
          takeHold(minLabel_)};
}

// --- fonts ----------------------------------------------------------------------------------

void fitValueFont(clsCanvas& picture) {
  constexpr int kHeightTolerance = 4;
  constexpr int kWidthTolerance = 10;
  walkFont(picture, picture.height(), kHeightTolerance,
           [&] { return picture.textHeight(kWidestValue); });
  const int byHeight = picture.fontSize();
  walkFont(picture, picture.width(), kWidthTolerance,
           [&] { return picture.textWidth(kWidestValue); });
  if (byHeight < picture.fontSize()) picture.setFontSize(byHeight);
}

void fitUnitFont(clsCanvas& picture) {
  constexpr int kTolerance = 5;
  walkFont(picture, picture.width(), kTolerance, [&] { return picture.textWidth(kWidestUnit); });
  // A wide low surface has no room for letters of its width.
  while (picture.fontSize() > 1 && unitLineHeight(picture) > picture.height())
    picture.setFontSize(picture.fontSize() - 1);
}

int unitLineHeight(const clsCanvas& picture) {
  return picture.textHeight(kWidestUnit);
}

}  // namespace vk
