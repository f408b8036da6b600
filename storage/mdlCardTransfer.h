// SPDX-License-Identifier: MIT
// The transfer of one recording from a box's card, in blocks of 65536 bytes, to show it or to save
// it as a .dat and .hed pair. Both get their names when both are whole; only a data file whose
// blocks stop coming keeps its name without a header. What failed has been shown.
//
// A transfer that cannot be stored or is stopped reads what the box still has to send and drops it:
// the next command would take it for its own reply.
#pragma once

#include <cstdint>
#include <string>

#include "storage/mdlCardReading.h"
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

/// What a data file is fetched for.
enum ReadKind : int { kReadToSave = 0, kReadForCsv = 1, kReadToView = 2 };

struct CardFetch {
  int32_t serial = 0;
  CardEntry file;
  ReadKind kind = kReadToSave;
  /// To save under the entry's name and series, else the temporary folder: there the stem comes
  /// from the clock, the header stays as read, and both files are to be deleted at the end.
  std::string folder;
};

struct CardFetched {
  int32_t result = kCardFailed;
  std::string stem;     ///< path of the pair without extension
  HeaderRecord header;  ///< as read from the card
};

[[nodiscard]] CardFetched readDataFile(const CardFetch& what, const JobView& view);

/// The request for a viewer on a pair that was fetched.
WaveOpenRequest waveRequestOf(const CardFetched& fetched);

}  // namespace vk
