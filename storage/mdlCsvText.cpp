// SPDX-License-Identifier: MIT
#include "storage/mdlCsvText.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <new>

#include "base/mdlGeneral.h"
#include "base/mdlText.h"
#include "storage/mdlWaveData.h"

namespace vk {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kRawValues = 65536;
/// Frames by which texts are asked for ahead: those of a noisy signal lie all over the table.
constexpr std::size_t kAhead = 4;

uint16_t wordAt(const unsigned char* bytes) {
  return static_cast<uint16_t>(bytes[0] | bytes[1] << 8);
}

}  // namespace

std::string_view timeFormat(int32_t rate) {
  switch (rate) {
    case 10:
      return "0.0";
    case 20:
    case 50:
    case 100:
      return "0.00";
    case 200:
    case 500:
    case 1000:
      return "0.000";
    case 2000:
    case 5000:
    case 10000:
      return "0.0000";
    case 20000:
      return "0.00000";
    default:
      return "";
  }
}

std::string csvTimeLine(int64_t firstSample, int64_t lastSample, int32_t rate) {
  const auto seconds = [rate](int64_t sample) {
    return formatNumber(static_cast<double>(sample) / rate, timeFormat(rate));
  };
  return "CSV Data," + seconds(firstSample) + "sec - " + seconds(lastSample) + "sec";
}

std::string csvHead(const HeaderRecord& header, int64_t firstSample, int64_t lastSample) {
  const int32_t rate = toWhole(header[kRate]);
  if (rate == 0) throw TypeMismatch(header[kRate]);
  std::string text = csvTimeLine(firstSample, lastSample, rate);
  text.append(kLineEnd).append(headerToCsvText(header)).append(kLineEnd);
  return text.append(",").append(header[kSeries]).append(kLineEnd);
}

std::string csvFileName(std::string_view stem, int32_t number) {
  std::string name(stem);
  if (number > 0) name += "_" + formatNumber(number, "0000");
  return name + ".csv";
}

HeaderRecord csvPartHeader(const HeaderRecord& header, std::string_view fileName, int64_t samples) {
  HeaderRecord part = header;
  part[kDataset] = fileName.substr(0, fileName.rfind('.'));
  part[kNumSamps] = textOf(samples);
  return part;
}

std::vector<float> slopesOf(const HeaderRecord& header) {
  std::vector<float> slopes;
  const int32_t numSeries = toWhole(header[kNumSeries]);
  for (int32_t i = 1; i <= numSeries; ++i) slopes.push_back(toSingle(listField(header[kSlope], i)));
  return slopes;
}

CsvLines::CsvLines(std::span<const float> slopes, bool scaled) : scaled_(scaled) {
  const auto bitsOf = [scaled](float slope) { return scaled ? std::bit_cast<uint32_t>(slope) : 0; };
  for (const float slope : slopes) {
    // Series of one slope share their texts, which keeps more of them in the processor's cache.
    const auto same = std::find_if(series_.begin(), series_.end(), [&](const Series& other) {
      return bitsOf(other.slope) == bitsOf(slope);
    });
    if (same == series_.end()) {
      // Memory of zeros that the system hands out page by page as texts come.
      auto* cells = static_cast<Cell*>(std::calloc(kRawValues, sizeof(Cell)));
      if (!cells) throw std::bad_alloc();
      tables_.emplace_back(cells);
    }
    series_.push_back({same == series_.end() ? tables_.back().get() : same->cells, slope});
  }
}

std::size_t CsvLines::lineRoom() const {
  // A cell is copied whole, so the last one may reach behind its text.
  return sizeof(LineNumber::front) + (series_.size() + 1) * sizeof(Cell) + kLineEnd.size();
}

void CsvLines::LineNumber::countUp() {
  if (++last < 10) return;
  last = 0;
  std::size_t i = frontLength;
  while (i > 0 && front[i - 1] == '9') front[--i] = '0';
  if (i > 0) {
    ++front[i - 1];
    return;
  }
  // All nines: the digits behind the new one are zeros already.
  front[frontLength] = '0';
  front[0] = '1';
  ++frontLength;
}

void CsvLines::fill(Cell& cell, uint16_t word, float slope) const {
  const auto raw = static_cast<int16_t>(word);
  const float value = scaled_ ? sampleValue(raw, slope) : 0;
  if (!std::isfinite(value)) throw TypeMismatch(textOf(slope));
  const std::string text = scaled_ ? textOf(value) : textOf(int32_t{raw});
  // The longest single, "-0.00001234567", just has room.
  const std::size_t length = std::min(text.size(), sizeof(cell.text) - 1);
  cell.text[0] = ',';
  std::memcpy(cell.text + 1, text.data(), length);
  cell.length = static_cast<unsigned char>(length + 1);
}

CsvLines::Written CsvLines::write(char* out, const char* limit, const unsigned char* frames,
                                  std::size_t count) {
  const unsigned char* next = frames;
  std::size_t lines = 0;
  LineNumber number = number_;
  const std::size_t frameBytes = 2 * series_.size();
  for (; lines < count && out < limit; ++lines) {
    std::memcpy(out, number.front.data(), sizeof(number.front));
    out[number.frontLength] = static_cast<char>('0' + number.last);
    out += number.frontLength + 1;
    number.countUp();
    const std::size_t ahead = lines + kAhead < count ? kAhead * frameBytes : 0;
    for (const Series& series : series_) {
      __builtin_prefetch(&series.cells[wordAt(next + ahead)]);
      const uint16_t word = wordAt(next);
      next += 2;
      Cell& cell = series.cells[word];
      if (cell.length == 0) [[unlikely]]
        fill(cell, word, series.slope);
      std::memcpy(out, &cell, sizeof(cell));
      out += cell.length;
    }
    std::memcpy(out, kLineEnd.data(), kLineEnd.size());
    out += kLineEnd.size();
  }
  number_ = number;
  return {out, lines};
}

}  // namespace vk
