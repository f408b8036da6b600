// SPDX-License-Identifier: MIT
#include "monitors/mdlWaveMonitor.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/clsDesktop.h"
#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

constexpr int32_t kOffsetReadings = 20;
constexpr float kFarOff = 1000000.0F;

/// Time of a full screen by the index of the X scale, ten divisions of moniSpeedName.
constexpr std::array<float, moniSpeedName.size()> kSweepMs{
    100, 200, 500, 1000, 2000, 5000, 10000, 20000, 50000, 100000, 300000, 600000};

/// The nearest existing index; a file may hold anything.
int32_t speedIndex(float speed) {
  return std::clamp(toRow(speed), 0, static_cast<int32_t>(kSweepMs.size()) - 1);
}

/// Wraps after 49 days; differences stay right.
uint32_t timeGetTime() {
  return static_cast<uint32_t>(desktop().milliseconds());
}

}  // namespace

// --- state ------------------------------------------------------------------------------------

void WaveMonitor::init(std::span<const int32_t> slots) {
  slot_ = slots.front();
  // As a click on the box would; the stored shift then holds until the measurement is complete.
  setOffsetCancel(record_.WAV_CUP_ON);
  cancelOffsetPx_ = record_.WAV_CUP_ON ? toShift(record_.WAV_CUP_VALUE) : 0;
  unit_.reload();
  wasConnected_ = true;
  firstSample_ = true;
}

void WaveMonitor::resize(int width, int height) {
  width_ = std::max(1, width);
  height_ = std::max(1, height);
  setScale();
  lastY_ = rowOf(lastValue_);
  blank();
  blankWave_ = true;
  overlays_ = true;
  addMarks();
}

void WaveMonitor::setScale() {
  scaleY_ = pixelsPerUnit(height_, record_.WAV_FULL);
  centerY_ = toRow(height_ / 2.0);
  centerX_ = toRow(width_ / 2.0);
  gndOffsetPx_ = groundShift(record_.WAV_FULL, record_.WAV_OFFSET, scaleY_);
  setAxis();
}

void WaveMonitor::setAxis() {
  axis_ = upwardAxis(centerY_, int64_t{gndOffsetPx_} + cancelOffsetPx_, scaleY_);
}

float WaveMonitor::rowOf(float value) const {
  return std::clamp(axis_.toPixel(value), -kFarOff, kFarOff);
}

/// Both trace and marks start anew; what is collected would belong to the old ones.
void WaveMonitor::blank() {
  strokes_.clear();
  marks_.clear();
  hasMarks_ = false;
  blankSub_ = true;
  blankMarks_ = true;
}

void WaveMonitor::clear() {
  extremes_ = {};
  blank();
}

void WaveMonitor::moveGround(int32_t position) {
  record_.WAV_OFFSET = position;
  setScale();
  addMarks();
}

void WaveMonitor::setOffsetCancel(bool on) {
  record_.WAV_CUP_ON = on;
  offsetSum_ = 0;
  offsetCount_ = 0;
  offsetMeasuring_ = on;
  cancelOffsetPx_ = 0;
  setAxis();
}

void WaveMonitor::setPaused(bool on) {
  isPaused_ = on;
  if (!on) lastTime_ = timeGetTime();
}

void WaveMonitor::reloadUnit(std::size_t) {
  unit_.reload();
}

// --- readings -----------------------------------------------------------------------------------

void WaveMonitor::take(std::span<const std::string_view> readings) {
  if (readings.front() == kLostReading) return takeLost();
  if (readings.front() == kUnusedReading) return takeUnused();
  takeReading(readings.front());
}

void WaveMonitor::takeLost() {
  if (!wasConnected_) return;
  wasConnected_ = false;
  label_.say(ReadingLabel::Says::kLost);
  unit_.lose();
  overlays_ = true;
}

void WaveMonitor::takeReading(std::string_view reading) {
  const auto value = toDisplayValue(reading, slot_, record_.WAV_CH);
  if (!value || isPaused_) return;
  wasConnected_ = true;
  if (offsetMeasuring_) collectOffset(reading);
  if (extremes_.hold(*value) != Extremes::Change::kNone) addMarks();
  label_.say(*value);
  addSample(*value);
}

void WaveMonitor::takeUnused() {
  if (label_.says() == ReadingLabel::Says::kUnused && !hasMarks_) return;
  label_.say(ReadingLabel::Says::kUnused);
  overlays_ = true;
  marks_.clear();
  hasMarks_ = false;
  blankMarks_ = true;
}

void WaveMonitor::collectOffset(std::string_view reading) {
  offsetSum_ += readWhole(reading).value_or(0);
  if (++offsetCount_ < kOffsetReadings) return;
  int32_t shift = toShift(scaleY_ * offsetSum_ / kOffsetReadings);
  const ChannelScale scale = scaleOf(slot_, record_.WAV_CH);
  shift = toShift(shift / double{scale.divisor});
  shift = toShift(shift * double{scale.factor});
  cancelOffsetPx_ = toShift(shift * scale.coeff);
  setAxis();
  offsetMeasuring_ = false;
}

