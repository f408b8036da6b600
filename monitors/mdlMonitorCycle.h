// SPDX-License-Identifier: MIT
// The endless reading of all boxes for all open monitors. One pass asks each box that a monitor
// shows once, by MON, and hands every monitor its readings. A monitor takes each reading in
// (extremes, means, sweep), but is shown at most once in kFrameMs, because drawing each of several
// thousand passes a second would leave time for a few dozen only.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "monitors/mdlMonitorRecords.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

/// Time between two shown frames.
inline constexpr int32_t kFrameMs = 30;

/// What the cycle needs of a monitor window.
class MonitorWindow {
 public:
  virtual ~MonitorWindow() = default;

  /// Applies the record to the window and clears the state of the trace.
  virtual void setInitMoniNum() = 0;
  /// One reading of six characters for each channel that the monitor shows. A kind with several
  /// channels gets "*" for one without a live box.
  virtual void Monitoring(std::span<const std::string_view> readings) = 0;
  /// The whole monitor has no live box.
  virtual void MoniDisConnect() = 0;
  /// Reloads the unit text.
  virtual void setUnitLabel() = 0;
  /// Brings to the screen what has changed since the last call.
  virtual void showReadings() = 0;
  virtual void showWindow() = 0;
  virtual void hideWindow() = 0;
  /// Keeps place and caption in the record, takes the window out of the list, and lets it go once
  /// no handler of it runs.
  virtual void unload() = 0;
};

/// Set by the defaults and never cleared: the cycle may run.
extern bool gMonitorRun;
/// By box slot, 1 to 8: the reply to the last MON, "*" after a failure, and whether this pass has
/// read the box.
extern OneBased<std::string, kBoxes> gMoniText;
extern OneBased<bool, kBoxes> gMoniFetched;
/// The record that the next monitor window takes over as it is made.
extern std::size_t gMoniLoadIndex;

/// What the cycle cannot do itself; an empty handler is skipped.
struct MonitorHandlers {
  /// Makes the window of kind and gMoniLoadIndex without showing it; it enters itself in the list.
  std::function<void(MonitorKind)> load;
  /// The notice after a lost link, then the reconnect.
  std::function<void()> lostLink;
};
extern MonitorHandlers gMonitorHandlers;

/// The windows that are loaded, shown or hidden; null for none.
MonitorWindow* monitorWindow(MonitorKind kind, std::size_t index);
void setMonitorWindow(MonitorKind kind, std::size_t index, MonitorWindow* window);

/// Results of fetchMonitorValue.
inline constexpr int32_t kFetchNoSerial = -1;
inline constexpr int32_t kFetchNoSlot = -2;
inline constexpr int32_t kFetchLost = -1001;
inline constexpr int32_t kFetchFailed = -3;
/// The box table was built anew while the box was asked, so that the reply belongs to no row.
inline constexpr int32_t kFetchStale = -4;

/// Reads the box unless this pass has done so. A failure marks it as lost.
int32_t fetchMonitorValue(int32_t serial);

/// One pass. False when no box was asked: nothing changes until an event comes.
bool monitorCycle();

/// Loads the window of the record, unless it is loaded, initialises and shows it.
void openMonitor(MonitorKind kind, std::size_t index);
/// Every monitor whose record is on.
void openStoredMonitors();
/// Every loaded window, hidden ones too; the records stay on.
void unloadMonitors();
/// After a change of unit or coefficient.
void refreshMonitorUnits();

/// The globals to their start values; the windows stay. A pass under way ends without a result.
void resetMonitorCycle();

}  // namespace vk
