// SPDX-License-Identifier: MIT
// The controls of the condition dialog without the dialog: as it shows a record, at random as a
// user may leave them, and what becomes of them on their way through a file or an instrument.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "base/mdlText.h"
#include "conditions/mdlDialogConditions.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlConditionRules.h"
#include "recorder/mdlSetDataWork.h"

namespace vktest {

/// A list keeps no selection when it does not hold the text.
inline void dropUnlessListed(const std::vector<std::string>& list, std::string& text) {
  if (std::find(list.begin(), list.end(), text) == list.end()) text.clear();
}

inline vk::DialogControls controlsOf(const vk::MeasureSetting& record, int32_t model) {
  vk::DialogControls controls;
  controls.model = model;
  controls.serial = record.serial;
  controls.channelMode = vk::textAt(vk::chModeName, record.channelMode);
  controls.sampling = vk::textAt(vk::samplingName, record.sampling);
  controls.dataSize = vk::textAt(vk::dataSizeName, record.dataSize);
  controls.preArea = vk::textAt(vk::preAreaName, record.preArea);
  controls.trigger = record.triggerMode;
  for (std::size_t i = 1; i <= vk::kChannels; ++i) {
    vk::ChannelControls& channel = controls.channel[i];
    channel = vk::channelControls(record, i);
    dropUnlessListed(vk::rangeEntries(model, record.carrier[i]), channel.range);
    dropUnlessListed(vk::carrierEntries(model), channel.carrier);
    dropUnlessListed(vk::filterEntries(model), channel.filter);
  }
  return controls;
}

/// What a user can leave in the dialog of a box of that model.
inline vk::DialogControls randomControls(std::mt19937& random, int32_t model) {
  const auto upTo = [&](int32_t most) {
    return std::uniform_int_distribution<int32_t>(0, most)(random);
  };
  const auto oneOf = [&](const std::vector<std::string>& list) {
    return list[static_cast<std::size_t>(upTo(static_cast<int32_t>(list.size()) - 1))];
  };
  const vk::ConditionChoice choice = vk::refillAll({upTo(2), upTo(16), upTo(23), upTo(11)}, model);
  vk::DialogControls controls;
  controls.model = model;
  controls.serial = 1000000 + upTo(999999);
  controls.channelMode = vk::textAt(vk::chModeName, choice.mode);
  controls.sampling = vk::textAt(vk::samplingName, choice.sampling);
  controls.dataSize = vk::textAt(vk::dataSizeName, choice.dataSize);
  controls.preArea = vk::textAt(vk::preAreaName, choice.preArea);
  controls.trigger = upTo(2);
  for (vk::ChannelControls& channel : controls.channel) {
    channel.carrier = oneOf(vk::carrierEntries(model));
    channel.range = oneOf(vk::rangeEntries(model, vk::findIndex(vk::carrierName, channel.carrier)));
    channel.filter = oneOf(vk::filterEntries(model));
    channel.balance = upTo(1);
    channel.slope = upTo(2);
    channel.unit = upTo(37);
    channel.level = vk::levelText(static_cast<float>(upTo(2000) - 1000) / 10.0F);
    const float exponent = static_cast<float>(upTo(1100) - 490) / 100.0F;
    channel.coeff =
        vk::coeffEntered(vk::textOf(std::pow(10.0F, exponent) * (upTo(1) == 0 ? 1 : -1))).text;
  }
  return controls;
}

/// What a setting file of these controls reads back as. It does not hold the serial, and of the
/// model only the family; the VK-240Q dialect leaves the excitation out; a blank unit at an end of
/// its line is trimmed away and becomes the first; both names of the whole pre-area are one word.
inline vk::MeasureSetting throughFile(const vk::DialogControls& controls) {
  vk::MeasureSetting record = vk::readControls(controls);
  const bool low = !vk::modelFamily(controls.model).excitation;
  record.serial = 0;
  record.model = low ? vk::kVk240Q : vk::kVk480Q;
  if (low) record.carrier.fill(0);
  for (const std::size_t end : {std::size_t{1}, std::size_t{4}}) {
    if (vk::textAt(vk::unitName, record.unit[end]) == " ") record.unit[end] = 0;
  }
  if (record.preArea >= vk::kPreAreaFull) {
    record.preArea = static_cast<int16_t>(
        low ? vk::wholePreArea(record.channelMode, record.dataSize) : vk::kPreAreaFull);
    if (vk::checkSetting(record) != vk::kSettingOk) record = {};
  }
  return record;
}

}  // namespace vktest
