// SPDX-License-Identifier: MIT
// Where the program keeps its own files: the configuration file, and beside it the folder of the
// temporary ones. Empty when the platform has no data folder.
#pragma once

#include <string>

namespace vk {

/// The program's data folder is there; asking makes nothing.
bool dataFolderExists();
/// The data folder with a separator at its end; made, with the folders above, when it is missing.
std::string dataFolder();
/// Full name of the configuration file.
std::string configPath();
/// The folder of temporary files, with a separator at its end; it is not made.
std::string tempFolder();

}  // namespace vk
