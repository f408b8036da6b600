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
#include "recorder/mdlWireText.h"

namespace vk {

namespace {

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
  return gBoxTable[row];
}

void decodeLevel(SettingConditions& record, std::size_t channel, std::string_view field) {
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

void decodeChannels(SettingConditions& record, const ModelFamily& family, std::string_view text) {
  for (std::size_t channel = 1; channel <= kChannels; ++channel) {
    lookup(family.rangeCodes, setting_text::kRange.of(text, channel), record.range[channel]);
    lookup(family.filterCodes, setting_text::kFilter.of(text, channel), record.filter[channel]);
    if (family.excitation) {
      record.carrier[channel] = toIndex(toWhole(setting_text::kCarrier.of(text, channel)));
    }
    lookup(trgSlopeCode, setting_text::kSlope.of(text, channel), record.triggerSlope[channel]);
    decodeLevel(record, channel, setting_text::kLevel.of(text, channel));
  }
}

void decodePreArea(SettingConditions& record, std::string_view field) {
  record.preArea = toIndex(roundWhole(toWhole(field) / 10.0));
  if (record.preArea == kPreAreaFull) {
    record.preArea = toIndex(wholePreArea(record.channelMode, record.dataSize));
  }
}

MeasureConditions decodeConditions(const ModelFamily& family, std::string_view text) {
  MeasureConditions record;
  record.coeff.fill(1.0F);
  lookup(chModeCode, setting_text::kMode.of(text), record.channelMode);
  lookup(trgModeCode, setting_text::kTrigger.of(text), record.triggerMode);
  decodeChannels(record, family, text);
  lookup(samplingCode, setting_text::kSampling.of(text), record.sampling);
  lookup(dataSizeCode, setting_text::kDataSize.of(text), record.dataSize);
  decodePreArea(record, setting_text::kPreArea.of(text));
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

std::string_view codeAt(Texts codes, int32_t index, std::string_view otherwise) {
  const std::string_view code = textAt(codes, index);
  return code.empty() ? otherwise : code;
}

}  // namespace

float throughLevelFormat(double level) {
  return toSingle(formatNumber(level, "#0.0"));
}

int32_t wholePreArea(int32_t mode, int32_t dataSize) {
  static constexpr std::array<int32_t, kModes> kFirstSizeOfMax{10, 9, 8};
  const bool max = dataSize >= kFirstSizeOfMax[mode];
  return max ? kPreAreaMax : kPreAreaFull;
}

int32_t decodeSettingString(int32_t serial, std::string_view text) {
  return trapped([&] {
    const MeasureConditions decoded = decodeConditions(modelFamily(familyOf(serial)), text);
    // The check may rename the pre-area; the name that came with the text is the one kept.
    MeasureConditions checked = decoded;
    if (checkSetting(checked) != kSettingOk) return 1;
    rowOf(serial).settingConditions() = decoded;
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
  if (!modelFamily(family).tenthLevels || mid(levelText, 2, 3) == "100") return wholeLevel(*whole);
  const double tenths = *level * 10.0;
  // The sign is that of the rounded level, so a level just below zero keeps its minus behind "P".
  if (*whole < 0) return "M" + formatNumber(std::fabs(tenths), "000");
  return "P" + formatNumber(tenths, "000");
}

std::optional<std::string> buildSettingString(const MeasureSetting& record,
                                              const PerChannel<std::string>& levelTexts) {
  const ModelFamily& family = modelFamily(record.model);
  std::string text(textAt(chModeCode, record.channelMode));
  for (const int16_t range : record.range) {
    text += codeAt(family.rangeCodes, range, family.rangeCodeElse);
  }
  for (const int16_t filter : record.filter) {
    text += codeAt(family.filterCodes, filter, family.filterCodeElse);
  }
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
  if (!family.excitation) return text;
  for (const int16_t carrier : record.carrier) text += textAt(carrierCode, carrier);
  return text;
}

}  // namespace vk
