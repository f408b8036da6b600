// SPDX-License-Identifier: MIT
// Saving the checked files of a card, one after the other, as pairs or as CSV.
#pragma once

#include <cstddef>
#include <cstdint>

#include "storage/mdlCardTransfer.h"

namespace vk {

enum SaveKind : int { kSaveBinary = 0, kSaveCsv = 1 };

struct CardSaved {
  bool any = false;    ///< a file was checked; the window empties its progress then
  int32_t failed = 0;  ///< of the checked files; what failed has been shown
  bool operator==(const CardSaved&) const = default;
};

/// For each checked row: overwrite question, the work, and after a failure the question whether to
/// go on.
CardSaved saveCheckedFiles(const CardReading& reading, SaveKind kind, const JobView& view);

/// kCardOk or kCardFailed. Fetches the row into the temporary folder and converts it. With division
/// on every file is numbered, however short the recording, and the first is asked about; the plain
/// name has been asked about before.
[[nodiscard]] int32_t convertToCsv(const CardReading& reading, std::size_t row,
                                   const JobView& view);

}  // namespace vk
