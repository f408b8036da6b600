// SPDX-License-Identifier: MIT
#include "base/clsMakeSpecialFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"

namespace vk {
namespace {

namespace fs = std::filesystem;
using Folder = clsMakeSpecialFolder;

/// One folder of the class: how it is made, asked for and copied to, and where it lies.
struct Row {
  const char* below;
  std::function<std::string(const Folder&)> get;
  std::function<bool(const Folder&)> exists;
  std::function<bool(const Folder&, const std::string&, bool)> copy;
};

using std::placeholders::_1, std::placeholders::_2, std::placeholders::_3;
const std::string kVendor = "NRV";

const Row kRows[] = {
    {"docs/VK-480Q CONTROLLER", &Folder::GetMyDocumentsPath, &Folder::ExistsMyDocumentsPath,
     &Folder::CopyFileToMyDocumentsPath},
    {"user/VK-480Q CONTROLLER", &Folder::GetAppDataPath, &Folder::ExistsAppDataPath,
     &Folder::CopyFileToAppDataPath},
    {"common/VK-480Q CONTROLLER", &Folder::GetCommonAppDataPath, &Folder::ExistsCommonAppDataPath,
     &Folder::CopyFileToCommonAppDataPath},
    {"user/NRV/VK-480Q CONTROLLER", std::bind(&Folder::GetAppDataPath_WithNRV, _1, kVendor),
     std::bind(&Folder::ExistsAppDataPath_WithNRV, _1, kVendor),
     std::bind(&Folder::CopyFileToAppDataPath_WithNRV, _1, kVendor, _2, _3)},
    {"common/NRV/VK-480Q CONTROLLER", std::bind(&Folder::GetCommonAppDataPath_WithNRV, _1, kVendor),
     std::bind(&Folder::ExistsCommonAppDataPath_WithNRV, _1, kVendor),
     std::bind(&Folder::CopyFileToCommonAppDataPath_WithNRV, _1, kVendor, _2, _3)},
};

class MakeSpecialFolder : public testing::Test {
 protected:
  MakeSpecialFolder() {
    desktop_.folders = {{SpecialFolder::kMyDocuments, folder_.path() / "docs"},
                        {SpecialFolder::kAppData, folder_.path() / "user"},
                        {SpecialFolder::kCommonAppData, folder_.path() / "common"}};
  }

  vktest::DataFolder folder_;
  vktest::FakeDesktop desktop_;
  const Folder maker_{};
};

TEST_F(MakeSpecialFolder, FoldersExistOnceAskedForAndTakeCopies) {
  const std::string bytes("new\0bytes", 9);
  const std::string file = folder_.put("from/A.set", bytes).string();
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.below);
    const fs::path expected = folder_.path() / row.below;
    EXPECT_FALSE(row.exists(maker_) || fs::exists(expected));
    EXPECT_EQ(row.get(maker_), expected.string() + "/");
    EXPECT_TRUE(row.exists(maker_) && fs::is_directory(expected));
    // The copy has the file's own name.
    const fs::path copy = expected / "A.set";
    EXPECT_TRUE(row.copy(maker_, file, false));
    EXPECT_EQ(vktest::DataFolder::bytesOf(copy), bytes);
    folder_.put(std::string(row.below) + "/A.set", "old");
    EXPECT_FALSE(row.copy(maker_, file, false));
    EXPECT_EQ(vktest::DataFolder::bytesOf(copy), "old");
    EXPECT_TRUE(row.copy(maker_, file, true));
    EXPECT_FALSE(row.copy(maker_, file + "x", true) || row.copy(maker_, expected.string(), true));
    EXPECT_TRUE(row.copy(maker_, copy.string(), true)) << "onto itself";
    EXPECT_EQ(vktest::DataFolder::bytesOf(copy), bytes);
  }
  desktop_.folders.clear();
  for (const Row& row : kRows) {
    EXPECT_EQ(row.get(maker_), "");
    EXPECT_FALSE(row.exists(maker_) || row.copy(maker_, file, true));
  }
}

}  // namespace
}  // namespace vk
