// SPDX-License-Identifier: MIT
#include "storage/mdlFolderList.h"

#include "storage/mdlFolderTree.h"
#include "tests/storage/card_fixture.h"

namespace {

using Names = std::vector<std::string>;

class FolderListTest : public vktest::CardTest {};

TEST_F(FolderListTest, DrivesAreTheRootTheDocumentsAndMedia) {
  const Names drives = vk::drivesOf(
      "sysfs /sys sysfs rw 0 0\n/dev/sda1 / ext4 rw 0 0\n"
      "/dev/sdb1 /media/ann/CF\\040CARD vfat rw 0 0\n/dev/sdc1 /run/media/ann/x vfat rw 0 0\n\n"
      "broken\n/dev/sdd1 /mnt ext4 rw 0 0\n/dev/sdb1 /media/ann/CF\\040CARD vfat rw 0 0\n"
      "/dev/sde1 /mediax ext4 rw 0 0",
      "/home/ann/Documents/");
  EXPECT_EQ(drives,
            (Names{"/", "/home/ann/Documents", "/media/ann/CF CARD", "/run/media/ann/x", "/mnt"}));
  EXPECT_EQ(vk::drivesOf("", ""), Names{"/"});
  std::string found;
  for (const char* path : {"/usr", "/home/ann/Documents", "/home/ann/Documents/a/b",
                           "/home/ann/Documents2", "/media/ann/CF CARD/x", "/mnt", "d:\\"}) {
    found += std::to_string(vk::driveOf(drives, path)) + " ";
  }
  EXPECT_EQ(found, "0 1 1 0 2 4 0 ");
}

TEST_F(FolderListTest, AHiddenFolderShowsOnlyWhenItIsOpen) {
  const std::string top = folder.string();
  for (const char* name : {"b/x", "A/x", ".hidden/x", "file"}) place.put(name, "");
  const auto rows = [&](const std::string& open) {
    const auto found = vk::folderRows(top, open);
    std::string text;
    for (const auto& path : found.paths) text += vk::folderName(path) + " ";
    return text + std::to_string(found.opened);
  };
  EXPECT_EQ(rows(top + "/b") + "|" + rows(top + "/.hidden") + "|" + rows(""),
            "A b tmp 1|.hidden A b tmp 0|A b tmp 3");
  EXPECT_EQ(vk::startFolder(top + "/gone/deep") + vk::startFolder(top + "/b/.."), top + top);
  EXPECT_EQ(vk::folderChain("/", "/home/user/"), (Names{"/", "/home", "/home/user"}));
  EXPECT_EQ(vk::folderChain("/media/card", "/media/cards/a"), Names{"/media/card"});
  // A drive that cannot be read leaves the path.
  EXPECT_EQ(vk::pathAfterDrive(top, "/old") + vk::pathAfterDrive(top + "/file", "/old"),
            top + "/old");
  desktop.folders[vk::SpecialFolder::kMyDocuments] = folder;
  EXPECT_EQ(vk::currentDrives().at(1), top);
}

}  // namespace
