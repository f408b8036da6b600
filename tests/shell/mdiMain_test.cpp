// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "shell/mdiMain.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <fmt/format.h>

#include "base/mdlDataFolder.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlSelectMeter.h"
#include "storage/mdlTempFiles.h"
#include "tests/support/fake_monitor.h"

namespace vktest {
namespace {

class mdiMainTest : public BoxWindowTest {
 protected:
  void open(const char* scenario = kThreeBoxes) {
    connect(scenario);
    form = std::make_unique<vk::mdiMain>();
    form->show();
    status()->stop();
  }
  QTimer* status() { return control<QTimer>(*form, "tmrStatus"); }
  template <typename Widget = QWidget>
  Widget& at(const char* name, int index) {
    return *control<Widget>(*form, qPrintable(vk::elementName(name, index)));
  }
  std::string text(const char* name, int i) { return vk::fromQt(at<QLabel>(name, i).text()); }
  std::string state(int index) { return text("fraMeterStatus", index); }
  void click(const char* name, int index) { at<QAbstractButton>(name, index).click(); }
  QAction& item(const char* name) { return *form->findChild<QAction*>(QString::fromLatin1(name)); }
  QColor lamp(int index) { return at("shpStatus", index).palette().color(QPalette::Window); }
  /// "content|state|buttons" of the panels.
  std::string panels(int first, int last) {
    std::string all;
    for (int i = first; i <= last; ++i) {
      all += text("lblSerNumber", i) + "|" + state(i) + "|";
      for (const char* name : {"cmdStart", "cmdStop", "cmdMtrg"})
        all += at(name, i).isEnabledTo(form.get()) ? '1' : '0';
      all += "\n";
    }
    return all;
  }

