// SPDX-License-Identifier: MIT
#include "storage/mdlCsvFolder.h"

#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <ctime>
#include <filesystem>
#include <map>
#include <system_error>
#include <utility>

#include "base/clsDesktop.h"
#include "base/mdlBox.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
#include "base/mdlGuard.h"
#include "base/mdlText.h"

namespace vk {

namespace {

namespace fs = std::filesystem;

std::string lowerCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool byName(const std::string& a, const std::string& b) {
  const std::string x = lowerCase(a);
  const std::string y = lowerCase(b);
  return x != y ? x < y : a < b;
}

/// What a folder lists of recordings.
struct FolderNames {
  std::vector<std::string> dataFiles;
  /// By the name with the extension in lower case. One walk finds them all: looking each up would
  /// list the folder once per recording.
  std::map<std::string, std::string> headers;
};

FolderNames namesIn(const std::string& folder) {
  FolderNames names;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    const bool data = name.ends_with(".dat") || name.ends_with(".DAT");
    const bool header = equalNoCase(right(name, 4), ".hed");
    std::error_code unknown;
    if (!(data || header) || !entry->is_regular_file(unknown)) continue;
    if (data) names.dataFiles.push_back(name);
    if (!header) continue;
    const auto [known, isNew] = names.headers.try_emplace(withoutExtension(name) + ".hed", name);
    // The spelling that findFileAnyCase takes: the exact one, else the first.
    if (!isNew && known->second != known->first && (name == known->first || name < known->second))
      known->second = name;
  }
  std::sort(names.dataFiles.begin(), names.dataFiles.end(), byName);
  return names;
}

/// Local time, as a card's list has it.
std::string dateText(std::time_t time) {
  std::tm local{};
  if (!::localtime_r(&time, &local)) return {};
  const auto two = [](int number) { return formatNumber(number, "00"); };
  return formatNumber(local.tm_year + 1900, "0000") + "/" + two(local.tm_mon + 1) + "/" +
         two(local.tm_mday) + " " + two(local.tm_hour) + ":" + two(local.tm_min) + ":" +
         two(local.tm_sec);
}

bool readHeaderFile(const std::string& folder, const std::string& dataFile, HeaderRecord& header) {
  const auto path = findFileAnyCase(withBackslash(folder) + withoutExtension(dataFile) + ".hed");
  std::string text;
  return path && readTextFile(*path, text) == kFileOk && checkHeaderText(text) == 0 &&
         textToHeader(text, header) == 0;
}

int32_t convertFile(const CsvFolder& work, const CardEntry& file, const JobView& view) {
  CsvJob job;
  if (!readHeaderFile(work.folder[0], file.rowText, job.header)) {
    showBadHeader();
    return kCardFailed;
  }
  job.source = withBackslash(work.folder[0]) + file.rowText;
  job.folder = work.folder[1];
  job.stem = withoutExtension(file.rowText);
  job.options = work.options;
  if (toWhole(job.header[kNumSamps]) <= work.options.divisionCount) job.options.division = false;
  job.askFirst = true;
  return convertRecording(job, view);
}

}  // namespace

std::vector<CardEntry> recordingsIn(const std::string& folder) {
  std::vector<CardEntry> files;
  const FolderNames names = namesIn(folder);
  for (const std::string& name : names.dataFiles) {
    struct stat status {};
    if (::stat((withBackslash(folder) + name).c_str(), &status) != 0) continue;
    CardEntry& entry = files.emplace_back();
    entry.rowText = name;
    entry.size = status.st_size;
    entry.sizeText = textOf(entry.size);
    entry.date = dateText(status.st_mtime);
    const auto header = names.headers.find(withoutExtension(name) + ".hed");
    if (header == names.headers.end()) break;
    std::error_code error;
    const auto headerSize = fs::file_size(withBackslash(folder) + header->second, error);
    if (error) break;
    entry.headerSize = headerSize;
    entry.headerSizeText = textOf(entry.headerSize);
  }
  return files;
}

void listFolder(CsvFolder& work, const std::string& folder) {
  std::error_code error;
  const bool same = fs::equivalent(folder, work.folder[0], error);
  const std::vector<CardEntry> before = std::move(work.files);
  work.folder[0] = folder;
  work.files = recordingsIn(folder);
  if (!same) return;
  for (CardEntry& file : work.files) {
    file.checked = std::any_of(before.begin(), before.end(), [&](const CardEntry& old) {
      return old.checked && old.rowText == file.rowText;
    });
  }
}

bool readyToConvert(const CsvFolder& work, const JobView& view) {
  const bool any = std::any_of(work.files.begin(), work.files.end(),
                               [](const CardEntry& file) { return file.checked; });
  const std::string& needed = work.folder[any ? 1 : 0];
  if (!any && !work.typed) return false;
  if (folderMissing(needed) != 0) {
    showBox("File Error", "Folder does not exist.");
    return false;
  }
  if (!any) view.tell("check file.");
  return any;
}

int32_t convertCheckedFiles(const CsvFolder& work, const JobView& view) {
  const HourglassGuard hourglass;
  int32_t result = kCardOk;
  for (const CardEntry& file : work.files) {
    if (!file.checked) continue;
    if (desktop().ending() || (view.stopped && view.stopped())) result = kCsvCanceled;
    if (result != kCardOk) break;
    view.tellProgress(0);
    result = convertFile(work, file, view);
    if (result != kCardOk) break;
  }
  if (result == kCardOk) return kCardOk;
  // What is shown still says that a file is being converted.
  view.tell(result == kCsvCanceled ? "canceled." : "");
  return kCardFailed;
}

}  // namespace vk
