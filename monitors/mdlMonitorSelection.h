// SPDX-License-Identifier: MIT
// Which monitors are shown: the ticks of the selection dialog, and what follows from them.
#pragma once

#include <array>

#include "monitors/mdlMonitorRecords.h"

namespace vk {

/// By kind and index; the kinds use as many as they have monitors.
using MonitorFlags = std::array<std::array<bool, kMostMonitors>, kMonitorKinds.size()>;

struct MonitorSelection {
  MonitorFlags ticked{};
  bool accepted = false;  ///< the dialog was not cancelled
};
/// The dialog's result, until it has been applied.
extern MonitorSelection gMonitorSelection;

/// As the records are.
MonitorFlags monitorFlags();

/// Hides what is on and not ticked, opens what is ticked and not on; whatever runs on is left
/// alone. Does nothing after a cancel.
void applyMonitorSelection();

}  // namespace vk
