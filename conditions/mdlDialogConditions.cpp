// SPDX-License-Identifier: MIT
#include "conditions/mdlDialogConditions.h"

#include <algorithm>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlSetDataWork.h"

namespace vk {

namespace {

/// The range that a text which is no entry of the list stands for.
constexpr int16_t kRangeWithoutText = 4;

int16_t carrierOf(std::string_view text) {
  return text == carrierName[kCarrier05] ? int16_t{kCarrier05} : int16_t{kCarrier20};
}

int16_t rangeOf(int32_t carrier, std::string_view text) {
  const auto names = rangeNames(carrier);
  const auto found =
      std::find_if(rangeOffered.begin(), rangeOffered.end(),
                   [names, text](int32_t range) { return textAt(names, range) == text; });
  return found == rangeOffered.end() ? kRangeWithoutText : static_cast<int16_t>(*found);
}

std::vector<std::string> entriesOf(std::span<const std::string_view> names,
                                   std::span<const int32_t> indices) {
  std::vector<std::string> entries;
  for (const int32_t index : indices) entries.emplace_back(textAt(names, index));
  return entries;
}

/// The four items with commas between them.
template <typename Item>
std::string listOf(const PerChannel<ChannelControls>& channels, Item item) {
  std::string text;
  for (const ChannelControls& channel : channels) {
    if (&channel != channels.begin()) text += ',';
    text += item(channel);
  }
  return text;
}

}  // namespace

std::span<const std::string_view> rangeNames(int32_t carrier) {
  return carrier == kCarrier05 ? rangeName05 : rangeName;
}

std::span<const std::string_view> rangeNames(int32_t model, int32_t carrier) {
  return rangeNames(modelFamily(model).excitation ? carrier : kCarrier20);
}

std::vector<std::string> rangeEntries(int32_t model, int32_t carrier) {
  return entriesOf(rangeNames(model, carrier), modelFamily(model).rangesOffered);
}

std::vector<std::string> carrierEntries(int32_t model) {
  return entriesOf(carrierName, modelFamily(model).carriersOffered);
}

std::vector<std::string> filterEntries(int32_t model) {
  return entriesOf(filterName, modelFamily(model).filtersOffered);
}

ChannelControls channelControls(const MeasureSetting& record, std::size_t channel) {
  ChannelControls controls;
  const int16_t carrier = record.carrier[channel];
  controls.carrier = textAt(carrierName, carrier);
  controls.range = textAt(rangeNames(carrier), record.range[channel]);
  controls.filter = textAt(filterName, record.filter[channel]);
  controls.balance = record.balance[channel];
  controls.slope = record.triggerSlope[channel];
  controls.unit = record.unit[channel];
  controls.level = levelText(record.triggerLevel[channel]);
  const std::string shortest = textOf(record.coeff[channel]);
  const FieldEntry entered = coeffEntered(shortest);
  controls.coeff = entered.accepted ? entered.text : shortest;
  return controls;
}

MeasureSetting readControls(const DialogControls& controls) {
  MeasureSetting record = zeroedSetting();
  for (std::size_t i = 1; i <= kChannels; ++i) {
    const ChannelControls& channel = controls.channel[i];
    record.carrier[i] = carrierOf(channel.carrier);
    record.range[i] = rangeOf(record.carrier[i], channel.range);
    lookup(filterName, channel.filter, record.filter[i]);
    record.triggerSlope[i] = static_cast<int16_t>(channel.slope);
    record.unit[i] = static_cast<int16_t>(channel.unit);
    record.balance[i] = static_cast<int16_t>(channel.balance);
    record.triggerLevel[i] = throughLevelFormat(toDouble(channel.level));
    record.coeff[i] = toSingle(channel.coeff);
  }
  record.model = static_cast<int16_t>(controls.model);
  record.serial = controls.serial;
  record.triggerMode = static_cast<int16_t>(controls.trigger);
  lookup(chModeName, controls.channelMode, record.channelMode);
  lookup(samplingName, controls.sampling, record.sampling);
  lookup(dataSizeName, controls.dataSize, record.dataSize);
  lookup(preAreaName, controls.preArea, record.preArea);
  return record;
}

int32_t checkControls(const DialogControls& controls, MeasureSetting& record) {
  try {
    record = readControls(controls);
    return checkSetting(record);
  } catch (const TypeMismatch&) {
    const auto& channels = controls.channel;
    const bool coeffsRead = std::all_of(
        channels.begin(), channels.end(),
        [](const ChannelControls& channel) { return readSingle(channel.coeff).has_value(); });
    return coeffsRead ? kTriggerLevelError : kCoeffError;
  }
}

CommandTexts buildCommandTexts(const DialogControls& controls) {
  PerChannel<std::string> levels;
  for (std::size_t i = 1; i <= kChannels; ++i) levels[i] = controls.channel[i].level;
  const auto setting = buildSettingString(readControls(controls), levels);
  if (!setting) throw TypeMismatch("trigger level");
  return {*setting,
          listOf(controls.channel,
                 [](const ChannelControls& channel) { return textAt(unitName, channel.unit); }),
          listOf(controls.channel, [](const ChannelControls& channel) { return channel.coeff; })};
}

void storeRecord(int32_t slot, const MeasureSetting& record) {
  if (slot < 1 || slot > kFileRow) return;
  gBoxTable[slot].conditions() = record.conditions();
}

DialogEnable dialogEnable(int32_t model, int32_t mode, int32_t trigger,
                          const PerChannel<int32_t>& slopes) {
  DialogEnable enable;
  enable.trigger = trigger != kFreeRun;
  for (std::size_t i = 1; i <= kChannels; ++i) {
    const bool used = static_cast<int32_t>(i) <= channelCount(mode);
    ChannelEnable& channel = enable.channel[i];
    channel.channel = used;
    channel.carrier = used && modelFamily(model).excitation;
    channel.slope = used && enable.trigger;
    channel.level = channel.slope && slopes[i] != kSlopeOff;
  }
  return enable;
}

}  // namespace vk
