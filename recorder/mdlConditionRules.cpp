// SPDX-License-Identifier: MIT
#include "recorder/mdlConditionRules.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "base/mdlText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

constexpr int32_t kLastSampling = kSamplings - 1;
constexpr int32_t kLastCommonSize = 21;  // "60M", the largest one for every channel mode
constexpr int32_t kLastSizeOf[kModes] = {kLastCommonSize + 2, kLastCommonSize + 1, kLastCommonSize};

// The limits are singles, because they are compared with singles: the single nearest 0.00001 is
// below the double of that name.
constexpr float kCoeffLeast = 0.00001F;
constexpr float kCoeffMost = 9999999.0F;

template <std::size_t N>
int32_t rule(const RuleTable<N>& table, int32_t mode, int32_t index) {
  return table[mode][index];
}

template <typename T, std::size_t N>
T valueAt(const std::array<T, N>& table, int32_t index) {
  return table[index];
}

std::vector<int32_t> indicesFromTo(int32_t first, int32_t last) {
  std::vector<int32_t> indices(static_cast<std::size_t>(last - first + 1));
  std::iota(indices.begin(), indices.end(), first);
  return indices;
}

int32_t fastestSampling(int32_t mode, int32_t dataSize, int32_t family) {
  return rule(modelFamily(family).fastestSampling, mode, dataSize);
}

void refillDataSize(ConditionChoice& choice) {
  choice.dataSize = selectFrom(dataSizeList(choice.mode, choice.sampling), choice.dataSize);
}

void refillSampling(ConditionChoice& choice, int32_t family) {
  choice.sampling = selectFrom(samplingList(choice.mode, choice.dataSize, family), choice.sampling);
}

void refillPreArea(ConditionChoice& choice) {
  choice.preArea = selectPreArea(preAreaList(choice.mode, choice.dataSize), choice.preArea);
}

bool within(int32_t value, int32_t least, int32_t most) {
  return value >= least && value <= most;
}

bool allWithin(const PerChannel<int16_t>& values, int32_t most) {
  return std::all_of(values.begin(), values.end(),
                     [most](int16_t value) { return within(value, 0, most); });
}

template <std::size_t N>
constexpr int32_t lastOf(const std::array<std::string_view, N>&) {
  return static_cast<int32_t>(N) - 1;
}

bool rangeAllowed(int16_t range) {
  return std::find(rangeAccepted.begin(), rangeAccepted.end(), range) != rangeAccepted.end();
}

// Written so that a value that is no number is refused.
bool levelAllowed(double level) {
  return level >= -100.0 && level <= 100.0;
}

bool coeffAllowed(float coeff) {
  return coeffNotZero(coeff) && std::fabs(coeff) <= kCoeffMost;
}

int32_t checkSingleFields(const MeasureConditions& record) {
  const auto& range = record.range;
  const auto& level = record.triggerLevel;
  const auto& coeff = record.coeff;
  if (!within(record.channelMode, 0, lastOf(chModeCode))) return kChannelModeError;
  if (!std::all_of(range.begin(), range.end(), rangeAllowed)) return kRangeError;
  if (!allWithin(record.filter, lastOf(filterCode))) return kFilterError;
  if (!within(record.triggerMode, 0, lastOf(trgModeCode))) return kTriggerModeError;
  if (!allWithin(record.triggerSlope, lastOf(trgSlopeCode))) return kTriggerSlopeError;
  if (!std::all_of(level.begin(), level.end(), levelAllowed)) return kTriggerLevelError;
  if (!within(record.sampling, 0, lastOf(samplingCode))) return kSamplingError;
  if (!within(record.preArea, 0, lastOf(preAreaCode))) return kPreAreaError;
  if (!within(record.dataSize, 0, lastOf(dataSizeCode))) return kDataSizeError;
  if (!allWithin(record.unit, lastOf(unitName))) return kUnitError;
  if (!std::all_of(coeff.begin(), coeff.end(), coeffAllowed)) return kCoeffError;
  return kSettingOk;
}

