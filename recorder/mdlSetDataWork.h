// SPDX-License-Identifier: MIT
// The three texts in which conditions pass between program and instrument: the settings string,
// the unit list and the coefficient list. The decoders write to the box-table row of a serial.
#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <string_view>

#include "recorder/mdlMeasureSetting.h"

namespace vk {

/// The unit and coefficient lists of an instrument whose contents are not normal.
inline constexpr std::string_view kDefaultUnits = "ue,ue,ue,ue";
inline constexpr std::string_view kDefaultCoeffs = "1.000000,1.000000,1.000000,1.000000";

/// A decoder fails by whatever stops it, with the result 1, and never lets it out.
template <typename Work>
int32_t trapped(Work work) {
  try {
    return work();
  } catch (const std::exception&) {
    return 1;
  }
}

/// 0, or 1 and the row keeps what it had.
[[nodiscard]] int32_t decodeSettingString(int32_t serial, std::string_view text);
/// 0, or 1 at the first empty item; the channels before it are stored.
[[nodiscard]] int32_t decodeUnitList(int32_t serial, std::string_view text);
/// 0, or 1 at the first empty, unreadable or zero item; the channels before it are stored.
[[nodiscard]] int32_t decodeCoeffList(int32_t serial, std::string_view text);

/// A level as a record keeps it, with one decimal; throws TypeMismatch beyond a single.
float throughLevelFormat(double level);
/// What "100%" means: kPreAreaMax from the data size on that calls the whole pre-area so, else
/// kPreAreaFull. `mode` must be an index of the channel modes.
int32_t wholePreArea(int32_t mode, int32_t dataSize);

/// The level field of one channel, from the text of its level box. Usually four characters; a
/// level that rounds to zero from below takes five on the VK-480Q family ("P-004"), as it is sent.
/// Empty when the slope is not off and the text is no number.
std::optional<std::string> buildLevelField(int32_t family, int32_t slope,
                                           std::string_view levelText);
/// The settings string of a record, in the form of the record's model (any model that is not of
/// the VK-240Q family gives the longer form). Empty when a level text in use is no number.
std::optional<std::string> buildSettingString(const MeasureSetting& record,
                                              const PerChannel<std::string>& levelTexts);

}  // namespace vk
