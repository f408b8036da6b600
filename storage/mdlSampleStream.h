// SPDX-License-Identifier: MIT
// A wave data file read from its start to its end, frame by frame, in few large reads. Behind the
// end of the file all words are 0; half a word at the end is a missing word.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>

namespace vk {

class SampleStream {
 public:
  SampleStream() = default;
  ~SampleStream();
  SampleStream(const SampleStream&) = delete;
  SampleStream& operator=(const SampleStream&) = delete;

  /// A frame has 2 to 4096 bytes. Results are those of base/mdlFile.h.
  [[nodiscard]] int32_t open(const std::filesystem::path& path, std::size_t frameBytes);
  /// Reads on when no whole frame is left in memory.
  [[nodiscard]] int32_t more();
  /// What is in memory: whole frames not yet taken.
  const unsigned char* frames() const { return next_; }
  std::size_t count() const { return static_cast<std::size_t>(end_ - next_) / frameBytes_; }
  void take(std::size_t frames) { next_ += frames * frameBytes_; }

 private:
  static constexpr std::size_t kPage = 4096;
  static constexpr std::size_t kBlock = 256u << 10;
  /// Blocks are read behind the first page, because the kernel copies to whole pages far faster
  /// than to any other place. The piece of a frame that a block ends with goes in front of the next
  /// one.
  struct alignas(kPage) Buffer {
    std::array<unsigned char, kPage + kBlock> bytes;
    unsigned char* block() { return bytes.data() + kPage; }
  };

  int descriptor_ = -1;
  std::size_t frameBytes_ = 2;
  std::unique_ptr<Buffer> buffer_;
  const unsigned char* next_ = nullptr;
  const unsigned char* end_ = nullptr;
};

}  // namespace vk
