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
  setWindowTitle(QStringLiteral("VK-480Q CONTROLLER"));
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
  auto* action =
      named(menu->addAction(QString::fromUtf8(item.caption)), QString::fromLatin1(item.name));
  action->setStatusTip(QString::fromUtf8(item.tip));
  // A switched-off item tells no status tip; its tool tip shows all the same.
  if (!item.action) action->setToolTip(QString::fromUtf8(item.tip));
  action->setEnabled(static_cast<bool>(item.action));
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
                 "&Open data file",
                 "Opens stored recordings as waves (not in this version yet)",
                 {}});
  addItem(menu, {"mnuFCSVChange", "Data file &CSV conversion",
                 "Turns stored recordings into CSV files", [this] { mnuFCSVChange(); }});
  addItem(menu,
          {"mnuFMeterRead", "&Read data from VK-480Q",
           "Lists the recordings on a box's card and saves them", [this] { mnuFMeterRead(); }});
  menu->addSeparator();
  addItem(menu,
          {"mnuFEND", "E&xit VK-480Q CONTROLLER",
           "Saves the settings and ends the program; boxes go on recording", [this] { close(); }})
      ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void mdiMain::buildSettingsMenu() {
  auto* menu = addMenu("mnuEdit", tr("&Settings"));
  addItem(menu,
          {"mnuEMeasureSet", "&Measurement condition setting",
           "Sets channels, ranges, sampling and trigger of a box", [this] { mnuEMeasureSet(); }});
  addItem(menu, {"mnuEMonitorSet", "M&onitor setting", "Chooses which live monitors are shown",
                 [this] { mnuEMonitorSet(); }});
  addItem(menu, {"mnuETimeSet", "Date-&Time setting", "Sets the clock of a box",
                 [this] { mnuETimeSet(); }});
}

void mdiMain::buildViewMenus() {
  auto* window = addMenu("mnuWindow", tr("&Window"));
  const auto tile = [](Tiling tiling) {
    return [tiling](const std::vector<TilePlace>& windows, int width, int height) {
      return tilePlaces(tiling, static_cast<int>(windows.size()), width, height);
    };
  };
  addItem(window, {"mnuWHorizontal", "&Horizontal", "Arranges the child windows one below another",
                   [=, this] { arrange(tile(Tiling::kHorizontal)); }});
  addItem(window, {"mnuWVertical", "&Vertical", "Arranges the child windows side by side",
                   [=, this] { arrange(tile(Tiling::kVertical)); }});
  addItem(window, {"mnuVCascade", "&Cascade", "Arranges the child windows overlapping",
                   [this] { arrange(cascadePlaces); }});

  auto* view = addMenu("mnuView", tr("&View"));
  mnuVShortCut_ =
      addItem(view, {"mnuVShortCut", "Short cut", "Shows or hides the short cut bar", [this] {
                       gShowShortcut = !gShowShortcut;
                       showBars();
                     }});
  mnuVStatus_ =
      addItem(view, {"mnuVStatus", "Status", "Shows or hides the bar with the boxes", [this] {
                       gShowStatus = !gShowStatus;
                       showBars();
                     }});
  mnuVShortCut_->setCheckable(true);
  mnuVStatus_->setCheckable(true);
}

void mdiMain::buildEtcMenu() {
  auto* menu = addMenu("mnuEtc", tr("&Control"));
  addItem(menu, {"mnuCBalance", "&Balance", "Zeroes the bridges of one box or all",
                 [this] { mnuCBalance(); }});
  mnuCCAL_ = addItem(menu, {"mnuCCAL", "&Calibration", "Switches the calibration output of a box",
                            [this] { mnuCCAL(); }});
  addItem(menu,
          {"mnuCOpen", "C&heck", "Runs the self checks of a box (not in this version yet)", {}});
  addItem(menu, {"mnuCSetList", "&Setting /Conditions list", "Lists the conditions of a box",
                 [this] { mnuCSetList(); }});
  addItem(menu, {"mnuCCFinit", "&Initializing CF card", "Formats the card in a box",
                 [this] { mnuCCFinit(); }});
  menu->addSeparator();
  addItem(menu, {"mnuCReconnect", "&Re-connect", "Searches the bus for boxes again",
                 [this] { mnuCReconnect(); }})
      ->setShortcut(QKeySequence(Qt::Key_F5));
  addItem(menu, {"mnuCVersion",
                 "&About VK-480Q CONTROLLER",
                 "Shows the versions of the program and the boxes (not in this version yet)",
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
    const auto at = static_cast<std::size_t>(i);
    auto* action = findChild<QAction*>(QLatin1String(kItems[at]));
    auto* button = new QToolButton(picShtCut_);
    named(button, elementName("cmdShtCut", i), action->text().remove(QLatin1Char('&')));
    button->setText(toQt(shortcutText(i)));
    button->setIcon(uiIcon(kIcons[at]));
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
    cmdShtCut_[at] = button;
  }
  lblStatusTip_ = named(new clsElidedLabel(picShtCut_), QStringLiteral("lblStatusTip"));
  lblStatusTip_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  picCommError_ = named(new QWidget(picShtCut_), QStringLiteral("picCommError"));
  auto* row = new QHBoxLayout(picShtCut_);
  const int buttonsEnd = toPixels(shortcutsEnd());
  row->setContentsMargins(buttonsEnd + 10, 0, 10, 0);
  row->addWidget(lblStatusTip_, 1);
  row->addWidget(picCommError_);
}

void mdiMain::buildStatusBar() {
  auto* bar = picStatus_->bar();
  picStatus_->setBarSize({toPixels(panelsEnd()) + kContentsWidth + kCounterWidth, kStatusHeight});
  auto* modes = buildStatusModes();
  modes->setGeometry(4, 2, toPixels(kPanelsLeft) - 8, kStatusHeight - 4);
  for (int i = 0; i <= kBoxes; ++i) {
    auto* panel = new frmBoxPanel(i, bar);
    panel->onCommand = [this, i](PanelCommand command) { panelCommand(command, i); };
    panel_[static_cast<std::size_t>(i)] = panel;
  }
  connect(panel_[0]->boxList(), &QComboBox::currentIndexChanged, this, &mdiMain::chooseMainBox);
  auto* contents = buildStatusContents();
  contents->setGeometry(toPixels(panelsEnd()) + 6, 2, kContentsWidth - 8, kStatusHeight - 4);
  auto* counterArea = named(new clsClickArea(bar), QStringLiteral("picCommErrorViewCnt"));
  counterArea->setGeometry(bar->width() - kCounterWidth, 2, kCounterWidth, kStatusHeight - 4);
  counterArea->onClick = [this] { clickCounters(); };
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
    optStaMode_[static_cast<std::size_t>(i)] = option;
  }
  connect(group, &QButtonGroup::idToggled, this, [this](int id, bool on) {
    if (on) chooseStatusMode(id);
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
    optStaContents_[static_cast<std::size_t>(i)] = option;
  }
  connect(group, &QButtonGroup::idToggled, this, [this](int id, bool on) {
    if (on) chooseStatusContents(id);
  });
  return box;
}

void mdiMain::buildCounters() {
  auto* grid = new QGridLayout(picCommError_);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(0);
  for (int i = 0; i < 4; ++i) {
    auto* label = named(new QLabel(picCommError_), elementName("lblCommErr", i));
    grid->addWidget(label, i % 2, i / 2);
    lblCommErr_[static_cast<std::size_t>(i)] = label;
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
