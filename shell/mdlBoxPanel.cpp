// SPDX-License-Identifier: MIT
#include "shell/mdlBoxPanel.h"

#include <algorithm>
#include <utility>

#include "base/mdlMessages.h"
#include "base/mdlText.h"
#include "link/mdlConnection.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlCodeTables.h"
#include "shell/mdlConfig.h"

namespace vk {

namespace {

constexpr Colour kYellowLight = 0x00FFFF;

// The strip of panels: a main panel and up to two rows of small ones.
constexpr int32_t kSmallLeft = 6540;
constexpr int32_t kPanelWidth = 1710;
constexpr int32_t kTop = 40;
constexpr int32_t kSecondTop = 440;
constexpr int32_t kFullHeight = 795;
constexpr int32_t kSmallHeight = 375;
constexpr int kSmallPerRow = 4;

constexpr int32_t kFrameHeight = 2415;
constexpr int32_t kShowingClicks = 20;

enum Contents : int32_t { kSerialContents, kCardContents, kRoleContents, kModelContents };

}  // namespace

std::optional<Colour> stateColour(int32_t state) {
  switch (state) {
    case kNoBoxState:
    case 1:
      return 0xFFFFFF;
    case 2:
      return 0x8080FF;
    case 3:
      return 0x80FF80;
    case 4:
      return 0xFF8080;
    case 5:
      return kYellowLight;
    default:
      break;
  }
  if (state >= 10 && state <= 99) return kYellowLight;
  return std::nullopt;
}

std::string stateText(int32_t state) {
  return state < 1 ? std::string(kDisconnect) : errorText(state);
}

std::string chgMSString(int32_t syncMode) {
  if (syncMode == 0) return "Master";
  return syncMode == 1 ? "Slave" : "";
}

std::string panelContent(const MeasureSetting& row, int32_t contents) {
  switch (contents) {
    case kSerialContents:
      return serialText(row.serial);
    case kCardContents:
      return row.fileCountText;
    case kRoleContents:
      return chgMSString(row.syncMode);
    case kModelContents:
      return std::string(textAt(modelName, row.model));
    default:
      return {};
  }
}

bool buttonsEnabled(const MeasureSetting& row) {
  return isConnected(row) && row.syncMode == 0;
}

PanelView panelView(const MeasureSetting& row, int32_t contents) {
  PanelView view;
  view.content = isConnected(row) ? panelContent(row, contents) : std::string(kDisconnect);
  view.state = isConnected(row) ? row.boxState : kNoBoxState;
  view.stateText = stateText(view.state);
  view.colour = stateColour(view.state);
  view.buttons = buttonsEnabled(row);
  return view;
}

std::array<std::string, kBoxes> boxListTexts() {
  std::array<std::string, kBoxes> texts;
  for (std::size_t i = 0; i < texts.size(); ++i) texts[i] = serialOrDisconnect(gBoxTable[i + 1]);
  return texts;
}

bool selectMainBox(int32_t listIndex) {
  if (listIndex < 0 || listIndex >= kBoxes || listIndex + 1 == gMainBox) return false;
  gMainBox = listIndex + 1;
  if (isConnected(gBoxTable[gMainBox])) readBackState(gMainBox);
  return true;
}

int32_t rowOfPanel(int32_t index) {
  return index == 0 ? validMainBox(gMainBox) : validMainBox(index);
}

int32_t runPanelCommand(PanelCommand command, int32_t index) {
  // The choice of the main box can change while the exchange yields; the row is fixed here.
  const int32_t row = rowOfPanel(index);
  const int32_t serial = gBoxTable[row].serial;
  int32_t result = kUsbOk;
  switch (command) {
    case PanelCommand::kStart:
      result = usbRUN(serial);
      break;
    case PanelCommand::kStop:
      result = usbHLT(serial);
      break;
    case PanelCommand::kManualTrigger:
      result = usbMTR(serial);
      break;
  }
  if (result != kUsbOk) return 0;
  readBackState(row);
  return row;
}

std::array<PanelPlace, kBoxes + 1> panelPlaces(int32_t mode, int32_t mainBox) {
  std::array<PanelPlace, kBoxes + 1> places;
  if (mode != 1) {
    for (int32_t box = 1; box <= kBoxes; ++box) {
      places[box] = {true, (box - 1) * kPanelPitch + kPanelsLeft, kTop, kPanelWidth, kFullHeight};
    }
    return places;
  }
  places[0] = {true, kPanelsLeft, kTop, kSmallLeft - kPanelsLeft - (kPanelPitch - kPanelWidth),
               kFullHeight};
  int32_t taken = 0;
  for (int32_t box = 1; box <= kBoxes; ++box) {
    if (box == validMainBox(mainBox)) continue;
    places[box] = {true, kSmallLeft + taken % kSmallPerRow * kPanelPitch,
                   taken < kSmallPerRow ? kTop : kSecondTop, kPanelWidth, kSmallHeight};
    ++taken;
  }
  return places;
}

std::array<ShortcutPlace, kShortcuts> shortcutPlaces(bool cal) {
  std::array<ShortcutPlace, kShortcuts> places;
  int32_t left = kShortcutsLeft;
  for (int i = 0; i < kShortcuts; ++i) {
    const bool visible = cal || i != kShortcutCal;
    places[i] = {visible, left};
    if (visible) left += kShortcutWidth;
  }
  return places;
}

std::string_view shortcutText(int index) {
  static constexpr std::array<std::string_view, kShortcuts> kTexts = {
      "Open Dat", "CSV Cnv", "Read USB", "Meas Set", "Moni Set", "Balance",
      "CAL",      "Check",   "List",     "CF Ini",   "Re-Cnt"};
  if (index < 0 || index >= kShortcuts) return {};
  return kTexts[index];
}

bool calVisible(const OneBased<MeasureSetting, kFileRow>& table) {
  for (std::size_t row = 1; row <= kBoxes; ++row) {
    if (modelRow(table[row].model).analogOutput) return true;
  }
  return false;
}

FramePlace framePlace(int32_t screenWidth, int32_t frameWidth) {
  return {roundWhole((screenWidth - frameWidth) / 2.0), 0, kFrameHeight};
}

int frameGrowth(const FrameRoom& room) {
  constexpr int kRim = 8;
  if (!room.untouched || room.lowest <= room.areaHeight) return 0;
  return std::clamp(room.lowest + kRim - room.areaHeight, 0,
                    std::max(0, room.screenBottom - room.frameBottom));
}

std::optional<int32_t> activeSerialOfCaption(std::string_view caption) {
  const std::size_t open = caption.find('<');
  if (open == std::string_view::npos) return std::nullopt;
  const std::size_t close = caption.find('>', open);
  if (close == std::string_view::npos) return std::nullopt;
  return readWhole(caption.substr(open + 1, close - open - 1));
}

std::array<std::string, 4> counterTexts() {
  return {"Reconnect = " + textOf(gCommReconnectCnt), "Send = " + textOf(gCommSendErrCnt),
          "Recive = " + textOf(gCommRecvErrCnt), "Content = " + textOf(gCommContentErrCnt)};
}

bool CounterClicks::click() {
  if (clicks < kShowingClicks) ++clicks;
  return clicks >= kShowingClicks;
}

}  // namespace vk
