// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorDialog.h"

#include <cmath>

#include "base/mdlBox.h"
#include "base/mdlText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

constexpr int32_t kMonitorChannels = 4;
constexpr int32_t kMostAveraged = 100;
// These two boxes speak Japanese in every language of the program.
constexpr const char* kEntryError = "入力ｴﾗｰ";
constexpr const char* kLimitsCrossed = "上限値より下限値を小さい値にしてください。";
constexpr const char* kDialEmpty = "+ｽｹｰﾙと-ｽｹｰﾙは同じ値に設定できません。";

std::vector<std::string> counted(std::string_view word, int32_t count) {
  std::vector<std::string> texts;
  for (int32_t i = 1; i <= count; ++i) texts.push_back(std::string(word) + textOf(i));
  return texts;
}

}  // namespace

bool validEntry(EntryRule rule, std::string_view text) {
  switch (rule) {
    case EntryRule::kSerial: {
      const auto serial = readWhole(text);
      return serial && *serial >= 1 && *serial <= kNoSerial;
    }
    case EntryRule::kDialStart:
      return readWhole(text).has_value();
    case EntryRule::kScale:
      return readSingle(text).value_or(0.0F) != 0.0F;
    case EntryRule::kCaption:
      return text.find_first_of(",\r\n") == std::string_view::npos;
    case EntryRule::kLimit:
      break;
  }
  return readSingle(text).has_value();
}

void sayInvalid() {
  showBox("Input Error", "Invalid");
}

bool limitsAgree(std::string_view upper, std::string_view lower) {
  if (readSingle(lower).value_or(0.0F) < readSingle(upper).value_or(0.0F)) return true;
  showBox(kEntryError, kLimitsCrossed, BoxIcon::kInformation);
  return false;
}

bool dialEndsDiffer(std::string_view plus, std::string_view minus) {
  const auto end = readSingle(plus);
  const auto start = readWhole(minus);
  const bool empty = end && start && double{*end} == *start;
  if (!empty && end != readSingle(minus)) return true;
  showBox(kEntryError, kDialEmpty);
  return false;
}

std::vector<std::string> serialTexts() {
  std::vector<std::string> texts;
  for (std::size_t row = 1; row <= kBoxes; ++row) {
    if (gBoxTable[row].serial != kNoSerial) texts.push_back(serialText(gBoxTable[row].serial));
  }
  return texts;
}

std::vector<std::string> channelTexts() {
  return counted("Ch ", kMonitorChannels);
}

std::vector<std::string> averageTexts() {
  return counted("", kMostAveraged);
}

std::string sampleText(int32_t decimals) {
  return formatNumber(0, decimalFormat[listIndex(decimals, decimalFormat.size())]);
}

std::string numberText(float value, float fallback) {
  return textOf(std::isfinite(value) ? value : fallback);
}

int32_t listIndex(double value, std::size_t count) {
  const int32_t last = count - 1;
  if (!(value > 0)) return 0;  // also what is no number
  return value >= last ? last : roundWhole(value);
}

}  // namespace vk
