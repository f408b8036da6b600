// SPDX-License-Identifier: MIT
// The two cursors of each series and what is read between them, all from the cells of the columns:
// a reading costs nothing at any length of the recording and is exact to a column. Columns are
// pixels of the plot; a column without samples reads as it starts.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "viewer/mdlWaveDocument.h"
#include "viewer/mdlWaveTrace.h"

namespace vk {

inline constexpr int kCursors = 2;

/// What the readings of one series are taken from.
struct WaveCells {
  const WaveDocument& document;
  const std::vector<SeriesColumns>& columns;
  const WavePanels& panels;
};

struct CursorReading {
  int32_t markerTop = 0;
  std::string value;
  std::string time;
};
/// Nothing for a column outside the cells.
std::optional<CursorReading> cursorReading(const WaveCells& cells, int32_t series, double x);

/// A vertical line and its texts.
struct ExtremeReading {
  std::string value;
  std::string time;
  int32_t column = 0;
};
struct SectionExtremes {
  ExtremeReading max;  ///< the larger physical value, whatever the sign of the slope
  ExtremeReading min;
};
/// Between two columns, in either order; nothing in a section without samples.
std::optional<SectionExtremes> sectionExtremes(const WaveCells& cells, int32_t series, double x1,
                                               double x2);

struct SectionAverage {
  std::string value;
  std::optional<int32_t> row;  ///< inside the panel only
};
std::optional<SectionAverage> sectionAverage(const WaveCells& cells, int32_t series, double x1,
                                             double x2);

/// The series whose share of the picture's height a row is in; 0 for none.
int32_t seriesAtY(double y, int32_t pictureHeight, int32_t series);

/// The cursors of a window: where they stand, which one is held, which series are selected.
class WaveCursors {
 public:
  explicit WaveCursors(int32_t series = 0);

  double x(int32_t series, int cursor) const { return x_[series][cursor]; }
  void place(int32_t series, int cursor, double x) { x_[series][cursor] = x; }
  bool selected(int32_t series) const { return selected_[series]; }
  void toggleSelection(int32_t series);

  /// A press of the left button in a series takes the cursor that is near; false when none is.
  bool take(int32_t series, double x);
  void drop() { dragging = false; }
  /// Where the held cursor may stand: on the columns that hold samples.
  static double bounded(double x, const WaveDocument& document, int32_t width);
  /// The series that a move of one series' cursor moves.
  std::vector<int32_t> movedWith(int32_t series) const;

  bool shown = false;     ///< chkCur
  bool common = true;     ///< chkCurUnion: a cursor moves in all series
  bool dragging = false;  ///< a cursor is held
  int dragCursor = 0;     ///< 0 or 1; the one that keys move
  int32_t selectedSeries = 0;

 private:
  std::vector<std::array<double, kCursors>> x_;
  std::vector<char> selected_;
};

}  // namespace vk
