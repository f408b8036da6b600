// SPDX-License-Identifier: MIT
#include "storage/mdlFolderTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/data_folder.h"

namespace {

using testing::ElementsAre;

TEST(mdlFolderTree, TheWayFromADriveToAFolderAndItsNames) {
  EXPECT_THAT(vk::folderChain("/", "/"), ElementsAre("/"));
  EXPECT_THAT(vk::folderChain("/", "/home/user/"), ElementsAre("/", "/home", "/home/user"));
  EXPECT_THAT(vk::folderChain("/media/card/", "/media/card/a"),
              ElementsAre("/media/card", "/media/card/a"));
  EXPECT_THAT(vk::folderChain("/media/card", "/media/cards/a"), ElementsAre("/media/card"));
  EXPECT_THAT(vk::folderChain("/media/card", "/"), ElementsAre("/media/card"));
  EXPECT_EQ("/", vk::folderName("/"));
  EXPECT_EQ("user", vk::folderName("/home/user/"));
}

TEST(mdlFolderTree, AHiddenFolderShowsOnlyWhenItIsOpen) {
  const vktest::DataFolder place;
  const std::string top = place.path().string();
  for (const char* name : {"b/x", "A/x", ".hidden/x"}) place.put(name, "");
  const auto closed = vk::folderRows(top, "");
  EXPECT_THAT(closed.paths, ElementsAre(top + "/A", top + "/b"));
  EXPECT_EQ(2u, closed.opened);
  EXPECT_EQ(1u, vk::folderRows(top, top + "/b").opened);
  const auto hidden = vk::folderRows(top, top + "/.hidden");
  EXPECT_THAT(hidden.paths, ElementsAre(top + "/.hidden", top + "/A", top + "/b"));
  EXPECT_EQ(0u, hidden.opened);
  EXPECT_EQ(top, vk::startFolder(top + "/gone/deep"));
  EXPECT_EQ(top, vk::startFolder(top + "/b/.."));
}

}  // namespace
