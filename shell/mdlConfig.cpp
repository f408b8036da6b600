// SPDX-License-Identifier: MIT
#include "shell/mdlConfig.h"

#include <exception>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include "base/mdlDataFolder.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "link/mdlUSBCommand.h"
#include "link/vk240q_lib.h"
#include "monitors/mdlMonitorCycle.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

int32_t gStartMode = 0;

namespace {

namespace fs = std::filesystem;

constexpr const char* kDefaultFolder = "d:\\";
/// Far above any real file; a larger one is not ours.
constexpr std::size_t kLargestFile = 1U << 20;

/// The file that is there, which may spell its extension in capitals.
std::optional<fs::path> findConfig() {
  return dataFolderExists() ? findFileAnyCase(configPath()) : std::nullopt;
}

/// True when the whole file was taken.
bool readFileIfAny() {
  auto file = findConfig();
  if (!file) {
    writeConfig();
    file = findConfig();
  }
  const std::string temporary = tempFolder();
  if (temporary.empty()) return false;
  std::error_code ignored;
  if (folderMissing(temporary)) fs::create_directories(temporary, ignored);
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
