// SPDX-License-Identifier: MIT
#include "storage/mdlFileBox.h"

#include <system_error>

#include "base/clsDesktop.h"
#include "base/mdlFile.h"
#include "base/mdlMessages.h"
#include "base/mdlText.h"

namespace vk {

namespace fs = std::filesystem;

bool fileDone(int32_t error, const std::string& path) {
  if (error == kFileOk) return true;
  showBox("File Error", path + "\r\n" + fileErrorText(error));
  return false;
}

bool nameStaysInFolder(std::string_view name) {
  return name.find_first_of(std::string_view("/\\\0", 3)) == std::string_view::npos;
}

void removeOtherSpellings(const fs::path& written) {
  std::error_code error;
  const std::string extension = written.extension().string();
  fs::directory_iterator entry(written.parent_path(), error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path& other = entry->path();
    const std::string otherExtension = other.extension().string();
    std::error_code ignored;
    if (other.stem() == written.stem() && otherExtension != extension &&
        equalNoCase(otherExtension, extension) && entry->is_regular_file(ignored) &&
        !fs::equivalent(other, written, ignored)) {
      fs::remove(other, ignored);
    }
  }
}

}  // namespace vk
