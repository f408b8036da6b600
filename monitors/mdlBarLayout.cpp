// SPDX-License-Identifier: MIT
#include "monitors/mdlBarLayout.h"

#include <algorithm>

#include "base/mdlAxis.h"

namespace vk {

namespace {

constexpr int kPanelHeight = 66;  // of the panels under the picture

// Packed panels share what the window has to the right of the picture's left edge; others widen
// with the picture, as far as larger letters need it.
void placePanels(BarLayout& at, int width, int height, const BarRoom& room) {
  constexpr int kGap = 4;
  constexpr int kCount = int{kBars};
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
    at.picCh[i] = {packed ? picture.left + i * panel : toRow(middle), top, panel,
                   std::clamp(height - top, 1, kPanelHeight)};
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
