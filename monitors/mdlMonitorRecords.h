// SPDX-License-Identifier: MIT
// The kinds of live monitors, a row for each. Cycle, selection, configuration file and dialogs go
// over these rows and know no kind; the window and the dialog of a kind stand in
// monitors/frmMonitorForms.
#pragma once

#include <array>
#include <cstddef>

#include "monitors/mdlBarRecord.h"
#include "monitors/mdlCircleRecord.h"
#include "monitors/mdlMonitorRow.h"
#include "monitors/mdlNumRecord.h"
#include "monitors/mdlWaveRecord.h"
#include "monitors/mdlXYRecord.h"

namespace vk {

/// In the order in which everything that goes over all monitors takes them.
enum class MonitorKind { kNumerical, kWave, kXY, kBar, kCircle };
inline constexpr std::array kMonitorRows{&kNumRow, &kWaveRow, &kXYRow, &kBarRow, &kCircleRow};

inline constexpr auto kMonitorKinds = [] {
  std::array<MonitorKind, kMonitorRows.size()> kinds{};
  for (std::size_t i = 0; i < kinds.size(); ++i) kinds[i] = static_cast<MonitorKind>(i);
  return kinds;
}();

inline const MonitorRow& monitorRow(MonitorKind kind) {
  return *kMonitorRows[static_cast<std::size_t>(kind)];
}
inline std::size_t monitorCount(MonitorKind kind) {
  return monitorRow(kind).count;
}
inline MonitorFields monitorFields(MonitorKind kind, std::size_t index) {
  return monitorRow(kind).fields(index);
}

/// Every record to its defaults.
void resetMonitorRecords();

}  // namespace vk
