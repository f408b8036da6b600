// SPDX-License-Identifier: MIT
#include "shell/mdlMain.h"

#include <filesystem>
#include <string>
#include <system_error>
#include <tuple>

#include "base/clsDesktop.h"
#include "base/mdlBox.h"
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

bool gReconnecting = false;

void run(const std::function<void()>& stage) {
  if (stage) stage();
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

bool autoReconnect(const LogBox& log) {
  if (gReconnecting) return false;
  const FlagGuard guard(gReconnecting);
  unloadMonitors();
  const std::string settings = configText();
  std::ignore = writeConfig();
  setDefaults();
  readConfig();
  std::ignore = connectBoxes(false, log);
  // Past a file that could not be written or read back.
  std::ignore = readConfigText(settings);
  openStoredMonitors();
  waitSeconds(kSettleSeconds);
  return !desktop().ending();
}

bool askReconnect() {
  return !gReconnecting &&
         confirmBox("Re-connect", "Reconnected and connected VK-480Q is recognized.",
                    BoxIcon::kInformation);
}

}  // namespace vk
