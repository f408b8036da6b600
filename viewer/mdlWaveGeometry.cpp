// SPDX-License-Identifier: MIT
#include "viewer/mdlWaveGeometry.h"

#include <algorithm>

#include "base/mdlText.h"

namespace vk {

int32_t WaveGeometry::panelTopOf(int32_t series) const {
  return (panelHeight + panelGap) * series + plotTop;
}

int32_t WaveGeometry::panelCentreOf(int32_t series) const {
  return roundWhole((panelHeight - 1) / 2.0 + panelTopOf(series));
}

int32_t WaveGeometry::height(int32_t series) const {
  return panelHeight * series + panelGap * (series - 1);
}

int32_t WaveGeometry::divisionColumn(int32_t division) const {
  return division * plotWidth / kTimeDivisions + plotLeft;
}

WaveGeometry screenGeometry(int32_t width, int32_t height, const WaveMargins& margins,
                            int32_t series) {
  constexpr double kSideShare = 1.2;
  const int32_t count = std::max(1, series);
  const double room = (width - margins.left - kSideShare * margins.side) / kTimeDivisions;
  const int32_t high =
      height - margins.top - 2 * margins.timeHeight - (kPanelGap * count - kPanelGap);
  const int32_t least = (margins.leastHeight + 1) / 2;
  WaveGeometry geometry;
  geometry.plotWidth = kTimeDivisions * std::max(1, roundWhole(room));
  geometry.panelHeight = 2 * std::max(high / (2 * count), least);
  return geometry;
}

}  // namespace vk
