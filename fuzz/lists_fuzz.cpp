// SPDX-License-Identifier: MIT
// The unit list and the coefficient list: items are stored from the front up to the first that
// fails, nothing else changes, and a list of what was stored reads back to the same.
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

constexpr int32_t kSerial = 2000002;
constexpr std::size_t kRow = 3;

vk::MeasureSetting& setUpRow() {
  vk::resetBoxTable();
  vk::MeasureSetting& row = vk::gBoxTable[kRow];
  row.handle = 3;
  row.serial = kSerial;
  for (std::size_t channel = 1; channel <= vk::kChannels; ++channel) {
    row.unit[channel] = static_cast<int16_t>(channel);
    row.coeff[channel] = static_cast<float>(channel);
  }
  return row;
}

/// The row may differ in one field only; every other row stays.
template <typename Field>
void requireNothingElse(const decltype(vk::gBoxTable)& before, Field field, std::string_view text) {
  auto after = vk::gBoxTable;
  after[kRow].*field = before[kRow].*field;
  require(after == before, "only the list's own field changes", text);
}

/// The text of an item up to its line end; every decodable item has this for its start.
std::string_view itemOf(std::string_view& rest) {
  const std::string_view item = vkfuzz::takeUpTo(rest, ',');
  const std::size_t lineFeed = item.find('\n');
  return lineFeed == std::string_view::npos ? item
                                            : item.substr(0, lineFeed > 0 ? lineFeed - 1 : 0);
}

void checkUnits(std::string_view text) {
  vk::MeasureSetting& row = setUpRow();
  const auto before = vk::gBoxTable;
  const int32_t result = vk::decodeUnitList(kSerial, text);
  require(result == 0 || result == 1, "the result is 0 or 1", text);
  requireNothingElse(before, &vk::MeasureSetting::unit, text);
  std::string_view rest = text;
  for (std::size_t channel = 1; channel <= vk::kChannels; ++channel) {
    const std::string_view item = itemOf(rest);
    const int16_t unit = row.unit[channel];
    require(unit >= 0 && static_cast<std::size_t>(unit) < vk::unitName.size(),
            "a unit is in the table", text);
    const int32_t named = item.empty() ? -1 : vk::findIndex(vk::unitName, item);
    if (result == 0 && named >= 0) require(unit == named, "a known unit is stored", text);
    if (named < 0) require(unit == before[kRow].unit[channel], "an unknown one is not", text);
  }
  if (result != 0) return;

  std::string list;
  for (const int16_t unit : row.unit) list += std::string(vk::textAt(vk::unitName, unit)) + ",";
  list.pop_back();
  const vk::MeasureSetting first = row;
  require(vk::decodeUnitList(kSerial, list + "\r\n") == 0 && row == first, "units come back", list);
}

void checkCoeffs(std::string_view text) {
  vk::MeasureSetting& row = setUpRow();
  const auto before = vk::gBoxTable;
  const int32_t result = vk::decodeCoeffList(kSerial, text);
  require(result == 0 || result == 1, "the result is 0 or 1", text);
  requireNothingElse(before, &vk::MeasureSetting::coeff, text);
  std::string_view rest = text;
  bool stopped = false;
  for (std::size_t channel = 1; channel <= vk::kChannels; ++channel) {
    const float coeff = row.coeff[channel];
    require(std::isfinite(coeff) && vk::coeffNotZero(coeff), "a coefficient is a number", text);
    const auto read = vk::readSingle(itemOf(rest));
    stopped = stopped || !read || !vk::coeffNotZero(*read);
    require(coeff == (stopped ? before[kRow].coeff[channel] : *read),
            "coefficients are stored up to the first bad one", text);
  }
  require(!stopped || result == 1, "a bad coefficient is told", text);
  if (result != 0) return;

  std::string list;
  for (const float coeff : row.coeff) list += vk::textOf(coeff) + ",";
  list.pop_back();
  const auto stored = row.coeff;
  require(vk::decodeCoeffList(kSerial, list) == 0, "a built list decodes", list);
  // Seven digits do not name every single exactly: 1.00000006E+28 comes back as 9.999999E+27.
  constexpr float kSeventhDigit = 1e-6F;
  for (std::size_t channel = 1; channel <= vk::kChannels; ++channel) {
    const float off = std::abs(row.coeff[channel] - stored[channel]);
    require(off <= kSeventhDigit * std::abs(stored[channel]), "coefficients come back", list);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  const std::string_view text = vkfuzz::textOfInput(data, size);
  checkUnits(text);
  checkCoeffs(text);
  return 0;
}
