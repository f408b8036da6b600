// SPDX-License-Identifier: MIT
// What the main window shows of the boxes and where: panel contents, state colours, buttons, the
// geometry of panels and shortcut bar (in twips), the box list and the hidden counter display.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/clsCanvas.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

inline constexpr int32_t kNoBoxState = -1;

/// Colour of the state indicator; empty when the indicator keeps the colour it has.
std::optional<Colour> stateColour(int32_t state);
/// The state's text beside the indicator; "disconnect" for a state below 1.
std::string stateText(int32_t state);
/// "Master", "Slave", or empty for any other number.
std::string chgMSString(int32_t syncMode);
/// The label of a panel for one of the four choices of gStatusContents.
std::string panelContent(const MeasureSetting& row, int32_t contents);
/// Start, stop and manual trigger act on a connected master only.
bool buttonsEnabled(const MeasureSetting& row);

/// All that a panel shows of a row.
struct PanelView {
  std::string content;
  int32_t state = kNoBoxState;
  std::string stateText;
  std::optional<Colour> colour;
  bool buttons = false;
  bool operator==(const PanelView&) const = default;
};
PanelView panelView(const MeasureSetting& row, int32_t contents);

/// The entries of the box list: rows 1 to 8.
std::array<std::string, kBoxes> boxListTexts();
/// Choice in the box list (from 0). True when it is another box than before: gMainBox is set, its
/// state was asked for, and the main panel is to be redrawn.
bool selectMainBox(int32_t listIndex);

enum class PanelCommand { kStart, kStop, kManualTrigger };
/// The row that panel `index` stands for; panel 0 is the main panel.
int32_t rowOfPanel(int32_t index);
/// Sends the command to the panel's box and reads its state back. Returns the row to redraw, 0 when
/// the command failed (which has been shown).
int32_t runPanelCommand(PanelCommand command, int32_t index);

// --- geometry, twips ------------------------------------------------------------------------

/// The strip of eight panels, each with the gap behind it.
inline constexpr int32_t kPanelsLeft = 1320;
inline constexpr int32_t kPanelPitch = 1740;
constexpr int32_t panelsEnd() {
  return kPanelsLeft + kBoxes * kPanelPitch;
}

struct PanelPlace {
  bool visible = false;
  int32_t left = 0;
  int32_t top = 0;
  int32_t width = 0;
  int32_t height = 0;
  bool operator==(const PanelPlace&) const = default;
};
/// Index 0 is the main panel, 1 to 8 the boxes. Any mode but 1 is mode 0.
std::array<PanelPlace, kBoxes + 1> panelPlaces(int32_t mode, int32_t mainBox);

inline constexpr int kShortcuts = 11;
inline constexpr int kShortcutCal = 6;
inline constexpr int32_t kShortcutsLeft = 300;
inline constexpr int32_t kShortcutWidth = 900;
/// Behind the last button of the whole bar.
constexpr int32_t shortcutsEnd() {
  return kShortcutsLeft + kShortcuts * kShortcutWidth;
}
struct ShortcutPlace {
  bool visible = true;
  int32_t left = 0;
  bool operator==(const ShortcutPlace&) const = default;
};
/// Without the calibration button the buttons behind it close the gap.
std::array<ShortcutPlace, kShortcuts> shortcutPlaces(bool cal);
/// Caption of a shortcut button.
std::string_view shortcutText(int index);
/// True when a box with an analog output is in the table.
bool calVisible(const OneBased<MeasureSetting, kFileRow>& table);

struct FramePlace {
  int32_t left = 0;
  int32_t top = 0;
  int32_t height = 0;
  bool operator==(const FramePlace&) const = default;
};
/// Where the main window opens.
FramePlace framePlace(int32_t screenWidth, int32_t frameWidth);

/// Pixels. A work area with the lower edge of the lowest window in it, and the lower edges of the
/// frame around it and of the screen.
struct FrameRoom {
  bool untouched = true;  ///< the frame has the size that it opened with
  int lowest = 0;
  int areaHeight = 0;
  int frameBottom = 0;
  int screenBottom = 0;
};
/// How much higher the frame becomes to show its first windows, as far as the screen allows. One
/// that has grown before, or was sized by the user, stays.
int frameGrowth(const FrameRoom& room);

// --- other ----------------------------------------------------------------------------------

/// The number between the first "<" and the next ">" of a child window's caption.
std::optional<int32_t> activeSerialOfCaption(std::string_view caption);

/// The four lines of the counter display.
std::array<std::string, 4> counterTexts();
/// The counter display shows from the twentieth click on; true means visible and to be refreshed.
struct CounterClicks {
  int32_t clicks = 0;
  bool click();
};

}  // namespace vk
