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

void XYMonitor::init(std::span<const int32_t> slots) {
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    axes_[i].slot = slots[i];
    axes_[i].wasConnected = true;
    reloadUnit(i);
  }
  pointerVisible_ = false;
  pointer_ = true;
}

void XYMonitor::resize(int width, int height) {
  scaleAxis(kY, height);
  scaleAxis(kX, width);
  clear();
  // The previous point has lost its place on the plot.
  firstSample_ = true;
  blank_ = overlays_ = true;
}

void XYMonitor::scaleAxis(std::size_t axis, int extent) {
  axes_[axis].scale = pixelsPerUnit(extent, record_.XY_FULL[axis]);
  axes_[axis].centre = toRow(extent / 2.0);
  shiftAxis(axis);
}

void XYMonitor::shiftAxis(std::size_t axis) {
  auto& a = axes_[axis];
  const int32_t shift = groundShift(record_.XY_FULL[axis], record_.XY_OFFSET[axis], a.scale);
  a.axis =
      axis == kY ? upwardAxis(a.centre, shift, a.scale) : rightwardAxis(a.centre, shift, a.scale);
}

void XYMonitor::moveGround(std::size_t axis, int32_t position) {
  record_.XY_OFFSET.at(axis) = position;
  shiftAxis(axis);
}

void XYMonitor::clear() {
  strokes_.clear();
  blankLine_ = true;
  cleared_ = true;
}

void XYMonitor::reloadUnit(std::size_t axis) {
  axes_.at(axis).unit.reload();
}

// --- readings -------------------------------------------------------------------------------

void XYMonitor::take(std::span<const std::string_view> readings) {
  if (readings[kY] == kLostReading && readings[kX] == kLostReading) return takeLost();
  std::array<float, kXYAxes> v{};
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    if (readings[i] == kLostReading) {
      loseChannel(i);
    } else {
      v[i] = takeAxis(i, readings[i]);
    }
  }
  const bool both = axes_[kY].wasConnected && axes_[kX].wasConnected;
  pointer_ = pointer_ || pointerVisible_ != both;
  pointerVisible_ = both;
  if (both) addXYSample(v[kY], v[kX]);
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

void XYMonitor::takeLost() {
  if (!axes_[kY].wasConnected && !axes_[kX].wasConnected) return;
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    axes_[i].wasConnected = true;
    loseChannel(i);
  }
}

void XYMonitor::loseChannel(std::size_t axis) {
  auto& lost = axes_.at(axis);
  if (!lost.wasConnected) return;
  lost.wasConnected = false;
  lost.label.say(ReadingLabel::Says::kLost);
  lost.unit.lose();
  overlays_ = true;
}

void XYMonitor::addXYSample(float vy, float vx) {
  const auto lastRow = toRow(std::exchange(axes_[kY].last, axes_[kY].axis.toPixel(vy)));
  const auto lastColumn = toRow(std::exchange(axes_[kX].last, axes_[kX].axis.toPixel(vx)));
  pointer_ = true;
  if (std::exchange(firstSample_, false)) return;
  const Stroke stroke{lastColumn, lastRow, pointerX(), pointerY()};
  // A point that stays draws nothing new, unless the line was emptied under it.
  if (!cleared_ && stroke.column == lastColumn && stroke.row == lastRow) return;
  cleared_ = false;
  strokes_.push_back(stroke);
}

// --- showing --------------------------------------------------------------------------------

bool XYMonitor::show(const MonitorSurfaces& surfaces) {
  auto& wave = surfaces.shown;
  const bool grown = !strokes_.empty();
  const bool changed = blank_ || grown || overlays_;
  drawLine(surfaces.twin);
  if (blank_) wave.clear(record_.XY_BACK);
  if (grown) wave.copy(surfaces.twin, 0, 0, wave.width(), wave.height(), 0, 0);
  if (changed) {
    drawDivisions(wave, axes_[kX].centre, axes_[kY].centre, record_.XY_GRID);
    drawCentre(wave, axes_[kX].centre, axes_[kY].centre, record_.XY_GND);
    wave.refresh();
  }
  blank_ = overlays_ = false;
  return std::exchange(pointer_, false) || changed;
}

void XYMonitor::drawLine(clsSurface& twin) {
  if (std::exchange(blankLine_, false)) twin.clear(record_.XY_BACK);
  for (const auto& stroke : strokes_) {
    twin.line(stroke.fromColumn, stroke.fromRow, stroke.column, stroke.row, record_.XY_FORE);
    twin.point(stroke.column, stroke.row, record_.XY_FORE);
  }
  strokes_.clear();
}

int32_t XYMonitor::pointerX() const {
  return toRow(axes_[kX].last);
}

int32_t XYMonitor::pointerY() const {
  return toRow(axes_[kY].last);
}

// --- labels ---------------------------------------------------------------------------------

ChannelLabels XYMonitor::labels(std::size_t axis) {
  auto& a = axes_.at(axis);
  return {a.label.take(), a.unit.take(a.slot, record_.XY_CH[axis]), std::nullopt, std::nullopt};
}

std::string XYMonitor::scaleText(std::size_t axis) const {
  return textOf(record_.XY_FULL.at(axis)) + unitLabel(axes_.at(axis).slot, record_.XY_CH[axis]) +
         "/div";
}

std::string XYMonitor::offsetText(std::size_t axis) const {
  return textOf(groundLevel(record_.XY_FULL.at(axis), record_.XY_OFFSET.at(axis)));
}

}  // namespace vk
