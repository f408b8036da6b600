// SPDX-License-Identifier: MIT
#include "shell/mdiMain.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>
#include <QStatusTipEvent>
#include <QTimer>
#include <QToolButton>

#include "base/clsDesktop.h"
#include "base/mdlGuard.h"
#include "base/mdlTwips.h"
#include "desktop/clsBarScroller.h"
#include "desktop/qtText.h"
#include "link/mdlConnection.h"
#include "link/mdlUSBCommand.h"
#include "monitors/frmMonitor.h"
#include "monitors/frmMonitorForms.h"
#include "shell/frmBoxPanel.h"
#include "shell/frmMsgButton.h"
#include "shell/frmStart.h"
#include "shell/mdlConfig.h"
#include "shell/mdlMain.h"
#include "storage/mdlTempFiles.h"

namespace vk {

mdiMain::~mdiMain() {
  gLinkEvents.countersChanged = {};
  gMonitorHandlers = {};
}

// --- boxes ----------------------------------------------------------------------------------

void mdiMain::LEDColorChg(int panel, int32_t state) {
  panel_[panel]->setState(stateColour(state), stateText(state));
}

void mdiMain::showBoxPanel(int row, int panel) {
  const auto& box = gBoxTable[row];
  const PanelView view = panelView(box, gStatusContents);
  auto* shown = panel_[panel];
  shown->setContent(view.content);
  shown->setButtonsEnabled(view.buttons);
  LEDColorChg(panel, view.state);
}

void mdiMain::showPanelState(int row) {
  showBoxPanel(row, row);
  if (row == gMainBox) showBoxPanel(row, 0);
}

void mdiMain::showAllPanels() {
  for (int row = 1; row <= kBoxes; ++row) showPanelState(row);
}

void mdiMain::placePanels() {
  const auto places = panelPlaces(gStatusMode, gMainBox);
  for (std::size_t i = 0; i < places.size(); ++i) panel_[i]->place(places[i]);
}

void mdiMain::fillBoxPanels() {
  {
    const FlagGuard busy(filling_);
    gMainBox = validMainBox(gMainBox);
    auto* list = panel_[0]->boxList();
    list->clear();
    for (const auto& text : boxListTexts()) list->addItem(toQt(text));
    list->setCurrentIndex(gMainBox - 1);
    optStaContents_[gStatusContents]->setChecked(true);
    optStaMode_[gStatusMode == 1 ? 1 : 0]->setChecked(true);
  }
  const bool cal = calVisible(gBoxTable);
  const auto places = shortcutPlaces(cal);
  for (std::size_t i = 0; i < places.size(); ++i) {
    cmdShtCut_[i]->setVisible(places[i].visible);
    cmdShtCut_[i]->move(toPixels(places[i].left), 0);
  }
  mnuCCAL_->setVisible(cal);
  showBars();
  takeChangedRows();
  placePanels();
  showAllPanels();
  tmrStatus_->start();
}

void mdiMain::tmrStatus_Timer() {
  if (!pollStatus()) return;
  const auto changed = takeChangedRows();
  for (int row = 1; row <= kBoxes; ++row) {
    if (changed[row]) showPanelState(row);
  }
}

void mdiMain::panelCommand(PanelCommand command, int panel) {
  if (commanding_) return;
  const FlagGuard busy(commanding_);
  const int row = runPanelCommand(command, panel);
  if (row > 0) showPanelState(row);
  desktop().doEvents();
}

void mdiMain::cmbSerNum_Click(int listIndex) {
  if (filling_ || !selectMainBox(listIndex)) return;
  placePanels();
  showPanelState(gMainBox);
}

void mdiMain::optStaMode_Click(int mode) {
  if (filling_) return;
  gStatusMode = mode;
  placePanels();
  showAllPanels();
}

void mdiMain::optStaContents_Click(int contents) {
  if (filling_) return;
  gStatusContents = contents;
  showAllPanels();
}

// --- reconnect, counters, end -----------------------------------------------------------------

void mdiMain::Auto_Reconnect() {
  tmrStatus_->stop();
  if (autoReconnect(logBoxOf(*txtDummy_))) fillBoxPanels();
}

void mdiMain::mnuCReconnect_Click() {
  if (!askReconnect()) return;
  const HourglassGuard hourglass;
  Auto_Reconnect();
}

// --- monitors ---------------------------------------------------------------------------------

void mdiMain::loadMonitor(MonitorKind kind) {
  // Entering lets events run, which may unload the form.
  {
    const FlagGuard loading(loading_);
    monitorForm(kind).window()->enter(*area_);
  }
  QTimer::singleShot(0, this, &mdiMain::makeRoom);
}

// The frame opens as a strip, in which a first child window would be cut off. Windows that open
// together find their room together: while one of them is being loaded the next is to come.
void mdiMain::makeRoom() {
  if (loading_ || !placed_ || isMaximized() || isFullScreen() || isMinimized()) return;
  int lowest = 0;
  for (const auto* child : area_->subWindowList()) {
    if (child->isVisible()) lowest = qMax(lowest, child->geometry().bottom() + 1);
  }
  const int more = frameGrowth({size() == opened_, lowest, area_->height(),
                                frameGeometry().bottom(), screen()->availableGeometry().bottom()});
  if (more == 0) return;
  opened_ = {};
  resize(width(), height() + more);
}

void mdiMain::arrange(const Arrangement& arrangement) {
  QList<QMdiSubWindow*> shown;
  std::vector<TilePlace> windows;
  for (auto* child : area_->subWindowList()) {
    if (!child->isVisible() || child->isMinimized()) continue;
    child->showNormal();
    shown << child;
    windows.push_back({child->x(), child->y(), child->width(), child->height()});
  }
  const QSize all = area_->viewport()->size();
  const auto places = arrangement(windows, all.width(), all.height());
  for (qsizetype i = 0; i < shown.size(); ++i) {
    const auto& place = places[i];
    shown[i]->setGeometry(place.left, place.top, place.width, place.height);
    shown[i]->raise();
  }
}

void mdiMain::loseLink() {
  frmMsgButton notice(tr("Communication Error"),
                      tr("Communication Error has occurred.It is reconnected."),
                      tr("Reconnecting.."), tr("OK"), this);
  notice.exec();
  if (desktop().ending()) return;
  Auto_Reconnect();
  if (!desktop().ending()) showCounters();
}

std::optional<int32_t> mdiMain::ActiveFormFind() const {
  const auto* child = area_->activeSubWindow();
  if (!child) return std::nullopt;
  return activeSerialOfCaption(fromQt(child->windowTitle()));
}

void mdiMain::picCommErrorViewCnt_Click() {
  const bool shown = commViewClicks_.click();
  picCommError_->setVisible(shown);
  if (shown) showCounters();
}

void mdiMain::showCounters() {
  const auto texts = counterTexts();
  for (std::size_t i = 0; i < texts.size(); ++i) lblCommErr_[i]->setText(toQt(texts[i]));
  // The menu bar asks its corner for its width at this moment only.
  menuBar()->setCornerWidget(picCommError_);
}

void mdiMain::closeEvent(QCloseEvent* event) {
  tmrStatus_->stop();
  event->accept();
  unloadMonitors();
  shutDown(gTempFileList);
}

bool mdiMain::event(QEvent* event) {
  if (event->type() == QEvent::StatusTip) {
    lblStatusTip_->setText(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
  }
  return QMainWindow::event(event);
}

void mdiMain::mnuVShortCut_Click() {
  gShowShortcut = !gShowShortcut;
  showBars();
}

void mdiMain::mnuVStatus_Click() {
  gShowStatus = !gShowStatus;
  showBars();
}

void mdiMain::showBars() {
  picShtCut_->setVisible(gShowShortcut);
  picStatus_->setVisible(gShowStatus);
  mnuVShortCut_->setChecked(gShowShortcut);
  mnuVStatus_->setChecked(gShowStatus);
}

void mdiMain::placeFrame() {
  const QRect screenArea = screen()->geometry();
  const int wanted = picStatus_->bar()->width();
  const int frameWidth = qMin(wanted, screenArea.width());
  const FramePlace place = framePlace(toTwips(screenArea.width()), toTwips(frameWidth));
  resize(frameWidth, toPixels(place.height));
  // move() counts the frame, so that the title bar stays on the screen.
  move(screenArea.left() + toPixels(place.left), screenArea.top() + toPixels(place.top));
}

void mdiMain::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) QTimer::singleShot(0, this, &mdiMain::makeRoom);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  QTimer::singleShot(0, this, &mdiMain::fitFrame);
}

void mdiMain::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  // Without a window manager no window ever becomes active.
  constexpr int kPatienceMs = 500;
  QTimer::singleShot(kPatienceMs, this, &mdiMain::fitFrame);
}

// The given height counts the frame, whose size is known once the window manager has made it. To
// resize the window earlier would also put its title bar above the screen.
void mdiMain::fitFrame() {
  if (placed_) return;
  placed_ = true;
  const int frameHeight = frameGeometry().height() - height();
  if (!isMaximized()) resize(width(), toPixels(framePlace(0, 0).height) - frameHeight);
  opened_ = size();
  makeRoom();
}

}  // namespace vk
