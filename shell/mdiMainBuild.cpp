// SPDX-License-Identifier: MIT
// The parts of the main window: menus, shortcut bar, status bar, counter display, timers.
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "base/mdlTwips.h"
#include "desktop/clsBarScroller.h"
#include "desktop/clsClickArea.h"
#include "desktop/clsElidedLabel.h"
#include "desktop/qtText.h"
#include "desktop/uiIcons.h"
#include "link/mdlUSBCommand.h"
#include "monitors/mdlMonitorCycle.h"
#include "shell/frmBoxPanel.h"
#include "shell/mdiMain.h"
#include "shell/mdlConfig.h"

namespace vk {

namespace {

constexpr int kShortcutHeight = 50;
constexpr int kStatusHeight = 61;
constexpr int kContentsWidth = 216;
constexpr int kCounterWidth = 20;
constexpr int kStatusPollMs = 1000;

QPlainTextEdit* hiddenText(QWidget* parent, const char* name) {
  auto* box = named(new QPlainTextEdit(parent), QLatin1String(name));
  box->hide();
  return box;
}

}  // namespace

mdiMain::mdiMain() {
  named(this, QStringLiteral("mdiMain"));
  setWindowTitle(tr("VK-480Q CONTROLLER"));
  setWindowIcon(uiIcon(UiIcon::kProgram));

  auto* body = new QWidget(this);
  auto* rows = new QVBoxLayout(body);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  picShtCut_ = named(new QWidget(body), QStringLiteral("picShtCut"), tr("Short cut bar"));
  area_ = named(new QMdiArea(body), QStringLiteral("mdiArea"));
  area_->setMinimumSize(1, 1);  // the strip that the window opens as leaves no room for more
  area_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  picStatus_ = named(new clsBarScroller(body), QStringLiteral("picStatus"), tr("Status bar"));
  rows->addWidget(picShtCut_);
  rows->addWidget(picStatus_);
  rows->addWidget(area_, 1);
  setCentralWidget(body);

  txtDummy_ = hiddenText(this, "txtDummy");
  txtDelFile_ = hiddenText(this, "txtDelFile");
  buildMenus();
  buildShortcutBar();
  buildStatusBar();
  buildCounters();
  buildTimers();
  gMonitorHandlers = {[this](MonitorKind kind) { loadMonitor(kind); }, [this] { loseLink(); }};
  placeFrame();
  fillBoxPanels();
}

QMenu* mdiMain::addMenu(const char* name, const QString& caption) {
  auto* menu = named(menuBar()->addMenu(caption), QString::fromLatin1(name));
  menu->setToolTipsVisible(true);
  return menu;
}

QAction* mdiMain::addItem(QMenu* menu, const Item& item) {
  auto* action = named(menu->addAction(item.caption), QString::fromLatin1(item.name));
  action->setStatusTip(item.tip);
  // A switched-off item tells no status tip; its tool tip shows all the same.
  if (!item.action) action->setToolTip(item.tip);
  action->setEnabled(item.action != nullptr);
  if (item.action) connect(action, &QAction::triggered, this, item.action);
  return action;
}

void mdiMain::buildMenus() {
  buildFileMenu();
  buildSettingsMenu();
  buildViewMenus();
  buildEtcMenu();
}

void mdiMain::buildFileMenu() {
  auto* menu = addMenu("mnuFile", tr("&File"));
  addItem(menu, {"mnuFDataFileLoad",
                 tr("&Open data file"),
                 tr("Opens stored recordings as waves (not in this version yet)"),
                 {}});
  addItem(menu, {"mnuFCSVChange", tr("Data file &CSV conversion"),
                 tr("Turns stored recordings into CSV files"), [this] { mnuFCSVChange_Click(); }});
  addItem(menu, {"mnuFMeterRead", tr("&Read data from VK-480Q"),
                 tr("Lists the recordings on a box's card and saves them"),
                 [this] { mnuFMeterRead_Click(); }});
  menu->addSeparator();
  addItem(menu, {"mnuFEND", tr("E&xit VK-480Q CONTROLLER"),
                 tr("Saves the settings and ends the program; boxes go on recording"),
                 [this] { close(); }})
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void mdiMain::buildSettingsMenu() {
  auto* menu = addMenu("mnuEdit", tr("&Settings"));
  addItem(menu, {"mnuEMeasureSet", tr("&Measurement condition setting"),
                 tr("Sets channels, ranges, sampling and trigger of a box"),
                 [this] { mnuEMeasureSet_Click(); }});
  addItem(menu, {"mnuEMonitorSet", tr("M&onitor setting"),
                 tr("Chooses which live monitors are shown"), [this] { mnuEMonitorSet_Click(); }});
  addItem(menu, {"mnuETimeSet", tr("Date-&Time setting"), tr("Sets the clock of a box"),
                 [this] { mnuETimeSet_Click(); }});
}

void mdiMain::buildViewMenus() {
  auto* window = addMenu("mnuWindow", tr("&Window"));
  const auto tile = [](Tiling tiling) {
    return [tiling](const std::vector<TilePlace>& windows, int width, int height) {
      return tilePlaces(tiling, ssize(windows), width, height);
    };
  };
  addItem(window,
          {"mnuWHorizontal", tr("&Horizontal"), tr("Arranges the child windows one below another"),
           [=, this] { arrange(tile(Tiling::kHorizontal)); }});
  addItem(window, {"mnuWVertical", tr("&Vertical"), tr("Arranges the child windows side by side"),
                   [=, this] { arrange(tile(Tiling::kVertical)); }});
  addItem(window, {"mnuVCascade", tr("&Cascade"), tr("Arranges the child windows overlapping"),
                   [this] { arrange(cascadePlaces); }});

  auto* view = addMenu("mnuView", tr("&View"));
  mnuVShortCut_ =
      addItem(view, {"mnuVShortCut", tr("Short cut"), tr("Shows or hides the short cut bar"),
                     [this] { mnuVShortCut_Click(); }});
  mnuVStatus_ =
      addItem(view, {"mnuVStatus", tr("Status"), tr("Shows or hides the bar with the boxes"),
                     [this] { mnuVStatus_Click(); }});
  mnuVShortCut_->setCheckable(true);
  mnuVStatus_->setCheckable(true);
}

void mdiMain::buildEtcMenu() {
  auto* menu = addMenu("mnuEtc", tr("&Control"));
  addItem(menu, {"mnuCBalance", tr("&Balance"), tr("Zeroes the bridges of one box or all"),
                 [this] { mnuCBalance_Click(); }});
  mnuCCAL_ =
      addItem(menu, {"mnuCCAL", tr("&Calibration"), tr("Switches the calibration output of a box"),
                     [this] { mnuCCAL_Click(); }});
  addItem(menu, {"mnuCOpen",
                 tr("C&heck"),
                 tr("Runs the self checks of a box (not in this version yet)"),
                 {}});
  addItem(menu, {"mnuCSetList", tr("&Setting /Conditions list"),
                 tr("Lists the conditions of a box"), [this] { mnuCSetList_Click(); }});
  addItem(menu, {"mnuCCFinit", tr("&Initializing CF card"), tr("Formats the card in a box"),
                 [this] { mnuCCFinit_Click(); }});
  menu->addSeparator();
  addItem(menu, {"mnuCReconnect", tr("&Re-connect"), tr("Searches the bus for boxes again"),
                 [this] { mnuCReconnect_Click(); }})
      ->setShortcut(QKeySequence(Qt::Key_F5));
  addItem(menu, {"mnuCVersion",
                 tr("&About VK-480Q CONTROLLER"),
                 tr("Shows the versions of the program and the boxes (not in this version yet)"),
                 {}});
}

void mdiMain::buildShortcutBar() {
  static constexpr const char* kItems[kShortcuts] = {
      "mnuFDataFileLoad", "mnuFCSVChange", "mnuFMeterRead", "mnuEMeasureSet",
      "mnuEMonitorSet",   "mnuCBalance",   "mnuCCAL",       "mnuCOpen",
      "mnuCSetList",      "mnuCCFinit",    "mnuCReconnect"};
  static constexpr UiIcon kIcons[kShortcuts] = {
      UiIcon::kOpenData, UiIcon::kCsv,      UiIcon::kReadUsb,  UiIcon::kMeasure,
      UiIcon::kMonitor,  UiIcon::kBalance,  UiIcon::kCal,      UiIcon::kCheck,
      UiIcon::kList,     UiIcon::kCardInit, UiIcon::kReconnect};
  picShtCut_->setFixedHeight(kShortcutHeight);
  for (int i = 0; i < kShortcuts; ++i) {
    auto* action = findChild<QAction*>(QLatin1String(kItems[i]));
    auto* button = new QToolButton(picShtCut_);
    named(button, elementName("cmdShtCut", i), action->text().remove(QLatin1Char('&')));
    button->setText(toQt(shortcutText(i)));
    button->setIcon(uiIcon(kIcons[i]));
    button->setIconSize(QSize(24, 24));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setStatusTip(action->statusTip());
    button->setToolTip(action->statusTip());
    button->setEnabled(action->isEnabled());
    button->resize(toPixels(kShortcutWidth), kShortcutHeight - 2);
    QFont small = button->font();
    small.setPointSizeF(qMax(7.0, small.pointSizeF() - 1));
    button->setFont(small);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    cmdShtCut_[i] = button;
  }
  lblStatusTip_ = named(new clsElidedLabel(picShtCut_), QStringLiteral("lblStatusTip"));
  lblStatusTip_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* row = new QHBoxLayout(picShtCut_);
  const int buttonsEnd = toPixels(shortcutsEnd());
  row->setContentsMargins(buttonsEnd + 10, 0, 10, 0);
  row->addWidget(lblStatusTip_, 1);
}

void mdiMain::buildStatusBar() {
  auto* bar = picStatus_->bar();
  picStatus_->setBarSize({toPixels(panelsEnd()) + kContentsWidth + kCounterWidth, kStatusHeight});
  auto* modes = buildStatusModes();
  modes->setGeometry(4, 2, toPixels(kPanelsLeft) - 8, kStatusHeight - 4);
  for (int i = 0; i <= kBoxes; ++i) {
    auto* panel = new frmBoxPanel(i, bar);
    panel->onCommand = [this, i](PanelCommand command) { panelCommand(command, i); };
    panel_[i] = panel;
  }
  connect(panel_[0]->boxList(), &QComboBox::currentIndexChanged, this, &mdiMain::cmbSerNum_Click);
  auto* contents = buildStatusContents();
  contents->setGeometry(toPixels(panelsEnd()) + 6, 2, kContentsWidth - 8, kStatusHeight - 4);
  auto* counterArea = named(new clsClickArea(bar), QStringLiteral("picCommErrorViewCnt"));
  counterArea->setGeometry(bar->width() - kCounterWidth, 2, kCounterWidth, kStatusHeight - 4);
  counterArea->onClick = [this] { picCommErrorViewCnt_Click(); };
}

QWidget* mdiMain::buildStatusModes() {
  auto* box = new QWidget(picStatus_->bar());
  auto* column = new QVBoxLayout(box);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  auto* group = new QButtonGroup(box);
  const QString texts[] = {tr("8 boxes"), tr("Main box")};
  for (int i = 0; i < 2; ++i) {
    auto* option = named(new QRadioButton(texts[i], box), elementName("optStaMode", i));
    group->addButton(option, i);
    column->addWidget(option);
    optStaMode_[i] = option;
  }
  connect(group, &QButtonGroup::idToggled, this, [this](int id, bool on) {
    if (on) optStaMode_Click(id);
  });
  return box;
}

QWidget* mdiMain::buildStatusContents() {
  auto* box = named(new QWidget(picStatus_->bar()), QStringLiteral("picStaContents"),
                    tr("Contents of the panels"));
  auto* grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(0);
  auto* group = new QButtonGroup(box);
  const QString texts[] = {tr("Ser.No"), tr("Card files"), tr("Master/Slave"), tr("Model")};
  for (int i = 0; i < 4; ++i) {
    auto* option = named(new QRadioButton(texts[i], box), elementName("optStaContents", i));
    group->addButton(option, i);
    grid->addWidget(option, i / 2, i % 2);
    optStaContents_[i] = option;
  }
  connect(group, &QButtonGroup::idToggled, this, [this](int id, bool on) {
    if (on) optStaContents_Click(id);
  });
  return box;
}

// In the corner of the menu bar, which stays when both bars are off.
void mdiMain::buildCounters() {
  picCommError_ = named(new QWidget(menuBar()), QStringLiteral("picCommError"));
  auto* row = new QHBoxLayout(picCommError_);
  row->setContentsMargins(0, 0, 10, 0);
  row->setSpacing(12);
  for (int i = 0; i < 4; ++i) {
    lblCommErr_[i] = named(new QLabel(picCommError_), elementName("lblCommErr", i));
    row->addWidget(lblCommErr_[i]);
  }
  picCommError_->hide();
  gLinkEvents.countersChanged = [this] { showCounters(); };
}

void mdiMain::buildTimers() {
  tmrStatus_ = named(new QTimer(this), QStringLiteral("tmrStatus"));
  tmrStatus_->setInterval(kStatusPollMs);
  connect(tmrStatus_, &QTimer::timeout, this, &mdiMain::tmrStatus_Timer);
  // Nothing starts this one; should it ever tick, it stops itself.
  auto* tmrMonitor = named(new QTimer(this), QStringLiteral("tmrMonitor"));
  tmrMonitor->setInterval(1);
  connect(tmrMonitor, &QTimer::timeout, tmrMonitor, &QTimer::stop);
}

}  // namespace vk
