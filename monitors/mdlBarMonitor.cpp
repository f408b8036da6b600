// SPDX-License-Identifier: MIT
#include "monitors/mdlBarMonitor.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/mdlText.h"

namespace vk {

using Says = ReadingLabel::Says;

BarEdges barEdges(int width) {
  constexpr double kUnits = 21;
  constexpr double kUnitsOfBar = 4;
  const double unit = width / kUnits;
  BarEdges edges;
  for (std::size_t i = 0; i < kBars; ++i) {
    edges.left[i] = toRow(unit + (i == 0 ? 0 : edges.right[i - 1]));
    edges.right[i] = toRow(unit * kUnitsOfBar + edges.left[i]);
  }
  return edges;
}

// --- state ------------------------------------------------------------------------------------

void BarMonitor::init(std::span<const int32_t> slots) {
  for (std::size_t i = 0; i < kBars; ++i) {
    bars_[i].slot = slots[i];
    bars_[i].wasConnected = true;
    reloadUnit(i);
  }
}

void BarMonitor::reloadUnit(std::size_t bar) {
  bars_.at(bar).unit.reload();
}

void BarMonitor::resize(int width, int height) {
  width_ = std::max(1, width);
  height_ = std::max(1, height);
  centerY_ = toRow(height_ / 2.0);
  edges_ = barEdges(width_);
  setScales();
  blankWave_ = true;
  blankSub_ = true;
  drawBars_ = false;
  zeroRow_ = bars_[0].zeroRow;
}

void BarMonitor::setScales() {
  for (std::size_t i = 0; i < kBars; ++i) {
    auto& bar = bars_[i];
    const float full = record_.BAR_FULL[i];
    const float scale = pixelsPerUnit(height_, full);
    bar.axis = upwardAxis(centerY_, groundShift(full, record_.BAR_OFFSET[i], scale), scale);
    bar.zeroRow = toRow(bar.axis.toPixel(0));
  }
  stale_ = true;
}

void BarMonitor::clear() {
  for (auto& bar : bars_) bar.extremes = {};
  blankSub_ = true;
  drawBars_ = false;
  stale_ = true;
}

void BarMonitor::moveGround(int32_t position) {
  record_.BAR_OFFSET.fill(position);
  setScales();
}

bool BarMonitor::anyConnected() const {
  return std::ranges::any_of(bars_, &Bar::wasConnected);
}

void BarMonitor::loseChannel(std::size_t bar) {
  auto& lost = bars_.at(bar);
  if (!lost.wasConnected) return;
  lost.wasConnected = false;
  lost.unit.lose();
  lost.label.say(Says::kLost);
}

void BarMonitor::takeLost() {
  if (!anyConnected()) return;
  for (auto& bar : bars_) {
    bar.wasConnected = false;
    bar.unit.lose();
    bar.label.say(Says::kLost);
  }
  stale_ = true;
  showEmpty();
}

void BarMonitor::showEmpty() {
  zeroRow_ = centerY_;
}

// --- readings -----------------------------------------------------------------------------------

void BarMonitor::take(std::span<const std::string_view> readings) {
  if (readings.size() < kBars) return;
  const auto values = readings.first(kBars);
  for (std::size_t i = 0; i < kBars; ++i) {
    if (values[i] == kUnusedReading) bars_[i].label.say(Says::kUnused);
  }
  const auto allAre = [&](std::string_view text) {
    return std::ranges::all_of(values, [&](std::string_view value) { return value == text; });
  };
  if (allAre(kUnusedReading) || allAre(kLostReading)) return takeLost();
  bool changed = stale_;
  for (std::size_t i = 0; i < kBars; ++i) changed = takeBar(i, values[i]) || changed;
  if (!changed) return;
  blankSub_ = true;
  drawBars_ = anyConnected();
  stale_ = !drawBars_;
  if (drawBars_) zeroRow_.reset();
}

/// True when the bar is to be drawn in another way than before.
bool BarMonitor::takeBar(std::size_t index, std::string_view reading) {
  auto& bar = bars_[index];
  const auto value = toDisplayValue(reading, bar.slot, record_.BAR_CH[index]);
  bool changed = bar.value != value.value_or(0);
  bar.value = value.value_or(0);
  if (value) {
    bar.wasConnected = true;
    changed = bar.extremes.hold(*value) != Extremes::Change::kNone || changed;
    bar.label.say(*value);
  } else if (reading != kUnusedReading) {
    loseChannel(index);
  }
  const bool drawn = bar.label.says() != Says::kUnused;
  changed = changed || drawn != bar.drawn;
  bar.drawn = drawn;
  return changed;
}

// --- texts --------------------------------------------------------------------------------------

ChannelLabels BarMonitor::labels(std::size_t bar) {
  auto& said = bars_.at(bar);
  return {said.label.take(), said.unit.take(said.slot, record_.BAR_CH.at(bar)), std::nullopt,
          std::nullopt};
}

std::string BarMonitor::scaleText(std::size_t bar) const {
  return textOf(record_.BAR_FULL.at(bar)) + unitLabel(bars_.at(bar).slot, record_.BAR_CH.at(bar)) +
         "/div";
}

// --- picture ------------------------------------------------------------------------------------

bool BarMonitor::show(const MonitorSurfaces& surfaces) {
  auto& wave = surfaces.shown;
  if (blankSub_) surfaces.twin.clear(record_.BAR_BACK);
  if (blankWave_) wave.clear(record_.BAR_BACK);
  blankSub_ = false;
  blankWave_ = false;
  if (!drawBars_ && !zeroRow_) return false;
  if (drawBars_) drawBars(wave, surfaces.twin);
  if (zeroRow_) {
    drawLevels(wave, centerY_, height_ - kFramePixels, record_.BAR_GRID);
    drawZero(wave, *zeroRow_);
  }
  drawBars_ = false;
  zeroRow_.reset();
  wave.refresh();
  return true;
}

void BarMonitor::drawBars(clsSurface& wave, clsSurface& twin) const {
  for (std::size_t i = 0; i < kBars; ++i) {
    const auto& bar = bars_[i];
    if (!bar.drawn) continue;
    drawMarks(twin, i);
    twin.filledBox(edges_.left[i], bar.zeroRow, edges_.right[i], toRow(bar.axis.toPixel(bar.value)),
                   record_.BAR_FORE[i]);
  }
  wave.copy(twin, 0, 0, width_, height_, 0, 0);
  drawLevels(wave, centerY_, height_ - kFramePixels, record_.BAR_GRID);
  drawZero(wave, bars_[0].zeroRow);
}

void BarMonitor::drawMarks(clsCanvas& twin, std::size_t index) const {
  const auto draw = [&](float value, Colour colour) {
    const auto mark = markAt(bars_[index].axis.toPixel(value), height_, colour);
    twin.line(edges_.left[index], mark.row, edges_.right[index], mark.row, mark.colour);
  };
  draw(bars_[index].extremes.max, kMaxColour);
  draw(bars_[index].extremes.min, kMinColour);
}

void BarMonitor::drawZero(clsCanvas& wave, int32_t row) const {
  wave.line(0, row, width_, row, record_.BAR_GND);
}

}  // namespace vk