// Eight characters with the point, by the characters in front of it or by the digits in all.
constexpr auto kCoeffFormats = std::to_array<std::string_view>(
    {"0.000000", "#0.00000", "##0.0000", "###0.000", "####0.00", "#####0.0", "#######"});
constexpr std::size_t kPointFormats = 6;

std::string coeffText(float coeff, std::string_view entered) {
  const std::string shortest = textOf(coeff);
  std::size_t width = shortest.find('.');
  if (width == std::string::npos || width < 1 || width > kPointFormats) {
    width = shortest.size() - (shortest.front() == '-' ? 1 : 0);
  }
  if (width < 1 || width > kCoeffFormats.size()) return std::string(entered);
  return formatNumber(coeff, kCoeffFormats[width - 1]);
}

// A single is rounded on its own digits, not on those of the double that it becomes.
template <typename Number>
std::string signedLevel(Number level) {
  return formatNumber(level, level > 0 ? "+#0.0" : "#0.0");
}

}  // namespace

std::vector<int32_t> samplingList(int32_t mode, int32_t dataSize, int32_t family) {
  return indicesFromTo(fastestSampling(mode, dataSize, family), kLastSampling);
}

std::vector<int32_t> dataSizeList(int32_t mode, int32_t sampling) {
  return indicesFromTo(std::max(rule(minDataSize, mode, sampling), 0), kLastSizeOf[mode]);
}

std::vector<int32_t> preAreaList(int32_t mode, int32_t dataSize) {
  const int32_t greatest = rule(maxPreArea, mode, dataSize);
  if (greatest == kPreAreaMax) return {0, kPreAreaMax};
  return indicesFromTo(0, greatest);
}

int32_t selectFrom(std::span<const int32_t> list, int32_t wanted) {
  return std::find(list.begin(), list.end(), wanted) == list.end() ? list.front() : wanted;
}

int32_t selectPreArea(std::span<const int32_t> list, int32_t wanted) {
  const int32_t selected = selectFrom(list, wanted);
  return wanted == kPreAreaFull && selected != wanted ? selectFrom(list, kPreAreaMax) : selected;
}

ConditionChoice onChannelModeChange(ConditionChoice choice, int32_t family) {
  if (rule(minDataSize, choice.mode, choice.sampling) < 0 ||
      fastestSampling(choice.mode, choice.dataSize, family) > choice.sampling) {
    choice.sampling = kSampling1msec;
    choice.dataSize = kDataSize32K;
  }
  return refillAll(choice, family);
}

ConditionChoice onSamplingChange(ConditionChoice choice) {
  if (rule(minDataSize, choice.mode, choice.sampling) < 0) choice.dataSize = kDataSize32K;
  if (rule(maxPreArea, choice.mode, choice.dataSize) < choice.preArea) choice.preArea = 0;
  refillDataSize(choice);
  refillPreArea(choice);
  return choice;
}

ConditionChoice onDataSizeChange(ConditionChoice choice, int32_t family) {
  // The limit of the VK-480Q family, for both; the list that follows is the family's own.
  if (rule(minSampling, choice.mode, choice.dataSize) > choice.sampling) {
    choice.sampling = kSampling1msec;
  }
  const int32_t greatest = rule(maxPreArea, choice.mode, choice.dataSize);
  if (greatest == kPreAreaMax || greatest < choice.preArea) choice.preArea = 0;
  refillSampling(choice, family);
  refillPreArea(choice);
  return choice;
}

ConditionChoice refillAll(ConditionChoice choice, int32_t family) {
  refillDataSize(choice);
  refillSampling(choice, family);
  refillPreArea(choice);
  return choice;
}

float recordingTime(int32_t sampling, int32_t dataSize) {
  return static_cast<float>(static_cast<double>(valueAt(samplingSec, sampling)) *
                            valueAt(dataSizeSamples, dataSize));
}

