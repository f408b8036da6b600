// SPDX-License-Identifier: MIT
#include "monitors/mdlXYLayout.h"

#include <algorithm>
#include <utility>

namespace vk {

namespace {

constexpr std::size_t kY = 0;
constexpr std::size_t kX = 1;

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
  constexpr int kAxes = int{kXYAxes};

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
