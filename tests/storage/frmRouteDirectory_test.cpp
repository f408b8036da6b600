// SPDX-License-Identifier: MIT
#include "storage/frmRouteDirectory.h"

#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QTabBar>

#include "base/mdlDataFolder.h"
#include "base/mdlText.h"
#include "instrument/simulator/library.h"
#include "link/mdlCardDirectory.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "shell/mdlConfig.h"
#include "storage/mdlHedDataWork.h"
#include "storage/mdlTempFiles.h"
#include "storage/mdlWaveData.h"
#include "storage/mdlWaveOpenRequest.h"
#include "tests/instrument/simulator/bench.h"
#include "tests/storage/card_window.h"

namespace vktest {
namespace {

constexpr int32_t kBoxSerial = 4810021;

/// 131072 bytes are two blocks, 65538 a block and a rest of two bytes, 400 a rest only.
const char* const kThreeRecordings =
    "[box 4810021]\nmodel = VK-480Qe\nrole = master\nsignal1 = sine 1800 1000\n"
    "coefficients = 0.25,1,1,1\n"
    "recording = 4 200U 16384\nrecording = 1 005U 32769\nrecording = 2 001M 100\n";

class frmRouteDirectoryTest : public ::testing::Test {
 protected:
  frmRouteDirectoryTest() {
    vksim::attachBus(&bench.bus);
    vk::resetBoxTable();
    vk::gBoxTable[1].serial = kBoxSerial;
    vk::gBoxTable[1].handle = 1;
    vk::gDefaultFolder = folder;
    vk::gTempFileList.clear();
    vk::resetWaveOpenRequest();
    // Made when the program starts.
    std::filesystem::create_directories(vk::tempFolder());
    EXPECT_EQ(1, bench.bus.countDevices());
    EXPECT_EQ(vk::kUsbOk, vk::usbRTD(kBoxSerial));
  }
  ~frmRouteDirectoryTest() override {
    vksim::attachBus(nullptr);
    vk::gDefaultFolder.clear();
    vk::resetBoxTable();
  }
  /// The window as the main window opens it, without its modal loop.
  void open(int selected = vk::kTabWave, std::initializer_list<int> checked = {}) {
    EXPECT_TRUE(form.openCard());
    form.show();
    tab(selected);
    for (const int row : checked) check(row);
  }
  QTreeWidget& list() { return *control<QTreeWidget>(form, "lvwFileName"); }
  std::string label(const char* name) { return textIn<QLabel>(form, name); }
  std::string head() { return vk::fromQt(control<QPlainTextEdit>(form, "txtHead")->toPlainText()); }
  void tab(int number) { control<QTabBar>(form, "tbsSelect")->setCurrentIndex(number - 1); }
  void click(int row) { clickRow(list(), row); }
  void check(int row) { list().topLevelItem(row)->setCheckState(0, Qt::Checked); }
  /// Which of the controls take input: 1 for each that does, and the panel that shows.
  std::string state() {
    std::string text;
    for (const char* name :
         {"cmdCancel", "txtFolder(0)", "txtFolder(1)", "cmdFolder(0)", "cmdFolder(1)",
          "chkDivision", "cmbDivision", "optCoeff(0)", "optCoeff(1)", "cmdCSVSave", "cmdBinSave",
          "cmdFileSerNameChange", "cmdRun", "tbsSelect", "lvwFileName"})
      text += control<QWidget>(form, name)->isEnabledTo(&form) ? '1' : '0';
    for (const char* name : {"picWave", "picBinSave", "picCSVSave"})
      if (control<QWidget>(form, name)->isVisible()) text += std::string(" ") + name;
    return text;
  }
  /// Runs the action in the yield behind the first block of a transfer.
  void inTransfer(std::function<void()> action) {
    auto* once = new QObject(&form);
    QObject::connect(control<QProgressBar>(form, "pbrFile"), &QProgressBar::valueChanged, once,
                     [=](int percent) {
                       if (percent < 40) return;
                       once->deleteLater();
                       QTimer::singleShot(0, qApp, action);
                     });
  }
  std::string saved(const std::string& name) const { return fileText(folder + "/" + name); }
  /// What the card holds, taken past the program.
  std::string onCard(const std::string& name) const {
    const auto source = bench.bus.rig.recorders[0]->card.open(name);
    std::string bytes(static_cast<std::size_t>(source->size()), '\0');
    source->read(0, reinterpret_cast<std::byte*>(bytes.data()), bytes.size());
    return bytes;
  }
  WindowDesktop desk;
  QTemporaryDir save;
  const std::string folder = save.path().toStdString();
  vksim::Bench bench{kThreeRecordings};
  vk::frmRouteDirectory form{kBoxSerial};
};

TEST_F(frmRouteDirectoryTest, OpensWithTheCardsFilesUnderAProgressWindow) {
  std::string seen;
  const auto look = [&] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() != QLatin1String("frmStatusBar") || !window->isVisible()) continue;
      seen += vk::fromQt(window->windowTitle()) + "|" + textIn<QLabel>(*window, "lblSub1") +
              (form.isVisible() ? "|shown" : "|not yet");
    }
  };
  QTimer::singleShot(0, qApp, look);
  open();
  look();
  EXPECT_EQ("Confirm Headder File|Confirming header file of instrument.|not yet", seen);
  EXPECT_EQ(
      "DAT00001.DAT|131072|2026/01/05 06:30:02|00412|CH1,CH2,CH3,CH4\n"
      "DAT00002.DAT|65538|2026/01/05 07:30:00|00342|CH1\n"
      "DAT00003.DAT|400|2026/01/05 08:30:00|00362|CH1,CH2\n",
      listText(list(), 5));
  std::string columns, counts;
  for (int i = 0; i < list().columnCount(); ++i)
    columns += vk::fromQt(list().headerItem()->text(i)) + (list().isColumnHidden(i) ? "-" : "+");
  EXPECT_EQ("Name+Size+Date+HeadderSize-Series-", columns);
  EXPECT_EQ("", head());
  EXPECT_EQ("111111111111111 picWave", state());
  const auto* divisions = control<QComboBox>(form, "cmbDivision");
  for (int i = 0; i < divisions->count(); ++i) counts += vk::fromQt(divisions->itemText(i)) + " ";
  EXPECT_EQ("5000 10000 15000 20000 25000 30000 35000 40000 45000 50000 55000 60000 65000 ",
            counts);
  EXPECT_EQ(folder + folder, textIn(form, "txtFolder(0)") + textIn(form, "txtFolder(1)"));
  EXPECT_EQ("", desk.takeLog());
}

