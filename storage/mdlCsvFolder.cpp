// SPDX-License-Identifier: MIT
#include "storage/mdlCsvFolder.h"

#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <ctime>
#include <filesystem>
#include <map>
#include <system_error>

#include "base/clsDesktop.h"
#include "base/mdlFile.h"
#include "base/mdlGeneral.h"
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

int32_t convertFile(const CsvFolder& work, const CardEntry& file) {
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
  return convertRecording(job, work.view);
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
    entry.headerSize = static_cast<int64_t>(headerSize);
    entry.headerSizeText = textOf(entry.headerSize);
  }
  return files;
}

bool readyToConvert(const CsvFolder& work) {
  if (std::none_of(work.files.begin(), work.files.end(),
                   [](const CardEntry& file) { return file.checked; })) {
    return false;
  }
  if (folderMissing(work.folder[1]) == 0) return true;
  desktop().messageBox("File Error", "Folder does not exist.", BoxButtons::kOk,
                       BoxIcon::kExclamation);
  return false;
}

int32_t convertCheckedFiles(const CsvFolder& work) {
  desktop().setHourglass(true);
  const auto showPercent = [&work](const char* text) {
    if (work.view.setPercent) work.view.setPercent(0);
    if (work.view.setPercentText) work.view.setPercentText(text);
  };
  int32_t result = kCardOk;
  for (const CardEntry& file : work.files) {
    if (!file.checked) continue;
    if (desktop().ending() || (work.view.stopped && work.view.stopped())) result = kCsvCanceled;
    if (result != kCardOk) break;
    showPercent("0%");
    result = convertFile(work, file);
    if (result != kCardOk) break;
  }
  desktop().setHourglass(false);
  if (result == kCardOk) return result;
  // What is shown still says that a file is being converted.
  showPercent("");
  if (work.view.setMessage) work.view.setMessage(result == kCsvCanceled ? "canceled." : "");
  return kCardFailed;
}

}  // namespace vk
