// SPDX-License-Identifier: MIT
#include "storage/mdlHedDataWork.h"

#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

static_assert(headerKey.size() == kHeaderFields);

constexpr std::string_view kLineEnd = "\r\n";
constexpr int32_t kMaxSeries = 64;

// SERIES stands before NUM_SERIES because a key is found by its first occurrence.
constexpr std::array<HeaderField, kHeaderFields> kLineOrder = {
    kDataset,   kVersion,     kSeries,   kDate,  kTime,    kRate,    kVertUnits, kHorzUnits,
    kNumSeries, kStorageMode, kFileType, kSlope, kXOffset, kYOffset, kNumSamps};

int32_t checkNumber(HeaderField field) {
  return -(static_cast<int32_t>(field) + 1);
}

std::string valueOf(std::string_view text, HeaderField field) {
  return headerValue(text, headerKey[field]);
}

bool within(std::string_view text, int32_t lowest, int32_t highest) {
  const int32_t number = toWhole(text);
  return number >= lowest && number <= highest;
}

bool dateHolds(const std::string& date) {
  return within(mid(date, 1, 2), 1, 12) && within(mid(date, 4, 2), 1, 31) &&
         within(mid(date, 7, 4), 2000, 2099);
}

bool timeHolds(const std::string& time) {
  return within(mid(time, 1, 2), 0, 23) && within(mid(time, 4, 2), 0, 59) &&
         within(mid(time, 7, 2), 0, 59);
}

/// One item per series; an empty or missing item is served by the whole value.
template <typename Read>
void readEachItem(const std::string& value, int32_t numSeries, Read read) {
  for (int32_t i = 1; i <= numSeries; ++i) {
    const std::string item = listField(value, i);
    read(item.empty() ? value : item);
  }
}

bool countHolds(const std::string& list, int32_t numSeries) {
  return fieldCount(list, ',') + 1 == numSeries;
}

std::string joinLines(const HeaderRecord& record, char separator) {
  std::string text;
  for (const HeaderField field : kLineOrder) {
    if (!text.empty()) text += kLineEnd;
    text += headerKey[field];
    text += separator;
    text += record[field];
  }
  return text;
}

}  // namespace

int32_t checkHeaderText(std::string_view text) {
  HeaderField checked = kVersion;
  const auto take = [&](HeaderField field) {
    checked = field;
    return valueOf(text, field);
  };
  try {
    toWhole(take(kVersion));
    const int32_t numSeries = toWhole(take(kNumSeries));
    if (numSeries < 1 || numSeries > kMaxSeries) return checkNumber(kNumSeries);
    if (!countHolds(take(kSeries), numSeries)) return checkNumber(kSeries);
    if (!dateHolds(take(kDate))) return checkNumber(kDate);
    if (!timeHolds(take(kTime))) return checkNumber(kTime);
    toWhole(take(kRate));
    if (!countHolds(take(kVertUnits), numSeries)) return checkNumber(kVertUnits);
    readEachItem(take(kSlope), numSeries, [](const std::string& item) { toSingle(item); });
    readEachItem(take(kYOffset), numSeries, [](const std::string& item) { toWhole(item); });
    toWhole(take(kXOffset));
    toWhole(take(kNumSamps));
  } catch (const TypeMismatch&) {
    return checkNumber(checked);
  }
  return 0;
}

int32_t textToHeader(std::string_view text, HeaderRecord& record) {
  record = {};
  for (std::size_t i = 0; i < kHeaderFields; ++i) {
    const auto field = static_cast<HeaderField>(i);
    try {
      record[field] = valueOf(text, field);
    } catch (const TypeMismatch&) {
      return checkNumber(field);
    }
  }
  return 0;
}

std::string headerToText(const HeaderRecord& record, std::string_view fileName) {
  const std::size_t separator = fileName.find_last_of("/\\");
  const std::string_view name =
      separator == std::string_view::npos ? fileName : fileName.substr(separator + 1);
  const std::size_t point = name.rfind('.');
  if (point == std::string_view::npos || name.substr(point + 1) != "hed") {
    return joinLines(record, ' ');
  }
  HeaderRecord renamed = record;
  renamed[kDataset] = name.substr(0, point);
  return joinLines(renamed, ' ');
}

std::string headerToCsvText(const HeaderRecord& record) {
  return joinLines(record, ',');
}

}  // namespace vk