TEST_F(frmRouteDirectoryTest, ShowsAnEmptyCard) {
  vk::gCardDirectory.clear();
  EXPECT_FALSE(form.openCard());
  form.show();
  EXPECT_EQ("111000000000011 picWave", state());
  QTest::keyClick(&form, Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(frmRouteDirectoryTest, AClickShowsTheHeader) {
  open();
  click(1);
  QString onCard1 = vk::toQt(onCard("DAT00002.HED"));
  EXPECT_EQ(vk::fromQt(onCard1.replace(QLatin1String("\r\n"), QLatin1String("\n"))), head());
  // The same row again asks for nothing, the next one by the keyboard does.
  bench.box(0).faults.add({vksim::FaultKind::kError, "HFL", 51, 1});
  click(1);
  EXPECT_EQ("", desk.takeLog());
  QTest::keyClick(&list(), Qt::Key_Down);
  EXPECT_NE(std::string::npos, desk.takeLog().find("[Cannot read Header File.]"));
}

TEST_F(frmRouteDirectoryTest, TabsChooseThePanelAndTheNames) {
  open();
  click(0);
  for (const char* box : {"txtFolder(0)", "txtFolder(1)"}) type(form, box, "/elsewhere");
  tab(vk::kTabBinary);
  EXPECT_EQ("111111111111011 picBinSave", state());
  EXPECT_EQ("", head());
  EXPECT_EQ(folder + "/elsewhere", textIn(form, "txtFolder(0)") + textIn(form, "txtFolder(1)"));
  auto* menu = control<QMenu>(form, "mnuAllSelect");
  const auto rightClick = [&] {
    const QPoint point(20, 20);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, list().viewport()->mapToGlobal(point));
    QApplication::sendEvent(list().viewport(), &event);
  };
  rightClick();
  EXPECT_TRUE(menu->isVisible());
  menu->hide();
  control<QAction>(form, "mnuASelect")->trigger();
  EXPECT_EQ("[x]DAT00001.DAT\n[x]DAT00002.DAT\n[x]DAT00003.DAT\n", listText(list(), 1));
  control<QAction>(form, "mnuACancel")->trigger();
  check(0);
  check(2);
  inModal("frmSetFileSer", [](QDialog& dialog) {
    enter(dialog, "txtFileName", "FIRST");
    press(dialog, "cmdSet");
  });
  press(form, "cmdFileSerNameChange");
  const std::string marked = "[x]FIRST.DAT\n[ ]DAT00002.DAT\n[x]DAT00003.DAT\n";
  tab(vk::kTabCsv);
  EXPECT_EQ("111111111111011 picCSVSave", state());
  EXPECT_EQ(folder + marked, textIn(form, "txtFolder(1)") + listText(list(), 1));
  tab(vk::kTabWave);
  EXPECT_EQ("DAT00001.DAT\nDAT00002.DAT\nDAT00003.DAT\n111111111111111 picWave",
            listText(list(), 1) + state());
  EXPECT_FALSE(control<QPushButton>(form, "cmdFileSerNameChange")->isVisible());
  rightClick();
  EXPECT_FALSE(menu->isVisible());
  // The marks outlast the tab without check boxes.
  tab(vk::kTabBinary);
  EXPECT_EQ(marked, listText(list(), 1));
}

TEST_F(frmRouteDirectoryTest, SavesRenamedFilesAsThePairOfTheCard) {
  open(vk::kTabBinary);
  press(form, "cmdBinSave");
  EXPECT_EQ("check file.", label("lblPrg"));
  check(1);
  check(2);
  inModal("frmSetFileSer", [](QDialog& dialog) {
    type(dialog, "txtAutoFileName", "T1_");
    press(dialog, "cmdFAutoSet");
    clickRow(*control<QTreeWidget>(dialog, "lvwFileName"), 1);
    enter(dialog, "txtSerName", "left,right");
    press(dialog, "cmdSet");
  });
  press(form, "cmdFileSerNameChange");
  press(form, "cmdBinSave");
  EXPECT_TRUE(onCard("DAT00002.DAT") == saved("T1_DAT00002.dat"));
  EXPECT_TRUE(onCard("DAT00003.DAT") == saved("T1_DAT00003.dat"));
  EXPECT_EQ("DATASET T1_DAT00003\r\nVERSION 1\r\nSERIES left,right\r\nDATE 01-05-2026\r\n",
            saved("T1_DAT00003.hed").substr(0, 68));
  EXPECT_EQ("Ended.", desk.takeLog() + label("lblPrg") + label("lblPrgCnt") + vk::gTempFileList);
  EXPECT_EQ(0, control<QProgressBar>(form, "pbrFile")->value());
}

TEST_F(frmRouteDirectoryTest, LocksItsControlsDuringATransfer) {
  open(vk::kTabBinary, {0});
  std::string during;
  inTransfer([&] {
    during = state() + " " + label("lblPrgCnt") + " " + label("lblPrg");
    for (const char* name : {"cmdBinSave", "cmdCancel", "cmdRun"}) press(form, name);
    QTest::keyClick(&form, Qt::Key_Escape);
    form.close();
    auto* tabs = control<QTabBar>(form, "tbsSelect");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    click(2);
    control<QAction>(form, "mnuASelect")->trigger();
    EXPECT_EQ(during.substr(0, 26), state());
    EXPECT_TRUE(form.isVisible());
  });
  press(form, "cmdBinSave");
  EXPECT_EQ("000000000000000 picBinSave 50% DAT00001.DAT  Reading data file from the VK-480Q...",
            during);
  EXPECT_EQ("111111111111011 picBinSave", state());
  EXPECT_TRUE(onCard("DAT00001.DAT") == saved("DAT00001.dat"));
  EXPECT_EQ("", desk.takeLog());
  EXPECT_EQ("", saved("DAT00003.dat"));
  form.close();
  EXPECT_FALSE(form.isVisible());
}

TEST_F(frmRouteDirectoryTest, SavesAsCsvAsItsPageSays) {
  std::filesystem::create_directory(folder + "/there");
  open(vk::kTabCsv, {1});
  type(form, "txtFolder(1)", (folder + "/there").c_str());
  press(form, "cmdCSVSave");
  EXPECT_EQ("Ended.", desk.takeLog() + label("lblPrg"));
  control<QRadioButton>(form, "optCoeff(1)")->click();
  control<QCheckBox>(form, "chkDivision")->setChecked(true);
  control<QComboBox>(form, "cmbDivision")->setCurrentText("30000");
  press(form, "cmdCSVSave");
  const auto body = [&](const std::string& name) {
    const std::string text = saved("there/" + name);
    const auto at = text.find("\n1,");
    return at == std::string::npos ? "none" : text.substr(at + 1);
  };
  const float slope = vk::toSingle(vk::headerValue(onCard("DAT00002.HED"), "SLOPE"));
  EXPECT_EQ(slope, 0.25F);
  std::istringstream data(onCard("DAT00002.DAT"));
  std::vector<int16_t> value(1);
  std::string scaled, raw;
  for (int i = 1; i <= 30000; ++i) {
    vk::readFrame(data, value);
    scaled += vk::textOf(i) + "," + vk::textOf(vk::sampleValue(value[0], slope)) + "\r\n";
    raw += vk::textOf(i) + "," + vk::textOf(value[0]) + "\r\n";
  }
  EXPECT_TRUE(body("DAT00002.csv").starts_with(scaled));
  EXPECT_TRUE(body("DAT00002_0001.csv") == raw);
  EXPECT_NE(body("DAT00002_0002.csv"), "none");
  EXPECT_EQ(body("DAT00002_0003.csv"), "none");
  EXPECT_EQ("111111111111011 picCSVSave", state());
}

TEST_F(frmRouteDirectoryTest, FetchesAFileForTheWaveView) {
  open();
  bench.box(0).faults.add({vksim::FaultKind::kBlock, "DAT", 0, 1});
  press(form, "cmdRun");
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(0, vk::waveRequestSet);
  click(1);
  click(0);
  std::string during;
  inTransfer([&] { during = state(); });
  press(form, "cmdRun");
  EXPECT_EQ("000000000000000 picWave", during);
  EXPECT_EQ(1, vk::waveRequestSet);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(QDialog::Accepted, form.result());
  const std::string stem = vk::waveOpenRequest.fileName[0];
  EXPECT_TRUE(onCard("DAT00001.DAT") == fileText(stem + ".dat"));
  EXPECT_EQ(stem + ".dat\r\n" + stem + ".hed\r\n", vk::gTempFileList);
  EXPECT_EQ(0u, stem.find(desk.data.path().toStdString()));
  EXPECT_EQ("1,2,3,4", vk::waveOpenRequest.channelList[0]);
}

TEST_F(frmRouteDirectoryTest, TheFolderPickersChoiceIsShown) {
  std::filesystem::create_directory(folder + "/deeper");
  open(vk::kTabBinary);
  inModal("frmSelectFolder", [](QDialog& dialog) {
    QTest::keyClick(control<QTreeWidget>(dialog, "Dir1"), Qt::Key_Down);
    press(dialog, "cmdSet");
  });
  press(form, "cmdFolder(0)");
  EXPECT_EQ(folder + "/deeper" + folder,
            textIn(form, "txtFolder(0)") + textIn(form, "txtFolder(1)"));
  // After a cancel the default folder is shown as well.
  inModal("frmSelectFolder", [](QDialog& dialog) { dialog.reject(); });
  press(form, "cmdFolder(1)");
  EXPECT_EQ(folder + "/deeper", textIn(form, "txtFolder(1)"));
  // A folder that is gone gives way to the program's own.
  vk::gDefaultFolder = "d:\\";
  open();
  EXPECT_EQ(desk.applicationFolder().string(), vk::gDefaultFolder);
  EXPECT_EQ(vk::gDefaultFolder, textIn(form, "txtFolder(0)"));
}

}  // namespace
}  // namespace vktest
