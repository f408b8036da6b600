// SPDX-License-Identifier: MIT
// Header files: a small key and value text beside each wave data file. All values stay text.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vk {

/// In the order of the header keys; the lines of a file have X_OFFSET before Y_OFFSET.
enum HeaderField : std::size_t {
  kDataset,
  kVersion,
  kSeries,
  kDate,
  kTime,
  kRate,
  kVertUnits,
  kHorzUnits,
  kNumSeries,
  kStorageMode,
  kFileType,
  kSlope,
  kYOffset,
  kXOffset,
  kNumSamps,
  kHeaderFields
};

struct HeaderRecord {
  std::array<std::string, kHeaderFields> field;
  std::string& operator[](HeaderField which) { return field[which]; }
  const std::string& operator[](HeaderField which) const { return field[which]; }
  bool operator==(const HeaderRecord&) const = default;
};

/// 0, or the negative number of the first check that fails (-2 VERSION ... -15 NUM_SAMPS).
[[nodiscard]] int32_t checkHeaderText(std::string_view text);
/// Returns 0; a value that cannot be read gives its check number and leaves the rest empty.
[[nodiscard]] int32_t textToHeader(std::string_view text, HeaderRecord& record);
/// The .hed text without a line end behind its last line. When the extension of fileName is
/// exactly "hed", DATASET is the file's own stem.
std::string headerToText(const HeaderRecord& record, std::string_view fileName);
/// The same lines with a comma for the blank.
std::string headerToCsvText(const HeaderRecord& record);

}  // namespace vk
