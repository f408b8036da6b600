// SPDX-License-Identifier: MIT
#include "monitors/mdlBarMonitor.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/mdlText.h"

namespace vk {

using Says = ReadingLabel::Says;

namespace {

constexpr int kPanelHeight = 66;  // of the panels under the picture

}  // namespace

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

void BarMonitor::init(const std::array<int32_t, kBars>& boxSlots, int width, int height) {
  for (std::size_t i = 0; i < kBars; ++i) {
    bars_[i].slot = boxSlots[i];
    bars_[i].wasConnected = true;
    bars_[i].unitIsLost = false;
  }
  resize(width, height);
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
  zeroRow_ = centerY_ + bars_[0].gndOffsetPx;
}

void BarMonitor::setScales() {
  for (std::size_t i = 0; i < kBars; ++i) {
    auto& bar = bars_[i];
    const float full = record_.BAR_FULL[i];
    bar.scaleY = pixelsPerUnit(height_, full);
    bar.gndOffsetPx = groundShift(full, record_.BAR_OFFSET[i], bar.scaleY);
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

void BarMonitor::loseBar(std::size_t bar) {
  auto& lost = bars_.at(bar);
  if (!lost.wasConnected) return;
  lost.wasConnected = false;
  lost.unitIsLost = true;
  lost.label.say(Says::kLost);
}

void BarMonitor::lose() {
  if (!anyConnected()) return;
  for (auto& bar : bars_) {
    bar.wasConnected = false;
    bar.unitIsLost = true;
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
  if (allAre(kUnusedReading) || allAre(kLostReading)) return lose();
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
    loseBar(index);
  }
  const bool drawn = bar.label.says() != Says::kUnused;
  changed = changed || drawn != bar.drawn;
  bar.drawn = drawn;
  return changed;
}

// --- texts --------------------------------------------------------------------------------------

bool BarMonitor::takeUnitLoss(std::size_t bar) {
  return std::exchange(bars_.at(bar).unitIsLost, false);
}

std::string BarMonitor::unitText(std::size_t bar) const {
  return unitLabel(bars_.at(bar).slot, record_.BAR_CH.at(bar));
}

std::string BarMonitor::scaleText(std::size_t bar) const {
  return textOf(record_.BAR_FULL.at(bar)) + unitText(bar) + "/div";
}

// --- picture ------------------------------------------------------------------------------------

void BarMonitor::show(clsSurface& wave, clsSurface& sub) {
  if (blankSub_) sub.clear(record_.BAR_BACK);
  if (blankWave_) wave.clear(record_.BAR_BACK);
  blankSub_ = false;
  blankWave_ = false;
  if (!drawBars_ && !zeroRow_) return;
  if (drawBars_) drawBars(wave, sub);
  if (zeroRow_) {
    drawLevels(wave, centerY_, height_ - kFramePixels, record_.BAR_GRID);
    drawZero(wave, *zeroRow_);
  }
  drawBars_ = false;
  zeroRow_.reset();
  wave.refresh();
}

float BarMonitor::rowOf(const Bar& bar, float value) const {
  return -value * bar.scaleY + static_cast<float>(centerY_ + bar.gndOffsetPx);
}

void BarMonitor::drawBars(clsSurface& wave, clsSurface& sub) const {
  for (std::size_t i = 0; i < kBars; ++i) {
    const auto& bar = bars_[i];
    if (!bar.drawn) continue;
    drawMarks(sub, i);
    sub.filledBox(edges_.left[i], centerY_ + bar.gndOffsetPx, edges_.right[i],
                  toRow(rowOf(bar, bar.value)), record_.BAR_FORE[i]);
  }
  wave.copy(sub, 0, 0, width_, height_, 0, 0);
  drawLevels(wave, centerY_, height_ - kFramePixels, record_.BAR_GRID);
  drawZero(wave, centerY_ + bars_[0].gndOffsetPx);
}

void BarMonitor::drawMarks(clsSurface& sub, std::size_t index) const {
  const auto draw = [&](float value, Colour colour) {
    const auto mark = markAt(rowOf(bars_[index], value), height_, colour);
    sub.line(edges_.left[index], mark.row, edges_.right[index], mark.row, mark.colour);
  };
  draw(bars_[index].extremes.max, kMaxColour);
  draw(bars_[index].extremes.min, kMinColour);
}

void BarMonitor::drawZero(clsSurface& wave, int32_t row) const {
  wave.line(0, row, width_, row, record_.BAR_GND);
}

// --- layout -------------------------------------------------------------------------------------

namespace {

// Packed panels share what the window has to the right of the picture's left edge; others widen
// with the picture, as far as larger letters need it.
void placePanels(BarLayout& at, int width, int height, const BarRoom& room) {
  constexpr int kGap = 4;
  constexpr int kCount = static_cast<int>(kBars);
  const auto& picture = at.picWave;
  const bool packed = picture.width < room.panelRow;
  const int natural = room.panelRow / kCount;
  const int most = std::max(1, (width - picture.left) / kCount);
  const int widest = std::max(160, natural);
  const int panel =
      packed ? std::min(natural, most) : std::clamp(picture.width / kCount - kGap, natural, widest);
  const int top = picture.top + picture.height;
  for (int i = 0; i < kCount; ++i) {
    const double middle =
        picture.width / 4.0 * i + picture.left + picture.width / 8.0 - panel / 2.0;
    at.picCh[static_cast<std::size_t>(i)] = {packed ? picture.left + i * panel : toRow(middle), top,
                                             panel, std::clamp(height - top, 1, kPanelHeight)};
  }
}

}  // namespace

BarLayout barLayout(int width, int height, const BarRoom& room) {
  constexpr int kGap = 4;
  constexpr int kBetween = 2;  // the two buttons
  constexpr int kTop = 8;
  constexpr int kRight = 24;
  constexpr int kSliderExtra = 16;  // beyond the picture, half of it at either end
  constexpr int kLeastPicture = 160;
  BarLayout at;
  const int column = room.buttonWidth + 2 * kGap;
  const int beside = room.sliderWidth + kGap;
  at.buttonsBeside = width - column - beside - kRight < kLeastPicture;
  const int left = beside + (at.buttonsBeside ? kGap : column);
  const int top = at.buttonsBeside ? room.buttonHeight + kGap : kTop;
  const int pictureHeight = std::max(1, height - top - kPanelHeight);
  at.picWave = {left, top, std::max(1, width - left - kRight), pictureHeight};
  at.sdrYPos = {left - room.sliderWidth - 2, top - kSliderExtra / 2, room.sliderWidth,
                pictureHeight + kSliderExtra};
  at.fraSet = {kGap, kTop, room.buttonWidth, 2 * room.buttonHeight + kBetween};
  if (at.buttonsBeside)
    at.fraSet = {left, kGap / 2, std::min(2 * room.buttonWidth + kBetween, width - left - kGap / 2),
                 room.buttonHeight};
  placePanels(at, width, height, room);
  return at;
}

}  // namespace vk
