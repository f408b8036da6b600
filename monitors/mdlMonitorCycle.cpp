// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorCycle.h"

#include <algorithm>

#include "base/clsDesktop.h"
#include "link/mdlUSBCommand.h"
#include "monitors/mdlMonitorValue.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

bool gMonitorRun = true;
OneBased<std::string, kBoxes> gMoniText;
OneBased<bool, kBoxes> gMoniFetched;
std::size_t gMoniLoadIndex = 0;
MonitorHandlers gMonitorHandlers;

namespace {

std::array<std::array<MonitorWindow*, kMostMonitors>, kMonitorKinds.size()> gWindows{};
int64_t gLastFrame = -kFrameMs;

/// Calls `work(kind, index)` for each monitor in the order of kinds, then indices; leaves at false.
template <typename Work>
bool forEachMonitor(Work work) {
  for (const auto kind : kMonitorKinds) {
    for (std::size_t i = 0; i < monitorCount(kind); ++i) {
      if (!work(kind, i)) return false;
    }
  }
  return true;
}

/// The same for the loaded windows of records that are on.
template <typename Work>
void forEachOpen(Work work) {
  forEachMonitor([&](MonitorKind kind, std::size_t i) {
    auto* window = monitorWindow(kind, i);
    if (window && monitorFields(kind, i).on) work(kind, i, *window);
    return true;
  });
}

bool isLive(int32_t slot) {
  return isBoxSlot(slot) && isConnected(gBoxTable[slot]);
}

/// kFetchFailed or kFetchStale as soon as a box gives that, else 0.
int32_t fetchAll() {
  int32_t result = kUsbOk;
  forEachMonitor([&](MonitorKind kind, std::size_t i) {
    const auto fields = monitorFields(kind, i);
    if (!fields.on) return true;
    for (const int32_t serial : fields.serial) {
      result = fetchMonitorValue(serial);
      if (result == kFetchFailed || result == kFetchStale) return false;
    }
    result = kUsbOk;
    return true;
  });
  return result;
}

std::string_view readingOfSerial(int32_t serial, int32_t channel) {
  const int32_t slot = slotIndexOf(serial);
  if (!isLive(slot)) return kLostReading;
  return readingOf(gMoniText[slot], channel);
}

void dispatch(MonitorKind kind, std::size_t index, MonitorWindow& window) {
  const auto fields = monitorFields(kind, index);
  const std::size_t channels = fields.serial.size();
  if (channels == 1 && !isLive(slotIndexOf(fields.serial[0]))) return window.MoniDisConnect();
  std::array<std::string_view, kMostChannels> readings;
  for (std::size_t i = 0; i < channels; ++i) {
    readings[i] = readingOfSerial(fields.serial[i], fields.channel[i]);
  }
  window.Monitoring(std::span(readings).first(channels));
}

void showFrame() {
  gLastFrame = desktop().milliseconds();
  forEachOpen([](MonitorKind, std::size_t, MonitorWindow& window) { window.showReadings(); });
}

void loseLink() {
  if (desktop().ending()) return;
  showFrame();
  countUp(gCommReconnectCnt);
  if (gMonitorHandlers.lostLink) gMonitorHandlers.lostLink();
}

}  // namespace

MonitorWindow* monitorWindow(MonitorKind kind, std::size_t index) {
  return gWindows[static_cast<std::size_t>(kind)].at(index);
}

void setMonitorWindow(MonitorKind kind, std::size_t index, MonitorWindow* window) {
  gWindows[static_cast<std::size_t>(kind)].at(index) = window;
}

int32_t fetchMonitorValue(int32_t serial) {
  if (serial == kNoSerial) return kFetchNoSerial;
  const int32_t slot = slotIndexOf(serial);
  if (!isBoxSlot(slot)) return kFetchNoSlot;
  const auto at = static_cast<std::size_t>(slot);
  if (!isConnected(gBoxTable[at])) return kFetchLost;
  if (gMoniFetched[at]) return kUsbOk;
  const uint32_t age = boxTableAge();
  const bool good = usbMON(serial) == kUsbOk;
  // The wait before a second try lets events run, and a reconnect may be among them.
  if (age != boxTableAge()) return kFetchStale;
  gMoniText[at] = good ? gLastReply : std::string(kLostReading);
  gMoniFetched[at] = true;
  if (good) return kUsbOk;
  gBoxTable[at].handle = kLostHandle;
  return kFetchFailed;
}

bool monitorCycle() {
  gMoniFetched.fill(false);
  if (const int32_t result = fetchAll(); result != kUsbOk) {
    if (result == kFetchFailed) loseLink();
    return true;
  }
  forEachOpen(dispatch);
  bool asked = false;
  for (std::size_t slot = 1; slot <= kBoxes; ++slot) asked = asked || gMoniFetched[slot];
  const int64_t since = desktop().milliseconds() - gLastFrame;
  // A pass after which the loop sleeps shows what it found at once.
  if (!asked || since >= kFrameMs || since < 0) showFrame();
  return asked;
}

void openMonitor(MonitorKind kind, std::size_t index) {
  if (!monitorWindow(kind, index)) {
    gMoniLoadIndex = index;
    if (gMonitorHandlers.load) gMonitorHandlers.load(kind);
  }
  // Loading lets events run; one of them may have closed the window or ended the program.
  auto* window = monitorWindow(kind, index);
  if (!window || desktop().ending()) return;
  window->setInitMoniNum();
  window->showWindow();
}

void openStoredMonitors() {
  forEachMonitor([](MonitorKind kind, std::size_t i) {
    if (monitorFields(kind, i).on) openMonitor(kind, i);
    return !desktop().ending();
  });
}

void unloadMonitors() {
  forEachMonitor([](MonitorKind kind, std::size_t i) {
    if (auto* window = monitorWindow(kind, i)) window->unload();
    return true;
  });
}

void refreshMonitorUnits() {
  forEachOpen([](MonitorKind, std::size_t, MonitorWindow& window) { window.setUnitLabel(); });
}

void resetMonitorCycle() {
  gMonitorRun = true;
  gMoniText.fill({});
  gMoniFetched.fill(false);
  gMoniLoadIndex = 0;
  gLastFrame = -kFrameMs;
}

}  // namespace vk