  std::unique_ptr<vk::mdiMain> form;
};

TEST_F(mdiMainTest, ShowsEachBoxByTheChosenContents) {
  open();
  const char* const rows[] = {"4810021|4800137|2400052|", "Un-insert|", "Master|Slave|Slave|",
                              "VK-480Qe|VK-480Q|VK-240Q|"};
  for (int choice = 3; choice >= 0; --choice) {
    click("optStaContents", choice);
    EXPECT_EQ(vk::gStatusContents, choice);
    std::string shown;
    for (int i = choice == 1 ? 3 : 1; i <= 3; ++i) shown += text("lblSerNumber", i) + "|";
    EXPECT_EQ(shown, rows[choice]);
  }
  const std::string none = "disconnect|disconnect|000\n";
  EXPECT_EQ(panels(1, 8), "4810021|Waiting|111\n4800137|Waiting|000\n2400052|Waiting|000\n" + none +
                              none + none + none + none);
}

TEST_F(mdiMainTest, StartTriggerAndStopActAndThePanelFollows) {
  open();
  click("cmdStart", 1);
  EXPECT_EQ(state(1), "Waiting for Trigger ");
  EXPECT_EQ(lamp(1), QColor(0xFF, 0x80, 0x80));
  click("cmdMtrg", 1);
  EXPECT_EQ(state(1), "Recording");
  EXPECT_EQ(lamp(1), QColor(0x80, 0xFF, 0x80));
  // The slaves follow their master, which the next poll shows.
  EXPECT_EQ(state(2), "Waiting");
  form->tmrStatus_Timer();
  EXPECT_EQ(state(2), "Recording");
  click("cmdStop", 1);
  bench.clock.wait(60 * vksim::kSecond);
  form->tmrStatus_Timer();
  EXPECT_EQ(state(1), "Waiting");
  EXPECT_EQ(lamp(1), QColor(Qt::white));
  EXPECT_EQ(desk.takeLog(), "");
  // A refused command speaks and changes nothing.
  click("cmdMtrg", 1);
  EXPECT_EQ(desk.takeLog(),
            "box[USB Error][It can be carried out only during trigger detection.[ERROR-15]]\n");
  EXPECT_EQ(state(1), "Waiting");
}

TEST_F(mdiMainTest, AnUnpluggedBoxIsDisconnectedOnTheSecondTickAndFoundByReconnect) {
  open();
  bench.box(0).faults.add({vksim::FaultKind::kWrite, "STA", -1001, 1});
  form->tmrStatus_Timer();
  EXPECT_EQ(state(1), "Waiting");
  form->tmrStatus_Timer();
  EXPECT_EQ(panels(1, 2), "disconnect|disconnect|000\n4800137|Waiting|000\n");
  desk.answers = {vk::BoxAnswer::kCancel};
  item("mnuCReconnect").trigger();
  EXPECT_EQ(state(1), "disconnect");
  item("mnuCReconnect").trigger();
  EXPECT_EQ(panels(1, 2), "4810021|Waiting|111\n4800137|Waiting|000\n");
  const std::string box = "box[Re-connect][Reconnected and connected VK-480Q is recognized.]\n";
  EXPECT_EQ(desk.takeLog(), box + box);
  EXPECT_TRUE(status()->isActive());
}

TEST_F(mdiMainTest, TheMainPanelStandsForTheBoxOfTheList) {
  open();
  EXPECT_EQ(at("picBoxNo", 8).geometry(), QRect(900, 3, 114, 53));
  EXPECT_FALSE(at("picBoxNo", 0).isVisible());
  click("optStaMode", 1);
  click("cmdStart", 0);
  EXPECT_EQ(state(0) + state(1), "Waiting for Trigger Waiting for Trigger ");
  auto* list = control<QComboBox>(*form, "cmbSerNum");
  EXPECT_EQ(list->itemText(2) + list->itemText(7) + QString::number(list->count()),
            "2400052disconnect8");
  list->setCurrentIndex(1);
  EXPECT_TRUE(vk::gMainBox == 2 && vk::gStatusMode == 1);
  EXPECT_EQ(panels(0, 0), "4800137|Waiting for Trigger |000\n");
  EXPECT_FALSE(at("picBoxNo", 2).isVisible());
  EXPECT_EQ(at("picBoxNo", 8).geometry(), QRect(668, 29, 114, 25));
  // A low panel shows its state, also without a box, but no buttons.
  std::string shown;
  for (const int mode : {1, 0}) {
    click("optStaMode", mode);
    for (const int box : {3, 8})
      for (const char* name : {"lblSerNumber", "shpStatus", "cmdStart", "cmdStop", "cmdMtrg"})
        shown += at(name, box).isVisible() ? '1' : '0';
  }
  EXPECT_EQ(shown, "11000110001111111111");
}

TEST_F(mdiMainTest, MenuItemsStandInTheirPlaces) {
  open();
  std::string text;
  for (const auto* menu : form->menuBar()->actions()) {
    text += vk::fromQt(menu->text()) + ":";
    for (const auto* entry : menu->menu()->actions()) {
      EXPECT_EQ(entry->statusTip().isEmpty(), entry->isSeparator());
      if (!entry->isSeparator())
        text += (entry->isEnabled() ? "+" : "-") + vk::fromQt(entry->text());
    }
  }
  EXPECT_EQ(text,
            "&File:-&Open data file+Data file &CSV conversion+&Read data from VK-480Q"
            "+E&xit VK-480Q CONTROLLER"
            "&Settings:+&Measurement condition setting+M&onitor setting+Date-&Time setting"
            "&Window:+&Horizontal+&Vertical+&Cascade&View:+Short cut+Status"
            "&Control:+&Balance+&Calibration-C&heck+&Setting /Conditions list"
            "+&Initializing CF card+&Re-connect-&About VK-480Q CONTROLLER");
}

TEST_F(mdiMainTest, TheCalibrationButtonShowsWithAnAnalogOutputOnly) {
  open();
  const auto bar = [this] {
    std::string text;
    for (int i = 0; i < vk::kShortcuts; ++i) {
      const auto& button = at<QAbstractButton>("cmdShtCut", i);
      if (button.isVisible()) text += fmt::format("{}:{} ", vk::fromQt(button.text()), button.x());
    }
    return text;
  };
  const std::string first =
      "Open Dat:20 CSV Cnv:80 Read USB:140 Meas Set:200 Moni Set:260 Balance:320 ";
  EXPECT_EQ(bar(), first + "CAL:380 Check:440 List:500 CF Ini:560 Re-Cnt:620 ");
  bench.bus.rig.recorders.clear();
  bench.load("[box 4800137]\nrole = master\n");
  item("mnuCReconnect").trigger();
  EXPECT_EQ(bar(), first + "Check:380 List:440 CF Ini:500 Re-Cnt:560 ");
  EXPECT_FALSE(item("mnuCCAL").isVisible());
}

TEST_F(mdiMainTest, BarsFollowTheirItems) {
  open();
  auto* bar = control<QWidget>(*form, "picShtCut");
  for (const bool shown : {false, true}) {
    item("mnuVShortCut").trigger();
    EXPECT_EQ(bar->isVisible(), shown);
    EXPECT_TRUE(vk::gShowShortcut == shown && item("mnuVShortCut").isChecked() == shown);
  }
  item("mnuVStatus").trigger();
  EXPECT_FALSE(control<QWidget>(*form, "picStatus")->isVisible());
}

TEST_F(mdiMainTest, TheTwentiethClickShowsTheCounters) {
  open();
  auto* area = control<QWidget>(*form, "picCommErrorViewCnt");
  auto* counters = control<QWidget>(*form, "picCommError");
  item("mnuVShortCut").trigger();  // the bar beside them is of no account
  vk::gCommReconnectCnt = 3;
  for (int i = 1; i <= 21; ++i) {
    QTest::mouseClick(area, Qt::LeftButton);
    ASSERT_EQ(counters->isVisible(), i >= 20) << i;
  }
  EXPECT_EQ(text("lblCommErr", 0), "Reconnect = 3");
  vk::gCommSendErrCnt = 1, vk::gCommRecvErrCnt = 22, vk::gCommContentErrCnt = 7;
  vk::gLinkEvents.countersChanged();
  EXPECT_EQ(text("lblCommErr", 1) + text("lblCommErr", 2) + text("lblCommErr", 3),
            "Send = 1Recive = 22Content = 7");
  for (int i = 0; i < 4; ++i)
    EXPECT_GE(at("lblCommErr", i).width(), at("lblCommErr", i).sizeHint().width());
  vk::resetCommCounters();
}

TEST_F(mdiMainTest, EachJobOffersItsBoxes) {
  open();
  const std::pair<const char*, int32_t> rows[] = {
      {"mnuFMeterRead", vk::kSelectBox},     {"mnuEMeasureSet", vk::kSelectBox},
      {"mnuETimeSet", vk::kSelectConnected}, {"mnuCCAL", vk::kSelectConnected},
      {"mnuCSetList", vk::kSelectBox},       {"mnuCBalance", vk::kSelectBoxAndChannel},
      {"mnuCCFinit", vk::kSelectConnected}};
  for (const auto& [name, mode] : rows) {
    vk::gSelMode = 0;
    inModal("frmSelectMeterCh", [](QDialog& choice) { choice.reject(); });
    item(name).trigger();
    EXPECT_EQ(vk::gSelMode, mode) << name;
  }
}

TEST_F(mdiMainTest, ABalanceOfAllMetersAsksEachBox) {
  open();
  bench.box(1).faults.add({vksim::FaultKind::kError, "BAL", 20, 1});
  inModal("frmSelectMeterCh", [](QDialog& choice) {
    for (const char* name : {"cmbMeter", "cmbChannel"})
      control<QComboBox>(choice, name)->setCurrentIndex(0);
    control<QPushButton>(choice, "cmdRun")->click();
  });
  item("mnuCBalance").trigger();
  EXPECT_EQ(desk.takeLog(), "box[USB Error][Parameter Error[ERROR-20]]\n");
}

TEST_F(mdiMainTest, ReadingACardGoesOverTheChoiceOfABox) {
  open();
  const std::pair<int, const char*> rows[] = {
      {0, "card;"}, {7, ""}, {0, "box[USB Error][Route directory breaks.[ERROR-43]]\n"}};
  for (const auto& [meter, log] : rows) {
    SCOPED_TRACE(log);
    status()->start();
    const bool opens = log == std::string("card;");
    if (!opens) bench.box(0).faults.add({vksim::FaultKind::kError, "RTD", 43, 1});
    std::string seen;
    inModal("frmSelectMeterCh", [&, meter = meter](QDialog& choice) {
      EXPECT_FALSE(status()->isActive());
      control<QComboBox>(choice, "cmbMeter")->setCurrentIndex(meter);
      if (opens) {
        inModal("frmRouteDirectory", [&](QDialog& card) {
          seen = "card;";
          control<QPushButton>(card, "cmdCancel")->click();
        });
      }
      control<QPushButton>(choice, "cmdRun")->click();
    });
    item("mnuFMeterRead").trigger();
    EXPECT_EQ(seen + desk.takeLog(), log);
    EXPECT_TRUE(status()->isActive());
  }
}

TEST_F(mdiMainTest, SetOfTheConditionsBringsTheUnitsIntoTheMonitors) {
  open();
  std::vector<std::string> calls;
  vk::gNumMoni[4].NUM_ONOFF = true;
  const FakeMonitor monitor(vk::MonitorKind::kNumerical, 4, calls);
  for (const char* button : {"cmdCancel", "cmdSet"}) {
    inModal("frmSelectMeterCh", [&](QDialog& choice) {
      control<QComboBox>(choice, "cmbMeter")->setCurrentIndex(0);
      inModal("frmSetting",
              [&](QDialog& dialog) { control<QPushButton>(dialog, button)->click(); });
      control<QPushButton>(choice, "cmdRun")->click();
    });
    item("mnuEMeasureSet").trigger();
    const bool set = button == std::string("cmdSet");
    EXPECT_EQ(calls, std::vector<std::string>(set ? 1 : 0, "numerical 4 unit"));
  }
}

TEST_F(mdiMainTest, TheEndKeepsTheSettingsAndClearsTheTemporaryFiles) {
  open();
  click("optStaContents", 3);
  const std::string listed = desk.data.path().toStdString() + "/listed.dat";
  const std::string temporary = vk::tempFolder() + "A.dat";
  for (const auto& name : {listed, temporary}) std::ofstream(name) << "x";
  vk::gTempFileList = listed + "\r\n";
  item("mnuFEND").trigger();
  EXPECT_EQ(desk.takeLog(), "end\n");
  EXPECT_FALSE(std::filesystem::exists(listed) || std::filesystem::exists(temporary));
  EXPECT_NE(fileText(vk::configPath()).find("STATUS_CONTENTS 3\r\n"), std::string::npos);
  EXPECT_EQ(bench.bus.status(), 0);
  vk::gTempFileList.clear();
}

}  // namespace
}  // namespace vktest
