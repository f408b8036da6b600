// SPDX-License-Identifier: MIT
#include "storage/mdlFolderList.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "base/clsDesktop.h"
#include "base/mdlGeneral.h"

namespace vk {

namespace {

namespace fs = std::filesystem;

/// The mount table writes blanks, tabs, line ends and backslashes as three octal digits.
std::string unescaped(std::string_view field) {
  const auto octal = [](char c) { return c >= '0' && c <= '7'; };
  std::string text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] == '\\' && i + 3 < field.size() && octal(field[i + 1]) && octal(field[i + 2]) &&
        octal(field[i + 3])) {
      text += static_cast<char>((field[i + 1] - '0') * 64 + (field[i + 2] - '0') * 8 +
                                (field[i + 3] - '0'));
      i += 3;
    } else {
      text += field[i];
    }
  }
  return text;
}

bool isMedia(std::string_view mountPoint) {
  return mountPoint.starts_with("/media/") || mountPoint.starts_with("/run/media/") ||
         mountPoint.starts_with("/mnt/") || mountPoint == "/mnt";
}

std::string withoutSeparator(std::string text) {
  while (text.size() > 1 && text.back() == '/') text.pop_back();
  return text;
}

bool lessNoCase(const std::string& a, const std::string& b) {
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  const auto less = [&](char x, char y) { return lower(x) < lower(y); };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) return true;
  if (std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), less)) return false;
  return a < b;
}

}  // namespace

int32_t gFolderRole = kFolderSave;

std::string folderCaption(int32_t role) {
  return role == kFolderSave ? "Save Folder selection" : "Read Folder selection";
}

std::string folderText(int32_t role) {
  return role == kFolderSave ? "Select the Folder to save." : "Select the Folder to read.";
}

std::vector<std::string> drivesOf(std::string_view mountTable, const std::string& documents) {
  std::vector<std::string> drives{"/"};
  const auto add = [&](const std::string& drive) {
    if (!drive.empty() && std::find(drives.begin(), drives.end(), drive) == drives.end()) {
      drives.push_back(drive);
    }
  };
  add(withoutSeparator(documents));
  std::istringstream lines{std::string(mountTable)};
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string device;
    std::string mountPoint;
    if (fields >> device >> mountPoint && isMedia(mountPoint)) add(unescaped(mountPoint));
  }
  return drives;
}

std::vector<std::string> currentDrives() {
  std::ifstream file("/proc/self/mounts", std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return drivesOf(text.str(), desktop().specialFolder(SpecialFolder::kMyDocuments).string());
}

std::size_t driveOf(const std::vector<std::string>& drives, std::string_view path) {
  std::size_t best = 0;
  std::size_t length = 0;
  for (std::size_t i = 0; i < drives.size(); ++i) {
    const std::string drive = withBackslash(drives[i]);
    if (drive.size() > length && withBackslash(path).starts_with(drive)) {
      best = i;
      length = drive.size();
    }
  }
  return best;
}

bool folderReadable(const std::string& path) {
  std::error_code error;
  const fs::directory_iterator entries(path, error);
  return !error;
}

std::vector<std::string> subfolders(const std::string& path) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(path, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    std::error_code unknown;
    const std::string name = entry->path().filename().string();
    if (!name.starts_with('.') && entry->is_directory(unknown)) names.push_back(name);
  }
  std::sort(names.begin(), names.end(), lessNoCase);
  return names;
}

std::string pathAfterDrive(const std::string& drive, const std::string& path) {
  return folderReadable(drive) ? drive : path;
}

void chooseFolder(const std::string& path) {
  gDefaultFolder = path;
}

}  // namespace vk
