// SPDX-License-Identifier: MIT
#include "conditions/frmList.h"

#include <QAction>
#include <QClipboard>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "base/mdlGuard.h"
#include "conditions/mdlConditionList.h"
#include "desktop/qtText.h"

namespace vk {

frmList::frmList(int32_t serial, QWidget* parent) : QDialog(parent) {
  named(this, QStringLiteral("frmList"));
  setWindowTitle(toQt(kListCaption));
  build();
  {
    const HourglassGuard hourglass;
    fill(serial);
  }
  fitToList();
}

QLabel* frmList::column(const QString& name, const QString& spoken) {
  auto* label = named(new QLabel(txtList_), name, spoken);
  label->setTextFormat(Qt::PlainText);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

void frmList::build() {
  auto* frame = new QGroupBox(toQt(kListHeading), this);
  picList_ = named(new QScrollArea(frame), QStringLiteral("picList"), toQt(kListHeading));
  txtList_ = named(new QWidget(picList_), QStringLiteral("txtList"), toQt(kListHeading));
  txtList_->setBackgroundRole(QPalette::Base);
  txtList_->setAutoFillBackground(true);
  lblList_ = column(QStringLiteral("lblList"), tr("Captions"));
  lblData_ = column(QStringLiteral("lblData"), tr("Values"));
  auto* columns = new QHBoxLayout(txtList_);
  columns->setContentsMargins(10, 8, 10, 8);
  columns->setSpacing(24);
  columns->addWidget(lblList_);
  columns->addWidget(lblData_, 1);
  picList_->setWidget(txtList_);
  picList_->setWidgetResizable(true);
  auto* inside = new QVBoxLayout(frame);
  inside->addWidget(picList_);

  auto* cmdClose = named(new QPushButton(tr("Close"), this), QStringLiteral("cmdClose"));
  cmdClose->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(cmdClose);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 14, 16, 14);
  lines->addWidget(frame, 1);
  lines->addLayout(buttons);
  connect(cmdClose, &QPushButton::clicked, this, &frmList::reject);

  setTabOrder(cmdClose, picList_);
  picList_->setFocus();  // its keys scroll; Enter closes all the same

  // Without a selection in a column the whole list is copied.
  auto* copy = named(new QAction(tr("Copy &list"), this), QStringLiteral("mnuCopy"));
  copy->setShortcut(QKeySequence::Copy);
  connect(copy, &QAction::triggered, this,
          [this] { QGuiApplication::clipboard()->setText(copyText_); });
  addAction(copy);
}

void frmList::fill(int32_t serial) {
  const auto list = fillConditionList(serial);
  lblList_->setText(toQt(captionColumn(list)));
  lblData_->setText(toQt(valueColumn(list)));
  copyText_ = toQt(listText(list));
}

/// As large as the list, as far as the screen has room; beyond that the list scrolls.
void frmList::fitToList() {
  const int bar = picList_->verticalScrollBar()->sizeHint().width();
  const QSize wanted = txtList_->sizeHint() + QSize(bar, bar);
  const QSize around = sizeHint() - picList_->sizeHint();
  const QRect area = screen()->availableGeometry();
  resize((wanted + around).boundedTo(area.size() * 9 / 10));
  move(area.center() - rect().center());
}

}  // namespace vk
