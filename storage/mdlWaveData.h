// SPDX-License-Identifier: MIT
// Wave data files: signed 16-bit little-endian words without head or trailer, one frame of
// NUM_SERIES words per instant. The length is stored nowhere; readers trust the header, and a
// file that is too short reads as 0 behind its end.
#pragma once

#include <cstdint>
#include <istream>
#include <span>

#include "storage/mdlHedDataWork.h"

namespace vk {

/// Bytes of one instant. Throws TypeMismatch when NUM_SERIES does not read as a whole number.
int64_t frameBytes(const HeaderRecord& header);
/// Byte position of sample `sample` (from 0) of series `series` (from 0).
int64_t samplePosition(int64_t sample, int32_t series, int32_t numSeries);
/// Fills all words from the current position; true when the file held them all.
bool readFrame(std::istream& file, std::span<int16_t> words);
/// A raw sample in the unit of its series, in single precision.
float sampleValue(int16_t raw, float slope);

}  // namespace vk
