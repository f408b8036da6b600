// SPDX-License-Identifier: MIT
// What saving and converting recordings share about the files that they write.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/mdlBox.h"

namespace vk {

/// True for success; a failure is shown with the file's name.
bool fileDone(int32_t error, const std::string& path);
/// A name from a broken card directory could lead out of the chosen folder.
bool nameStaysInFolder(std::string_view name);
/// Where names do not distinguish case, the file just written has replaced its other spellings.
/// Elsewhere they are taken away, or a reader that looks for ".DAT" would find the old recording.
void removeOtherSpellings(const std::filesystem::path& written);

}  // namespace vk
