// SPDX-License-Identifier: MIT
#include "monitors/mdlXYMonitor.h"

#include <algorithm>
#include <utility>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr std::size_t kY = 0;
constexpr std::size_t kX = 1;

}  // namespace

// --- set-up ---------------------------------------------------------------------------------

void XYMonitor::init(const std::array<int32_t, kXYAxes>& slots, clsSurface& sub) {
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    axes_[i].slot = slots[i];
    axes_[i].wasConnected = true;
    reloadUnit(i);
  }
  pointerVisible_ = false;
  pointer_ = true;
  resize(sub.width(), sub.height(), sub);
}

void XYMonitor::resize(int width, int height, clsSurface& sub) {
  scaleAxis(kY, height);
  scaleAxis(kX, width);
  clear(sub);
  // The previous point has lost its place on the plot.
  firstSample_ = true;
  sample_ = false;
  blank_ = overlays_ = true;
}

void XYMonitor::scaleAxis(std::size_t axis, int extent) {
  axes_[axis].scale = pixelsPerUnit(extent, record_.XY_FULL[axis]);
  axes_[axis].centre = toRow(extent / 2.0);
  shiftAxis(axis);
}

void XYMonitor::shiftAxis(std::size_t axis) {
  axes_[axis].gndOffsetPx =
      groundShift(record_.XY_FULL[axis], record_.XY_OFFSET[axis], axes_[axis].scale);
}

void XYMonitor::setOffset(std::size_t axis, int32_t offset) {
  record_.XY_OFFSET.at(axis) = offset;
  shiftAxis(axis);
}

void XYMonitor::clear(clsSurface& sub) {
  sub.clear(record_.XY_BACK);
  cleared_ = true;
}

void XYMonitor::reloadUnit(std::size_t axis) {
  axes_.at(axis).unit = Unit::kReload;
}

// --- readings -------------------------------------------------------------------------------

void XYMonitor::take(std::span<const std::string_view> readings, clsSurface& sub) {
  if (readings[kY] == kLostReading && readings[kX] == kLostReading) return lose();
  std::array<float, kXYAxes> v{};
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    if (readings[i] == kLostReading) {
      loseAxis(i);
    } else {
      v[i] = takeAxis(i, readings[i]);
    }
  }
  const bool both = axes_[kY].wasConnected && axes_[kX].wasConnected;
  pointer_ = pointer_ || pointerVisible_ != both;
  pointerVisible_ = both;
  if (both) drawXYSample(v[kY], v[kX], sub);
}

float XYMonitor::takeAxis(std::size_t axis, std::string_view reading) {
  auto& a = axes_[axis];
  a.wasConnected = true;
  // Without a number the axis stands at zero, and its label says why.
  const auto value = toDisplayValue(reading, a.slot, record_.XY_CH[axis]);
  if (value) {
    a.label.say(*value);
  } else {
    a.label.say(reading == kUnusedReading ? ReadingLabel::Says::kUnused
                                          : ReadingLabel::Says::kError);
  }
  const float shown = value.value_or(0.0F);
  a.extremes.hold(shown);
  return shown;
}

void XYMonitor::lose() {
  if (!axes_[kY].wasConnected && !axes_[kX].wasConnected) return;
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    axes_[i].wasConnected = true;
    loseAxis(i);
  }
}

void XYMonitor::loseAxis(std::size_t axis) {
  auto& lost = axes_.at(axis);
  if (!lost.wasConnected) return;
  lost.wasConnected = false;
  lost.label.say(ReadingLabel::Says::kLost);
  lost.unit = Unit::kNone;
  overlays_ = true;
}

void XYMonitor::drawXYSample(float vy, float vx, clsSurface& sub) {
  auto& down = axes_[kY];
  auto& across = axes_[kX];
  const float y = -vy * down.scale + static_cast<float>(down.centre + down.gndOffsetPx);
  const float x = vx * across.scale + static_cast<float>(across.centre + across.gndOffsetPx);
  const auto lastX = std::exchange(across.last, x);
  const auto lastY = std::exchange(down.last, y);
  pointer_ = true;
  if (std::exchange(firstSample_, false)) return;
  const int column = pointerX();
  const int row = pointerY();
  // A point that stays draws nothing new, unless the line was emptied under it.
  if (!cleared_ && column == toRow(lastX) && row == toRow(lastY)) return;
  cleared_ = false;
  sub.line(toRow(lastX), toRow(lastY), column, row, record_.XY_FORE);
  sub.point(column, row, record_.XY_FORE);
  sample_ = overlays_ = true;
}

// --- showing --------------------------------------------------------------------------------

