// SPDX-License-Identifier: MIT
#include "storage/mdlSampleStream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <tuple>

#include "base/mdlFile.h"

namespace vk {

SampleStream::~SampleStream() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

int32_t SampleStream::open(const std::filesystem::path& path, std::size_t frameBytes) {
  if (descriptor_ >= 0) ::close(descriptor_);
  frameBytes_ = std::clamp<std::size_t>(frameBytes, 2, kPage);
  if (!buffer_) buffer_ = std::make_unique_for_overwrite<Buffer>();
  next_ = end_ = buffer_->block();
  // Not blocking: opening a pipe that nobody writes to must not hang.
  descriptor_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor_ < 0) return fileErrorOf(errno);
  struct stat status {};
  if (::fstat(descriptor_, &status) != 0) return fileErrorOf(errno);
  if (!S_ISREG(status.st_mode)) return kFileOther;
  std::ignore = ::posix_fadvise(descriptor_, 0, 0, POSIX_FADV_SEQUENTIAL);
  return kFileOk;
}

int32_t SampleStream::more() {
  if (count() > 0) return kFileOk;
  unsigned char* const block = buffer_->block();
  const auto carried = end_ - next_;
  std::copy(next_, end_, block - carried);
  next_ = block - carried;
  end_ = block + kBlock;
  for (std::size_t filled = 0; filled < kBlock;) {
    const auto got = ::read(descriptor_, block + filled, kBlock - filled);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return fileErrorOf(errno);
    if (got == 0) {
      std::fill(block + filled / 2 * 2, block + kBlock, static_cast<unsigned char>(0));
      break;
    }
    filled += static_cast<std::size_t>(got);
  }
  return kFileOk;
}

}  // namespace vk
