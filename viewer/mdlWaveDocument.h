// SPDX-License-Identifier: MIT
// What one viewer window holds: the series it shows, chosen from up to 128 data files over one
// common range of data numbers, and the statistics of each series in each column of the picture.
// Samples are never kept. Columns and series count from 0, data numbers from 1, positions from the
// start of the view.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "storage/mdlHedDataWork.h"
#include "storage/mdlWaveOpenRequest.h"

namespace vk {

/// The most series a view has.
inline constexpr int32_t kMaxWaveSeries = 128;

/// One series, by column. A column without samples keeps the values that it starts with.
struct SeriesColumns {
  std::vector<int16_t> maxValue;    ///< raw; starts at -32768
  std::vector<int16_t> minValue;    ///< starts at 32767
  std::vector<double> average;      ///< starts at 0
  std::vector<int16_t> firstValue;  ///< of the column's first sample
  std::vector<int32_t> maxPos;      ///< the first position with maxValue
  std::vector<int32_t> minPos;
  std::vector<int32_t> firstPos;
  std::vector<int32_t> count;  ///< samples in the column
  int16_t lastValue = 0;       ///< the very last sample of the view

  explicit SeriesColumns(int32_t columns = 0);
  bool operator==(const SeriesColumns&) const = default;
};

struct WaveDocument {
  WaveOpenRequest request;
  HeaderRecord viewHeader;  ///< built for the view, never read from one file
  /// False when the header of a file could not be read: then no series is shown.
  bool complete = false;
  std::vector<std::string> name;  ///< of each series, as the lists of viewHeader hold them
  std::vector<std::string> unit;
  std::vector<float> slope;
  int32_t firstIndex = 0;      ///< firstDataNumber - 1
  int32_t lastIndex = 0;       ///< lastDataNumber - 1
  double viewStartTime = 0;    ///< seconds of position 0
  std::string viewTimeFormat;  ///< of seconds; empty, the general form, for an unlisted rate

  int32_t series() const { return static_cast<int32_t>(name.size()); }
  /// Samples of the view; at least 1 in a view that was made by a dialog.
  int64_t samples() const { return int64_t{lastIndex} - firstIndex + 1; }
  /// Seconds, in viewTimeFormat.
  std::string timeText(double seconds) const;
  /// The time of a sample of the file (0-based).
  std::string timeOfIndex(int64_t index) const;
  /// The time of a position of the view.
  std::string timeOfPosition(int64_t position) const;
};

/// Reads the headers of the request's files. A view of a rate of 0, of a range without samples, of
/// more than kMaxWaveSeries series, or whose header or slope does not read is not complete and has
/// no series.
WaveDocument makeWaveDocument(const WaveOpenRequest& request);

/// "NAME.DAT [USB read]  0.00 - 1.00sec": [USB read] for a pair in the temporary folder.
std::string waveCaption(const WaveDocument& document, std::string_view temporaryFolder);

/// One file of a view and the channels that are shown of it.
struct WaveSource {
  std::string path;               ///< the data file, in the letter case that is there
  int32_t seriesInFile = 0;       ///< samples of an instant
  std::vector<int32_t> channels;  ///< 1-based, in list order
};
/// The files in order. Throws TypeMismatch when a channel does not read or is not in its file.
std::vector<WaveSource> waveSources(const WaveOpenRequest& request);

}  // namespace vk
