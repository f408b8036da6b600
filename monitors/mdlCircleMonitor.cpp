// SPDX-License-Identifier: MIT
#include "monitors/mdlCircleMonitor.h"

#include <algorithm>
#include <cmath>

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

void fillLamp(clsSurface& picture, const Lamp& lamp, int inset, Colour colour) {
  picture.filledBox(lamp.left + inset, lamp.top + inset, lamp.right - 1, lamp.bottom - 1, colour);
}

void copyAll(const clsSurface& from, clsSurface& to) {
  to.copy(from, 0, 0, to.width(), to.height(), 0, 0);
}

}  // namespace

CircleScale circleScale(const CircleMonitorRec& record) {
  const double start = record.CRL_OFFSET;
  const double third = (static_cast<double>(record.CRL_FULL) - start) / 3;
  return {textOf(record.CRL_OFFSET), left(textOf(start + third), kScaleCharacters),
          left(textOf(start + third * 2), kScaleCharacters), textOf(record.CRL_FULL)};
}

std::string circleScaleLabel(const CircleMonitorRec& record, std::string_view unit) {
  return "Y:" + textOf(record.CRL_FULL) + std::string(unit) + "[FS]";
}

// --- state ------------------------------------------------------------------------------------

void CircleMonitor::init(const CircleMonitorRec& record, int32_t slot) {
  record_ = record;
  slot_ = slot;
  const double span = static_cast<double>(record.CRL_FULL) - record.CRL_OFFSET;
  // The dialog refuses an empty scale, a file may hold one; nothing but its ends is shown then.
  degPerUnit_ = span == 0 ? 0.0F : static_cast<float>(kSweepDegrees / span);
  pending_ = false;
}

void CircleMonitor::startAngles() {
  degToRad_ = kDegToRad;
  wasConnected_ = true;
}

void CircleMonitor::resize(int width, int height) {
  centerY_ = toRow(height / 2.0);
  centerX_ = toRow(width / 2.0);
  dialRadius_ = toRow(width / 2.0 - 4);
}

