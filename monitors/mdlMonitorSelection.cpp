// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorSelection.h"

#include <utility>

#include "base/clsDesktop.h"
#include "monitors/mdlMonitorCycle.h"

namespace vk {

MonitorSelection gMonitorSelection;

namespace {

void follow(MonitorKind kind, std::size_t index, bool ticked) {
  bool& on = monitorFields(kind, index).on;
  if (on == ticked) return;
  on = ticked;
  if (ticked) return openMonitor(kind, index);
  if (auto* window = monitorWindow(kind, index)) window->hideWindow();
}

}  // namespace

MonitorFlags monitorFlags() {
  MonitorFlags flags{};
  for (const auto kind : kMonitorKinds) {
    auto& ofKind = flags[static_cast<std::size_t>(kind)];
    for (std::size_t i = 0; i < monitorCount(kind); ++i) ofKind[i] = monitorFields(kind, i).on;
  }
  return flags;
}

void applyMonitorSelection() {
  // Opening a window lets events run, and one of them may open the dialog again.
  const auto selection = std::exchange(gMonitorSelection, {});
  if (!selection.accepted) return;
  for (const auto kind : kMonitorKinds) {
    const auto& ofKind = selection.ticked[static_cast<std::size_t>(kind)];
    for (std::size_t i = 0; i < monitorCount(kind) && !desktop().ending(); ++i) {
      follow(kind, i, ofKind[i]);
    }
  }
}

}  // namespace vk
