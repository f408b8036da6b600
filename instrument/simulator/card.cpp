// SPDX-License-Identifier: MIT
#include "instrument/simulator/card.h"

#include <fmt/format.h>

#include <algorithm>

#include "instrument/simulator/numbers.h"

namespace vksim {
namespace {

constexpr std::size_t kEntryBytes = 32;
constexpr std::int64_t kCluster = 16384;
constexpr char kVolumeLabel = 0x08;
constexpr char kArchive = 0x20;
constexpr char kDeleted = static_cast<char>(0xE5);
constexpr std::uint32_t kWildSize = 0xFFFFFFFF;

std::int64_t inClusters(std::int64_t bytes) {
  return (bytes + kCluster - 1) / kCluster * kCluster;
}

void put(std::string& entry, std::size_t at, std::uint32_t value, int bytes) {
  for (int i = 0; i < bytes; ++i)
    entry[at + static_cast<std::size_t>(i)] = static_cast<char>((value >> (8 * i)) & 0xFF);
}

std::string entryOf(std::string_view stem, std::string_view extension, char attribute,
                    const DateTime& written, std::uint32_t size) {
  std::string entry = fmt::format("{:<8.8}{:<3.3}", stem, extension);
  entry.resize(kEntryBytes, '\0');
  entry[11] = attribute;
  const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
  put(entry, 22,
      number(written.hour) << 11 | number(written.minute) << 5 | number(written.second) / 2, 2);
  put(entry, 24,
      number(std::max(written.year - 1980, 0)) << 9 | number(written.month) << 5 |
          number(written.day),
      2);
  put(entry, 28, size, 4);
  return entry;
}

std::string damaged(DirectoryDamage damage) {
  std::string image;
  if (damage == DirectoryDamage::kRandom) {
    std::uint32_t x = 2463534242U;
    for (std::size_t i = 0; i < kDirectoryBytes; ++i) {
      x ^= x << 13;
      x ^= x >> 17;
      x ^= x << 5;
      image += static_cast<char>(x & 0xFF);
    }
  } else if (damage == DirectoryDamage::kCrowded) {
    const DateTime date{2026, 1, 1, 0, 0, 0};
    for (int i = 0; i < 512; ++i)
      image += entryOf(fmt::format("DAT{:05}", i), "DAT", kArchive, date, 2048);
  }
  image.resize(kDirectoryBytes, kDeleted);
  return image;
}

}  // namespace

std::int64_t Card::freeBytes() const {
  if (full) return 0;
  std::int64_t used = 0;
  for (const CardFile& file : files)
    used += inClusters(static_cast<std::int64_t>(file.header.size())) +
            inClusters(file.recording.dataBytes());
  return std::max<std::int64_t>(capacity - used, 0);
}

std::int64_t Card::roomFor(std::int64_t dataBytes) const {
  if (files.size() >= kMostRecordings) return 0;
  const auto entries = static_cast<std::int64_t>(kMostRecordings - files.size());
  return std::min(freeBytes() / (inClusters(dataBytes) + kCluster), entries);
}

double Card::bytesPerSecond() const {
  switch (speed) {
    case CardSpeed::kFast:
      return 8e6;
    case CardSpeed::kMedium:
      return 2e6;
    case CardSpeed::kSlow:
      break;
  }
  return 2e5;
}

std::string Card::nextStem() const {
  std::int64_t last = 0;
  for (const CardFile& file : files)
    if (file.stem.starts_with("DAT"))
      last = std::max(last, digits(file.stem.substr(3)).value_or(0));
  return fmt::format("DAT{:05}", last + 1);
}

const CardFile* Card::find(std::string_view stem) const {
  const auto found = std::find_if(files.begin(), files.end(),
                                  [&](const CardFile& file) { return file.stem == stem; });
  return found == files.end() ? nullptr : &*found;
}

std::unique_ptr<ByteSource> Card::open(std::string_view name) const {
  const bool data = name.ends_with(".DAT");
  if (!data && !name.ends_with(".HED")) return nullptr;
  const CardFile* const file = find(name.substr(0, name.size() - 4));
  if (file == nullptr) return nullptr;
  if (data) return std::make_unique<SampleSource>(file->recording);
  return std::make_unique<TextSource>(file->header);
}

std::string Card::directory(DirectoryDamage damage) const {
  if (damage == DirectoryDamage::kRandom || damage == DirectoryDamage::kCrowded ||
      damage == DirectoryDamage::kNoEnd)
    return damaged(damage);
  const DateTime made{2025, 4, 1, 9, 0, 0};
  // The label, the recorder's own file, and the trace of a file that was deleted.
  std::string image = entryOf("VK-9480", "", kVolumeLabel, made, 0);
  image += entryOf("VKSYSTEM", "INI", kArchive, made, 512);
  image += entryOf("DAT00000", "DAT", kArchive, made, 4096);
  image[2 * kEntryBytes] = kDeleted;
  for (const CardFile& file : files) {
    const bool wild = damage == DirectoryDamage::kWildSizes;
    const auto size = [&](std::int64_t bytes) {
      return wild ? kWildSize : static_cast<std::uint32_t>(bytes);
    };
    if (damage != DirectoryDamage::kNoHeaders)
      image += entryOf(file.stem, "HED", kArchive, file.written,
                       size(static_cast<std::int64_t>(file.header.size())));
    image += entryOf(file.stem, "DAT", kArchive, file.written, size(file.recording.dataBytes()));
  }
  image.resize(kDirectoryBytes, '\0');
  return image;
}

}  // namespace vksim
