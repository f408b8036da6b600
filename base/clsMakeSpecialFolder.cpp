// SPDX-License-Identifier: MIT
#include "base/clsMakeSpecialFolder.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/mdlFile.h"
#include "base/mdlGeneral.h"

namespace vk {

namespace {

namespace fs = std::filesystem;

/// Empty when the platform has no such folder. An empty vendor adds no level.
fs::path ownFolder(SpecialFolder which, const std::string& vendor = {}) {
  fs::path folder = desktop().specialFolder(which);
  if (folder.empty()) return {};
  if (!vendor.empty()) folder /= vendor;
  return folder / desktop().applicationTitle();
}

std::string made(const fs::path& folder) {
  if (folder.empty()) return {};
  std::error_code ignored;
  fs::create_directories(folder, ignored);
  return withBackslash(folder.string());
}

bool isThere(const fs::path& folder) {
  std::error_code ignored;
  return !folder.empty() && fs::is_directory(folder, ignored);
}

bool copyContents(const fs::path& from, const fs::path& to) {
  std::ifstream source(from, std::ios::binary);
  FileWriter target;
  if (!source || target.open(to) != kFileOk) return false;
  std::array<char, 65536> block;
  while (source.read(block.data(), block.size()) || source.gcount() > 0) {
    if (target.write(block.data(), static_cast<std::size_t>(source.gcount())) != kFileOk) {
      return false;
    }
  }
  return !source.bad() && target.commit() == kFileOk;
}

bool copyInto(const fs::path& folder, const std::string& file, bool overwrite) {
  const std::string target = made(folder);
  std::error_code error;
  const fs::path source(file);
  if (target.empty() || !fs::is_regular_file(source, error)) return false;
  const fs::path copy = target / source.filename();
  if (fs::exists(copy, error)) {
    if (!overwrite) return false;
    if (fs::equivalent(source, copy, error)) return true;
  }
  return copyContents(source, copy);
}

}  // namespace

std::string clsMakeSpecialFolder::GetMyDocumentsPath() const {
  return made(ownFolder(SpecialFolder::kMyDocuments));
}

std::string clsMakeSpecialFolder::GetAppDataPath() const {
  return made(ownFolder(SpecialFolder::kAppData));
}

std::string clsMakeSpecialFolder::GetCommonAppDataPath() const {
  return made(ownFolder(SpecialFolder::kCommonAppData));
}

std::string clsMakeSpecialFolder::GetAppDataPath_WithNRV(const std::string& vendor) const {
  return made(ownFolder(SpecialFolder::kAppData, vendor));
}

std::string clsMakeSpecialFolder::GetCommonAppDataPath_WithNRV(const std::string& vendor) const {
  return made(ownFolder(SpecialFolder::kCommonAppData, vendor));
}

bool clsMakeSpecialFolder::ExistsMyDocumentsPath() const {
  return isThere(ownFolder(SpecialFolder::kMyDocuments));
}

bool clsMakeSpecialFolder::ExistsAppDataPath() const {
  return isThere(ownFolder(SpecialFolder::kAppData));
}

bool clsMakeSpecialFolder::ExistsCommonAppDataPath() const {
  return isThere(ownFolder(SpecialFolder::kCommonAppData));
}

bool clsMakeSpecialFolder::ExistsAppDataPath_WithNRV(const std::string& vendor) const {
  return isThere(ownFolder(SpecialFolder::kAppData, vendor));
}

bool clsMakeSpecialFolder::ExistsCommonAppDataPath_WithNRV(const std::string& vendor) const {
  return isThere(ownFolder(SpecialFolder::kCommonAppData, vendor));
}

bool clsMakeSpecialFolder::CopyFileToMyDocumentsPath(const std::string& file,
                                                     bool overwrite) const {
  return copyInto(ownFolder(SpecialFolder::kMyDocuments), file, overwrite);
}

bool clsMakeSpecialFolder::CopyFileToAppDataPath(const std::string& file, bool overwrite) const {
  return copyInto(ownFolder(SpecialFolder::kAppData), file, overwrite);
}

bool clsMakeSpecialFolder::CopyFileToCommonAppDataPath(const std::string& file,
                                                       bool overwrite) const {
  return copyInto(ownFolder(SpecialFolder::kCommonAppData), file, overwrite);
}

bool clsMakeSpecialFolder::CopyFileToAppDataPath_WithNRV(const std::string& vendor,
                                                         const std::string& file,
                                                         bool overwrite) const {
  return copyInto(ownFolder(SpecialFolder::kAppData, vendor), file, overwrite);
}

bool clsMakeSpecialFolder::CopyFileToCommonAppDataPath_WithNRV(const std::string& vendor,
                                                               const std::string& file,
                                                               bool overwrite) const {
  return copyInto(ownFolder(SpecialFolder::kCommonAppData, vendor), file, overwrite);
}

}  // namespace vk
