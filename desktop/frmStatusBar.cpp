// SPDX-License-Identifier: MIT
#include "desktop/frmStatusBar.h"

#include <QLabel>
#include <QVBoxLayout>

#include "base/mdlGeneral.h"
#include "desktop/clsPictureBox.h"
#include "desktop/qtText.h"

namespace vk {

frmStatusBar::frmStatusBar(const QString& caption, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
  named(this, QStringLiteral("frmStatusBar"));
  setWindowTitle(caption);
  setWindowModality(Qt::ApplicationModal);
  lblSub1_ = named(new QLabel(this), QStringLiteral("lblSub1"));
  lblSub2_ = named(new QLabel(this), QStringLiteral("lblSub2"));
  picProgress_ = named(new clsPictureBox(this), QStringLiteral("picProgress"), tr("Progress"));
  picProgress_->setFixedHeight(22);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 14, 16, 16);
  lines->addWidget(lblSub1_);
  lines->addWidget(lblSub2_);
  lines->addSpacing(6);
  lines->addWidget(picProgress_);
  setMinimumWidth(400);
}

void frmStatusBar::setLines(const QString& first, const QString& second) {
  lblSub1_->setText(first);
  lblSub2_->setText(second);
  lblSub2_->setVisible(!second.isEmpty());
}

void frmStatusBar::setProgress(double fraction) {
  progressBar(*picProgress_, fraction, false);
}

JobView frmStatusBar::jobView() {
  return {[this](const std::string& first, const std::string& second) {
            setLines(toQt(first), toQt(second));
          },
          [this](double fraction) { setProgress(fraction); },
          {}};
}

void frmStatusBar::open() {
  centreOnScreen(*this);
  show();
  setProgress(0);
  desktop().doEvents();
}

}  // namespace vk
