// SPDX-License-Identifier: MIT
#include "link/mdlCardDirectory.h"

#include <fmt/format.h>

#include <algorithm>

namespace vk {

std::vector<CardFile> gCardDirectory;

namespace {

constexpr std::size_t kEntryBytes = 32;
constexpr std::size_t kNameBytes = 8;
constexpr std::size_t kExtensionAt = 8;
constexpr std::size_t kTimeAt = 22;
constexpr std::size_t kDateAt = 24;
constexpr std::size_t kSizeAt = 28;
constexpr unsigned char kEndMark = 0;
constexpr unsigned char kDeletedMark = 0xE5;
constexpr std::size_t kFirstFileEntry = 2;

using Entry = std::span<const unsigned char>;

uint32_t littleEndian(Entry entry, std::size_t at, std::size_t bytes) {
  uint32_t value = 0;
  for (std::size_t i = bytes; i > 0; --i) value = value << 8 | entry[at + i - 1];
  return value;
}

std::string characters(Entry entry, std::size_t at, std::size_t count) {
  const auto part = entry.subspan(at, count);
  return {part.begin(), part.end()};
}

std::string stemOf(Entry entry) {
  std::string name = characters(entry, 0, kNameBytes);
  name.erase(name.find_last_not_of(' ') + 1);
  return name;
}

/// "yyyy/mm/dd hh:mm:ss". Nothing is checked: the words may hold a month 15 or a minute 63.
std::string stampOf(Entry entry) {
  const uint32_t time = littleEndian(entry, kTimeAt, 2);
  const uint32_t date = littleEndian(entry, kDateAt, 2);
  return fmt::format("{:04}/{:02}/{:02} {:02}:{:02}:{:02}", date / 512 + 1980, date / 32 & 15,
                     date & 31, time / 2048, time / 32 & 63, (time & 31) * 2);
}

CardFile dataFileOf(Entry entry, int64_t headerSize) {
  const int64_t size = littleEndian(entry, kSizeAt, 4);
  return {fmt::format("{}.DAT,{},{},{:05}", stemOf(entry), size, stampOf(entry), headerSize), size,
          headerSize};
}

}  // namespace

int32_t decodeCardDirectory(std::span<const unsigned char> image, std::vector<CardFile>& files) {
  files.clear();
  int64_t headerSize = 0;
  const std::size_t entries = std::min(image.size(), kDirectoryBytes) / kEntryBytes;
  for (std::size_t i = 0; i < entries; ++i) {
    const Entry entry = image.subspan(i * kEntryBytes, kEntryBytes);
    if (entry[0] == kEndMark) break;
    if (entry[0] == kDeletedMark || i < kFirstFileEntry) continue;
    const std::string extension = characters(entry, kExtensionAt, 3);
    if (extension == "HED") headerSize = littleEndian(entry, kSizeAt, 4);
    if (extension != "DAT") continue;
    if (files.size() == kMaxCardFiles) return kDirectoryOverrun;
    files.push_back(dataFileOf(entry, headerSize));
  }
  return 0;
}

}  // namespace vk
