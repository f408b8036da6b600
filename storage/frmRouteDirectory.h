// SPDX-License-Identifier: MIT
// The recordings on a box's card: show one as a wave, save some as .dat and .hed pairs or as CSV,
// under other names where wanted. Modal above the main window, which keeps its status poll off
// while this window lives: the window is the only one that talks to the box.
#pragma once

#include <QDialog>
#include <cstdint>
#include <string_view>
#include <vector>

#include "storage/frmCardParts.h"
#include "storage/mdlCardSaving.h"

class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QStackedLayout;
class QTabBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace vk {

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

  void tbsSelect_Click(int index);
  void lvwFileName_ItemClick(QTreeWidgetItem* item);
  void lvwFileName_MouseUp(const QPoint& position);
  void cmdRun_Click();
  void cmdBinSave_Click();
  void cmdCSVSave_Click();
  void cmdFolder_Click(int index);
  void cmdFileSerNameChange_Click();

  std::vector<CardEntry> confirmFiles();
  void showRows();
  void selectTab(int tab);
  void checkAll(bool on);
  void save(SaveKind kind);

  /// Takes the folders, the division and the check boxes over into the state.
  void carryIn();
  void setControlsEnabled(const ControlNames& names, bool on);
  void lockControls();
  void unlockControls();

  CardReading reading_;
  bool busy_ = false;       ///< an exchange with the box is under way
  bool answering_ = false;  ///< rows answer to a selection: not while the window fills them

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