bool XYMonitor::show(clsSurface& wave, const clsSurface& sub) {
  const bool changed = blank_ || sample_ || overlays_;
  if (blank_) wave.clear(record_.XY_BACK);
  if (sample_) wave.copy(sub, 0, 0, wave.width(), wave.height(), 0, 0);
  if (changed) {
    drawDivisions(wave, axes_[kX].centre, axes_[kY].centre, record_.XY_GRID);
    drawCentre(wave, axes_[kX].centre, axes_[kY].centre, record_.XY_GND);
    wave.refresh();
  }
  blank_ = sample_ = overlays_ = false;
  return std::exchange(pointer_, false) || changed;
}

int32_t XYMonitor::pointerX() const {
  return toRow(axes_[kX].last);
}

int32_t XYMonitor::pointerY() const {
  return toRow(axes_[kY].last);
}

// --- labels ---------------------------------------------------------------------------------

std::optional<std::string> XYMonitor::takeUnitText(std::size_t axis) {
  auto& a = axes_.at(axis);
  switch (std::exchange(a.unit, Unit::kKept)) {
    case Unit::kKept:
      return std::nullopt;
    case Unit::kReload:
      return unitLabel(a.slot, record_.XY_CH[axis]);
    case Unit::kNone:
      break;
  }
  return "";
}

std::string XYMonitor::scaleText(std::size_t axis) const {
  return textOf(record_.XY_FULL.at(axis)) + unitLabel(axes_.at(axis).slot, record_.XY_CH[axis]) +
         "/div";
}

std::string XYMonitor::offsetText(std::size_t axis) const {
  return textOf(groundLevel(record_.XY_FULL.at(axis), record_.XY_OFFSET.at(axis)));
}

// --- size -----------------------------------------------------------------------------------

namespace {

struct Rows {
  enum Channel { kNone, kBeside, kOwn };
  bool serial;
  Channel channel;
  bool scale;
  bool offset;
  int lines() const { return serial + (channel == kOwn) + scale + offset; }
};

XYBlock stack(int top, const Rows& rows, bool narrow, int line, int valueHeight) {
  XYBlock block;
  const auto next = [&top](int height) { return std::exchange(top, top + height); };
  if (rows.serial) block.serial = next(line);
  if (rows.channel == Rows::kBeside) block.channel = block.serial;
  if (rows.channel == Rows::kOwn) block.channel = next(line);
  block.value = next(valueHeight);
  block.unit = narrow ? block.channel : block.value;
  if (rows.scale) block.scale = next(line);
  if (rows.offset) block.offset = next(line);
  return block;
}

}  // namespace

XYLayout xyLayout(int width, int height, const XYMetrics& metrics) {
  constexpr int kLeft = 26;
  constexpr int kTop = 8;
  constexpr int kBelow = 16;
  constexpr int kLabels = 96;
  constexpr int kSlider = 16;
  constexpr int kOverhang = 8;  // of a slider at each end, so that its handle reaches the edge
  constexpr int kLargestValue = 40;
  constexpr int kValueShape = 8;  // the column is as many times wider than the value is high
  constexpr int kMargin = 2;
  constexpr int kAxes = static_cast<int>(kXYAxes);

  const int side = std::max(1, std::min(height - kTop - kBelow, width - kLeft - kLabels));
  XYLayout all{};
  all.wave = {kLeft, kTop, side, side};
  all.slider[kY] = {kLeft - kOverhang - kSlider, kTop - kOverhang, kSlider, side + 2 * kOverhang};
  all.slider[kX] = {kLeft - kOverhang, kTop + side, side + 2 * kOverhang, kSlider};
  all.column = kLeft + side + kOverhang;
  all.columnWidth = std::max(1, width - all.column - 1);
  all.frame = {all.column + kMargin, std::max(0, height - metrics.button - kMargin),
               std::clamp(all.columnWidth - kMargin, 1, kLabels * 2), metrics.button};

  const bool narrow = all.columnWidth < metrics.serial + metrics.channel + metrics.line;
  const auto both = narrow ? Rows::kOwn : Rows::kBeside;
  const auto one = narrow ? Rows::kNone : Rows::kBeside;
  const Rows choices[] = {{true, both, true, true},
                          {true, both, true, false},
                          {true, one, true, false},
                          {false, Rows::kNone, true, false},
                          {false, Rows::kNone, false, false}};
  const int room = all.frame.top;
  const auto* rows = std::ranges::find_if(choices, [&](const Rows& choice) {
    return kAxes * (choice.lines() + 1) * metrics.line <= room;
  });
  if (rows == std::end(choices)) --rows;
  const int spare = room / kAxes - rows->lines() * metrics.line;
  all.valueHeight =
      std::max(metrics.line, std::min({spare, all.columnWidth / kValueShape, kLargestValue}));
  const int block = rows->lines() * metrics.line + all.valueHeight;
  const int top = std::clamp(room - kAxes * block, 0, kMargin);
  const int gap = std::clamp(room - kAxes * block - top, 0, metrics.line);
  all.block[kY] = stack(top, *rows, narrow, metrics.line, all.valueHeight);
  all.block[kX] = stack(top + block + gap, *rows, narrow, metrics.line, all.valueHeight);
  return all;
}

}  // namespace vk
