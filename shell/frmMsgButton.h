// SPDX-License-Identifier: MIT
// A notice that closes by itself: a second after it appears a count-down of ten seconds starts.
#pragma once

#include <QDialog>
#include <QString>

#include "shell/mdlNotice.h"

class QLabel;
class QTimer;

namespace vk {

class frmMsgButton : public QDialog {
  Q_OBJECT

 public:
  frmMsgButton(const QString& title, const QString& text, const QString& line,
               const QString& button, QWidget* parent = nullptr);

 private:
  void Timer2_Timer();

  NoticeCountdown left_;
  QLabel* lblSub2_;
  QTimer* timer2_;
};

}  // namespace vk
