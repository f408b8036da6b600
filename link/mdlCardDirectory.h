// SPDX-License-Identifier: MIT
// The root directory of a recorder's card: a FAT directory image of 512 entries of 32 bytes, read
// as 32 blocks of 512 bytes. Only files with the extensions HED and DAT count, in upper case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vk {

inline constexpr std::size_t kDirectoryBytes = 16384;
inline constexpr std::size_t kMaxCardFiles = 255;
inline constexpr int32_t kDirectoryOverrun = 9;

struct CardFile {
  std::string text;        ///< "NAME.DAT,size,yyyy/mm/dd hh:mm:ss,hhhhh"
  int64_t size = 0;        ///< bytes of the DAT
  int64_t headerSize = 0;  ///< bytes of the HED seen last before it, 0 without one
};

/// The files of the last directory read, in card order.
extern std::vector<CardFile> gCardDirectory;

/// 0, or kDirectoryOverrun when the image holds more than 255 DAT files (the first 255 are kept).
[[nodiscard]] int32_t decodeCardDirectory(std::span<const unsigned char> image,
                                          std::vector<CardFile>& files);

}  // namespace vk
