// SPDX-License-Identifier: MIT
// Where the panels of a view stand: one for each series, top to bottom with a gap between them, all
// as wide as the plot. The same on the screen and on paper, in the pixels of either.
#pragma once

#include <cstdint>

namespace vk {

inline constexpr int32_t kTimeDivisions = 24;
inline constexpr int32_t kPanelGap = 3;

struct WaveGeometry {
  int32_t plotLeft = 0;
  int32_t plotTop = 0;                 ///< of the first panel
  int32_t plotWidth = kTimeDivisions;  ///< a multiple of kTimeDivisions
  int32_t panelHeight = 2;             ///< even
  int32_t panelGap = kPanelGap;

  int32_t panelTopOf(int32_t series) const;
  /// Ties to even.
  int32_t panelCentreOf(int32_t series) const;
  int32_t panelBottomOf(int32_t series) const { return panelTopOf(series) + panelHeight; }
  /// Of all panels together.
  int32_t height(int32_t series) const;
  /// The column of a time division, 0 to kTimeDivisions.
  int32_t divisionColumn(int32_t division) const;
};

/// What stands around the plot of a window, in pixels.
struct WaveMargins {
  int32_t left = 0;         ///< the value labels
  int32_t top = 0;          ///< of the plot
  int32_t side = 0;         ///< width of the column beside the plot
  int32_t timeHeight = 0;   ///< of the labels below it
  int32_t leastHeight = 2;  ///< of a panel that can be read
};
/// The largest plot for a window of this inner size; when the panels would get lower than the least
/// height, the plot is higher than the window.
WaveGeometry screenGeometry(int32_t width, int32_t height, const WaveMargins& margins,
                            int32_t series);

}  // namespace vk