float preTime(int32_t mode, int32_t sampling, int32_t dataSize, int32_t preArea) {
  const double seconds = valueAt(samplingSec, sampling);
  const int32_t samples = valueAt(dataSizeSamples, dataSize);
  if (preArea == kPreAreaFull || preArea == kPreAreaMax) {
    return static_cast<float>(seconds * std::min(valueAt(preTriggerStore, mode), samples));
  }
  return static_cast<float>(static_cast<double>(valueAt(preAreaRatio, preArea)) * samples *
                            seconds);
}

std::string timeText(float seconds, int32_t sampling) {
  struct Part {
    int32_t seconds;
    const char* name;
  };
  constexpr Part kParts[] = {{86400, "d "}, {3600, "h "}, {60, "m "}};
  double rest = seconds;
  std::string text;
  for (const Part& part : kParts) {
    const auto count = static_cast<int64_t>(std::floor(rest / part.seconds));
    rest -= static_cast<double>(count * part.seconds);
    if (count > 0) text += textOf(count) + part.name;
  }
  return text + formatNumber(static_cast<float>(rest), textAt(samplingFormat, sampling)) + "s";
}

int32_t checkSetting(MeasureConditions& record) {
  const int32_t error = checkSingleFields(record);
  if (error != kSettingOk) return error;
  const int32_t mode = record.channelMode;
  if (rule(minDataSize, mode, record.sampling) > record.dataSize ||
      rule(minSampling, mode, record.dataSize) < 0) {
    return kSamplingSizeError;
  }
  if (rule(maxPreArea, mode, record.dataSize) < record.preArea) {
    if (record.preArea != kPreAreaFull && record.preArea != kPreAreaMax) return kPreAreaSizeError;
    record.preArea = kPreAreaMax;
  }
  if (!allWithin(record.balance, lastOf(onOffCode))) return kBalanceError;
  if (!allWithin(record.carrier, lastOf(carrierCode))) return kCarrierError;
  return kSettingOk;
}

std::string_view settingErrorText(int32_t number) {
  static constexpr auto kTexts = std::to_array<std::string_view>({
      "",
      "Channel Mode Error",
      "Range Error",
      "Filter Error",
      "Trigger Mode Error",
      "Trigger Slope Error",
      "Trigger Level Error",
      "Sampling Error",
      "PreArea Error",
      "Data Size Error",
      "Unit Error",
      "Coefficient Error",
      "Sampling against the Channel Mode, Data Size setup error.",
      "PreArea setup error against the Data Size.",
      "Balance Error",
  });
  return textAt(kTexts, number);
}

bool triggerCaution(int32_t mode, int32_t triggerMode, const PerChannel<int16_t>& slopes) {
  if (triggerMode == kFreeRun) return false;
  return std::all_of(slopes.begin(), slopes.begin() + channelCount(mode),
                     [](int16_t slope) { return slope == kSlopeOff; });
}

FieldEntry levelEntered(std::string_view text) {
  const auto level = readDouble(text);
  if (!level) return {false, "", "Invalid\u3000value"};
  if (!levelAllowed(*level)) return {false, "", "Outside value"};
  return {true, signedLevel(*level), ""};
}

double levelOf(std::string_view text) {
  return readDouble(text).value_or(0.0);
}

std::string levelRestored(double level) {
  return level > 0 ? signedLevel(level) : textOf(level);
}

std::string levelText(float level) {
  return signedLevel(level);
}

FieldEntry coeffEntered(std::string_view text) {
  const auto coeff = readSingle(text);
  if (!coeff || !coeffAllowed(*coeff)) return {false, "", "Setting range 0.000010 - 9999999 "};
  return {true, coeffText(*coeff, text), ""};
}

bool coeffNotZero(float coeff) {
  return std::fabs(coeff) >= kCoeffLeast;
}

}  // namespace vk
