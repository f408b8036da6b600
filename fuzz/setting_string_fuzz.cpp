// SPDX-License-Identifier: MIT
// The settings string of both families: what the decoder takes is a record that passes every check,
// what it refuses leaves no trace, and what is built of a record decodes to that record again.
#include <algorithm>
#include <cmath>

#include "base/mdlText.h"
#include "fuzz/fuzz_check.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlConditionRules.h"
#include "recorder/mdlSetDataWork.h"

using vkfuzz::require;

namespace {

constexpr int32_t kLowSerial = 1000001;
constexpr int32_t kHighSerial = 2000002;

void setUpRows() {
  vk::resetBoxTable();
  vk::gBoxTable[1].handle = 1;
  vk::gBoxTable[1].serial = kLowSerial;
  vk::gBoxTable[1].model = vk::kVk240Qe;
  vk::gBoxTable[2].handle = 2;
  vk::gBoxTable[2].serial = kHighSerial;
  vk::gBoxTable[2].model = vk::kVk480Q;
}

/// What the settings string does not speak of.
bool sameOtherwise(vk::MeasureSetting row, const vk::MeasureSetting& before) {
  row.settingConditions() = before.settingConditions();
  return row == before;
}

vk::PerChannel<std::string> levelTextsOf(const vk::MeasureSetting& row) {
  vk::PerChannel<std::string> texts;
  for (std::size_t channel = 1; channel <= vk::kChannels; ++channel) {
    texts[channel] = vk::levelText(row.triggerLevel[channel]);
  }
  return texts;
}

/// Levels lose their decimals on the VK-240Q family and their sign behind a letter on the other;
/// a filter that the VK-240Q family has no code for goes out as "PS".
void checkRoundTrip(bool low, const vk::MeasureSetting& first, const vk::MeasureSetting& second,
                    std::string_view text) {
  for (std::size_t channel = 1; channel <= vk::kChannels; ++channel) {
    const double was = static_cast<double>(first.triggerLevel[channel]);
    const double is = static_cast<double>(second.triggerLevel[channel]);
    require(low ? is == std::nearbyint(was) : std::fabs(is) == std::fabs(was), "a level comes back",
            text);
    const auto filter = first.filter[channel];
    require(second.filter[channel] ==
                (low && vk::textAt(vk::filterCodeLow, filter).empty() ? int16_t{4} : filter),
            "a filter comes back", text);
  }
  require(vk::textAt(vk::preAreaCode, first.preArea) == vk::textAt(vk::preAreaCode, second.preArea),
          "a pre-area comes back", text);
  vk::MeasureSetting same = second;
  same.triggerLevel = first.triggerLevel;
  same.filter = first.filter;
  same.preArea = first.preArea;
  require(same == first, "the other fields come back", text);
}

void checkDecoded(bool low, int32_t serial, vk::MeasureSetting& row, std::string_view text) {
  vk::MeasureSetting copy = row;
  require(vk::checkSetting(copy) == vk::kSettingOk, "a decoded record passes the check", text);
  const auto built = vk::buildSettingString(row, levelTextsOf(row));
  require(built.has_value(), "a decoded record can be built", text);
  // A level just below zero takes a fifth character, which nothing decodes.
  const bool shifted = std::any_of(row.triggerLevel.begin(), row.triggerLevel.end(),
                                   [](float level) { return level < 0 && level >= -0.5F; });
  if (!low && shifted) return;
  require(built->size() == (low ? 49 : 53), "the length is the family's", *built);
  const vk::MeasureSetting first = row;
  require(vk::decodeSettingString(serial, *built) == 0, "a built string decodes", *built);
  checkRoundTrip(low, first, row, *built);
}

void checkFamily(bool low, std::string_view text) {
  setUpRows();
  const int32_t serial = low ? kLowSerial : kHighSerial;
  vk::MeasureSetting& row = vk::gBoxTable[low ? 1 : 2];
  const auto before = vk::gBoxTable;
  const vk::MeasureSetting rowBefore = row;
  const int32_t result = vk::decodeSettingString(serial, text);
  require(result == 0 || result == 1, "the result is 0 or 1", text);
  if (result != 0) {
    require(vk::gBoxTable == before, "a refused text leaves no trace", text);
    return;
  }
  require(sameOtherwise(row, rowBefore), "only conditions are decoded", text);
  const vk::MeasureSetting decoded = row;
  row = rowBefore;
  require(vk::gBoxTable == before, "the other rows stay", text);
  row = decoded;
  checkDecoded(low, serial, row, text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string_view text = vkfuzz::textOfInput(data, size);
  checkFamily(true, text);
  checkFamily(false, text);
  return 0;
}
