// SPDX-License-Identifier: MIT
#include "monitors/mdlNumLayout.h"

#include <algorithm>

#include "base/mdlAxis.h"

namespace vk {

NumLayout numLayout(int width, int height, const NumColumn& column) {
  constexpr int kMargin = 4;  // top of the picture, and around the column
  constexpr int kGap = 2;
  constexpr int kRight = 16;
  constexpr int kBetween = 16;  // the two hold pictures
  constexpr double kValueShare = 0.7;
  const auto area = [](int left, int top, int w, int h) {
    return MonitorPlace{left, top, std::max(1, w), std::max(1, h)};
  };

  const int left = column.width + 2 * kMargin;
  NumLayout all{};
  all.monitor = area(left, kMargin, toRow(width - left - width / 10.0 - kRight),
                     toRow(height * kValueShare) - 2 * kMargin);
  const auto& value = all.monitor;
  all.unit = area(left + value.width, kMargin, width - left - value.width - kRight, value.height);
  const int holdTop = kMargin + value.height + kMargin / 2;
  const int holdWidth = toRow((all.unit.width + value.width) / 2.0 - kBetween / 2.0);
  const int holdHeight = height - value.height - 2 * kMargin - kMargin / 2;
  all.max = area(left, holdTop, holdWidth, holdHeight);
  all.min =
      area(left + value.width + all.unit.width - all.max.width, holdTop, holdWidth, holdHeight);

  all.serial = area(kMargin, kMargin, column.width, column.line);
  all.channel = area(kMargin, kMargin + column.line, column.width, column.line);
  const int used = kMargin + 2 * column.line;
  const int stacked = 2 * column.button + kGap;
  all.buttonsBeside = used + kGap + stacked + kMargin > height;
  const int frame = all.buttonsBeside ? column.button : stacked;
  const int frameTop = std::max(used, height - kMargin - frame);
  all.frame = area(kMargin, frameTop, column.width, std::min(frame, height - frameTop));
  return all;
}

}  // namespace vk
