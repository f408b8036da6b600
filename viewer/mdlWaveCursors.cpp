// SPDX-License-Identifier: MIT
#include "viewer/mdlWaveCursors.h"

#include <algorithm>
#include <utility>

#include "base/mdlAxis.h"
#include "base/mdlText.h"

namespace vk {

namespace {

constexpr std::array<double, kCursors> kFirstPlaces{5, 10};

struct Section {
  int32_t from;
  int32_t to;
};
/// Nothing for a section that leaves the cells.
std::optional<Section> sectionOf(const SeriesColumns& columns, double x1, double x2) {
  const int32_t from = toRow(std::min(x1, x2));
  const int32_t to = toRow(std::max(x1, x2));
  if (from < 0 || to >= static_cast<int32_t>(columns.count.size())) return std::nullopt;
  return Section{from, to};
}

int64_t samplesIn(const SeriesColumns& columns, const Section& section) {
  int64_t total = 0;
  for (int32_t column = section.from; column <= section.to; ++column) {
    total += columns.count[column];
  }
  return total;
}

std::string valueText(int16_t raw, float slope) {
  return textOf(static_cast<float>(raw) * slope);
}

/// The row of a value without rounding; offset and centre are the panel's.
double rowOf(const WaveCells& cells, int32_t series, double raw) {
  const auto scale = static_cast<double>(cells.panels.yScale(series));
  const auto offset = static_cast<double>(cells.panels.display(series).offset);
  return -scale * raw * static_cast<double>(cells.document.slope[series]) + offset * scale +
         cells.panels.geometry().panelCentreOf(series);
}

}  // namespace

std::optional<CursorReading> cursorReading(const WaveCells& cells, int32_t series, double x) {
  constexpr int32_t kMarkerHalf = 2;
  const auto& columns = cells.columns[series];
  const int32_t column = toRow(x);
  const auto& geometry = cells.panels.geometry();
  if (column < 0 || column >= static_cast<int32_t>(columns.firstValue.size())) return std::nullopt;
  const int16_t first = columns.firstValue[column];
  const float slope = cells.document.slope[series];
  CursorReading reading;
  const int32_t row = toRow(rowOf(cells, series, first) - kMarkerHalf);
  reading.markerTop = std::clamp(row, geometry.panelTopOf(series) - kMarkerHalf,
                                 geometry.panelBottomOf(series) - kMarkerHalf);
  // The very last sample can be reached although the last column holds many.
  if (x >= geometry.plotWidth - 1) {
    reading.value = valueText(columns.lastValue, slope);
    reading.time = cells.document.timeOfIndex(cells.document.lastIndex);
  } else {
    reading.value = valueText(first, slope);
    reading.time = cells.document.timeOfPosition(columns.firstPos[column]);
  }
  return reading;
}

std::optional<SectionExtremes> sectionExtremes(const WaveCells& cells, int32_t series, double x1,
                                               double x2) {
  const auto& columns = cells.columns[series];
  const auto section = sectionOf(columns, x1, x2);
  if (!section || samplesIn(columns, *section) == 0) return std::nullopt;
  const float slope = cells.document.slope[series];
  int32_t largest = section->from;
  int32_t smallest = section->from;
  for (int32_t column = section->from; column <= section->to; ++column) {
    if (columns.maxValue[column] > columns.maxValue[largest]) largest = column;
    if (columns.minValue[column] < columns.minValue[smallest]) smallest = column;
  }
  SectionExtremes found{
      {valueText(columns.maxValue[largest], slope),
       cells.document.timeOfPosition(columns.maxPos[largest]), largest},
      {valueText(columns.minValue[smallest], slope),
       cells.document.timeOfPosition(columns.minPos[smallest]), smallest},
  };
  // A falling raw value is a rising physical one.
  if (slope < 0) std::swap(found.max, found.min);
  return found;
}

std::optional<SectionAverage> sectionAverage(const WaveCells& cells, int32_t series, double x1,
                                             double x2) {
  const auto& columns = cells.columns[series];
  const auto section = sectionOf(columns, x1, x2);
  if (!section) return std::nullopt;
  const auto total = static_cast<double>(samplesIn(columns, *section));
  if (total == 0) return std::nullopt;
  double average = 0;
  for (int32_t column = section->from; column <= section->to; ++column) {
    average += columns.count[column] / total * columns.average[column];
  }
  const auto slope = static_cast<double>(cells.document.slope[series]);
  const auto& geometry = cells.panels.geometry();
  SectionAverage found{formatNumber(slope * average, "0.#######"), std::nullopt};
  const int32_t row = toRow(rowOf(cells, series, average));
  if (row > geometry.panelTopOf(series) && row < geometry.panelBottomOf(series)) found.row = row;
  return found;
}

int32_t seriesAtY(double y, int32_t pictureHeight, int32_t series) {
  const double height = static_cast<double>(pictureHeight) / series;
  for (int32_t s = 0; s < series; ++s) {
    if (height * s < y && y <= height * (s + 1)) return s;
  }
  return 0;
}

// --- the cursors of a window ----------------------------------------------------------------

WaveCursors::WaveCursors(int32_t series) : x_(series, kFirstPlaces), selected_(series, 0) {}

void WaveCursors::toggleSelection(int32_t series) {
  if (selected_[series]) {
    std::fill(selected_.begin(), selected_.end(), 0);
  } else {
    selected_[series] = 1;
  }
}

bool WaveCursors::take(int32_t series, double x) {
  constexpr double kReach = 5;
  // The first cursor is taken where both are near.
  for (int cursor = kCursors - 1; cursor >= 0; --cursor) {
    const double at = x_[series][cursor];
    if (x + kReach <= at || x - kReach >= at) continue;
    dragCursor = cursor;
    dragging = true;
  }
  return dragging;
}

double WaveCursors::bounded(double x, const WaveDocument& document, int32_t width) {
  const bool sparse = width > document.samples();
  const auto last = static_cast<double>((sparse ? document.samples() : width) - 1);
  return std::clamp(x, 0.0, std::max(0.0, last));
}

std::vector<int32_t> WaveCursors::movedWith(int32_t series) const {
  if (!common) return {series};
  std::vector<int32_t> all(x_.size());
  for (std::size_t s = 0; s < all.size(); ++s) all[s] = static_cast<int32_t>(s);
  return all;
}

}  // namespace vk
