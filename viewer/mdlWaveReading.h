// SPDX-License-Identifier: MIT
// The one pass over the data files of a view that boils them down to columns. Column c of `width`
// begins at the whole part of c * samples / width; with fewer samples than columns each sample has
// a column and the rest stay as they start. Files are read one after the other in large blocks; a
// file that is too short reads as 0.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "base/mdlJob.h"
#include "viewer/mdlWaveDocument.h"

namespace vk {

enum class WaveRead {
  kWhole,
  kStopped,  ///< by the view, seen within a few milliseconds
  kFailed,   ///< a file does not open or read; columns not reached stay as they start
};

struct WaveReading {
  const WaveDocument& document;
  int32_t width = 0;     ///< columns
  bool averages = true;  ///< else `average` stays 0
};

/// A column of the series `first` to `first + count - 1` has been filled.
using ColumnReady = std::function<void(int32_t first, int32_t count, int32_t column)>;

/// Makes `columns` new, one element for each series, and fills it. Yields every few milliseconds
/// when the view can stop it, else never.
[[nodiscard]] WaveRead readWaveColumns(const WaveReading& what, std::vector<SeriesColumns>& columns,
                                       const ColumnReady& ready, const JobView& view);

}  // namespace vk
