// SPDX-License-Identifier: MIT
// Files. Text files have CR LF line ends. A file is written without a name in its target's folder,
// flushed to disk and then named, so that a crash or a full disk leaves the old file whole and
// nothing beside it. Where the file system knows no files without a name it has a hidden temporary
// one; what a killed program left of these goes when the next one first writes in that folder.
// Only a writer of many new files puts the flush off to the last of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vk {

// Run-time error numbers that fileErrorText translates; 0 is success.
inline constexpr int32_t kFileOk = 0;
inline constexpr int32_t kFileNoMemory = 7;
inline constexpr int32_t kFileBadName = 52;
inline constexpr int32_t kFileNotFound = 53;
inline constexpr int32_t kFileTooMany = 67;
inline constexpr int32_t kFileDenied = 70;  // no permission, read-only or locked
inline constexpr int32_t kFileOther = 75;   // anything else, a missing path or a full disk too

/// The number for an errno value.
int32_t fileErrorOf(int errnoValue);

/// Streams a file to its target. Nothing stands under the target's name until commit() succeeds;
/// destroying the writer without a commit removes what was written.
class FileWriter {
 public:
  FileWriter() = default;
  ~FileWriter();
  FileWriter(const FileWriter&) = delete;
  FileWriter& operator=(const FileWriter&) = delete;

  [[nodiscard]] int32_t open(const std::filesystem::path& target);
  /// The bytes written, all or an error; after an error every further call fails the same way.
  [[nodiscard]] int32_t write(const void* bytes, std::size_t count);
  [[nodiscard]] int32_t write(std::string_view text) { return write(text.data(), text.size()); }
  /// Flushes to disk all but the name: commit() then only names, so that several files can get
  /// their names one right behind the other.
  [[nodiscard]] int32_t prepare();
  /// Flushes to disk and gives the file its name. Also used to keep a partial file on purpose.
  [[nodiscard]] int32_t commit();
  /// The same without waiting for the disk: the file stands whole under its name for whoever
  /// looks, and the disk has begun to write it. Until flushFolder() a crash of the system may lose
  /// it, or on some file systems leave it cut. So not for a file that replaces another.
  [[nodiscard]] int32_t commitUnflushed();
  /// Drops what was written.
  void discard();
  bool isOpen() const { return descriptor_ >= 0; }

 private:
  void nameLater();
  int32_t giveName();

  int descriptor_ = -1;
  int32_t error_ = kFileOk;
  bool prepared_ = false;
  uint64_t written_ = 0;
  uint64_t flushed_ = 0;
  std::filesystem::path target_;
  std::filesystem::path name_;  // the temporary one, empty for none
};

/// Flushes all that was written to the folder's file system, contents and names.
[[nodiscard]] int32_t flushFolder(const std::filesystem::path& folder);

/// Replaces the whole file by `text`, as it stands.
[[nodiscard]] int32_t writeWholeFile(const std::filesystem::path& path, std::string_view text);
/// Replaces the file by `text` followed by one CR LF.
[[nodiscard]] int32_t writeTextFile(const std::filesystem::path& path, std::string_view text);
/// The file's lines, each followed by CR LF, whatever line ends (CR LF, CR, LF) it has.
/// At most `limit` bytes are taken; a longer file gives kFileNoMemory.
[[nodiscard]] int32_t readTextFile(const std::filesystem::path& path, std::string& text,
                                   std::size_t limit = 64u << 20);

/// An existing file: the exact name, else one of the same stem whose extension differs in letter
/// case only.
std::optional<std::filesystem::path> findFileAnyCase(const std::filesystem::path& path);

}  // namespace vk
