// SPDX-License-Identifier: MIT
// Draws the columns of a view: the grid of its panels, and each series as a vertical line from the
// largest to the smallest sample of every column, joined to the column before where the two do not
// overlap. What is drawn depends on the cells, the geometry and the panel's scale alone.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/clsSurface.h"
#include "viewer/mdlWaveDocument.h"
#include "viewer/mdlWaveGeometry.h"

namespace vk {

/// What a user sets of a panel. Scale and offset are in the unit of the series.
struct WaveDisplay {
  float fullScale = 0;  ///< half the height of the panel; 0: not yet known
  float offset = 0;     ///< the value at the centre line
  Colour backColor = 0x404040;
  Colour foreColor = 0x0000FF;
  Colour baseLineColor = 0x808080;
  Colour subLineColor = 0x808080;
  bool operator==(const WaveDisplay&) const = default;
};

/// Pixels to a unit, for the full scale; 32767 before one is known.
float yScaleOf(int32_t panelHeight, float fullScale);

/// The texts of lblFS_P, lblGND and lblFS_M.
struct ValueLabels {
  std::string top;
  std::string centre;
  std::string bottom;
};
ValueLabels valueLabels(const WaveDisplay& display);

/// Where one series is drawn, and its unit in pixels.
struct TracePlace {
  int32_t top = 0;
  int32_t height = 0;
  float yScale = 0;
  float slope = 0;   ///< raw to unit
  int32_t base = 0;  ///< row of the raw value 0
  Colour colour = 0;
};
TracePlace tracePlace(const WaveGeometry& geometry, int32_t series, float yScale, float offset,
                      float slope, Colour colour);

/// One drawing pass over the columns of one series, left to right.
class WaveTrace {
 public:
  /// One column at x, from its largest and smallest raw value. A pass begins without a column
  /// before.
  void draw(clsCanvas& canvas, const TracePlace& place, int16_t max, int16_t min, int32_t x);

 private:
  bool begun_ = false;
  bool above_ = false;  ///< the column before was wholly above the panel
  bool below_ = false;
  int16_t max_ = 0;
  int16_t min_ = 0;
  int32_t maxRow_ = 0;
  int32_t minRow_ = 0;
  int32_t x_ = 0;
};

/// The panels of a window: their scales, the grid, and how far each series is drawn.
class WavePanels {
 public:
  WavePanels() = default;
  WavePanels(const WaveDocument& document, const WaveGeometry& geometry);

  const WaveGeometry& geometry() const { return geometry_; }
  const WaveDisplay& display(int32_t series) const { return panel_[series].display; }
  float yScale(int32_t series) const { return panel_[series].yScale; }
  /// A full scale of 0 leaves the one there is.
  void setDisplay(int32_t series, const WaveDisplay& display);

  /// Backgrounds and lines of all panels; `face` is the colour between them.
  void drawGrid(clsSurface& grid, Colour face) const;
  /// Draws the columns up to `until` that are not drawn yet. With autoScale a panel grows until
  /// its columns fit, and all of them are drawn anew then. True when the scale has changed.
  bool drawColumns(clsSurface& picture, const clsSurface& grid, const SeriesColumns& columns,
                   int32_t series, int32_t until, bool autoScale);
  /// One panel anew with its grid, after its display has changed. `columns` may hold more.
  void redrawSeries(clsSurface& picture, clsSurface& grid, const SeriesColumns& columns,
                    int32_t series, int32_t until);

 private:
  struct Panel {
    WaveDisplay display;
    float yScale = 0;
    float slope = 0;
    int32_t drawn = 0;  ///< columns
    WaveTrace trace;
  };
  void drawLines(clsSurface& grid, int32_t series) const;
  void baseLine(clsCanvas& grid, int32_t series) const;
  void subLines(clsCanvas& grid, int32_t series) const;
  void timeLines(clsCanvas& grid, int32_t series) const;
  void fillPanel(clsCanvas& canvas, int32_t series) const;
  void wipe(clsSurface& picture, const clsSurface& grid, int32_t series) const;
  /// Widens the scale for the columns from `from`; true when it has.
  bool grow(Panel& panel, const SeriesColumns& columns, int32_t from, int32_t until,
            bool autoScale) const;

  WaveGeometry geometry_;
  std::vector<Panel> panel_;
};

/// The five texts below the plot.
std::vector<std::string> timeLabels(const WaveDocument& document, int32_t width);

}  // namespace vk