void CircleMonitor::take(std::string_view reading) {
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

bool CircleMonitor::lose() {
  if (!wasConnected_) return false;
  wasConnected_ = false;
  label_.say(ReadingLabel::Says::kLost);
  return true;
}

void CircleMonitor::clear(CirclePictures pictures) {
  extremes_ = {};
  pending_ = false;
  drawn_.reset();
  pictures.sub.clear(record_.CRL_BACK);
}

void CircleMonitor::show(CirclePictures pictures) {
  if (!pending_) return;
  pending_ = false;
  if (drawn_ && drawn_->value == value_ && drawn_->extremes.max == extremes_.max &&
      drawn_->extremes.min == extremes_.min)
    return;
  drawNeedle(pictures);
  drawn_ = {value_, extremes_};
}

// --- dial -------------------------------------------------------------------------------------

void CircleMonitor::drawEmpty(CirclePictures pictures, CircleColours colours) {
  pictures.wave.clear(colours.form);
  drawDial(pictures.dial, colours);
  copyAll(pictures.dial, pictures.sub);
  // A monitor without readings still looks like a dial.
  copyAll(pictures.sub, pictures.wave);
  pictures.wave.refresh();
  pending_ = false;
  drawn_.reset();
}

void CircleMonitor::drawDial(clsSurface& dial, CircleColours colours) const {
  constexpr int kHubFrom = 40;
  constexpr int kHubTo = 240;
  constexpr int kMinorLength = 5;
  dial.filledBox(0, 0, dial.width() - 1, dial.height() - 1, colours.form);
  if (dialRadius_ <= kSmallestFace) return;
  dial.disc(centerX_, centerY_, dialRadius_, record_.CRL_BACK);
  dial.setLineWidth(1);
  dial.circle(centerX_, centerY_, dialRadius_ + kRimGap, kShade);
  const int hub = toRow(dialRadius_ * kHubPart);
  dial.arc(centerX_, centerY_, hub, kHubFrom, kHubTo, colours.button);
  dial.arc(centerX_, centerY_, hub, kHubTo, kHubFrom, kShade);
  drawLampFrame(dial, colours);
  drawTicks(dial, kMinorStep, dialRadius_, dialRadius_ - kMinorLength, record_.CRL_GRID);
  dial.setLineWidth(2);
  drawTicks(dial, kMajorStep, dialRadius_ - 1, dialRadius_ - 1 - kMinorLength, record_.CRL_GND);
}

void CircleMonitor::drawLampFrame(clsSurface& dial, CircleColours colours) const {
  const auto lamp = lampOf(centerX_, centerY_);
  dial.box(lamp.left, lamp.top, lamp.right, lamp.bottom, kShade);
  dial.line(lamp.right, lamp.top, lamp.right, lamp.bottom, colours.button);
  dial.line(lamp.left, lamp.bottom, lamp.right + 1, lamp.bottom, colours.button);
}

void CircleMonitor::drawTicks(clsSurface& dial, int stepDegrees, int from, int to,
                              Colour colour) const {
  for (int d = 0; d <= static_cast<int>(kSweepDegrees); d += stepDegrees) {
    const double sine = std::sin(d * degToRad_);
    const double cosine = std::cos(d * degToRad_);
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

CircleMonitor::Axis CircleMonitor::axisOf(float value) const {
  const double degrees =
      (static_cast<double>(value) - record_.CRL_OFFSET) * degPerUnit_ + kStartDegrees;
  const double angle = degrees * degToRad_;
  return {dialRadius_ * std::cos(angle), dialRadius_ * std::sin(angle)};
}

CircleMonitor::Axis CircleMonitor::peggedAxis(Side side) const {
  const auto radius = static_cast<double>(dialRadius_);
  return side == Side::kAbove ? Axis{radius, 0} : Axis{0, radius};
}

CircleMonitor::Point CircleMonitor::pointAt(Axis axis, double part) const {
  return {toRow(centerX_ + part * axis.x), toRow(centerY_ + part * axis.y)};
}

void CircleMonitor::lineAlong(clsSurface& picture, Axis axis, double from, double to,
                              Colour colour) const {
  const auto start = pointAt(axis, from);
  const auto end = pointAt(axis, to);
  picture.line(start.x, start.y, end.x, end.y, colour);
}

void CircleMonitor::drawMark(clsSurface& sub, float value, Colour colour) const {
  // Also on a reversed dial, whose needle keeps to the other order.
  std::optional<Side> side;
  if (static_cast<double>(value) < record_.CRL_OFFSET) {
    side = Side::kBelow;
  } else if (value > record_.CRL_FULL) {
    side = Side::kAbove;
  }
  lineAlong(sub, side ? peggedAxis(*side) : axisOf(value), kNeedleStart, 1.0,
            side ? kYellow : colour);
}

void CircleMonitor::drawNeedle(CirclePictures pictures) const {
  auto& sub = pictures.sub;
  copyAll(pictures.dial, sub);
  if (dialRadius_ > kSmallestFace) {
    drawMark(sub, extremes_.max, kMaxColour);
    drawMark(sub, extremes_.min, kMinColour);
    const auto side = sideOf(value_);
    const auto axis = side ? peggedAxis(*side) : axisOf(value_);
    sub.setLineWidth(2);
    lineAlong(sub, axis, kNeedleStart, kNeedleThin, record_.CRL_FORE);
    sub.setLineWidth(1);
    lineAlong(sub, axis, kNeedleThin, 1.0, record_.CRL_FORE);
    const auto lamp = lampOf(centerX_, centerY_);
    if (side) {
      fillLamp(sub, lamp, 1, *side == Side::kAbove ? kMaxColour : kMinColour);
    } else {
      fillLamp(sub, lamp, 2, record_.CRL_BACK);
    }
  }
  copyAll(sub, pictures.wave);
  pictures.wave.refresh();
}

// --- places -----------------------------------------------------------------------------------

namespace {

constexpr int kBelow = 16;      ///< below the dial, for the scale's start
constexpr int kBeside = 96;     ///< right of the dial, at least
constexpr int kScaleRoom = 70;  ///< ten characters, or the buttons, left of the dial
constexpr int kGap = 2;

int atLeastOne(int size) {
  return std::max(1, size);
}

MonitorPlace placeDial(int width, int height, int x, int y) {
  const int side = atLeastOne(std::min(height - y - kBelow, width - x - kBeside));
  return {x, y, side, side};
}

/// The value as tall as the room and the dial allow, the unit half as tall below it.
void placeValue(CircleLayout& layout, MonitorPlace room, int line) {
  constexpr int kWidthOfHeight = 4;
  const int byHeight = std::min(room.height - line, room.height * 2 / 3);
  const int height = atLeastOne(std::min(byHeight, room.width / kWidthOfHeight));
  const int unit = std::max(line, height / 2);
  const int above = std::clamp((room.height - height - unit) / 3, 0, height);
  layout.value = {room.left, room.top + above, room.width, height};
  layout.unit = {room.left, room.top + above + height, room.width, unit};
}

void placeDetails(CircleLayout& layout, int x, int y, int width, int line) {
  layout.serial = {x, y, width, line};
  layout.channel = {x, y + line, width, line};
  layout.yScale = {x, y + 2 * line, width, line};
}

/// A dial too small for a scale: dial and value, the buttons in a row below the value.
CircleLayout smallLayout(int width, int height, int line) {
  constexpr int kButtonPadding = 8;
  CircleLayout layout;
  layout.picture = placeDial(width, height, kGap, kGap);
  const int x = layout.picture.left + layout.picture.width;
  const int room = atLeastOne(width - x - kGap);
  const int row = line + kButtonPadding;
  layout.frameInRow = true;
  layout.frame = {x + kGap, height - row - 1, atLeastOne(room - kGap), row};
  int top = 0;
  const int details = 3 * line;
  if (height - row - details >= 3 * line) {
    placeDetails(layout, x, 0, room, line);
    top = details;
  }
  placeValue(layout, {x, top, room, height - row - kGap - top}, line);
  return layout;
}

}  // namespace

CircleLayout circleLayout(int width, int height, int line) {
  constexpr int kSmallestInLines = 6;
  CircleLayout layout;
  layout.picture = placeDial(width, height, kScaleRoom, line + kGap);
  const auto& dial = layout.picture;
  if (dial.width < kSmallestInLines * line) return smallLayout(width, height, line);
  const int right = dial.left + dial.width;
  const int middle = dial.top + dial.height / 2;
  const int room = atLeastOne(width - right - kGap);
  layout.frame = {kGap, kGap, kScaleRoom - 5 * kGap, 3 * line + kGap};
  placeDetails(layout, right, 0, room, line);
  layout.full = {right, middle - line / 2, room, line};
  const int below = layout.full.top + line;
  placeValue(layout, {right, below, room, height - below - kGap}, line);
  layout.oneThird = {0, middle - line / 2, kScaleRoom - kGap, line};
  layout.twoThirds = {dial.left, kGap / 2, dial.width, line};
  layout.offset = {dial.left, dial.top + dial.height, dial.width, std::min(line, kBelow)};
  return layout;
}

}  // namespace vk
