// SPDX-License-Identifier: MIT
// A folder of its own for one test, removed afterwards.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace vktest {

class DataFolder {
 public:
  DataFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vkXXXXXX").string();
    if (mkdtemp(name.data()) != nullptr) path_ = name;
  }
  ~DataFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  /// Writes a file below the folder, its folders too, and returns its name.
  std::filesystem::path put(const std::string& name, const std::string& bytes) const {
    const auto file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file;
  }
  /// All bytes of a file, empty when it is missing.
  static std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

 private:
  std::filesystem::path path_;
};

}  // namespace vktest
