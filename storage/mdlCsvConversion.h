// SPDX-License-Identifier: MIT
// Recordings into CSV files, streamed: memory does not depend on the recording's length. Every file
// gets its name when it is whole, so a conversion that fails or is stopped leaves the files
// finished so far and no piece of another one. A file alone or one that replaces another is flushed
// before it gets its name; the new parts of a divided conversion are flushed together at its end,
// so that a crash of the system before it may lose some of them. What failed has been shown when a
// function returns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "storage/mdlCardReading.h"

namespace vk {

/// One recording and where it goes.
struct CsvJob {
  std::string source;   ///< the data file; too short, it reads as 0 behind its end
  HeaderRecord header;  ///< checked
  std::string folder;   ///< the files' folder
  std::string stem;     ///< what their names begin with
  CsvOptions options;   ///< division here is whether files are numbered
  /// The first file asks before it overwrites; later ones always do. Without, the user has said
  /// "Yes" already.
  bool askFirst = false;
};

/// The user did not want it: "No" to overwriting, or stopped.
inline constexpr int32_t kCsvCanceled = -2;

/// kCardOk, kCardFailed or kCsvCanceled, which a view that stops it gives too. An exact multiple of
/// the division count ends with a file of head only.
[[nodiscard]] int32_t convertRecording(const CsvJob& job, const JobView& view);

/// The box for a header that cannot be used.
void showBadHeader();

}  // namespace vk
