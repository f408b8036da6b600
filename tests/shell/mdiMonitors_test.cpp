// SPDX-License-Identifier: MIT
// Live monitors in the main window, read by the real loop from simulated boxes.
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "shell/mdiMain.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <vector>

#include "base/mdlGuard.h"
#include "link/mdlUSBCommand.h"
#include "monitors/frmMonitor.h"
#include "monitors/mdlMonitorCycle.h"

namespace vktest {
namespace {

constexpr int32_t kFirst = 4810021;
constexpr int32_t kSecond = 4800137;
constexpr const char* kTwoBoxes =
    "[box 4810021]\nmodel = VK-480Qe\nsignal1 = flat 0 10000 100\n"
    "[box 4800137]\nmodel = VK-480Q\nsignal1 = flat 0 10000 200\n";

/// Waits without waiting, and takes the next step of a test after each round of the loop.
class SteppingDesktop : public WindowDesktop {
 public:
  std::vector<std::function<bool()>> steps;  ///< a step is repeated until it returns true

  void doEvents() override {
    clsQtDesktop::doEvents();
    step();
  }
  void waitEvents(int milliseconds) override {
    skipped += milliseconds > 0 ? milliseconds : 1;
    doEvents();
  }

 private:
  void step() {
    constexpr int kPatience = 20000;
    if (steps.empty() || stepping_ || ending_) return;
    const vk::FlagGuard guard(stepping_);
    if (at_ < steps.size() && steps[at_]()) ++at_, tries_ = 0;
    if (++tries_ > kPatience) ADD_FAILURE() << "step " << at_ << " was not reached";
    ending_ = at_ == steps.size() || tries_ > kPatience;
  }

  std::size_t at_ = 0;
  int tries_ = 0;
  bool stepping_ = false;
};

class mdiMonitorsTest : public BoxWindowTest {
 protected:
  mdiMonitorsTest() {
    connect(kTwoBoxes);
    form = std::make_unique<vk::mdiMain>();
    form->show();
    control<QTimer>(*form, "tmrStatus")->stop();
    open(0, kFirst);
    open(1, kSecond);
  }
  ~mdiMonitorsTest() override {
    form.reset();
    quick.clsQtDesktop::doEvents();
    vk::setDefaults();
  }

  void open(std::size_t index, int32_t serial) {
    vk::gNumMoni[index].NUM_ONOFF = true;
    vk::gNumMoni[index].NUM_SER = serial;
    vk::gNumMoni[index].NUM_CAPTION = "kept";
    vk::openMonitor(vk::MonitorKind::kNumerical, index);
  }
  static QWidget* window(std::size_t index) {
    return dynamic_cast<QWidget*>(vk::monitorWindow(vk::MonitorKind::kNumerical, index));
  }
  static std::string held(std::size_t index) {
    auto* monitor = window(index);
    return monitor ? vk::fromQt(control<QLabel>(*monitor, "lblMaxMoni")->text()) : "none";
  }
  std::string counters() const {
    std::string all;
    for (const char* name : {"lblCommErr(0)", "lblCommErr(1)", "lblCommErr(2)", "lblCommErr(3)"})
      all += vk::fromQt(control<QLabel>(*form, name)->text()) + " ";
    return all;
  }
  /// Presses the button of the notice that is to come.
  static void answerNotice(std::string& seen) {
    inModal(
        "frmMsgButton",
        [&seen](QDialog& notice) {
          seen = vk::fromQt(notice.windowTitle());
          for (const char* name : {"lblMain", "lblSub1"})
            seen += "|" + vk::fromQt(control<QLabel>(notice, name)->text());
          control<QPushButton>(notice, "cmdClose")->click();
        },
        kManyRounds);
  }
  static constexpr int kManyRounds = 20000;

