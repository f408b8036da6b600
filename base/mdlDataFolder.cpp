// SPDX-License-Identifier: MIT
#include "base/mdlDataFolder.h"

#include "base/clsMakeSpecialFolder.h"
#include "base/mdlGeneral.h"

namespace vk {

namespace {

constexpr const char* kVendor = "NRV";

std::string inDataFolder(const std::string& name) {
  const std::string folder = dataFolder();
  return folder.empty() ? folder : withBackslash(folder) + name;
}

}  // namespace

bool dataFolderExists() {
  return clsMakeSpecialFolder().ExistsCommonAppDataPath_WithNRV(kVendor);
}

std::string dataFolder() {
  return clsMakeSpecialFolder().GetCommonAppDataPath_WithNRV(kVendor);
}

std::string configPath() {
  return inDataFolder("VK480Q.cfg");
}

std::string tempFolder() {
  const std::string folder = inDataFolder("tmp");
  return folder.empty() ? folder : withBackslash(folder);
}

}  // namespace vk
