// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleMonitor.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/mdlText.h"

namespace vk {

namespace {

constexpr float kSweepDegrees = 270.0F;
constexpr int kStartDegrees = 90;
constexpr double kDegToRad = 3.141592654 / 180;
constexpr std::size_t kScaleCharacters = 10;

constexpr double kHubPart = 0.19;
constexpr double kNeedleStart = 0.2;
constexpr double kNeedleThin = 0.7;
constexpr int kMinorStep = 9;
constexpr int kMajorStep = 45;
constexpr int kRimGap = 2;
/// A face of less could not hold its ticks.
constexpr int kSmallestFace = 5;

constexpr Colour kShade = 0x808080;

struct Lamp {
  int left;
  int top;
  int right;
  int bottom;
};

/// In whole pixels, so that what lies inside the frame never rounds onto its edge.
Lamp lampOf(int centerX, int centerY) {
  return {toRow(centerX + centerX / 2.5), toRow(centerY + centerY / 3.0),
          toRow(centerX + centerX / 1.5), toRow(centerY + centerY / 2.0)};
}

void fillLamp(clsCanvas& picture, const Lamp& lamp, int inset, Colour colour) {
  picture.filledBox(lamp.left + inset, lamp.top + inset, lamp.right - 1, lamp.bottom - 1, colour);
}

void copyAll(const clsSurface& from, clsSurface& to) {
  to.copy(from, 0, 0, to.width(), to.height(), 0, 0);
}

}  // namespace

CircleScale circleScale(const CircleMonitorRec& record) {
  const double start = record.CRL_OFFSET;
  const double third = (record.CRL_FULL - start) / 3;
  return {textOf(record.CRL_OFFSET), left(textOf(start + third), kScaleCharacters),
          left(textOf(start + third * 2), kScaleCharacters), textOf(record.CRL_FULL)};
}

std::string CircleMonitor::scaleText() const {
  return "Y:" + textOf(record_.CRL_FULL) + unitLabel(slot_, record_.CRL_CH) + "[FS]";
}

// --- state ------------------------------------------------------------------------------------

void CircleMonitor::init(std::span<const int32_t> slots) {
  slot_ = slots.front();
  const double start = record_.CRL_OFFSET;
  const double span = record_.CRL_FULL - start;
  // The dialog refuses an empty scale, a file may hold one; nothing but its ends is shown then.
  const float perUnit = span == 0 ? 0 : kSweepDegrees / span;
  degrees_ = {start, kStartDegrees, perUnit};
  unit_.reload();
  wasConnected_ = true;
  pending_ = false;
}

void CircleMonitor::resize(int width, int height) {
  centerY_ = toRow(height / 2.0);
  centerX_ = toRow(width / 2.0);
  dialRadius_ = toRow(width / 2.0 - 4);
  empty_ = true;
  pending_ = false;
  drawn_.reset();
}

void CircleMonitor::take(std::span<const std::string_view> readings) {
  if (readings.front() != kLostReading) return takeReading(readings.front());
  if (!wasConnected_) return;
  wasConnected_ = false;
  label_.say(ReadingLabel::Says::kLost);
  unit_.lose();
}

void CircleMonitor::takeReading(std::string_view reading) {
  const auto value = toDisplayValue(reading, slot_, record_.CRL_CH);
  if (!value) {
    if (reading == kUnusedReading) label_.say(ReadingLabel::Says::kUnused);
    return;
  }
  wasConnected_ = true;
  value_ = *value;
  extremes_.hold(value_);
  label_.say(value_);
  pending_ = true;
}

void CircleMonitor::clear() {
  extremes_ = {};
  pending_ = false;
  drawn_.reset();
}

void CircleMonitor::reloadUnit(std::size_t) {
  unit_.reload();
}

bool CircleMonitor::show(const MonitorSurfaces& surfaces) {
  const bool emptied = std::exchange(empty_, false);
  if (emptied) drawEmpty(surfaces);
  if (!std::exchange(pending_, false)) return emptied;
  if (drawn_ && drawn_->value == value_ && drawn_->extremes.max == extremes_.max &&
      drawn_->extremes.min == extremes_.min)
    return emptied;
  drawNeedle(surfaces);
  drawn_ = {value_, extremes_};
  return true;
}

ChannelLabels CircleMonitor::labels(std::size_t) {
  return {label_.take(), unit_.take(slot_, record_.CRL_CH), std::nullopt, std::nullopt};
}

// --- dial -------------------------------------------------------------------------------------

void CircleMonitor::drawEmpty(const MonitorSurfaces& surfaces) const {
  surfaces.shown.clear(colours_.form);
  drawDial(*surfaces.extra);
  copyAll(*surfaces.extra, surfaces.twin);
  // A monitor without readings still looks like a dial.
  copyAll(surfaces.twin, surfaces.shown);
  surfaces.shown.refresh();
}

void CircleMonitor::drawDial(clsCanvas& dial) const {
  constexpr int kHubFrom = 40;
  constexpr int kHubTo = 240;
  constexpr int kMinorLength = 5;
  dial.filledBox(0, 0, dial.width() - 1, dial.height() - 1, colours_.form);
  if (dialRadius_ <= kSmallestFace) return;
  dial.disc(centerX_, centerY_, dialRadius_, record_.CRL_BACK);
  dial.setLineWidth(1);
  dial.circle(centerX_, centerY_, dialRadius_ + kRimGap, kShade);
  const int hub = toRow(dialRadius_ * kHubPart);
  dial.arc(centerX_, centerY_, hub, kHubFrom, kHubTo, colours_.button);
  dial.arc(centerX_, centerY_, hub, kHubTo, kHubFrom, kShade);
  drawLampFrame(dial);
  drawTicks(dial, kMinorStep, dialRadius_, dialRadius_ - kMinorLength, record_.CRL_GRID);
  dial.setLineWidth(2);
  drawTicks(dial, kMajorStep, dialRadius_ - 1, dialRadius_ - 1 - kMinorLength, record_.CRL_GND);
}

void CircleMonitor::drawLampFrame(clsCanvas& dial) const {
  const auto lamp = lampOf(centerX_, centerY_);
  dial.box(lamp.left, lamp.top, lamp.right, lamp.bottom, kShade);
  dial.line(lamp.right, lamp.top, lamp.right, lamp.bottom, colours_.button);
  dial.line(lamp.left, lamp.bottom, lamp.right + 1, lamp.bottom, colours_.button);
}

void CircleMonitor::drawTicks(clsCanvas& dial, int stepDegrees, int from, int to,
                              Colour colour) const {
  for (int d = 0; d <= kSweepDegrees; d += stepDegrees) {
    const double sine = std::sin(d * kDegToRad);
    const double cosine = std::cos(d * kDegToRad);
    dial.line(toRow(centerX_ - from * sine), toRow(centerY_ + from * cosine),
              toRow(centerX_ - to * sine), toRow(centerY_ + to * cosine), colour);
  }
}

// --- needle -----------------------------------------------------------------------------------

std::optional<CircleMonitor::Side> CircleMonitor::sideOf(float value) const {
  const double exact = value;
  if (exact > record_.CRL_FULL) return Side::kAbove;
  if (exact < record_.CRL_OFFSET) return Side::kBelow;
  return std::nullopt;
}

CircleMonitor::Direction CircleMonitor::directionOf(float value) const {
  const double angle = degrees_.toPixel(value) * kDegToRad;
  return {dialRadius_ * std::cos(angle), dialRadius_ * std::sin(angle)};
}

CircleMonitor::Direction CircleMonitor::peggedDirection(Side side) const {
  const double radius = dialRadius_;
  return side == Side::kAbove ? Direction{radius, 0} : Direction{0, radius};
}

CircleMonitor::Point CircleMonitor::pointAt(Direction direction, double part) const {
  return {toRow(centerX_ + part * direction.x), toRow(centerY_ + part * direction.y)};
}

void CircleMonitor::lineAlong(clsCanvas& picture, Direction direction, double from, double to,
                              Colour colour) const {
  const auto start = pointAt(direction, from);
  const auto end = pointAt(direction, to);
  picture.line(start.x, start.y, end.x, end.y, colour);
}

void CircleMonitor::drawMark(clsCanvas& twin, float value, Colour colour) const {
  // Also on a reversed dial, whose needle keeps to the other order.
  std::optional<Side> side;
  if (double{value} < record_.CRL_OFFSET) {
    side = Side::kBelow;
  } else if (value > record_.CRL_FULL) {
    side = Side::kAbove;
  }
  lineAlong(twin, side ? peggedDirection(*side) : directionOf(value), kNeedleStart, 1.0,
            side ? kYellow : colour);
}

void CircleMonitor::drawNeedle(const MonitorSurfaces& surfaces) const {
  auto& twin = surfaces.twin;
  copyAll(*surfaces.extra, twin);
  if (dialRadius_ > kSmallestFace) {
    drawMark(twin, extremes_.max, kMaxColour);
    drawMark(twin, extremes_.min, kMinColour);
    const auto side = sideOf(value_);
    const auto direction = side ? peggedDirection(*side) : directionOf(value_);
    twin.setLineWidth(2);
    lineAlong(twin, direction, kNeedleStart, kNeedleThin, record_.CRL_FORE);
    twin.setLineWidth(1);
    lineAlong(twin, direction, kNeedleThin, 1.0, record_.CRL_FORE);
    const auto lamp = lampOf(centerX_, centerY_);
    if (side) {
      fillLamp(twin, lamp, 1, *side == Side::kAbove ? kMaxColour : kMinColour);
    } else {
      fillLamp(twin, lamp, 2, record_.CRL_BACK);
    }
  }
  copyAll(twin, surfaces.shown);
  surfaces.shown.refresh();
}

}  // namespace vk
