// SPDX-License-Identifier: MIT
#include "storage/mdlWaveData.h"

#include <algorithm>
#include <array>

#include "base/mdlText.h"

namespace vk {

namespace {
constexpr int64_t kWordBytes = 2;
}

int64_t frameBytes(const HeaderRecord& header) {
  return kWordBytes * toWhole(header[kNumSeries]);
}

int64_t samplePosition(int64_t sample, int32_t series, int32_t numSeries) {
  return kWordBytes * (sample * numSeries + series);
}

bool readFrame(std::istream& file, std::span<int16_t> words) {
  // Bytes are put together one by one, so the host's byte order does not matter.
  std::array<char, 128> bytes;
  bool whole = true;
  for (std::size_t done = 0; done < words.size();) {
    const std::size_t part = std::min(words.size() - done, bytes.size() / kWordBytes);
    bytes.fill(0);
    file.read(bytes.data(), static_cast<std::streamsize>(part * kWordBytes));
    const auto got = static_cast<std::size_t>(file.gcount());
    if (got < part * kWordBytes) {
      whole = false;
      // Half a word is a missing word.
      if (got % kWordBytes != 0) bytes[got - 1] = 0;
    }
    for (std::size_t i = 0; i < part; ++i) {
      const auto low = static_cast<unsigned char>(bytes[2 * i]);
      const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
      words[done + i] = static_cast<int16_t>(static_cast<uint16_t>(low | high << 8));
    }
    done += part;
  }
  return whole;
}

float sampleValue(int16_t raw, float slope) {
  return static_cast<float>(raw) * slope;
}

}  // namespace vk
