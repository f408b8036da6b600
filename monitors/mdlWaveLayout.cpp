// SPDX-License-Identifier: MIT
#include "monitors/mdlWaveLayout.h"

#include <algorithm>

namespace vk {

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
