// SPDX-License-Identifier: MIT
// Start, run and end of the program as fixed orders of stages. What needs a window comes in as a
// handler; an empty handler is skipped.
#pragma once

#include <functional>
#include <string_view>

#include "link/mdlConnection.h"
#include "shell/mdlConfig.h"
#include "shell/mdlStart.h"

namespace vk {

/// The windows that the start leads to.
struct MainStages {
  std::function<void()> showStart;    ///< modal; sets gStartMode and gStartOK
  std::function<void()> showMain;     ///< not modal
  std::function<void()> showUpgrade;  ///< modal
};

/// The whole run. Returns when the program is to end.
void Main(const MainStages& stages);

/// Pass after pass over the monitors, each followed by all pending events, until the program is
/// ending. After a pass that had no box to ask it sleeps until an event comes.
void monitorLoop();

/// The end of the program, from the unload of the main window: configuration, temporary files
/// (`fileList` names further ones), library, end. A running recording goes on in its box.
void shutDown(std::string_view fileList);

/// Looks for the boxes again; all settings survive, through the configuration file or past one that
/// cannot be written. True when box list and panels are to be rebuilt; false inside a running
/// reconnect, where nothing is done, and when the program is ending. The status poll is off
/// meanwhile.
[[nodiscard]] bool autoReconnect(const LogBox& log);
/// The question before a reconnect by hand; false after Cancel. While a reconnect runs nothing is
/// asked.
[[nodiscard]] bool askReconnect();

}  // namespace vk
