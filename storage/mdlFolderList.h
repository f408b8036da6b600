// SPDX-License-Identifier: MIT
// The folder picker's rules: texts by role, the drives on offer and the fall back from a drive that
// cannot be read. A drive is a place a user would start from: "/", his documents, mounted media.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vk {

inline constexpr int32_t kFolderSave = 1;
/// What the picker is opened for: kFolderSave, anything else is reading.
extern int32_t gFolderRole;

std::string folderCaption(int32_t role);
std::string folderText(int32_t role);

/// "/", the documents folder, and the mount points below /media, /run/media and /mnt of a mount
/// table (the format of /proc/self/mounts), in that order.
std::vector<std::string> drivesOf(std::string_view mountTable, const std::string& documents);
/// The drives of this machine now.
std::vector<std::string> currentDrives();
/// Index of the drive that the path lies on; 0 when none fits.
std::size_t driveOf(const std::vector<std::string>& drives, std::string_view path);

/// True when the folder can be listed.
bool folderReadable(const std::string& path);
/// Names of the folders below the path that are not hidden, sorted without regard to case.
std::vector<std::string> subfolders(const std::string& path);
/// The path after a change of drive: the drive, or the old path when the drive cannot be read.
std::string pathAfterDrive(const std::string& drive, const std::string& path);
/// cmdSet: the path becomes the default folder.
void chooseFolder(const std::string& path);

}  // namespace vk
