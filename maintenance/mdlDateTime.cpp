// SPDX-License-Identifier: MIT
#include "maintenance/mdlDateTime.h"

#include <algorithm>

#include "base/mdlBox.h"
#include "base/mdlText.h"
#include "link/mdlUSBCommand.h"

namespace vk {

namespace {

constexpr std::string_view kInputError = "Input Error";
constexpr std::string_view kInvalidValue = "Invalid　value";  // with an ideographic space
constexpr std::string_view kOutsideValue = "Outside value";

enum Box { kYear, kMonth, kDay, kHour, kMinute, kSecond };

struct Limits {
  int32_t least;
  int32_t most;
};

/// Ends at 2016: the instrument's own calendar knows no later leap year.
constexpr std::array<int32_t, 4> kLeapYears{2004, 2008, 2012, 2016};
constexpr std::array<int32_t, 12> kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr int32_t kFebruary = 2;

std::optional<int32_t> numberIn(const DateTexts& texts, int box) {
  return readWhole(texts[box]);
}

/// Empty when the month box shows no month: then there is nothing to check a day by.
std::optional<Limits> dayLimits(const DateTexts& texts) {
  const int32_t month = numberIn(texts, kMonth).value_or(0);
  if (month < 1 || month > 12) return std::nullopt;
  int32_t days = kDays[month - 1];
  const int32_t year = numberIn(texts, kYear).value_or(0);
  if (month == kFebruary && std::ranges::count(kLeapYears, year) > 0) ++days;
  return Limits{0, days};
}

std::optional<Limits> limitsOf(const DateTexts& texts, int box) {
  switch (box) {
    case kYear:
      return Limits{2000, 2099};
    case kMonth:
      return Limits{1, 12};
    case kDay:
      return dayLimits(texts);
    case kHour:
      return Limits{0, 23};
    default:
      return Limits{0, 59};
  }
}

/// What is said about a text without a whole number: one that is only too large is a number too.
std::string_view unreadableMessage(const std::string& text) {
  return readDouble(text) ? kOutsideValue : kInvalidValue;
}

/// Empty for a box that passes.
std::string_view boxMessage(const DateTexts& texts, int box) {
  const auto limits = limitsOf(texts, box);
  if (!limits) return {};
  const auto number = numberIn(texts, box);
  if (!number) return unreadableMessage(texts[box]);
  return *number < limits->least || *number > limits->most ? kOutsideValue : std::string_view{};
}

}  // namespace

DateTexts dateTexts(const DateTime& time) {
  return {formatNumber(time.year, "0000"),
          textOf(time.month),
          textOf(time.day),
          textOf(time.hour),
          textOf(time.minute),
          textOf(time.second)};
}

bool acceptDateBox(const DateTexts& texts, int box) {
  const std::string_view message = boxMessage(texts, box);
  if (!message.empty()) showBox(kInputError, message);
  return message.empty();
}

DateSent sendDate(int32_t serial, const DateTexts& texts) {
  std::array<int32_t, kDateBoxes> numbers{};
  for (int box = 0; box < kDateBoxes; ++box) {
    const auto number = numberIn(texts, box);
    if (!number) {
      showBox(kInputError, unreadableMessage(texts[box]));
      return {kUsbUnreadable, box};
    }
    numbers[box] = *number;
  }
  const auto [year, month, day, hour, minute, second] = numbers;
  return {usbRTM(serial, rtmText({year, month, day, hour, minute, second})), std::nullopt};
}

}  // namespace vk
