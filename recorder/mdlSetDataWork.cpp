// SPDX-License-Identifier: MIT
#include "recorder/mdlSetDataWork.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <exception>
#include <limits>
#include <stdexcept>

#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlConditionRules.h"

namespace vk {

namespace {

// Positions of the settings string, counted from 1. Fields of a channel follow each other.
constexpr std::size_t kModeAt = 1;
constexpr std::size_t kRangeAt = 2;
constexpr std::size_t kFilterAt = 10;
constexpr std::size_t kTriggerAt = 18;
constexpr std::size_t kSlopeAt = 19;
constexpr std::size_t kLevelAt = 23;
constexpr std::size_t kSamplingAt = 39;
constexpr std::size_t kPreAreaAt = 43;
constexpr std::size_t kDataSizeAt = 46;
constexpr std::size_t kCarrierAt = 50;

constexpr std::size_t kLevelWidth = 4;

std::string channelField(std::string_view text, std::size_t start, std::size_t width,
                         std::size_t channel) {
  return mid(text, start + width * (channel - 1), width);
}

int16_t toIndex(int32_t value) {
  if (value < std::numeric_limits<int16_t>::min() || value > std::numeric_limits<int16_t>::max()) {
    throw TypeMismatch(textOf(value));
  }
  return static_cast<int16_t>(value);
}

/// The row of a box; throws when there is none, which fails the decoder that asked.
MeasureSetting& rowOf(int32_t serial) {
  const int32_t row = slotIndexOf(serial);
  if (row < 0) throw std::out_of_range("no box has this serial");
  return gBoxTable[static_cast<std::size_t>(row)];
}

void decodeLevel(MeasureSetting& record, std::size_t channel, std::string_view field) {
  switch (field.empty() ? '\0' : field.front()) {
    case 'N':
      record.triggerSlope[channel] = kSlopeOff;
      record.triggerLevel[channel] = 0.0F;
      break;
    case '+':
    case '-':
      record.triggerLevel[channel] = throughLevelFormat(toDouble(field));
      break;
    case 'P':
    case 'M':  // the letter's sign is lost in reading; instruments are used to it
      record.triggerLevel[channel] = throughLevelFormat(toDouble(right(field, 3)) / 10.0);
      break;
    default:
      break;
  }
}

void decodeChannels(MeasureSetting& record, bool low, std::string_view text) {
  for (std::size_t channel = 1; channel <= kChannels; ++channel) {
    const std::string range = channelField(text, kRangeAt, 2, channel);
    const std::string filter = channelField(text, kFilterAt, 2, channel);
    const std::string slope = channelField(text, kSlopeAt, 1, channel);
    if (low) {
      lookup(rangeCodeLow, range, record.range[channel]);
      lookup(filterCodeLow, filter, record.filter[channel]);
    } else {
      lookup(rangeCode, range, record.range[channel]);
      lookup(filterCode, filter, record.filter[channel]);
      record.carrier[channel] = toIndex(toWhole(channelField(text, kCarrierAt, 1, channel)));
    }
    lookup(trgSlopeCode, slope, record.triggerSlope[channel]);
    decodeLevel(record, channel, channelField(text, kLevelAt, kLevelWidth, channel));
  }
}

void decodePreArea(MeasureSetting& record, std::string_view field) {
  record.preArea = toIndex(roundWhole(toWhole(field) / 10.0));
  if (record.preArea == kPreAreaFull) {
    record.preArea = toIndex(wholePreArea(record.channelMode, record.dataSize));
  }
}

MeasureSetting decodeConditions(bool low, std::string_view text) {
  MeasureSetting record = zeroedSetting();
  record.coeff.fill(1.0F);
  lookup(chModeCode, mid(text, kModeAt, 1), record.channelMode);
  lookup(trgModeCode, mid(text, kTriggerAt, 1), record.triggerMode);
  decodeChannels(record, low, text);
  lookup(samplingCode, mid(text, kSamplingAt, 4), record.sampling);
  lookup(dataSizeCode, mid(text, kDataSizeAt, 4), record.dataSize);
  decodePreArea(record, mid(text, kPreAreaAt, 3));
  return record;
}

/// Item n of a list. A line end behind it is cut; a line feed takes the character before it along,
/// and one at the very beginning has none to take.
std::string itemWithoutLineEnd(const std::string& item) {
  if (item.starts_with('\n')) throw TypeMismatch(item);
  return leftOf(item, "\n");
}

/// Hands the four items of a list to `store`, which says whether to go on.
template <typename Store>
int32_t decodeList(std::string_view text, Store store) {
  return trapped([&] {
    for (std::size_t channel = 1; channel <= kChannels; ++channel) {
      const std::string item = listField(text, static_cast<int32_t>(channel));
      if (item.empty() || !store(channel, itemWithoutLineEnd(item))) return 1;
    }
    return 0;
  });
}

std::string wholeLevel(int32_t level) {
  return formatNumber(level, level >= 0 ? "+000" : "000");
}

std::string_view rangeCodeFor(bool low, int32_t range) {
  if (!low) return textAt(rangeCode, range);
  const std::string_view code = textAt(rangeCodeLow, range);
  return code.empty() ? rangeCodeLow[4] : code;
}

std::string_view filterCodeFor(bool low, int32_t filter) {
  if (!low) return textAt(filterCode, filter);
  const std::string_view code = textAt(filterCodeLow, filter);
  return code.empty() ? filterCodeLow[4] : code;
}

}  // namespace

float throughLevelFormat(double level) {
  return toSingle(formatNumber(level, "#0.0"));
}

int32_t wholePreArea(int32_t mode, int32_t dataSize) {
  static constexpr std::array<int32_t, kModes> kFirstSizeOfMax{10, 9, 8};
  const bool max = dataSize >= kFirstSizeOfMax[static_cast<std::size_t>(mode)];
  return max ? kPreAreaMax : kPreAreaFull;
}

int32_t decodeSettingString(int32_t serial, std::string_view text) {
  return trapped([&] {
    const MeasureSetting decoded = decodeConditions(isLowFamily(familyOf(serial)), text);
    // The check may rename the pre-area; the name that came with the text is the one kept.
    MeasureSetting checked = decoded;
    if (checkSetting(checked) != kSettingOk) return 1;
    MeasureSetting& row = rowOf(serial);
    row.channelMode = decoded.channelMode;
    row.triggerMode = decoded.triggerMode;
    row.sampling = decoded.sampling;
    row.preArea = decoded.preArea;
    row.dataSize = decoded.dataSize;
    row.range = decoded.range;
    row.filter = decoded.filter;
    row.triggerSlope = decoded.triggerSlope;
    row.triggerLevel = decoded.triggerLevel;
    row.carrier = decoded.carrier;
    return 0;
  });
}

int32_t decodeUnitList(int32_t serial, std::string_view text) {
  return decodeList(text, [serial](std::size_t channel, const std::string& item) {
    lookup(unitName, item, rowOf(serial).unit[channel]);
    return true;
  });
}

int32_t decodeCoeffList(int32_t serial, std::string_view text) {
  return decodeList(text, [serial](std::size_t channel, const std::string& item) {
    const float coeff = toSingle(item);
    if (!coeffNotZero(coeff)) return false;
    rowOf(serial).coeff[channel] = coeff;
    return true;
  });
}

std::optional<std::string> buildLevelField(int32_t family, int32_t slope,
                                           std::string_view levelText) {
  if (slope == kSlopeOff) return "N000";
  const auto whole = readWhole(levelText);
  const auto level = readDouble(levelText);
  if (!whole || !level) return std::nullopt;
  if (isLowFamily(family) || mid(levelText, 2, 3) == "100") return wholeLevel(*whole);
  const double tenths = *level * 10.0;
  // The sign is that of the rounded level, so a level just below zero keeps its minus behind "P".
  if (*whole < 0) return "M" + formatNumber(std::fabs(tenths), "000");
  return "P" + formatNumber(tenths, "000");
}

std::optional<std::string> buildSettingString(const MeasureSetting& record,
                                              const PerChannel<std::string>& levelTexts) {
  const bool low = isLowFamily(record.model);
  std::string text(textAt(chModeCode, record.channelMode));
  for (const int16_t range : record.range) text += rangeCodeFor(low, range);
  for (const int16_t filter : record.filter) text += filterCodeFor(low, filter);
  text += textAt(trgModeCode, record.triggerMode);
  for (const int16_t slope : record.triggerSlope) text += textAt(trgSlopeCode, slope);
  for (std::size_t channel = 1; channel <= kChannels; ++channel) {
    const auto field =
        buildLevelField(record.model, record.triggerSlope[channel], levelTexts[channel]);
    if (!field) return std::nullopt;
    text += *field;
  }
  text += textAt(samplingCode, record.sampling);
  text += textAt(preAreaCode, record.preArea);
  text += textAt(dataSizeCode, record.dataSize);
  if (low) return text;
  for (const int16_t carrier : record.carrier) text += textAt(carrierCode, carrier);
  return text;
}

}  // namespace vk
