// SPDX-License-Identifier: MIT
//
// The CF card of a recorder: its recordings, how much room is left, how fast it is, and its root
// directory as the 16384 bytes that a FAT file system keeps of it.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "instrument/simulator/recording.h"

namespace vksim {

inline constexpr std::size_t kDirectoryBytes = 16384;
inline constexpr std::size_t kMostRecordings = 254;  ///< pairs of entries behind the first two

enum class CardSpeed { kFast, kMedium, kSlow };

/// Ways in which a directory can be spoilt.
enum class DirectoryDamage {
  kNone,
  kRandom,     ///< every byte is nonsense
  kCrowded,    ///< more .DAT entries than a recorder can have made
  kNoHeaders,  ///< .DAT entries without their .HED
  kNoEnd,      ///< all entries deleted, no end mark
  kWildSizes,  ///< sizes of 4 GB less a byte
};

struct CardFile {
  std::string stem;  ///< eight characters, upper case
  std::string header;
  Recording recording;
  DateTime written;
};

struct Card {
  bool inserted = true;
  bool full = false;  ///< no room, whatever the files say
  CardSpeed speed = CardSpeed::kFast;
  std::int64_t capacity = 512LL << 20;
  std::vector<CardFile> files;

  [[nodiscard]] std::int64_t freeBytes() const;
  /// How many more recordings of that many bytes fit.
  [[nodiscard]] std::int64_t roomFor(std::int64_t dataBytes) const;
  [[nodiscard]] double bytesPerSecond() const;
  [[nodiscard]] std::string nextStem() const;

  /// The bytes of "NAME.DAT" or "NAME.HED"; null for a name that is not on the card.
  [[nodiscard]] std::unique_ptr<ByteSource> open(std::string_view name) const;
  [[nodiscard]] const CardFile* find(std::string_view stem) const;

  [[nodiscard]] std::string directory(DirectoryDamage damage = DirectoryDamage::kNone) const;
};

}  // namespace vksim
