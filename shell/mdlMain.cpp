// SPDX-License-Identifier: MIT
#include "shell/mdlMain.h"

#include <filesystem>
#include <system_error>
#include <tuple>

#include "base/clsDesktop.h"
#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "base/mdlMessages.h"
#include "link/mdlUSBCommand.h"
#include "monitors/mdlMonitorCycle.h"
#include "shell/clsDPointCheck.h"

namespace vk {

namespace {

constexpr int32_t kEnglishTexts = 5000;
constexpr double kSettleSeconds = 0.5;

template <typename... Arguments>
void run(const std::function<void(Arguments...)>& handler, Arguments... arguments) {
  if (handler) handler(arguments...);
}

/// True when the user's locale is of no use; he was told.
bool localeRefused() {
  clsDPointCheck guard;
  guard.SetLanguage(gResOffset == kEnglishTexts ? 1 : 0);
  return guard.Check();
}

void runNormally(const MainStages& stages) {
  run(stages.showMain);
  openStoredMonitors();
  waitSeconds(kSettleSeconds);
  monitorLoop();
}

void goOnByStartMode(const MainStages& stages) {
  switch (gStartMode) {
    case kStartNormal:
      runNormally(stages);
      break;
    case kStartUpgrade:
      run(stages.showUpgrade);
      desktop().endProgram();
      break;
    case kStartSeveralUpgrade:
      desktop().endProgram();
      break;
    default:
      break;
  }
}

}  // namespace

void Main(const MainStages& stages) {
  gResOffset = kEnglishTexts;
  std::error_code ignored;
  std::filesystem::current_path(desktop().applicationFolder(), ignored);
  gRestoreDefaults = [] {
    setDefaults();
    readConfig();
  };
  setDefaults();
  resetCommCounters();
  if (localeRefused()) return;
  readConfig();
  gStartOK = 0;
  run(stages.showStart);
  if (desktop().ending()) return;
  if (gStartOK != 1) {
    closeLibrary();
    desktop().endProgram();
    return;
  }
  goOnByStartMode(stages);
}

void monitorLoop() {
  constexpr int kNoEnd = -1;
  while (!desktop().ending()) {
    const bool asked = gMonitorRun && monitorCycle();
    if (desktop().ending()) return;
    if (asked) {
      desktop().doEvents();
    } else {
      desktop().waitEvents(kNoEnd);
    }
  }
}

void shutDown(std::string_view fileList) {
  writeConfig();
  clearTempFiles(true, fileList);
  closeLibrary();
  desktop().endProgram();
}

namespace {

/// Everything as after a start. The monitors' arrangement goes through the file, or past it when
/// the file cannot be written.
void restartSettings() {
  const auto monitors = std::tuple(gNumMoni, gWaveMoni, gXYMoni, gBarMoni, gCircleMoni);
  const bool kept = writeConfig();
  setDefaults();
  readConfig();
  if (!kept) std::tie(gNumMoni, gWaveMoni, gXYMoni, gBarMoni, gCircleMoni) = monitors;
}

}  // namespace

void autoReconnect(const ReconnectSteps& steps) {
  static bool running = false;
  if (running) return;
  const FlagGuard guard(running);
  run(steps.statusTimer, false);
  unloadMonitors();
  restartSettings();
  connectBoxes(false, steps.log);
  openStoredMonitors();
  waitSeconds(kSettleSeconds);
  if (desktop().ending()) return;
  run(steps.rebuildPanels);
  run(steps.statusTimer, true);
}

bool askReconnect() {
  return desktop().messageBox("Re-connect", "Reconnected and connected VK-480Q is recognized.",
                              BoxButtons::kOkCancel, BoxIcon::kInformation) == BoxAnswer::kOk;
}

}  // namespace vk