void WaveMonitor::addSample(float value) {
  const uint32_t now = timeGetTime();
  const float elapsed = now - lastTime_;
  const float sweep = kSweepMs[speedIndex(record_.WAV_SPEED)];
  // A stand-still may last for thousands of screens; beyond this no column is left of them.
  const float columns = std::min(elapsed / sweep * width_, kFarOff);
  int32_t sweepStep = toRow(columns);
  sweepFrac_ += columns - sweepStep;
  if (sweepFrac_ > 1) {
    sweepFrac_ -= 1;
    sweepStep += 1;
  } else if (sweepFrac_ < -1) {
    sweepFrac_ += 1;
    sweepStep -= 1;
  }
  const float y = rowOf(value);
  lastTime_ = now;
  if (firstSample_) {
    firstSample_ = false;
  } else if (sweepStep > 0) {
    addStroke({sweepStep, toRow(lastY_), toRow(y)});
  } else {
    return;  // the next stroke begins where the trace ends
  }
  lastY_ = y;
  lastValue_ = value;
}

void WaveMonitor::addStroke(Stroke stroke) {
  // Without a frame for long the oldest strokes leave the picture. Each has a column at least, so
  // not more than the width of them can be in view.
  if (strokes_.size() >= 2 * static_cast<std::size_t>(width_)) {
    int32_t columns = 0;
    strokes_.erase(strokes_.begin(), strokes_.begin() + firstVisible(columns));
  }
  strokes_.push_back(stroke);
}

void WaveMonitor::addMarks() {
  addMark(extremes_.max, kMaxColour);
  addMark(extremes_.min, kMinColour);
}

void WaveMonitor::addMark(float value, Colour colour) {
  const auto mark = markAt(rowOf(value), height_, colour);
  // The last one in a row covers the earlier ones.
  std::erase(marks_, mark);
  marks_.push_back(mark);
  hasMarks_ = true;
}

// --- texts --------------------------------------------------------------------------------------

ChannelLabels WaveMonitor::labels(std::size_t) {
  return {label_.take(), unit_.take(slot_, record_.WAV_CH), std::nullopt, std::nullopt};
}

std::string WaveMonitor::xScaleText() const {
  return "X:" + std::string(textAt(moniSpeedName, speedIndex(record_.WAV_SPEED))) + "/div";
}

std::string WaveMonitor::yScaleText() const {
  return "Y:" + textOf(record_.WAV_FULL) + unitLabel(slot_, record_.WAV_CH) + "/div";
}

std::string WaveMonitor::offsetText() const {
  return textOf(groundLevel(record_.WAV_FULL, record_.WAV_OFFSET));
}

// --- picture ------------------------------------------------------------------------------------

bool WaveMonitor::show(const MonitorSurfaces& surfaces) {
  auto& wave = surfaces.shown;
  if (blankSub_) surfaces.twin.clear(record_.WAV_BACK);
  blankSub_ = false;
  showMarks(*surfaces.extra);
  if (blankWave_) wave.clear(record_.WAV_BACK);
  const bool drawn = showStrokes(surfaces.twin);
  if (drawn) wave.copy(surfaces.twin, 0, 0, width_, height_, 0, 0);
  if (!drawn && !overlays_) return false;
  drawDivisions(wave, centerX_, centerY_, record_.WAV_GRID);
  drawCentre(wave, centerX_, centerY_, record_.WAV_GND);
  wave.refresh();
  blankWave_ = false;
  overlays_ = false;
  return true;
}

void WaveMonitor::showMarks(clsSurface& marks) {
  if (!blankMarks_ && marks_.empty()) return;
  if (blankMarks_) marks.clear(record_.WAV_BACK);
  blankMarks_ = false;
  for (const auto& mark : marks_) marks.line(0, mark.row, marks.width(), mark.row, mark.colour);
  marks_.clear();
  marks.refresh();
}

/// The oldest stroke with a column in view, and the columns from it on.
std::size_t WaveMonitor::firstVisible(int32_t& columns) const {
  std::size_t first = strokes_.size();
  while (first > 0 && columns < width_) columns += strokes_[--first].step;
  return first;
}

bool WaveMonitor::showStrokes(clsSurface& twin) {
  if (strokes_.empty()) return false;
  int32_t columns = 0;
  const std::size_t first = firstVisible(columns);
  twin.copy(twin, 0, 0, width_, height_, columns, 0);
  int32_t x = width_ - columns;
  twin.filledBox(x, 0, width_ - 1, height_, record_.WAV_BACK);
  for (std::size_t i = first; i < strokes_.size(); ++i) {
    const auto& stroke = strokes_[i];
    const int32_t end = x + stroke.step - 1;
    twin.line(x, stroke.fromRow, end, stroke.toRow, record_.WAV_FORE);
    twin.point(end, stroke.toRow, record_.WAV_FORE);
    x = end + 1;
  }
  strokes_.clear();
  return true;
}

}  // namespace vk
