// SPDX-License-Identifier: MIT
// The small progress window of long work: a caption, two lines and a bar. It keeps the other
// windows from taking input while it is shown, and closes only when the work closes it.
#pragma once

#include <QDialog>
#include <QString>

#include "base/mdlJob.h"

class QLabel;

namespace vk {

class clsPictureBox;

class frmStatusBar : public QDialog {
  Q_OBJECT

 public:
  explicit frmStatusBar(const QString& caption, QWidget* parent = nullptr);

  void setLines(const QString& first, const QString& second = {});
  /// 0 to 1; the bar never reads empty or finished while the work goes on.
  void setProgress(double fraction);
  /// Shows the window in the middle of the screen, painted, before the work begins.
  void open() override;
  void reject() override {}
  /// What a job shows itself by; it is not longer than the window. It has no stop.
  JobView jobView();

 private:
  QLabel* lblSub1_;
  QLabel* lblSub2_;
  clsPictureBox* picProgress_;
};

}  // namespace vk
