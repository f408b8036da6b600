// SPDX-License-Identifier: MIT
#include "storage/frmSetFileSer.h"

#include "storage/mdlNaming.h"
#include "tests/storage/card_window.h"

namespace vktest {
namespace {

class frmSetFileSerTest : public ::testing::Test {
 protected:
  void addFile(const char* name, const char* series, bool checked = true) {
    vk::CardEntry& entry = reading.files.emplace_back();
    entry.saveFileName = name;
    entry.seriesText = series;
    entry.checked = checked;
  }
  void open() {
    ASSERT_TRUE(vk::prepareNaming(reading, list));
    form = std::make_unique<vk::frmSetFileSer>(list, reading);
    form->show();
  }
  QTreeWidget& tree() { return *control<QTreeWidget>(*form, "lvwFileName"); }
  std::string rows() { return listText(tree(), 2); }
  std::string edits() { return textIn(*form, "txtFileName") + "|" + textIn(*form, "txtSerName"); }

  WindowDesktop desk;
  vk::CardReading reading;
  vk::NamingList list;
  std::unique_ptr<vk::frmSetFileSer> form;
};

TEST_F(frmSetFileSerTest, EditBoxesTakeEffectOnEnter) {
  addFile("A.DAT", "CH1,CH2");
  addFile("B.DAT", "CH1", false);
  addFile("C.DAT", "x,y,z");
  open();
  EXPECT_EQ("File name|Series name(Specify by comma space)",
            vk::fromQt(tree().headerItem()->text(0) + "|" + tree().headerItem()->text(1)));
  EXPECT_EQ("A.DAT|CH1,CH2\nC.DAT|x,y,z\n", rows());
  EXPECT_FALSE(control<QPushButton>(*form, "cmdSAutoSet")->isEnabled());
  clickRow(tree(), 1);
  EXPECT_EQ("C|x,y,z", edits());
  QTest::keyClick(&tree(), Qt::Key_Up);
  EXPECT_EQ("A|CH1,CH2", edits());
  clickRow(tree(), 1);
  const struct {
    const char *box, *text, *second;
    std::string boxes;
  } table[] = {{"txtFileName", "", ".DAT|x,y,z", ""},
               {"txtFileName", "NEW", "NEW.DAT|x,y,z", ""},
               {"txtFileName", "a\"b", "NEW.DAT|x,y,z", ""},
               {"txtSerName", "a, ,c", "NEW.DAT|x,y,z", "box[SERIES Error][Invalid　value]\n"},
               {"txtSerName", "ひずみ,b,c", "NEW.DAT|ひずみ,b,c", ""},
               // No button takes the Enter of a box whose text is set by a button.
               {"txtAutoFileName", "P_", "NEW.DAT|ひずみ,b,c", ""}};
  for (const auto& row : table) {
    enter(*form, row.box, row.text);
    EXPECT_EQ(std::string("A.DAT|CH1,CH2\n") + row.second + "\n", rows()) << row.text;
    EXPECT_EQ(row.boxes, desk.takeLog()) << row.text;
    EXPECT_TRUE(form->isVisible()) << row.text;
  }
}

TEST_F(frmSetFileSerTest, ChangesAllNamesAtOnceAndOnlySetHandsThemBack) {
  const auto files = [&] {
    std::string text;
    for (const auto& file : reading.files) text += file.saveFileName + "|" + file.seriesText + "\n";
    return text;
  };
  addFile("A.DAT", "a,b");
  addFile("B.DAT", "c,d");
  open();
  enter(*form, "txtFileName", "OTHER");
  type(*form, "txtAutoFileName", "T1_");
  for (int i = 0; i < 2; ++i) press(*form, "cmdFAutoSet");
  type(*form, "txtAutoSerName", "p,q");
  press(*form, "cmdSAutoSet");
  EXPECT_EQ("T1_A.DAT|p,q\nT1_B.DAT|p,q\n", rows());
  press(*form, "cmdCancel");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ("A.DAT|a,b\nB.DAT|c,d\n", files());
  open();
  enter(*form, "txtFileName", "LAST");
  control<QPushButton>(*form, "cmdSet")->setFocus();
  QTest::keyClick(control<QPushButton>(*form, "cmdSet"), Qt::Key_Return);
  EXPECT_EQ("LAST.DAT|a,b\nB.DAT|c,d\n", files());
  EXPECT_EQ(QDialog::Accepted, form->result());
}

}  // namespace
}  // namespace vktest