  SteppingDesktop quick;
  std::unique_ptr<vk::mdiMain> form;
};

TEST_F(mdiMonitorsTest, FaultsOfALink) {
  using vksim::FaultKind;
  const std::tuple<FaultKind, int, int, const char*> rows[] = {
      {FaultKind::kWrite, -1007, 1, "Reconnect = 0 Send = 1 Recive = 0 "},
      {FaultKind::kWrite, -1007, 2, "Reconnect = 1 Send = 1 Recive = 0 "},
      {FaultKind::kRead, 0, 2, "Reconnect = 1 Send = 0 Recive = 1 "},
      {FaultKind::kGarble, 1, 2, "Reconnect = 1 Send = 0 Recive = 0 "}};
  for (const auto& [kind, number, times, counted] : rows) {
    SCOPED_TRACE(counted);
    vk::resetCommCounters();
    std::string notice;
    SteppingDesktop desk_;
    int rounds = 0;
    const auto bothRead = [&] { return held(0) == "+100" && held(1) == "+200"; };
    desk_.steps = {bothRead,
                   [&, kind = kind, number = number, times = times] {
                     bench.box(1).faults.add({kind, "MON", number, times});
                     if (times == 2) answerNotice(notice);
                     return true;
                   },
                   [&] { return ++rounds > 20 && bothRead(); }};
    vk::monitorLoop();
    EXPECT_EQ(notice, times == 2 ? "Communication Error|Communication Error has occurred.It is "
                                   "reconnected.|Reconnecting.."
                                 : "");
    EXPECT_TRUE(counters().starts_with(counted)) << counters();
  }
  vk::setDesktop(&quick);
  vk::resetCommCounters();
}

TEST_F(mdiMonitorsTest, ClosesInsideItsOwnEvent) {
  quick.steps = {
      [&] { return held(0) == "+100"; },
      [&] {
        auto* clear = control<QPushButton>(*window(0), "cmdPReset");
        QObject::connect(clear, &QPushButton::clicked, clear, [&] {
          window(0)->parentWidget()->close();
          quick.doEvents();
        });
        clear->click();
        return true;
      },
      [&] { return held(0) == "none" && form->findChildren<QMdiSubWindow*>().size() == 1; }};
  vk::monitorLoop();
  EXPECT_FALSE(vk::gNumMoni[0].NUM_ONOFF);
  EXPECT_TRUE(vk::gNumMoni[1].NUM_ONOFF);
  EXPECT_EQ(vk::gNumMoni[0].NUM_CAPTION, "kept");
}

TEST_F(mdiMonitorsTest, ALostBoxComesBackToItsWindowAndAnOpenDialog) {
  std::string notice;
  QDialog* dialog = nullptr;
  quick.steps = {[&] { return held(1) == "+200"; },
                 [&] {
                   window(1)->parentWidget()->setGeometry(30, 45, 300, 150);
                   bench.box(1).plugged = false;
                   answerNotice(notice);
                   return true;
                 },
                 [&] { return held(0) == "+100" && held(1) == "--- "; },
                 [&] {
                   bench.box(1).plugged = true;
                   control<QPushButton>(*window(1), "cmdSet")->click();
                   dialog = form->findChild<QDialog*>("frmMoniNumSet");
                   control<QLineEdit>(*dialog, "txtCaption")->setText("renamed");
                   form->findChild<QAction*>("mnuCReconnect")->trigger();
                   return true;
                 },
                 [&] { return held(0) == "+100" && held(1) == "+200"; },
                 [&] {
                   EXPECT_TRUE(dialog->isVisible());
                   control<QPushButton>(*dialog, "cmdSet")->click();
                   return true;
                 }};
  vk::monitorLoop();
  EXPECT_NE(notice, "");
  EXPECT_EQ(window(1)->parentWidget()->geometry(), QRect(30, 45, 300, 150));
  EXPECT_EQ(vk::fromQt(window(1)->windowTitle()), "[2] renamed");
  EXPECT_EQ(vk::gNumMoni[1].NUM_CAPTION, "renamed");
  vk::resetCommCounters();
}

TEST_F(mdiMonitorsTest, WhatWasOpenAtTheEndOpensAtTheSamePlace) {
  window(0)->parentWidget()->setGeometry(15, 60, 320, 160);
  window(1)->parentWidget()->setGeometry(5, 6, 200, 100);
  window(1)->parentWidget()->hide();
  vk::gNumMoni[1].NUM_ONOFF = false;
  form->close();
  form.reset();
  EXPECT_EQ(quick.takeLog(), "end\n");
  vk::setDefaults();
  vk::readConfig();
  EXPECT_TRUE(vk::gNumMoni[0].NUM_ONOFF && !vk::gNumMoni[1].NUM_ONOFF);
  EXPECT_EQ(vk::gNumMoni[0].NUM_TOP, 900);
  EXPECT_EQ(vk::gNumMoni[0].NUM_WIDTH, 4800);
  EXPECT_EQ(vk::gNumMoni[1].NUM_HEIGHT, 1500);
}

TEST_F(mdiMonitorsTest, AWindowBelongsWhereItIsInTheWholeArea) {
  auto* area = control<QMdiArea>(*form, "mdiArea");
  area->setMinimumSize(300, 200);
  window(0)->parentWidget()->setGeometry(100, 20, 320, 160);
  window(1)->parentWidget()->setGeometry(2000, 6, 200, 100);
  quick.doEvents();
  area->horizontalScrollBar()->setValue(60);
  ASSERT_EQ(window(0)->parentWidget()->x(), 40);
  window(1)->parentWidget()->showMaximized();
  vk::unloadMonitors();
  EXPECT_EQ(vk::gNumMoni[0].NUM_LEFT, 1500);
  EXPECT_EQ(vk::gNumMoni[1].NUM_WIDTH, 3000);
}

TEST_F(mdiMonitorsTest, ACascadeKeepsTheSizes) {
  window(0)->parentWidget()->setGeometry(100, 20, 320, 160);
  window(1)->parentWidget()->setGeometry(200, 6, 250, 140);
  form->findChild<QAction*>("mnuVCascade")->trigger();
  EXPECT_EQ(window(0)->parentWidget()->size(), QSize(320, 160));
  EXPECT_EQ(window(1)->parentWidget()->size(), QSize(250, 140));
}

TEST_F(mdiMonitorsTest, NonsensePlacesFromAFileStayWithinReach) {
  vk::gNumMoni[2].NUM_WIDTH = vk::gNumMoni[2].NUM_TOP = 2000000000;
  vk::gNumMoni[2].NUM_HEIGHT = -5;
  open(2, kFirst);
  const QRect place = window(2)->parentWidget()->geometry();
  EXPECT_TRUE(place.width() <= 4096 && place.top() <= 16000 && place.height() >= 1);
}

TEST_F(mdiMonitorsTest, TheFrameMakesRoomForItsFirstMonitors) {
  const auto reopen = [this](int32_t lower) {
    for (const std::size_t i : {0, 1, 2}) {
      vk::gNumMoni[i].NUM_TOP = i == 1 ? lower : 0;
      open(i, kFirst);
    }
    quick.clsQtDesktop::doEvents();
  };
  vk::unloadMonitors();
  form.reset();
  form = std::make_unique<vk::mdiMain>();
  form->show();
  const auto* area = control<QWidget>(*form, "mdiArea");
  EXPECT_TRUE(QTest::qWaitFor([&] { return form->isActiveWindow(); }));
  quick.clsQtDesktop::doEvents();
  const int strip = form->height();
  reopen(3000);
  EXPECT_EQ(area->height(), 200 + 167 + 8);
  EXPECT_GT(form->height(), strip);
  // Once only.
  vk::unloadMonitors();
  reopen(4500);
  EXPECT_EQ(area->height(), 200 + 167 + 8);
}

TEST_F(mdiMonitorsTest, AFrameThatTheUserHasSizedStays) {
  quick.clsQtDesktop::doEvents();
  vk::unloadMonitors();
  form->resize(form->width(), 230);
  vk::openMonitor(vk::MonitorKind::kNumerical, 0);
  quick.clsQtDesktop::doEvents();
  EXPECT_EQ(form->height(), 230);
}

}  // namespace
}  // namespace vktest
