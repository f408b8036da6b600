// SPDX-License-Identifier: MIT
// The frame of the program: menus, shortcut bar, a panel per box, and the child windows. It runs
// the status cycle and is where every dialog is opened from. What it shows and sends is decided in
// shell/mdlBoxPanel; this is wiring.
#pragma once

#include <QMainWindow>
#include <QSize>
#include <array>
#include <functional>
#include <vector>

#include "monitors/mdlMonitorRecords.h"
#include "shell/mdlArrange.h"
#include "shell/mdlBoxPanel.h"

class QAction;
class QLabel;
class QMdiArea;
class QMenu;
class QPlainTextEdit;
class QRadioButton;
class QTimer;
class QToolButton;

namespace vk {

class clsBarScroller;
class frmBoxPanel;

class mdiMain : public QMainWindow {
  Q_OBJECT

 public:
  mdiMain();
  ~mdiMain() override;

  /// Paints the indicator of a panel (0 is the main panel) and writes the state's text.
  void LEDColorChg(int panel, int32_t state);
  /// Unloads the monitors, scans again and opens them anew.
  void Auto_Reconnect();
  /// The number between "<" and ">" in the active child window's caption, if there is one.
  std::optional<int32_t> ActiveFormFind() const;
  /// One round of the status cycle.
  void tmrStatus_Timer();
  /// A hook for what is to happen to all wave windows at once: nothing so far.
  void WaveFormAllClose() {}
  /// Rebuilds the box list and all panels and starts the status cycle.
  void fillBoxPanels();
  void showBoxPanel(int row, int panel);
  /// Writes the communication counters into their display.
  void showCounters();

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  /// A menu item; without an action it stands in its place, disabled.
  struct Item {
    const char* name;
    QString caption;
    QString tip;
    std::function<void()> action;
  };
  QMenu* addMenu(const char* name, const QString& caption);
  QAction* addItem(QMenu* menu, const Item& item);
  void buildMenus();
  void buildFileMenu();
  void buildSettingsMenu();
  void buildViewMenus();
  void buildEtcMenu();
  void buildShortcutBar();
  void buildStatusBar();
  QWidget* buildStatusModes();
  QWidget* buildStatusContents();
  void buildCounters();
  void buildTimers();
  void placeFrame();
  void fitFrame();
  void makeRoom();

  void placePanels();
  void showAllPanels();
  void showPanelState(int row);
  void panelCommand(PanelCommand command, int panel);
  void mnuVShortCut_Click();
  void mnuVStatus_Click();
  void cmbSerNum_Click(int listIndex);
  void optStaMode_Click(int mode);
  void optStaContents_Click(int contents);
  void showBars();
  void picCommErrorViewCnt_Click();

  void loadMonitor(MonitorKind kind);
  using Arrangement =
      std::function<std::vector<TilePlace>(const std::vector<TilePlace>&, int width, int height)>;
  void arrange(const Arrangement& arrangement);
  void loseLink();

  bool selectBox(int32_t mode, bool check = false);
  template <typename Dialog>
  void openOnBox(int32_t mode);
  void mnuFMeterRead_Click();
  void mnuFCSVChange_Click();
  void mnuEMeasureSet_Click();
  void mnuEMonitorSet_Click();
  void mnuETimeSet_Click();
  void mnuCBalance_Click();
  void mnuCCAL_Click();
  void mnuCSetList_Click();
  void mnuCCFinit_Click();
  void mnuCReconnect_Click();

  QWidget* picShtCut_;
  QMdiArea* area_;
  clsBarScroller* picStatus_;
  QLabel* lblStatusTip_;
  QWidget* picCommError_;
  std::array<QLabel*, 4> lblCommErr_{};
  std::array<QToolButton*, kShortcuts> cmdShtCut_{};
  std::array<frmBoxPanel*, kBoxes + 1> panel_{};
  std::array<QRadioButton*, 2> optStaMode_{};
  std::array<QRadioButton*, 4> optStaContents_{};
  QPlainTextEdit* txtDummy_;
  QPlainTextEdit* txtDelFile_;
  QTimer* tmrStatus_;
  QAction* mnuCCAL_ = nullptr;
  QAction* mnuVShortCut_ = nullptr;
  QAction* mnuVStatus_ = nullptr;
  CounterClicks commViewClicks_;
  bool placed_ = false;
  QSize opened_;  ///< size as it was opened; none once it has made room
  bool loading_ = false;
  bool filling_ = false;
  bool commanding_ = false;
};

}  // namespace vk
