// SPDX-License-Identifier: MIT
#include "storage/mdlFolderTree.h"

#include <algorithm>
#include <filesystem>

#include "storage/mdlFolderList.h"

namespace vk {

namespace {

namespace fs = std::filesystem;

std::string bare(std::string_view path) {
  while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
  return std::string(path);
}

}  // namespace

std::string startFolder(std::string_view wanted) {
  fs::path folder = bare(wanted);
  if (!folder.is_absolute()) return "/";
  folder = bare(folder.lexically_normal().string());
  while (folder.has_relative_path() && !folderReadable(folder.string()))
    folder = folder.parent_path();
  return folder.string();
}

std::vector<std::string> folderChain(std::string_view drive, std::string_view path) {
  const std::string top = bare(drive);
  std::vector<std::string> chain{top};
  const fs::path way = fs::path(bare(path)).lexically_relative(top);
  if (way.empty() || *way.begin() == "." || *way.begin() == "..") return chain;
  for (const fs::path& name : way) chain.push_back(folderBelow(chain.back(), name.string()));
  return chain;
}

std::string folderBelow(std::string_view folder, std::string_view name) {
  return (fs::path(folder) / fs::path(name)).string();
}

std::string folderName(std::string_view path) {
  const fs::path folder = bare(path);
  return folder.has_filename() ? folder.filename().string() : folder.string();
}

FolderRows folderRows(const std::string& folder, const std::string& open) {
  FolderRows rows;
  for (const auto& name : subfolders(folder)) rows.paths.push_back(folderBelow(folder, name));
  const auto indexOfOpen = [&] {
    const auto found = std::find(rows.paths.begin(), rows.paths.end(), open);
    return static_cast<std::size_t>(found - rows.paths.begin());
  };
  if (!open.empty() && indexOfOpen() == rows.paths.size())
    rows.paths.insert(rows.paths.begin(), open);
  rows.opened = indexOfOpen();
  return rows;
}

}  // namespace vk
