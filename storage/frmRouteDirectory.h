// SPDX-License-Identifier: MIT
// The recordings on a box's card: show one as a wave, save some as .dat and .hed pairs or as CSV,
// under other names where wanted. Modal above the main window, which keeps its status poll off
// while this window lives: the window is the only one that talks to the box.
#pragma once

#include <QDialog>
#include <cstdint>
#include <memory>
#include <string_view>

#include "storage/frmCsvControls.h"
#include "storage/mdlCardReading.h"

class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QStackedLayout;
class QTabBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace vk {

class frmStatusBar;

class frmRouteDirectory : public QDialog {
  Q_OBJECT

 public:
  /// The card's directory has been read into gCardDirectory.
  explicit frmRouteDirectory(int32_t serial, QWidget* parent = nullptr);
  ~frmRouteDirectory() override;

  /// Confirms the headers of all files under a progress window, before the window is shown. False
  /// when the card holds no data file; the window is then still worth showing.
  bool openCard();

  QSize sizeHint() const override { return {780, 560}; }
  /// Escape, the close box and cmdCancel; a running operation is not left.
  void reject() override;

 private:
  void buildList();
  void buildTabs();
  QWidget* buildWavePanel();
  QWidget* buildBinaryPanel();
  QWidget* buildCsvPanel();
  QWidget* buildFolder(int index, QWidget* panel);
  void buildLayout();
  void connectControls();
  void connectView();
  CardOpeningView openingView();

  void addRow(std::size_t row);
  void showRows();
  void selectTab(int tab);
  void clickRow(QTreeWidgetItem* item);
  void openMenu(const QPoint& position);
  void checkAll(bool on);
  void run();
  void save(SaveKind kind);
  void pickFolder(int index);
  void changeNames();

  /// Takes the folders, the division and the check boxes over into the state.
  void carryIn();
  void setControlsEnabled(const ControlNames& names, bool on);
  void lockControls();
  void unlockControls();

  CardReading reading_;
  bool busy_ = false;       ///< an exchange with the box is under way
  bool answering_ = false;  ///< rows answer to a selection: not while the window fills them
  std::unique_ptr<frmStatusBar> status_;

  QTreeWidget* lvwFileName_;
  QTabBar* tbsSelect_;
  QStackedLayout* panels_;
  QMenu* mnuAllSelect_;
  QPlainTextEdit* txtHead_;
  QPushButton* cmdRun_;
  QPushButton* cmdBinSave_;
  QPushButton* cmdCSVSave_;
  QPushButton* cmdFileSerNameChange_;
  QPushButton* cmdCancel_;
  QLineEdit* txtFolder_[2];
  QPushButton* cmdFolder_[2];
  CsvControls csv_;
  ProgressControls progress_;
};

}  // namespace vk
