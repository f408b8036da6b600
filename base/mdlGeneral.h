// SPDX-License-Identifier: MIT
// Small helpers that the whole program leans on: fields of a comma list, keys of a text, paths,
// the overwrite question, waits and the progress bar.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "base/clsDesktop.h"
#include "base/clsSurface.h"

namespace vk {

/// The folder that the file dialogs and saving forms start in; kept in the configuration.
extern std::string gDefaultFolder;

/// Number of delimiters (not of fields).
int32_t fieldCount(std::string_view text, char delimiter);
/// Field n (from 1) of a comma list, untrimmed; empty beyond the last.
std::string listField(std::string_view text, int32_t n);
/// Without one trailing comma.
std::string dropLastComma(std::string_view text);
/// First occurrence of `key` anywhere, to the end of that line (CR, LF or end of text), less the
/// key, trimmed; empty when the key does not occur.
std::string keyValue(std::string_view fileText, std::string_view key);
/// The value behind the first occurrence of the key, up to the next CR LF, trimmed; empty when the
/// key does not occur. Without a CR LF behind it the value cannot be read: TypeMismatch.
std::string headerValue(std::string_view text, std::string_view key);
/// The text before the delimiter less one more character (the CR of a CR LF); the whole text when
/// the delimiter does not occur.
std::string leftOf(std::string_view text, std::string_view delimiter);
/// With a path separator at its end; "/" is appended unless the text ends in "/" or "\".
std::string withBackslash(std::string_view path);
/// 1 when the folder (file) does not exist, else 0.
int32_t folderMissing(std::string_view path);
int32_t fileMissing(std::string_view path);
/// The default folder, or the program's own where that is missing.
std::string presentDefaultFolder();
/// 1 for anything but No.
int32_t askOverwrite(std::string_view path);

struct FileDialogResult {
  std::string name;  ///< file name, empty after a cancel
  std::string path;  ///< whole path, empty after a cancel
};
/// The common file dialog, which begins in presentDefaultFolder; on success the chosen folder
/// becomes gDefaultFolder. The name need not be that of a file.
FileDialogResult fileDialog(FileDialogKind kind, const std::string& title,
                            const std::string& filter);

/// Waits and yields to the event loop; leaves early when the program is ending, and as soon as
/// `enough` is true after a yield.
void waitSeconds(double seconds, const std::function<bool()>& enough = {});

/// 0 to 100 for a fraction; without showFull 100 shows as 99 and 0 as 1.
int32_t progressPercent(double fraction, bool showFull);
/// Draws the bar and its centred "nn%" whose colour flips where the bar covers it.
void progressBar(clsSurface& picture, double fraction, bool showFull);

}  // namespace vk
