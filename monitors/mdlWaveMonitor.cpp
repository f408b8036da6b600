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

void WaveMonitor::init(int32_t slot, int width, int height) {
  slot_ = slot;
  offsetSum_ = 0;
  offsetCount_ = 0;
  // As a click on the box would, when it changes; the stored shift then holds until the
  // measurement is complete.
  if (offsetTicked_ != record_.WAV_CUP_ON) setOffsetCancel(record_.WAV_CUP_ON);
  cancelOffsetPx_ = record_.WAV_CUP_ON ? toShift(record_.WAV_CUP_VALUE) : 0;
  resize(width, height);
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
}

float WaveMonitor::rowOf(float value) const {
  const float y =
      -value * scaleY_ + static_cast<float>(int64_t{centerY_} + gndOffsetPx_ + cancelOffsetPx_);
  return std::clamp(y, -kFarOff, kFarOff);
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
  offsetTicked_ = on;
  record_.WAV_CUP_ON = on;
  offsetSum_ = 0;
  offsetCount_ = 0;
  offsetMeasuring_ = on;
  cancelOffsetPx_ = 0;
}

void WaveMonitor::setPaused(bool on) {
  isPaused_ = on;
  if (!on) lastTime_ = timeGetTime();
}

bool WaveMonitor::lose() {
  if (!wasConnected_) return false;
  wasConnected_ = false;
  label_.say(ReadingLabel::Says::kLost);
  overlays_ = true;
  return true;
}

// --- readings -----------------------------------------------------------------------------------

void WaveMonitor::take(std::string_view reading) {
  if (reading == kUnusedReading) return takeUnused();
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
  int32_t shift = toShift(scaleY_ * static_cast<float>(offsetSum_) / kOffsetReadings);
  if (isTenthRange(slot_, record_.WAV_CH)) shift = toShift(shift / 10.0);
  if (isHalfVolt(slot_, record_.WAV_CH)) shift = toShift(shift * 4.0);
  const auto& coeff = gBoxTable[static_cast<std::size_t>(slot_)].coeff;
  cancelOffsetPx_ =
      toShift(static_cast<float>(shift) * coeff[static_cast<std::size_t>(record_.WAV_CH)]);
  offsetMeasuring_ = false;
}

void WaveMonitor::addSample(float value) {
  const uint32_t now = timeGetTime();
  const float elapsed = static_cast<float>(now - lastTime_);
  const float sweep = kSweepMs[static_cast<std::size_t>(speedIndex(record_.WAV_SPEED))];
  // A stand-still may last for thousands of screens; beyond this no column is left of them.
  const float columns = std::min(elapsed / sweep * static_cast<float>(width_), kFarOff);
  int32_t sweepStep = toRow(columns);
  sweepFrac_ += columns - static_cast<float>(sweepStep);
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
    const auto first = static_cast<std::ptrdiff_t>(firstVisible(columns));
    strokes_.erase(strokes_.begin(), strokes_.begin() + first);
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

void WaveMonitor::show(const WavePictures& pictures) {
  if (blankSub_) pictures.sub.clear(record_.WAV_BACK);
  blankSub_ = false;
  showMarks(pictures.marks);
  if (blankWave_) pictures.wave.clear(record_.WAV_BACK);
  const bool drawn = showStrokes(pictures.sub);
  if (drawn) pictures.wave.copy(pictures.sub, 0, 0, width_, height_, 0, 0);
  if (!drawn && !overlays_) return;
  drawDivisions(pictures.wave, centerX_, centerY_, record_.WAV_GRID);
  drawCentre(pictures.wave, centerX_, centerY_, record_.WAV_GND);
  pictures.wave.refresh();
  blankWave_ = false;
  overlays_ = false;
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

bool WaveMonitor::showStrokes(clsSurface& sub) {
  if (strokes_.empty()) return false;
  int32_t columns = 0;
  const std::size_t first = firstVisible(columns);
  sub.copy(sub, 0, 0, width_, height_, columns, 0);
  int32_t x = width_ - columns;
  sub.filledBox(x, 0, width_ - 1, height_, record_.WAV_BACK);
  for (std::size_t i = first; i < strokes_.size(); ++i) {
    const auto& stroke = strokes_[i];
    const int32_t end = x + stroke.step - 1;
    sub.line(x, stroke.fromRow, end, stroke.toRow, record_.WAV_FORE);
    sub.point(end, stroke.toRow, record_.WAV_FORE);
    x = end + 1;
  }
  strokes_.clear();
  return true;
}

// --- layout -------------------------------------------------------------------------------------

namespace {

constexpr int kGap = 4;

/// Serial, channel and buttons at the left. The buttons come before the labels where there is room
/// for only one of them.
void placeColumn(WaveLayout& at, int height, int width, const WaveRoom& room) {
  constexpr int kEdge = 2;
  const int under = 2 * kEdge + 2 * room.line;
  const bool both = height >= under + room.frameHeight;
  const bool frame = height >= kEdge + room.frameHeight;
  if (both || !frame) {
    at.lblSerNum = {kGap, kEdge, width, room.line};
    at.lblChNum = {kGap, kEdge + room.line, width, room.line};
  }
  if (frame) at.fraSet = {kGap, both ? under : kEdge, width, room.frameHeight};
}

}  // namespace

WaveLayout waveLayout(int width, int height, const WaveRoom& room) {
  constexpr int kStrip = 10;        // width of the marks
  constexpr int kRight = 48;        // beside them
  constexpr int kSliderExtra = 15;  // beyond the picture, half of it at either end
  constexpr int kLeastPicture = 80;
  WaveLayout at;
  // The bands above and below the picture hold the live value and the scales.
  const int top = std::clamp(height * 18 / 100, room.line + 1, 48);
  const int column = std::max(room.serialWidth, room.frameWidth) + 2 * kGap;
  const int beside = room.offsetWidth + room.sliderWidth + kGap;
  const bool labels = width - column - beside - kStrip - kRight >= kLeastPicture;
  const int left = beside + (labels ? column : kGap);
  const int pictureWidth = std::max(1, width - left - kStrip - 1 - kRight);
  const int pictureHeight = std::max(1, height - 2 * top);

  at.picWave = {left, top, pictureWidth, pictureHeight};
  at.picMaxMin = {left + pictureWidth + 1, top, kStrip, pictureHeight};
  at.sdrYPos = {left - room.sliderWidth - 2, top - kSliderExtra / 2, room.sliderWidth,
                pictureHeight + kSliderExtra};
  at.lblOffSet = {at.sdrYPos.left - room.offsetWidth - 1, top + (pictureHeight - room.line) / 2,
                  room.offsetWidth, room.line};
  if (labels) placeColumn(at, height, column - 2 * kGap, room);

  at.valueFont = top - 3;
  at.unitFont = std::max(room.line - 2, top * 6 / 10);
  at.scaleFont = std::clamp(top / 2, room.line - 2, 20);
  const int unitWidth = at.unitFont * 9 / 2;
  at.lblMonitor = {left, 0, std::max(1, width - left - unitWidth - kGap), top};
  at.lblUnitNum = {width - unitWidth, 0, unitWidth, top};
  // The Y scale ends in a unit and is the longer one.
  const int scales = std::max(2, width - left - kGap);
  const int wide = scales * 55 / 100;
  at.lblYScale = {left, top + pictureHeight, wide, top};
  at.lblXScale = {left + wide, top + pictureHeight, scales - wide, top};
  return at;
}

}  // namespace vk
