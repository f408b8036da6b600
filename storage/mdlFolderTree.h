// SPDX-License-Identifier: MIT
// The folders that the picker's tree shows: where it starts, the way from a drive down to a folder,
// and the rows below one folder. Paths are absolute, without a separator at their end but for "/".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vk {

/// The wanted folder when it can be read, else the first folder above it that can.
std::string startFolder(std::string_view wanted);
/// From the drive down to the path, both included; the drive alone when the path is not below it.
std::vector<std::string> folderChain(std::string_view drive, std::string_view path);
/// Path of a folder by its name in another one.
std::string folderBelow(std::string_view folder, std::string_view name);
/// What a row shows for a path: its last name, or the whole of a drive.
std::string folderName(std::string_view path);

struct FolderRows {
  std::vector<std::string> paths;
  std::size_t opened = 0;  ///< index of `open` in paths; paths.size() when it is empty
};
/// The folders below `folder`, sorted; `open`, a folder that must be among them, is put in first
/// when it is one of the hidden.
FolderRows folderRows(const std::string& folder, const std::string& open);

}  // namespace vk
