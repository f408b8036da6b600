// SPDX-License-Identifier: MIT
// The start form: searches the bus, shows what it found with the boxes' clocks running, and sets
// the clocks. Leaving it by OK leads on; the close box ends the program.
#pragma once

#include <QDialog>
#include <vector>

#include "shell/mdlStart.h"

class QLabel;
class QLayout;
class QPlainTextEdit;
class QPushButton;
class QTimer;
class QTreeWidget;

namespace vk {

class frmStart : public QDialog {
  Q_OBJECT

 public:
  frmStart();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void reject() override;
  void activate();
  void awaitExposure();
  void build();
  QLayout* buildHead();
  void cmdOK_Click();
  void cmdSet_Click();
  void tmrDateTime_Timer();
  void readChecks();
  void showRows();

  bool activated_ = false;
  bool searching_ = false;
  int waited_ = 0;  ///< milliseconds for the screen
  std::vector<StartRow> rows_;
  QLabel* lblSearch_;
  QTreeWidget* lvwCnnt240Q_;
  QPlainTextEdit* txtComment_;
  QPushButton* cmdSet_;
  QPushButton* cmdOK_;
  QTimer* tmrDateTime_;
};

/// A read-only text box, emptied, as the log of a scan; every line is visible at once.
LogBox logBoxOf(QPlainTextEdit& box);

}  // namespace vk
