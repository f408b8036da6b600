// SPDX-License-Identifier: MIT
#include "base/mdlGeneral.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <system_error>

#include "base/mdlBox.h"
#include "base/mdlFile.h"
#include "base/mdlText.h"

namespace fs = std::filesystem;

namespace vk {

std::string gDefaultFolder;

namespace {

constexpr Colour kBarBack = 0xFFFFFF;
constexpr Colour kBarFore = 0x800000;

bool isSeparator(char c) {
  return c == '/' || c == '\\';
}

/// The counter may wrap at 32 bits; differences hold across it.
int64_t elapsedSince(int64_t start) {
  return static_cast<uint32_t>(static_cast<uint64_t>(desktop().milliseconds()) -
                               static_cast<uint64_t>(start));
}

}  // namespace

int32_t fieldCount(std::string_view text, char delimiter) {
  return static_cast<int32_t>(std::count(text.begin(), text.end(), delimiter));
}

std::string listField(std::string_view text, int32_t n) {
  if (n < 1) return {};
  for (; n > 1; --n) {
    const auto comma = text.find(',');
    if (comma == std::string_view::npos) return {};
    text.remove_prefix(comma + 1);
  }
  return std::string(text.substr(0, text.find(',')));
}

std::string dropLastComma(std::string_view text) {
  if (!text.empty() && text.back() == ',') text.remove_suffix(1);
  return std::string(text);
}

std::string keyValue(std::string_view fileText, std::string_view key) {
  const auto found = fileText.find(key);
  if (found == std::string_view::npos) return {};
  const auto value = fileText.substr(found + key.size());
  return trim(value.substr(0, value.find_first_of("\r\n")));
}

std::string headerValue(std::string_view text, std::string_view key) {
  const std::size_t start = text.find(key);
  if (start == std::string_view::npos) return {};
  const std::size_t end = text.find("\r\n", start);
  if (end == std::string_view::npos) throw TypeMismatch(text.substr(start));
  return trim(text.substr(start + key.size(), end - start - key.size()));
}

std::string leftOf(std::string_view text, std::string_view delimiter) {
  const auto found = text.find(delimiter);
  if (found == std::string_view::npos) return std::string(text);
  return std::string(text.substr(0, found > 0 ? found - 1 : 0));
}

std::string withBackslash(std::string_view path) {
  std::string text(path);
  if (text.empty() || !isSeparator(text.back())) text += '/';
  return text;
}

int32_t folderMissing(std::string_view path) {
  std::error_code error;
  return fs::is_directory(fs::path(path), error) ? 0 : 1;
}

int32_t fileMissing(std::string_view path) {
  return findFileAnyCase(fs::path(path)) ? 0 : 1;
}

std::string presentDefaultFolder() {
  return folderMissing(gDefaultFolder) != 0 ? desktop().applicationFolder().string()
                                            : gDefaultFolder;
}

int32_t askOverwrite(std::string_view path) {
  const auto text = std::string(path) + "\r\nThis file name is already in use.Overwrite?";
  return unlessNo("File Process", text, BoxIcon::kExclamation) ? 1 : 0;
}

FileDialogResult fileDialog(FileDialogKind kind, const std::string& title,
                            const std::string& filter) {
  FileDialogResult result;
  result.path = desktop().fileDialog(kind, title, filter, presentDefaultFolder());
  const auto separator = result.path.rfind('/');
  const auto first = separator == std::string::npos ? 0 : separator + 1;
  result.name = result.path.substr(first);
  if (result.name.empty()) return {};
  if (first > 0) gDefaultFolder = result.path.substr(0, first);
  return result;
}

void waitSeconds(double seconds, const std::function<bool()>& enough) {
  // Also leaves at once for a value that is no number.
  if (!(seconds > 0)) return;
  const auto wanted = static_cast<int64_t>(std::min(std::ceil(seconds * 1000), 2e9));
  const auto start = desktop().milliseconds();
  for (auto elapsed = elapsedSince(start); elapsed < wanted && !desktop().ending();
       elapsed = elapsedSince(start)) {
    desktop().waitEvents(static_cast<int>(wanted - elapsed));
    if (enough && enough()) return;
  }
}

int32_t progressPercent(double fraction, bool showFull) {
  if (std::isnan(fraction)) fraction = 0;
  const auto percent = static_cast<int32_t>(std::floor(std::clamp(fraction, 0.0, 1.0) * 100 + 0.5));
  return showFull ? percent : std::clamp(percent, 1, 99);
}

void progressBar(clsSurface& picture, double fraction, bool showFull) {
  const auto percent = progressPercent(fraction, showFull);
  const auto text = textOf(percent) + "%";
  picture.clear(kBarBack);
  picture.text((picture.width() - picture.textWidth(text)) / 2,
               (picture.height() - picture.textHeight(text)) / 2, text, kBarFore);
  const auto covered = static_cast<int>(int64_t{picture.width()} * percent / 100);
  if (covered > 0) picture.invertedBox(0, 0, covered - 1, picture.height() - 1, kBarFore);
  picture.refresh();
}

}  // namespace vk
