// SPDX-License-Identifier: MIT
#include "storage/mdlFolderList.h"

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

TEST_F(FolderListTest, ListsFoldersAndKeepsThePathOfAnUnreadableDrive) {
  for (const char* name : {"b/x", "A/x", "c/x", ".hidden/x", "file"}) place.put(name, "");
  EXPECT_EQ(vk::subfolders(folder.string()), (Names{"A", "b", "c", "tmp"}));
  EXPECT_EQ(vk::subfolders((folder / "gone").string()), Names{});
  EXPECT_EQ(vk::pathAfterDrive(folder.string(), "/old"), folder.string());
  EXPECT_EQ(vk::pathAfterDrive((folder / "file").string(), "/old"), "/old");
  desktop.folders[vk::SpecialFolder::kMyDocuments] = folder;
  const Names drives = vk::currentDrives();
  ASSERT_GE(drives.size(), 2U);
  EXPECT_EQ(drives[0] + drives[1], "/" + folder.string());
}

}  // namespace
