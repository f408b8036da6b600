// SPDX-License-Identifier: MIT
// The program's own folders below the platform's special folders: the special folder, for some a
// vendor level, then the program's title. Folder texts end in a separator. A special folder that
// the platform does not have gives an empty text (false); a folder that cannot be made is not
// reported here, the next use of it fails.
#pragma once

#include <string>

#include "base/clsDesktop.h"

namespace vk {

class clsMakeSpecialFolder {
 public:
  // The folder, made if missing.
  std::string GetMyDocumentsPath() const;
  std::string GetAppDataPath() const;
  std::string GetCommonAppDataPath() const;
  std::string GetAppDataPath_WithNRV(const std::string& vendor) const;
  std::string GetCommonAppDataPath_WithNRV(const std::string& vendor) const;

  // True when the folder is there; makes nothing.
  bool ExistsMyDocumentsPath() const;
  bool ExistsAppDataPath() const;
  bool ExistsCommonAppDataPath() const;
  bool ExistsAppDataPath_WithNRV(const std::string& vendor) const;
  bool ExistsCommonAppDataPath_WithNRV(const std::string& vendor) const;

  // Copies the file there under its own name. False when it could not be read or written, or is
  // there already and `overwrite` is not set.
  bool CopyFileToMyDocumentsPath(const std::string& file, bool overwrite) const;
  bool CopyFileToAppDataPath(const std::string& file, bool overwrite) const;
  bool CopyFileToCommonAppDataPath(const std::string& file, bool overwrite) const;
  bool CopyFileToAppDataPath_WithNRV(const std::string& vendor, const std::string& file,
                                     bool overwrite) const;
  bool CopyFileToCommonAppDataPath_WithNRV(const std::string& vendor, const std::string& file,
                                           bool overwrite) const;
};

}  // namespace vk
