// SPDX-License-Identifier: MIT
#include "storage/frmSelectFolder.h"

#include <QComboBox>
#include <QLabel>

#include "storage/mdlFolderList.h"
#include "tests/storage/card_window.h"

namespace vktest {
namespace {

namespace fs = std::filesystem;

class frmSelectFolderTest : public ::testing::Test {
 protected:
  frmSelectFolderTest() {
    for (const char* name : {"/beta/inner", "/Alpha", "/.hidden/place"})
      fs::create_directories(top + name);
    vk::gDefaultFolder = top + "/beta";
  }
  ~frmSelectFolderTest() override {
    vk::gDefaultFolder.clear();
    vk::gFolderRole = vk::kFolderSave;
  }
  void open() {
    form = std::make_unique<vk::frmSelectFolder>();
    form->show();
  }
  void key(Qt::Key key) { QTest::keyClick(&tree(), key); }
  QTreeWidget& tree() { return *control<QTreeWidget>(*form, "Dir1"); }
  QComboBox& drive() { return *control<QComboBox>(*form, "Drive1"); }
  void choose(const std::string& one) { drive().setCurrentIndex(drive().findText(vk::toQt(one))); }
  std::string label() { return textIn<QLabel>(*form, "lblFolder"); }
  static std::string below(const QTreeWidgetItem& item) {
    std::string text;
    for (int i = 0; i < item.childCount(); ++i) {
      const auto* child = item.child(i);
      text += vk::fromQt(child->text(0)) + (child->isExpanded() ? "(" + below(*child) + ")" : "");
      text += " ";
    }
    return text;
  }

  WindowDesktop desk;
  const std::string top = desk.data.path().toStdString();
  std::unique_ptr<vk::frmSelectFolder> form;
};

TEST_F(frmSelectFolderTest, SpeaksByItsRoleAndStartsWhereItCan) {
  const std::pair<int32_t, std::string> roles[] = {
      {vk::kFolderSave, "Save Folder selection|Select the Folder to save."},
      {0, "Read Folder selection|Select the Folder to read."}};
  for (const auto& [role, texts] : roles) {
    vk::gFolderRole = role;
    open();
    EXPECT_EQ(texts,
              vk::fromQt(form->windowTitle() + "|" + form->findChildren<QLabel*>()[0]->text()));
  }
  EXPECT_EQ(top, vk::fromQt(drive().currentText()));
  EXPECT_EQ("Alpha beta(inner ) ", below(*tree().topLevelItem(0)));
  EXPECT_EQ("beta", vk::fromQt(tree().currentItem()->text(0)));
  for (const auto& [wanted, shown] : {std::pair{top + "/beta/gone/deep", top + "/beta"},
                                      {top + "/.hidden/place", top + "/.hidden/place"},
                                      {std::string("d:\\"), std::string("/")}}) {
    vk::gDefaultFolder = wanted;
    open();
    EXPECT_EQ(shown, label()) << wanted;
  }
}

TEST_F(frmSelectFolderTest, TheKeyboardWalksTheFoldersAndOnlySelectKeepsOne) {
  open();
  key(Qt::Key_Down);
  EXPECT_EQ(top + "/beta/inner", label());
  fs::create_directory(top + "/Alpha/made");
  for (const auto one : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) key(one);
  EXPECT_EQ(top + "/Alpha/made", label());
  press(*form, "cmdCancel");
  EXPECT_EQ(top + "/beta", vk::gDefaultFolder);
  form->show();
  key(Qt::Key_Return);
  EXPECT_EQ(top + "/Alpha/made", vk::gDefaultFolder);
  EXPECT_FALSE(form->isVisible());
}

TEST_F(frmSelectFolderTest, AnotherDriveMovesTheFoldersUnlessItCannotBeRead) {
  open();
  choose("/");
  EXPECT_EQ("/|/", label() + "|" + vk::fromQt(tree().topLevelItem(0)->text(0)));
  choose(top);
  EXPECT_EQ(top + "|Alpha beta ", label() + "|" + below(*tree().topLevelItem(0)));
  choose("/");
  desk.data.remove();
  choose(top);
  EXPECT_EQ("/|/", label() + "|" + vk::fromQt(drive().currentText()));
}

}  // namespace
}  // namespace vktest
