// SPDX-License-Identifier: MIT
#include "instrument/simulator/conditions.h"

#include <algorithm>

#include "instrument/simulator/numbers.h"

namespace vksim {
namespace {

constexpr std::array<std::string_view, 4> kModelNames = {"VK-240Q", "VK-240Qe", "VK-480Q",
                                                         "VK-480Qe"};
constexpr std::int64_t kPreStore = 262144;        // words, all channels together
constexpr std::int64_t kMemoryWords = 240 << 20;  // the longest recording, all channels together
constexpr Micros kShortestRecording = kSecond / 5;
constexpr std::size_t kLowLength = 49;
constexpr std::size_t kHighLength = 53;

bool parseLowRange(std::string_view code, ChannelConditions& channel) {
  // The code is the full scale in thousands of microstrain.
  const auto thousands = digits(code);
  if (!thousands) return false;
  if ((*thousands < 1 || *thousands > 5) && *thousands != 10 && *thousands != 20) return false;
  channel.fullScale = static_cast<int>(*thousands) * 1000;
  return true;
}

bool parseHighRange(std::string_view code, ChannelConditions& channel) {
  // First figure: 0 strain, 1 voltage, 2 strain in tenths, 3 voltage in tenths.
  static constexpr std::array<int, 8> kScales = {200, 500, 1000, 2000, 5000, 10000, 20000, 30000};
  const auto number = digits(code);
  if (!number || *number >= 40) return false;
  const bool tenths = *number >= 20;
  const auto step = *number % 10;
  if (step < 1 || step > (tenths ? 4 : 8)) return false;
  channel.perUnit = tenths ? 10 : 1;
  channel.fullScale = kScales[static_cast<std::size_t>(step - 1)] * (tenths ? 10 : 1);
  return true;
}

bool parseFilter(std::string_view code, bool high, ChannelConditions& channel) {
  static constexpr std::array<double, 8> kHigh = {10, 30, 100, 300, 1000, 3000, 10000, 30000};
  if (!high && code == "PS") {
    channel.cutoff = 0;
    return true;
  }
  const auto number = digits(code);
  if (!number) return false;
  if (high) {
    if (*number < 1 || *number > 8) return false;
    channel.cutoff = kHigh[static_cast<std::size_t>(*number - 1)];
    return true;
  }
  if (*number != 3 && *number != 10 && *number != 30) return false;
  channel.cutoff = static_cast<double>(*number) * 10;
  return true;
}

bool parseTrigger(char slope, std::string_view field, ChannelConditions& channel) {
  if (slope != 'U' && slope != 'D') return false;
  const auto number = digits(field.substr(1));
  if (!number) return false;
  switch (field[0]) {
    case 'N':
      channel.slope = Slope::kOff;
      channel.level = 0;
      return *number == 0;
    case '+':
    case '-':
      channel.level = static_cast<double>(*number);
      break;
    case 'P':
    case 'M':
      channel.level = static_cast<double>(*number) / 10;
      break;
    default:
      return false;
  }
  if (channel.level > 100) return false;
  if (field[0] == '-' || field[0] == 'M') channel.level = -channel.level;
  channel.slope = slope == 'U' ? Slope::kUp : Slope::kDown;
  return true;
}

std::optional<std::int64_t> parseSamples(std::string_view code) {
  static constexpr std::array<int, 10> kKilo = {1, 2, 4, 8, 16, 32, 64, 128, 256, 512};
  static constexpr std::array<int, 14> kMega = {1, 2, 3, 4, 6, 8, 12, 16, 24, 32, 48, 60, 120, 240};
  const auto number = digits(code.substr(0, 3));
  if (!number) return std::nullopt;
  const auto known = [&](const auto& list) {
    return std::find(list.begin(), list.end(), *number) != list.end();
  };
  if (code[3] == 'K' && known(kKilo)) return *number << 10;
  if (code[3] == 'M' && known(kMega)) return *number << 20;
  return std::nullopt;
}

// Excitation: off, 0.5 V, 2.0 V. A quarter of the voltage gives a quarter of the reading, and none
// gives none, but for a channel that measures a voltage itself.
bool parseExcitation(char code, bool voltage, ChannelConditions& channel) {
  if (code < '0' || code > '2') return false;
  if (code == '1') channel.perUnit /= 4;
  if (code == '0' && !voltage) channel.perUnit = 0;
  return true;
}

bool parseChannel(std::string_view text, std::size_t i, bool high, ChannelConditions& channel) {
  const auto range = text.substr(1 + 2 * i, 2);
  const auto known = high ? parseHighRange(range, channel) : parseLowRange(range, channel);
  if (!known || !parseFilter(text.substr(9 + 2 * i, 2), high, channel)) return false;
  if (!parseTrigger(text[18 + i], text.substr(22 + 4 * i, 4), channel)) return false;
  const bool voltage = range[0] == '1' || range[0] == '3';
  return !high || parseExcitation(text[49 + i], voltage, channel);
}

// What the converter, the memory and the card writer can do together.
bool isFeasible(const Conditions& wanted, bool high) {
  const std::int64_t wordsPerSecond = wanted.channels * kSecond / wanted.interval;
  return wordsPerSecond <= (high ? 200000 : 20000) &&
         wanted.samples * wanted.channels <= kMemoryWords &&
         wanted.samples * wanted.interval >= kShortestRecording;
}

}  // namespace

std::string_view modelName(Model model) {
  return kModelNames[static_cast<std::size_t>(model)];
}

std::optional<Model> modelNamed(std::string_view name) {
  const auto* const found = std::find(kModelNames.begin(), kModelNames.end(), name);
  if (found == kModelNames.end()) return std::nullopt;
  return static_cast<Model>(found - kModelNames.begin());
}

bool isHighFamily(Model model) {
  return model == Model::kVK480Q || model == Model::kVK480Qe;
}

bool hasAnalogOutput(Model model) {
  return model == Model::kVK240Qe || model == Model::kVK480Qe;
}

std::int64_t Conditions::preSamples() const {
  const int percent = prePercent == 100 ? 99 : prePercent;
  return std::min(samples * percent / 100, kPreStore / channels);
}

std::optional<Micros> parseInterval(std::string_view code) {
  if (code.size() != 4) return std::nullopt;
  const auto number = digits(code.substr(0, 3));
  if (!number) return std::nullopt;
  static constexpr std::array<int, 9> kSeries = {1, 2, 5, 10, 20, 50, 100, 200, 500};
  const bool series = std::find(kSeries.begin(), kSeries.end(), *number) != kSeries.end() &&
                      code != "001U" && code != "002U";
  if (code[3] == 'U' && series) return *number;
  if (code[3] == 'M' && series) return *number * 1000;
  if (code == "001S") return kSecond;
  return std::nullopt;
}

std::optional<Conditions> parseConditions(std::string_view text, Model model) {
  const bool high = isHighFamily(model);
  if (text.size() != (high ? kHighLength : kLowLength)) return std::nullopt;
  Conditions wanted;
  wanted.text = text;
  if (text[0] != '1' && text[0] != '2' && text[0] != '4') return std::nullopt;
  wanted.channels = text[0] - '0';
  for (std::size_t i = 0; i < kChannels; ++i)
    if (!parseChannel(text, i, high, wanted.channel[i])) return std::nullopt;
  wanted.triggerMode = text[17];
  const auto interval = parseInterval(text.substr(38, 4));
  const auto pre = digits(text.substr(42, 3));
  const auto samples = parseSamples(text.substr(45, 4));
  if (std::string_view("SCF").find(wanted.triggerMode) == std::string_view::npos || !interval ||
      !pre || *pre > 100 || *pre % 10 != 0 || !samples)
    return std::nullopt;
  wanted.interval = *interval;
  wanted.prePercent = static_cast<int>(*pre);
  wanted.samples = *samples;
  if (!isFeasible(wanted, high)) return std::nullopt;
  return wanted;
}

std::string_view factoryConditions(Model model) {
  return isHighFamily(model) ? "40505050507070707CUUUU+010N000N000N000200U000128K2222"
                             : "405050505PSPSPSPSCUUUU+010N000N000N000200U000128K";
}

}  // namespace vksim
