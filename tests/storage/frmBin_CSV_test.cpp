// SPDX-License-Identifier: MIT
#include "storage/frmBin_CSV.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QRadioButton>

#include "storage/mdlFolderList.h"
#include "tests/storage/card_window.h"

namespace vktest {
namespace {

namespace fs = std::filesystem;

class frmBin_CSVTest : public ::testing::Test {
 protected:
  frmBin_CSVTest() {
    fs::create_directory(top + "/more");
    for (const char* name : {"A", "B", "more/C"}) put(name, 6000);
    vk::gDefaultFolder = top;
    form = std::make_unique<vk::frmBin_CSV>();
    form->show();
  }
  ~frmBin_CSVTest() override {
    vk::gDefaultFolder.clear();
    vk::gFolderRole = vk::kFolderSave;
  }
  /// A recording of one series whose samples are all 2.
  void put(const std::string& name, int samples) {
    std::ofstream(top + "/" + name + ".hed")
        << "VERSION 1\r\nSERIES CH1\r\nDATE 01-05-2026\r\nTIME 09:30:00\r\nRATE 1000\r\n"
           "VERT_UNITS V\r\nNUM_SERIES 1\r\nSLOPE 0.25\r\nX_OFFSET 0\r\nY_OFFSET 0\r\n"
           "NUM_SAMPS "
        << samples << "\r\n";
    std::ofstream data(top + "/" + name + ".DAT");
    for (int i = 0; i < samples; ++i) data.write("\2\0", 2);
  }
  QTreeWidget& list() { return *control<QTreeWidget>(*form, "lvwFileName"); }
  void check(int row) { list().topLevelItem(row)->setCheckState(0, Qt::Checked); }
  void choose(int index, const char* folder) {
    inModal("frmSelectFolder", [=](QDialog& dialog) {
      EXPECT_EQ(index == 0 ? "Read Folder selection" : "Save Folder selection",
                vk::fromQt(dialog.windowTitle()));
      if (folder) vk::chooseFolder(folder);
      dialog.reject();
    });
    press(*form, index == 0 ? "cmdFolder(0)" : "cmdFolder(1)");
  }
  std::string folders() {
    return textIn(*form, "txtFolder(0)") + "|" + textIn(*form, "txtFolder(1)");
  }
  /// 1 for each control that takes input.
  std::string state() {
    std::string text;
    for (const char* name :
         {"cmdCancel", "txtFolder(0)", "txtFolder(1)", "cmdFolder(0)", "cmdFolder(1)",
          "chkDivision", "cmbDivision", "optCoeff(0)", "optCoeff(1)", "cmdCSVSave", "lvwFileName"})
      text += control<QWidget>(*form, name)->isEnabledTo(form.get()) ? '1' : '0';
    return text;
  }
  std::string firstLine(const std::string& name) {
    const std::string text = fileText(top + "/" + name);
    const auto at = text.find("\n1,");
    return at == std::string::npos ? "none" : text.substr(at + 1, text.find("\r\n2,") - at - 1);
  }
  /// Runs the action when the first mark of a conversion shows.
  void whileConverting(std::function<void()> action) {
    auto* once = new QObject(form.get());
    QObject::connect(control<QProgressBar>(*form, "pbrFile"), &QProgressBar::valueChanged, once,
                     [=](int percent) {
                       if (percent == 0) return;
                       once->deleteLater();
                       action();
                     });
  }

