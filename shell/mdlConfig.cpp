// SPDX-License-Identifier: MIT
#include "shell/mdlConfig.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "link/mdlBoxTable.h"
#include "link/mdlUSBCommand.h"
#include "link/vk240q_lib.h"
#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorRecords.h"
#include "shell/clsMakeSpecialFolder.h"

namespace vk {

int32_t gStartMode = 0;

namespace {

namespace fs = std::filesystem;

constexpr const char* kVendor = "NRV";
constexpr const char* kFileName = "VK480Q.cfg";
constexpr const char* kDefaultFolder = "d:\\";
/// Far above any real file; a larger one is not ours.
constexpr std::size_t kLargestFile = 1U << 20;

std::string dataFolder() {
  return clsMakeSpecialFolder().GetCommonAppDataPath_WithNRV(kVendor);
}

std::string below(const std::string& folder, const std::string& name) {
  return folder.empty() ? std::string() : withBackslash(folder) + name;
}

/// The file that is there, which may spell its extension in capitals.
std::optional<fs::path> findConfig(const std::string& folder) {
  if (folder.empty()) return std::nullopt;
  return findFileAnyCase(below(folder, kFileName));
}

/// True when the whole file was taken.
bool readFileIfAny() {
  const clsMakeSpecialFolder folders;
  std::string folder;
  if (folders.ExistsCommonAppDataPath_WithNRV(kVendor)) folder = dataFolder();
  auto file = findConfig(folder);
  if (!file) {
    writeConfig();
    folder = dataFolder();
    file = findConfig(folder);
  }
  if (folder.empty()) return false;
  const std::string temporary = below(folder, "tmp");
  std::error_code ignored;
  if (folderMissing(temporary)) fs::create_directory(temporary, ignored);
  std::string text;
  if (!file || readTextFile(*file, text, kLargestFile) != kFileOk) return false;
  return readConfigText(text);
}

/// A read-only file stays, as it does wherever nobody forces the deletion.
void deleteFile(const fs::path& path) {
  constexpr auto kWritable =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code error;
  const fs::file_status status = fs::symlink_status(path, error);
  if (error || fs::is_directory(status)) return;
  if ((status.permissions() & kWritable) == fs::perms::none) return;
  fs::remove(path, error);
}

void clearFolder(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> files;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    files.push_back(entry->path());
  }
  for (const fs::path& file : files) deleteFile(file);
}

}  // namespace

std::string configPath() {
  return below(dataFolder(), kFileName);
}

std::string tempFolder() {
  const std::string folder = dataFolder();
  return folder.empty() ? folder : withBackslash(below(folder, "tmp"));
}

void setDefaults() {
  resetMonitorRecords();
  gShowShortcut = true;
  gShowStatus = true;
  gStatusMode = 0;
  gMainBox = 1;
  gStatusContents = 0;
  gDefaultFolder = kDefaultFolder;
  resetBoxTable();
  resetMonitorCycle();
  gStartMode = 0;
  Vk240qSetReadTimeout(kTimeoutDefault);
}

void readConfig() {
  bool complete = false;
  try {
    complete = readFileIfAny();
  } catch (const std::exception&) {
    // What was read so far stays.
  }
  if (complete && !gDefaultFolder.empty()) return;
  const std::string folder = dataFolder();
  if (!folder.empty()) gDefaultFolder = folder;
}

bool writeConfig() {
  const std::string path = configPath();
  return !path.empty() && writeTextFile(path, configText()) == 0;
}

void clearTempFiles(bool all, std::string_view fileList) {
  const std::string folder = tempFolder();
  if (all && !folder.empty()) clearFolder(folder);
  while (true) {
    const std::string_view line = fileList.substr(0, fileList.find("\r\n"));
    if (line.empty()) return;
    deleteFile(fs::path(line));
    if (line.size() == fileList.size()) return;
    fileList.remove_prefix(line.size() + 2);
  }
}

}  // namespace vk
