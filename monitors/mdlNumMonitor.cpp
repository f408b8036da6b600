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
void walkFont(clsSurface& picture, int wanted, int tolerance, Measure measure) {
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

void NumMonitor::init(int32_t slot) {
  slot_ = slot;
  draw_ = {record_.NUM_BACK, record_.NUM_FORE};
  sub_ = draw_;
  unit_ = draw_;
  avgSum_ = 0;
  avgCount_ = 0;
  inNormal_ = true;
  wasConnected_ = true;
  colorChanged_ = false;
  lookAs(Shown::kNothing);
  reloadUnit();
}

void NumMonitor::take(std::string_view reading) {
  const auto value = toDisplayValue(reading, slot_, record_.NUM_CH);
  if (!value) {
    if (reading != kUnusedReading) return;
    if (shown_ != Shown::kUnused) lookAs(Shown::kUnused);
    maxLabel_.state = minLabel_.state = Label::kNone;
    return;
  }
  wasConnected_ = true;
  holdValue(*value);
  avgSum_ += static_cast<double>(*value);
  // A speed that is no number shows every reading.
  if (static_cast<double>(record_.NUM_SPEED) > static_cast<double>(avgCount_)) {
    ++avgCount_;
    return;
  }
  const double mean = avgSum_ / static_cast<double>(avgCount_ + 1);
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
  const auto up = static_cast<double>(record_.NUM_CVAL_UP);
  const auto down = static_cast<double>(record_.NUM_CVAL_DOWN);
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

void NumMonitor::lose() {
  if (!wasConnected_) return;
  wasConnected_ = false;
  sub_ = {record_.NUM_BACK, record_.NUM_FORE};
  lookAs(Shown::kLost);
  maxLabel_.state = minLabel_.state = unitLabel_ = Label::kNone;
}

void NumMonitor::clear() {
  extremes_ = {};
}

void NumMonitor::reloadUnit() {
  unitLabel_ = Label::kText;
}

void NumMonitor::lookAs(Shown shown) {
  shown_ = shown;
  changed_ = true;
}

// --- showing --------------------------------------------------------------------------------

bool NumMonitor::show(clsSurface& monitor, clsSurface& sub) {
  if (!changed_) return false;
  changed_ = false;
  const int width = monitor.width();
  const int height = monitor.height();
  sub.clear(sub_.back);
  const auto print = [&](const char* text) {
    sub.text(0, (height - sub.textHeight(text)) / 2, text, sub_.fore);
  };
  switch (shown_) {
    case Shown::kNothing:
      break;
    case Shown::kValue:
      drawNumValue(sub, width, height);
      break;
    case Shown::kUnused:
      print(kUnusedDisplay);
      break;
    case Shown::kLost:
      print(kLostDisplay);
      break;
  }
  monitor.copy(sub, 0, 0, width, height, 0, 0);
  monitor.refresh();
  return true;
}

void NumMonitor::drawNumValue(clsSurface& sub, int monitorWidth, int monitorHeight) const {
  const std::string text = signedText(mean_, record_.NUM_POINT);
  sub.text(0, (monitorHeight - sub.textHeight(text)) / 2, text, sub_.fore);
  // Printed at the left, the number moves to the right edge, whatever is beside it goes.
  const int width = sub.textWidth(text);
  const int x = monitorWidth - width - 2;
  sub.copy(sub, x, 0, width + 2, sub.height(), 0, 0);
  sub.filledBox(0, 0, x, monitorHeight, wipe_);
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

std::optional<std::string> NumMonitor::takeUnitText() {
  switch (std::exchange(unitLabel_, Label::kKept)) {
    case Label::kKept:
      break;
    case Label::kText:
      return unitLabel(slot_, record_.NUM_CH);
    case Label::kNone:
      return kNoHold;
  }
  return std::nullopt;
}

// --- size -----------------------------------------------------------------------------------

void fitValueFont(clsSurface& picture) {
  constexpr int kHeightTolerance = 4;
  constexpr int kWidthTolerance = 10;
  walkFont(picture, picture.height(), kHeightTolerance,
           [&] { return picture.textHeight(kWidestValue); });
  const int byHeight = picture.fontSize();
  walkFont(picture, picture.width(), kWidthTolerance,
           [&] { return picture.textWidth(kWidestValue); });
  if (byHeight < picture.fontSize()) picture.setFontSize(byHeight);
}

void fitUnitFont(clsSurface& picture) {
  constexpr int kTolerance = 5;
  walkFont(picture, picture.width(), kTolerance, [&] { return picture.textWidth(kWidestUnit); });
  // A wide low surface has no room for letters of its width.
  while (picture.fontSize() > 1 && unitLineHeight(picture) > picture.height())
    picture.setFontSize(picture.fontSize() - 1);
}

int unitLineHeight(const clsSurface& picture) {
  return picture.textHeight(kWidestUnit);
}

NumLayout numLayout(int width, int height, const NumColumn& column) {
  constexpr int kMargin = 4;  // top of the picture, and around the column
  constexpr int kGap = 2;
  constexpr int kRight = 16;
  constexpr int kBetween = 16;  // the two hold pictures
  constexpr double kValueShare = 0.7;
  const auto area = [](int left, int top, int w, int h) {
    return MonitorPlace{left, top, std::max(1, w), std::max(1, h)};
  };

  const int left = column.width + 2 * kMargin;
  NumLayout all{};
  all.monitor = area(left, kMargin, toRow(width - left - width / 10.0 - kRight),
                     toRow(height * kValueShare) - 2 * kMargin);
  const auto& value = all.monitor;
  all.unit = area(left + value.width, kMargin, width - left - value.width - kRight, value.height);
  const int holdTop = kMargin + value.height + kMargin / 2;
  const int holdWidth = toRow((all.unit.width + value.width) / 2.0 - kBetween / 2.0);
  const int holdHeight = height - value.height - 2 * kMargin - kMargin / 2;
  all.max = area(left, holdTop, holdWidth, holdHeight);
  all.min =
      area(left + value.width + all.unit.width - all.max.width, holdTop, holdWidth, holdHeight);

  all.serial = area(kMargin, kMargin, column.width, column.line);
  all.channel = area(kMargin, kMargin + column.line, column.width, column.line);
  const int used = kMargin + 2 * column.line;
  const int stacked = 2 * column.button + kGap;
  all.buttonsBeside = used + kGap + stacked + kMargin > height;
  const int frame = all.buttonsBeside ? column.button : stacked;
  const int frameTop = std::max(used, height - kMargin - frame);
  all.frame = area(kMargin, frameTop, column.width, std::min(frame, height - frameTop));
  return all;
}

}  // namespace vk
