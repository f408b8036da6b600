// SPDX-License-Identifier: MIT
// The header text: a first line that names the file, the header behind it. Values that are read are
// single lines without blanks around them; a header that was written reads back to the same record
// and fails the same check.
#include <algorithm>

#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "fuzz/fuzz_check.h"
#include "recorder/mdlCodeTables.h"
#include "storage/mdlHedDataWork.h"

using vkfuzz::require;

namespace {

constexpr int32_t kLastCheck = -static_cast<int32_t>(vk::kHeaderFields);

bool isPlainValue(std::string_view value) {
  return value.find("\r\n") == std::string_view::npos && vk::trim(value) == value;
}

void checkValue(std::string_view text, std::string_view key) {
  try {
    const std::string value = vk::headerValue(text, key);
    require(isPlainValue(value), "a value is one trimmed line", value);
    require(vk::contains(text, value), "a value comes from the text", value);
  } catch (const vk::TypeMismatch&) {
    require(text.find("\r\n", text.find(key)) == std::string_view::npos,
            "only a missing line end is refused", text);
  }
}

/// What every later step relies on.
void checkAccepted(std::string_view text) {
  const auto value = [text](vk::HeaderField field) {
    return vk::headerValue(text, vk::headerKey[field]);
  };
  const auto numSeries = vk::readWhole(value(vk::kNumSeries));
  require(numSeries && *numSeries >= 1 && *numSeries <= 64, "1 to 64 series", text);
  for (const auto list : {vk::kSeries, vk::kVertUnits}) {
    require(vk::fieldCount(value(list), ',') + 1 == *numSeries, "a name for each series", text);
  }
  for (const auto number : {vk::kVersion, vk::kRate, vk::kXOffset, vk::kNumSamps}) {
    require(vk::readWhole(value(number)).has_value(), "a whole number", value(number));
  }
  const auto year = vk::readWhole(vk::mid(value(vk::kDate), 7, 4));
  require(year && *year >= 2000 && *year <= 2099, "a year", value(vk::kDate));
}

/// A key is found by its first occurrence, so a value that holds one is read as another's.
bool holdsKey(const vk::HeaderRecord& record) {
  return std::any_of(record.field.begin(), record.field.end(), [](const std::string& value) {
    return std::any_of(vk::headerKey.begin(), vk::headerKey.end(),
                       [&](std::string_view key) { return vk::contains(value, key); });
  });
}

void checkWritten(std::string_view text, const vk::HeaderRecord& record, std::string_view name) {
  const std::string written = vk::headerToText(record, "x.csv");
  require(vk::fieldCount(written, '\n') >= 14, "fifteen lines", written);
  require(vk::headerToCsvText(record).size() == written.size(), "the same lines with commas",
          written);
  if (holdsKey(record)) return;
  vk::HeaderRecord again;
  require(vk::textToHeader(written + "\r\n", again) == 0, "a written header reads", written);
  require(again == record, "a header comes back", written);
  require(vk::checkHeaderText(written + "\r\n") == vk::checkHeaderText(text),
          "a header comes back with its fault", written);

  const std::string named = vk::headerToText(record, name);
  const std::size_t first = written.find("\r\n");
  require(named.size() >= written.size() - first &&
              named.substr(named.size() - (written.size() - first)) == written.substr(first),
          "the file name touches the first line only", named);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  std::string_view text = vkfuzz::textOfInput(data, size);
  const std::string_view name = vkfuzz::takeUpTo(text, '\n');
  for (const std::string_view key : vk::headerKey) checkValue(text, key);

  const int32_t fault = vk::checkHeaderText(text);
  require(fault <= 0 && fault >= kLastCheck, "the fault is a check's number", text);
  if (fault == 0) checkAccepted(text);

  vk::HeaderRecord record;
  record[vk::kDataset] = "left over";
  const int32_t result = vk::textToHeader(text, record);
  require(result <= 0 && result >= kLastCheck, "the result is a check's number", text);
  const auto unread = static_cast<std::size_t>(result == 0 ? vk::kHeaderFields : -result - 1);
  for (std::size_t i = 0; i < vk::kHeaderFields; ++i) {
    require(isPlainValue(record.field[i]), "a value is one trimmed line", record.field[i]);
    require(i < unread || record.field[i].empty(), "nothing behind a fault", record.field[i]);
  }
  if (result == 0) checkWritten(text, record, name);
  return 0;
}
