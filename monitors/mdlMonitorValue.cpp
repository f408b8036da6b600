// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorValue.h"

#include <utility>

#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

/// The record behind slot and channel; null when one of them does not exist.
const MeasureSetting* boxOf(int32_t slot, int32_t channel) {
  if (!isBoxSlot(slot) || channel < 1 || channel > kChannels) return nullptr;
  return &gBoxTable[slot];
}

}  // namespace

bool isBoxSlot(int32_t slot) {
  return slot >= 1 && slot <= kBoxes;
}

std::string_view readingOf(std::string_view reply, int32_t channel) {
  if (channel < 1 || channel > kChannels) return {};
  const auto first = static_cast<std::size_t>(channel - 1) * kReadingLength;
  return first < reply.size() ? reply.substr(first, kReadingLength) : std::string_view{};
}

ChannelScale scaleOf(int32_t slot, int32_t channel) {
  const auto* box = boxOf(slot, channel);
  return box ? channelScale(*box, static_cast<std::size_t>(channel)) : ChannelScale{};
}

std::optional<float> toDisplayValue(std::string_view text, int32_t slot, int32_t channel) {
  const auto* box = boxOf(slot, channel);
  const auto number = readSingle(text);
  if (!box || !number) return std::nullopt;
  return channelScale(*box, static_cast<std::size_t>(channel)).value(*number);
}

Extremes::Change Extremes::hold(float value) {
  if (value > max) {
    max = value;
    return Change::kMax;
  }
  if (value < min) {
    min = value;
    return Change::kMin;
  }
  return Change::kNone;
}

std::optional<std::string> ReadingLabel::take() {
  if (now_ == taken_) return std::nullopt;
  taken_ = now_;
  switch (now_.says) {
    case Says::kNothing:
      break;
    case Says::kValue:
      return textOf(now_.value);
    case Says::kUnused:
      return "unused";
    case Says::kError:
      return "error";
    case Says::kLost:
      return "---";
  }
  return "";
}

std::optional<std::string> UnitLabel::take(int32_t slot, int32_t channel, std::string_view none) {
  switch (std::exchange(next_, Next::kKept)) {
    case Next::kKept:
      return std::nullopt;
    case Next::kUnit:
      return unitLabel(slot, channel);
    case Next::kNone:
      break;
  }
  return std::string(none);
}

std::string monitorCaption(std::size_t index, std::string_view caption) {
  return "[" + std::to_string(index + 1) + "] " + std::string(caption);
}

std::string titleOfCaption(std::string_view windowCaption, std::size_t index) {
  constexpr std::size_t kBracketsAndBlank = 3;
  return mid(windowCaption, std::to_string(index + 1).size() + kBracketsAndBlank + 1);
}

std::string serialLabel(int32_t serial) {
  return "Ser: " + serialText(serial);
}

std::string channelLabel(int32_t channel) {
  return "Ch: " + textOf(channel);
}

std::string unitLabel(int32_t slot, int32_t channel) {
  const auto* box = boxOf(slot, channel);
  if (!box) return {};
  const auto unit = static_cast<std::size_t>(box->unit[channel]);
  return unit < unitName.size() ? std::string(unitName[unit]) : std::string();
}

}  // namespace vk
