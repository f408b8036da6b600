// SPDX-License-Identifier: MIT
// What may go with what: the lists to offer for a state, the corrections when one choice makes
// another impossible, the times that follow from a choice, the check of a whole record, and the
// input rules of the level and coefficient boxes. Pure functions of indices into the code tables;
// channel mode, sampling, data size and pre-area handed in must be indices of their tables.
// `family` is a model index, or kNoModel on a dialog without a box, which counts as VK-480Q.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "recorder/mdlMeasureSetting.h"

namespace vk {

// --- lists and corrections ----------------------------------------------------------------------

/// The four choices that depend on each other.
struct ConditionChoice {
  int32_t mode = 2;
  int32_t sampling = 2;
  int32_t dataSize = 7;
  int32_t preArea = 0;
  bool operator==(const ConditionChoice&) const = default;
};

/// Indices to offer, in index order, never empty.
std::vector<int32_t> samplingList(int32_t mode, int32_t dataSize, int32_t family);
/// For a sampling that the mode cannot use: all data sizes of the mode.
std::vector<int32_t> dataSizeList(int32_t mode, int32_t sampling);
std::vector<int32_t> preAreaList(int32_t mode, int32_t dataSize);
/// `wanted` when the list has it, else the list's first entry.
int32_t selectFrom(std::span<const int32_t> list, int32_t wanted);
/// The same for a pre-area, but "Max" stands in for a wanted "100(99) %" that the list lacks: a
/// setting file spells both alike.
int32_t selectPreArea(std::span<const int32_t> list, int32_t wanted);

/// The values that stand selected after the named choice was changed and the other lists were
/// filled again: data size, sampling and pre-area in this order, the list of the changed choice
/// left alone. Each list is that of the values selected at its moment.
ConditionChoice onChannelModeChange(ConditionChoice choice, int32_t family);
ConditionChoice onSamplingChange(ConditionChoice choice);
ConditionChoice onDataSizeChange(ConditionChoice choice, int32_t family);
/// The same for a record that is shown: all three lists are filled, nothing is corrected before.
ConditionChoice refillAll(ConditionChoice choice, int32_t family);

// --- times --------------------------------------------------------------------------------------

/// Seconds.
float recordingTime(int32_t sampling, int32_t dataSize);
/// Seconds recorded from before the trigger.
float preTime(int32_t mode, int32_t sampling, int32_t dataSize, int32_t preArea);
/// "3d 15h 22m 52.781s"; parts that are zero are left out, the seconds never.
std::string timeText(float seconds, int32_t sampling);

// --- check of a record --------------------------------------------------------------------------

enum SettingError : int32_t {
  kSettingOk = 0,
  kChannelModeError = 1,
  kRangeError = 2,
  kFilterError = 3,
  kTriggerModeError = 4,
  kTriggerSlopeError = 5,
  kTriggerLevelError = 6,
  kSamplingError = 7,
  kPreAreaError = 8,
  kDataSizeError = 9,
  kUnitError = 10,
  kCoeffError = 11,
  kSamplingSizeError = 12,
  kPreAreaSizeError = 13,
  kBalanceError = 14,
  kCarrierError = 15,
};

/// A SettingError, the first that applies. A pre-area of "100(99) %" on a data size that cannot
/// hold it becomes "Max" in the record and is no error. A sampling that the channel mode cannot
/// use is not found here; the lists keep it out.
[[nodiscard]] int32_t checkSetting(MeasureConditions& record);

inline constexpr std::string_view kSettingErrorTitle = "Error";
/// Empty for kCarrierError and every number that is no error.
std::string_view settingErrorText(int32_t number);

// --- trigger ------------------------------------------------------------------------------------

inline constexpr std::string_view kTriggerCautionTitle = "Caution on Trigger Mode";
inline constexpr std::string_view kTriggerCautionText =
    "Trigger Set of the use channel is OFF.\r\n"
    "Trigger works only in the manual trigger and the outside signal.";
/// The trigger is in use and the slope of every used channel is off.
bool triggerCaution(int32_t mode, int32_t triggerMode, const PerChannel<int16_t>& slopes);

// --- level and coefficient boxes ----------------------------------------------------------------

inline constexpr std::string_view kLevelErrorTitle = "Input Error";
inline constexpr std::string_view kCoeffErrorTitle = "Caution - Input";

/// What becomes of an entered text: the text to show, or the message of its refusal.
struct FieldEntry {
  bool accepted = false;
  std::string text;
  std::string message;
  bool operator==(const FieldEntry&) const = default;
};

/// Percent from -100 to 100, tested before it is rounded to one decimal.
FieldEntry levelEntered(std::string_view text);
/// The number to remember of a level box's text; 0 for a text that is no number.
double levelOf(std::string_view text);
/// The remembered number as it goes back into the box after a refusal.
std::string levelRestored(double level);
/// A record's level as the box first shows it.
std::string levelText(float level);

/// Magnitude from 0.00001 to 9999999. The text shown fills eight characters with the point.
FieldEntry coeffEntered(std::string_view text);
/// Whether the magnitude is large enough for a coefficient; the instrument knows no upper limit.
bool coeffNotZero(float coeff);

}  // namespace vk
