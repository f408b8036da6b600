// SPDX-License-Identifier: MIT
// The choice of a box, and in one mode of a channel, that goes before every action on a box.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vk {

enum SelectMode : int32_t {
  kSelectBoxAndChannel = 1,  ///< with "All Meters"
  kSelectBox = 3,            ///< all eight rows
  kSelectConnected = 4,      ///< connected boxes only
};

inline constexpr int32_t kSelectCancelled = -1;
inline constexpr int32_t kSelectAllMeters = 0;

/// Set by the caller before the dialog opens.
extern int32_t gSelMode;
/// The result: kSelectCancelled, kSelectAllMeters, kNoSerial for a row without a box, or a serial.
extern int32_t gSelSerial;
/// 0 all channels, else 1 to 4.
extern int32_t gSelChannel;

inline constexpr std::string_view kSelectCaption = "Meter-Channel selection";

/// A real serial came back, of a box to act on.
bool boxSelected();

std::vector<std::string> selectMeterTexts(int32_t mode);
/// Empty when the mode has no channel list.
std::vector<std::string> selectChannelTexts(int32_t mode);
/// `check`: the dialog was opened for the self checks.
std::string selectButtonText(int32_t mode, bool check);
/// The run button can act: a box is chosen and, where the mode has channels, a channel too.
bool selectReady(int32_t mode, std::string_view meterText, int32_t channelIndex);

/// The run button: stores the result and returns true, the dialog closes. False when the chosen box
/// does not have the channel: the message was shown, and the dialog stays open without a choice.
bool acceptSelection(std::string_view meterText, int32_t channelIndex);
/// Cancel and the close box.
void cancelSelection();

}  // namespace vk
