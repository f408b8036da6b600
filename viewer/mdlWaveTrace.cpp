// SPDX-License-Identifier: MIT
#include "viewer/mdlWaveTrace.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "base/mdlAxis.h"
#include "base/mdlText.h"

namespace vk {

namespace {

constexpr float kUnknownScale = 32767.0F;
/// A signal exactly at full scale is inside its panel, whatever single precision makes of it.
constexpr float kSlack = 0.01F;

/// What the column needs to be inside its panel.
float reachOf(const SeriesColumns& columns, int32_t column, float slope) {
  const int32_t largest = std::max(std::abs(int32_t{columns.maxValue[column]}),
                                   std::abs(int32_t{columns.minValue[column]}));
  const float steepness = std::abs(slope);
  return largest == 0 ? steepness : steepness * static_cast<float>(largest);
}

struct Clip {
  bool wholly;
  float max;
  float min;
};
template <typename Beyond>
Clip clip(float max, float min, float edge, Beyond beyond) {
  const bool maxBeyond = beyond(max);
  const bool minBeyond = beyond(min);
  return {maxBeyond && minBeyond, maxBeyond ? edge : max, minBeyond ? edge : min};
}

}  // namespace

float yScaleOf(int32_t panelHeight, float fullScale) {
  if (fullScale == 0) return kUnknownScale;
  return static_cast<float>((panelHeight - 2) / 2.0 / static_cast<double>(fullScale));
}

ValueLabels valueLabels(const WaveDisplay& display) {
  return {textOf(display.fullScale + display.offset), textOf(display.offset),
          textOf(display.offset - display.fullScale)};
}

TracePlace tracePlace(const WaveGeometry& geometry, int32_t series, float yScale, float offset,
                      float slope, Colour colour) {
  const double base =
      static_cast<double>(yScale) * static_cast<double>(offset) + geometry.panelCentreOf(series);
  return {geometry.panelTopOf(series), geometry.panelHeight, yScale, slope, toRow(base), colour};
}

// --- one column -----------------------------------------------------------------------------

void WaveTrace::draw(clsCanvas& canvas, const TracePlace& place, int16_t max, int16_t min,
                     int32_t x) {
  const auto rowOf = [&](int16_t raw) {
    return -place.yScale * static_cast<float>(raw) * place.slope + static_cast<float>(place.base);
  };
  const auto top = static_cast<float>(place.top);
  const auto bottom = static_cast<float>(place.top + place.height);
  const Clip upper = clip(rowOf(max), rowOf(min), top, [=](float y) { return y < top - kSlack; });
  const Clip lower =
      clip(upper.max, upper.min, bottom, [=](float y) { return y > bottom + kSlack; });
  const int32_t maxRow = toRow(static_cast<double>(lower.max));
  const int32_t minRow = toRow(static_cast<double>(lower.min));
  // Of a trace that stays outside only the first column is marked, on the edge.
  const bool skipped = (upper.wholly && above_) || (lower.wholly && below_);
  above_ = upper.wholly;
  below_ = lower.wholly;
  if (!skipped) {
    canvas.line(x, maxRow, x, minRow, place.colour);
    canvas.point(x, minRow, place.colour);
    if (begun_ && max < min_) {
      canvas.line(x_, minRow_, x, maxRow, place.colour);
    } else if (begun_ && min > max_) {
      canvas.line(x_, maxRow_, x, minRow, place.colour);
    }
  }
  begun_ = true;
  max_ = max;
  min_ = min;
  maxRow_ = maxRow;
  minRow_ = minRow;
  x_ = x;
}

// --- panels ---------------------------------------------------------------------------------

WavePanels::WavePanels(const WaveDocument& document, const WaveGeometry& geometry)
    : geometry_(geometry) {
  for (const float slope : document.slope) {
    auto& panel = panel_.emplace_back();
    panel.yScale = kUnknownScale;
    panel.slope = slope;
  }
}

void WavePanels::setDisplay(int32_t series, const WaveDisplay& display) {
  auto& panel = panel_[series];
  const float before = panel.display.fullScale;
  panel.display = display;
  if (display.fullScale == 0) panel.display.fullScale = before;
  panel.yScale = yScaleOf(geometry_.panelHeight, panel.display.fullScale);
}

void WavePanels::fillPanel(clsCanvas& canvas, int32_t series) const {
  canvas.filledBox(-1, geometry_.panelTopOf(series), geometry_.plotWidth + 1,
                   geometry_.panelBottomOf(series), panel_[series].display.backColor);
}

void WavePanels::drawGrid(clsSurface& grid, Colour face) const {
  const auto count = static_cast<int32_t>(panel_.size());
  grid.setLineStyle(LineStyle::kSolid);
  for (int32_t s = 0; s < count; ++s) {
    fillPanel(grid, s);
    const int32_t bottom = geometry_.panelBottomOf(s);
    for (int32_t row = bottom + 1; row < bottom + geometry_.panelGap; ++row) {
      grid.line(0, row, geometry_.plotWidth, row, face);
    }
  }
  for (int32_t s = 0; s < count; ++s) baseLine(grid, s);
  grid.setLineStyle(LineStyle::kDotted);
  for (int32_t s = 0; s < count; ++s) subLines(grid, s);
  for (int32_t s = 0; s < count; ++s) timeLines(grid, s);
  grid.setLineStyle(LineStyle::kSolid);
}

void WavePanels::drawLines(clsSurface& grid, int32_t series) const {
  baseLine(grid, series);
  grid.setLineStyle(LineStyle::kDotted);
  subLines(grid, series);
  timeLines(grid, series);
  grid.setLineStyle(LineStyle::kSolid);
}

void WavePanels::baseLine(clsCanvas& grid, int32_t series) const {
  const int32_t centre = geometry_.panelCentreOf(series);
  grid.line(geometry_.plotLeft, centre, geometry_.plotWidth + geometry_.plotLeft, centre,
            panel_[series].display.baseLineColor);
}

void WavePanels::subLines(clsCanvas& grid, int32_t series) const {
  constexpr double kQuarter = 4.0;
  const Colour colour = panel_[series].display.subLineColor;
  const int32_t right = geometry_.plotWidth + geometry_.plotLeft;
  const int32_t upper = roundWhole(geometry_.panelHeight / kQuarter + geometry_.panelTopOf(series));
  const int32_t lower = upper + geometry_.panelHeight / 2;
  grid.line(geometry_.plotLeft, upper, right, upper, colour);
  grid.line(geometry_.plotLeft, lower, right, lower, colour);
}

void WavePanels::timeLines(clsCanvas& grid, int32_t series) const {
  for (int32_t i = 1; i <= kTimeDivisions; ++i) {
    const int32_t x = geometry_.divisionColumn(i);
    grid.line(x, geometry_.panelTopOf(series) + 1, x, geometry_.panelBottomOf(series) + 1,
              panel_[series].display.subLineColor);
  }
}

void WavePanels::wipe(clsSurface& picture, const clsSurface& grid, int32_t series) const {
  const int32_t top = geometry_.panelTopOf(series);
  // The edge below, where a clipped trace is marked, belongs to the panel.
  picture.copy(grid, 0, top, geometry_.plotWidth, geometry_.panelHeight + 1, 0, top);
}

bool WavePanels::grow(Panel& panel, const SeriesColumns& columns, int32_t from, int32_t until,
                      bool autoScale) const {
  bool grown = false;
  for (int32_t column = from; column < until; ++column) {
    const float big = reachOf(columns, column, panel.slope);
    if (big == 0) continue;
    const float need = yScaleOf(geometry_.panelHeight, big);
    const bool fits = panel.display.fullScale != 0 && (!autoScale || panel.yScale <= need);
    if (fits) continue;
    panel.yScale = need;
    panel.display.fullScale = big;
    grown = true;
  }
  return grown;
}

bool WavePanels::drawColumns(clsSurface& picture, const clsSurface& grid,
                             const SeriesColumns& columns, int32_t series, int32_t until,
                             bool autoScale) {
  auto& panel = panel_[series];
  const bool grown = grow(panel, columns, panel.drawn, until, autoScale);
  if (grown) {
    wipe(picture, grid, series);
    panel.drawn = 0;
    panel.trace = {};
  }
  const auto place = tracePlace(geometry_, series, panel.yScale, panel.display.offset, panel.slope,
                                panel.display.foreColor);
  for (; panel.drawn < until; ++panel.drawn) {
    panel.trace.draw(picture, place, columns.maxValue[panel.drawn], columns.minValue[panel.drawn],
                     panel.drawn);
  }
  return grown;
}

void WavePanels::redrawSeries(clsSurface& picture, clsSurface& grid, const SeriesColumns& columns,
                              int32_t series, int32_t until) {
  fillPanel(grid, series);
  drawLines(grid, series);
  wipe(picture, grid, series);
  auto& panel = panel_[series];
  panel.drawn = 0;
  panel.trace = {};
  drawColumns(picture, grid, columns, series, until, false);
}

std::vector<std::string> timeLabels(const WaveDocument& document, int32_t width) {
  const int64_t span = int64_t{document.lastIndex} - document.firstIndex;
  const bool sparse = width > span;
  const int64_t step = sparse ? width : span;
  const auto rate = static_cast<double>(document.request.rate);
  std::vector<std::string> texts;
  for (const int64_t part : {int64_t{0}, step / 4, step / 2, step * 3 / 4}) {
    texts.push_back(document.timeOfIndex(part + document.firstIndex));
  }
  // A sparse axis is a sample to a pixel, and ends past the data.
  const double end = sparse ? static_cast<double>(static_cast<float>(
                                  static_cast<double>(width + int64_t{document.firstIndex}) / rate))
                            : static_cast<double>(document.lastIndex) / rate;
  texts.push_back(document.timeText(end));
  return texts;
}

}  // namespace vk
