// SPDX-License-Identifier: MIT
// The measurement conditions as the controls of the dialog hold them: from a record to the
// controls, from the controls to a record and to the three texts that go to the instrument, and
// which controls are enabled. Lists are told by their texts, because a selection is found by
// comparing texts with a table; a list without a selection has an empty text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "recorder/mdlConditionRules.h"
#include "recorder/mdlMeasureSetting.h"

namespace vk {

struct ChannelControls {
  std::string carrier;  ///< cmbCarrSet
  std::string range;    ///< cmbRangeSet
  std::string filter;   ///< cmbFilterSet
  int32_t balance = 0;  ///< position in cmbBalSet
  int32_t slope = 2;    ///< position in cmbTrgSlopeSet
  int32_t unit = 0;     ///< position in cmbUnit
  std::string level;    ///< txtTriggerLevel as it stands
  std::string coeff;    ///< txtCoeff as it stands
  bool operator==(const ChannelControls&) const = default;
};

struct DialogControls {
  int32_t model = kNoModel;    ///< of the dialog's box
  int32_t serial = kNoSerial;  ///< lblSerNumDmy
  std::string channelMode;
  std::string sampling;
  std::string dataSize;
  std::string preArea;
  int32_t trigger = 1;  ///< position in cmbTrigger
  PerChannel<ChannelControls> channel;
  bool operator==(const DialogControls&) const = default;
};

// --- lists ------------------------------------------------------------------------------------

/// The names of all ranges at an excitation (carrier index).
std::span<const std::string_view> rangeNames(int32_t carrier);
/// The same on a model, which may have no choice of excitation.
std::span<const std::string_view> rangeNames(int32_t model, int32_t carrier);
/// Entries of cmbRangeSet for an excitation (carrier index; the VK-240Q family has one list).
std::vector<std::string> rangeEntries(int32_t model, int32_t carrier);
std::vector<std::string> carrierEntries(int32_t model);
std::vector<std::string> filterEntries(int32_t model);

// --- record to controls and back ----------------------------------------------------------------

/// What showRecord puts into the controls of a channel; a text that its list lacks is left to the
/// form, which ignores it.
ChannelControls channelControls(const MeasureSetting& record, std::size_t channel);

/// A record of the controls (excitation, range, filter, levels... as told by comparing texts). A
/// level or coefficient that is no number throws TypeMismatch.
MeasureSetting readControls(const DialogControls& controls);
/// The SettingError of the record that the controls make, an unreadable level or coefficient
/// included. With kSettingOk `record` is that record as the check left it, and readControls and
/// buildCommandTexts do not throw.
[[nodiscard]] int32_t checkControls(const DialogControls& controls, MeasureSetting& record);

struct CommandTexts {
  std::string setting;
  std::string unit;
  std::string coeff;
  bool operator==(const CommandTexts&) const = default;
};
/// The texts of SET, UNT and CEF.
CommandTexts buildCommandTexts(const DialogControls& controls);

/// Takes the conditions of a record over into a row of the box table, whose handle, serial, model
/// and status fields stay.
void storeRecord(int32_t slot, const MeasureSetting& record);

// --- enabling -----------------------------------------------------------------------------------

struct ChannelEnable {
  bool channel = true;  ///< range, filter, balance, unit, coefficient, their captions
  bool carrier = true;
  bool slope = true;
  bool level = true;  ///< with the caption of the slope
  bool operator==(const ChannelEnable&) const = default;
};
struct DialogEnable {
  PerChannel<ChannelEnable> channel;
  bool trigger = true;  ///< captions of slope and level, and the pre-area
  bool operator==(const DialogEnable&) const = default;
};
/// `mode` and `trigger` are indices, `slopes` positions.
DialogEnable dialogEnable(int32_t model, int32_t mode, int32_t trigger,
                          const PerChannel<int32_t>& slopes);

}  // namespace vk
