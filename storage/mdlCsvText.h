// SPDX-License-Identifier: MIT
// The texts of a CSV file: its head, its names, and its lines at speed. Line ends are CR LF; sample
// numbers count from 0 over the whole recording, line numbers from 1 in each file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "storage/mdlHedDataWork.h"

namespace vk {

/// What the user chooses for a conversion.
struct CsvOptions {
  bool division = false;         ///< chkDivision
  int32_t divisionCount = 5000;  ///< cmbDivision, samples of one file; above 0
  bool scaled = true;            ///< optCoeff(0): times the slope; else the raw numbers
};

/// The number format of the times at a rate; empty, the general form, where the table has no entry.
std::string_view timeFormat(int32_t rate);
/// Without its line end; the rate is not 0.
std::string csvTimeLine(int64_t firstSample, int64_t lastSample, int32_t rate);
/// All that stands before the first sample, line ends included. The times are of these samples.
/// Throws TypeMismatch when RATE does not read or is 0.
std::string csvHead(const HeaderRecord& header, int64_t firstSample, int64_t lastSample);

/// "stem_0001.csv"; number 0 stands for the one file of an undivided conversion, "stem.csv".
std::string csvFileName(std::string_view stem, int32_t number);
/// The head of one file of a divided conversion.
HeaderRecord csvPartHeader(const HeaderRecord& header, std::string_view fileName, int64_t samples);
/// SLOPE as one number per series. Throws TypeMismatch when an item is missing or does not read.
std::vector<float> slopesOf(const HeaderRecord& header);

/// Writes sample lines into memory. A raw sample has 65536 values only, so each series keeps the
/// text of every value that it has met and copies it from then on.
class CsvLines {
 public:
  /// Unscaled lines hold the raw numbers; of the slopes then only their count matters.
  CsvLines(std::span<const float> slopes, bool scaled);

  /// The longest line.
  std::size_t lineRoom() const;
  /// The next line is line 1 again.
  void restart() { number_ = {}; }

  struct Written {
    char* end;
    std::size_t lines;
  };
  /// Writes lines for `count` frames of little-endian words until `limit` is reached; the last line
  /// begins before it, so lineRoom() bytes behind it must be there.
  /// Throws TypeMismatch when a value leaves the range of a single.
  Written write(char* out, const char* limit, const unsigned char* frames, std::size_t count);

 private:
  /// "," and a number. Copied whole, whatever the length: that is a single move of 16 bytes.
  struct alignas(16) Cell {
    char text[15];
    unsigned char length;  ///< 0: the value has not come yet
  };
  struct Free {
    void operator()(Cell* cells) const { std::free(cells); }
  };
  struct Series {
    Cell* cells;
    float slope;
  };
  /// A line number counted up in its digits: all but the last, which stands alone, so that nine
  /// lines in ten copy bytes that were not just written.
  struct LineNumber {
    std::array<char, 16> front{};
    std::size_t frontLength = 0;
    unsigned last = 1;
    void countUp();
  };

  void fill(Cell& cell, uint16_t word, float slope) const;

  bool scaled_;
  std::vector<std::unique_ptr<Cell[], Free>> tables_;
  std::vector<Series> series_;
  LineNumber number_;
};

}  // namespace vk