  WindowDesktop desk;
  QTemporaryDir place;
  const std::string top = place.path().toStdString();
  std::unique_ptr<vk::frmBin_CSV> form;
};

TEST_F(frmBin_CSVTest, FoldersArePickedOrTyped) {
  EXPECT_EQ(top + "|" + top, folders());
  EXPECT_EQ("[ ]A.DAT|12000\n[ ]B.DAT|12000\n", listText(list(), 2));
  EXPECT_EQ(13, control<QComboBox>(*form, "cmbDivision")->count());
  control<QAction>(*form, "mnuASelect")->trigger();
  EXPECT_EQ("[x]A.DAT\n[x]B.DAT\n", listText(list(), 1));
  control<QAction>(*form, "mnuACancel")->trigger();
  press(*form, "cmdCSVSave");
  EXPECT_EQ("", desk.takeLog() + textIn<QLabel>(*form, "lblPrg"));
  check(0);
  type(*form, "txtFolder(1)", "/nonexistent");
  press(*form, "cmdCSVSave");
  EXPECT_EQ("box[File Error][Folder does not exist.]\n", desk.takeLog());
  const std::string more = top + "/more";
  choose(1, more.c_str());
  EXPECT_EQ(top + "|" + more, folders());
  // Also after a cancel the default folder is shown, and listed.
  choose(0, nullptr);
  EXPECT_EQ(more + "|" + more, folders());
  EXPECT_EQ("[ ]C.DAT\n", listText(list(), 1));
  // A typed folder is listed when its box is left.
  form->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  auto* box = control<QLineEdit>(*form, "txtFolder(0)");
  box->setFocus();
  box->selectAll();
  QTest::keyClicks(box, vk::toQt(top));
  list().setFocus();
  EXPECT_EQ("[ ]A.DAT\n[ ]B.DAT\n", listText(list(), 1));
}

TEST_F(frmBin_CSVTest, ATypedFolderAndSaveConvertOrSayWhyNot) {
  const struct {
    const char* typed;
    std::string list, shown;
  } rows[] = {
      {"/more", "[ ]C.DAT\n", "check file."},
      {"/gone", "", "box[File Error][Folder does not exist.]\n"},
      // The folder that is listed already, spelled otherwise, keeps its marks.
      {"/more/..", "[x]A.DAT\n[ ]B.DAT\n", "A.csv  conversion ended."},
  };
  // Pressed by its letter, the button leaves the focus where it is.
  for (const bool byLetter : {true, false}) {
    for (const auto& row : rows) {
      form = std::make_unique<vk::frmBin_CSV>();
      form->show();
      form->activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
      check(0);
      auto* box = control<QLineEdit>(*form, "txtFolder(0)");
      box->setFocus();
      QTest::keyClicks(box, QLatin1String(row.typed));
      type(*form, "txtFolder(1)", top.c_str());
      if (byLetter) {
        QTest::keyClick(box, Qt::Key_S, Qt::AltModifier);
      } else {
        QTest::mouseClick(control<QPushButton>(*form, "cmdCSVSave"), Qt::LeftButton);
      }
      const auto shown = [&] { return textIn<QLabel>(*form, "lblPrg"); };
      EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == row.shown || !desk.log.empty(); }));
      EXPECT_EQ(desk.takeLog() + shown() + listText(list(), 1), row.shown + row.list);
      EXPECT_EQ(fs::remove(top + "/A.csv"), row.shown.starts_with("A.csv"));
    }
  }
}

TEST_F(frmBin_CSVTest, ConvertsTheCheckedFilesWithItsControlsLocked) {
  std::string during;
  const auto texts = [&] {
    return state() + textIn<QLabel>(*form, "lblPrgCnt") + textIn<QPushButton>(*form, "cmdCancel");
  };
  whileConverting([&] { during = texts(); });
  check(1);
  press(*form, "cmdCSVSave");
  EXPECT_EQ(
      "10000000000"
      "0%&Stop|11111111111"
      "100%&Close",
      during + "|" + texts());
  EXPECT_EQ("B.csv  conversion ended.", textIn<QLabel>(*form, "lblPrg"));
  EXPECT_EQ("none 1,0.5", firstLine("A.csv") + " " + firstLine("B.csv"));
  control<QRadioButton>(*form, "optCoeff(1)")->click();
  control<QCheckBox>(*form, "chkDivision")->setChecked(true);
  press(*form, "cmdCSVSave");
  EXPECT_EQ("1,2 1,2 none", firstLine("B_0001.csv") + " " + firstLine("B_0002.csv") + " " +
                                firstLine("B_0003.csv"));
  EXPECT_EQ("", desk.takeLog());
}

TEST_F(frmBin_CSVTest, StopKeepsItOpenAndClosingStopsTheWork) {
  check(0);
  check(1);
  for (const bool stop : {true, false}) {
    whileConverting([&] {
      if (stop) press(*form, "cmdCancel");
      if (!stop) form->close();
      EXPECT_TRUE(form->isVisible());
    });
    press(*form, "cmdCSVSave");
    EXPECT_EQ(stop, form->isVisible());
    EXPECT_EQ("canceled.", textIn<QLabel>(*form, "lblPrg"));
    EXPECT_EQ(0, control<QProgressBar>(*form, "pbrFile")->value());
    EXPECT_FALSE(fs::exists(top + "/A.csv") || fs::exists(top + "/B.csv"));
  }
  EXPECT_EQ(nullptr, QGuiApplication::overrideCursor());
}

}  // namespace
}  // namespace vktest
