// SPDX-License-Identifier: MIT
#include "monitors/frmMoniNum.h"

#include <QFontInfo>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/qtText.h"
#include "monitors/mdlNumLayout.h"

namespace vk {

namespace {

// What the label of the unit is higher than a line of its text.
constexpr int kUnitSurplus = 100;

void setFore(QLabel* label, Colour fore) {
  const QColor colour = toQColor(fore);
  QPalette palette = label->palette();
  if (palette.color(QPalette::WindowText) == colour) return;
  palette.setColor(QPalette::WindowText, colour);
  label->setPalette(palette);
}

void fillWith(clsPictureBox* picture, Colour back) {
  picture->clear(back);
  picture->refresh();
}

}  // namespace

frmMoniNum::frmMoniNum()
    : frmMonitor(MonitorKind::kNumerical, "frmMoniNum"), monitor_(gNumMoni.at(monitorIndex())) {
  picMonitor_ = addPicture("picMonitor");
  picMonitor_->setAccessibleName(tr("Value"));
  picMoniSub_ = addPicture("picMoniSub");
  QFont large(QStringLiteral("Arial"), QFontInfo(font()).pointSize(), QFont::Bold);
  picMoniSub_->setFont(large);
  picUnit_ = addPicture("picUnit");
  picMaxMoni_ = addPicture("picMaxMoni");
  picMinMoni_ = addPicture("picMinMoni");
  lblUnitNum_ = addLabel(QStringLiteral("lblUnitNum"), picUnit_);
  lblMaxCap_ = addLabel(QStringLiteral("lblMaxCap"), picMaxMoni_);
  lblMaxCap_->setText(tr("max:"));
  lblMaxMoni_ = addLabel(QStringLiteral("lblMaxMoni"), picMaxMoni_);
  lblMaxMoni_->setAccessibleName(tr("Maximum"));
  lblMinCap_ = addLabel(QStringLiteral("lblMinCap"), picMinMoni_);
  lblMinCap_->setText(tr("min:"));
  lblMinMoni_ = addLabel(QStringLiteral("lblMinMoni"), picMinMoni_);
  lblMinMoni_->setAccessibleName(tr("Minimum"));
  constexpr int kSide = 2;
  for (auto* caption : {lblUnitNum_, lblMaxCap_, lblMinCap_}) {
    caption->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    caption->setContentsMargins(kSide, 0, 0, 0);
  }
  for (auto* hold : {lblMaxMoni_, lblMinMoni_}) {
    hold->setFont(large);
    hold->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hold->setContentsMargins(0, 0, kSide, 0);
  }
  lblSerNum_ = addLabel(QStringLiteral("lblSerNum"));
  lblChNum_ = addLabel(QStringLiteral("lblChNum"));
  buttons_ = addFrame("cmdPReset");
  hideControls({picMonitor_, picMoniSub_, picUnit_, picMaxMoni_, picMinMoni_});
}

void frmMoniNum::setInitMoniNum() {
  initCommon();
  const auto& record = gNumMoni[monitorIndex()];
  lblSerNum_->setText(toQt(serialLabel(record.NUM_SER)));
  lblChNum_->setText(toQt(channelLabel(record.NUM_CH)));
  for (auto* hold : {picMaxMoni_, picMinMoni_}) fillWith(hold, record.NUM_BACK);
  for (auto* label : {lblMaxCap_, lblMaxMoni_, lblMinCap_, lblMinMoni_})
    setFore(label, record.NUM_FORE);
  putTwin(picMoniSub_, *picMonitor_);
  showReadings();
}

void frmMoniNum::setUnitLabel() {
  frmMonitor::setUnitLabel();
  fitUnitFont(*picUnit_);
  placeLabels();
}

// --- showing --------------------------------------------------------------------------------

void frmMoniNum::pictureShown() {
  setFore(lblUnitNum_, monitor_.unitFore());
  if (unitBack_ == monitor_.unitBack()) return;
  unitBack_ = monitor_.unitBack();
  fillWith(picUnit_, *unitBack_);
}

void frmMoniNum::sayLabels(std::size_t, const ChannelLabels& labels) {
  sayNew(lblMaxMoni_, labels.max);
  sayNew(lblMinMoni_, labels.min);
  sayNew(lblUnitNum_, labels.unit);
}

// --- size -----------------------------------------------------------------------------------

void frmMoniNum::layoutMonitor() {
  const auto* button = buttons_->itemAt(0)->widget();
  const QSize serial = lblSerNum_->sizeHint().expandedTo(lblChNum_->sizeHint());
  const auto all =
      numLayout(width(), height(), {serial.width(), serial.height(), button->sizeHint().height()});
  put(lblSerNum_, all.serial);
  put(lblChNum_, all.channel);
  buttons_->setDirection(all.buttonsBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  put(fraSet(), all.frame);
  put(picMonitor_, all.monitor);
  putTwin(picMoniSub_, *picMonitor_);
  put(picUnit_, all.unit);
  put(picMaxMoni_, all.max);
  put(picMinMoni_, all.min);
  fitValueFont(*picMoniSub_);
  fitUnitFont(*picUnit_);
  placeLabels();
  for (auto* hold : {picMaxMoni_, picMinMoni_}) fillWith(hold, gNumMoni[monitorIndex()].NUM_BACK);
  unitBack_.reset();
  monitor_.resize(all.monitor.width, all.monitor.height);
  showReadings();
  showControls();
}

void frmMoniNum::placeLabels() {
  const int line = unitLineHeight(*picUnit_);
  const int capHeight = line + kUnitSurplus;
  // As large as the unit, or as their low surfaces allow.
  QFont captionFont = fittingFont(picUnit_->font(), lblMaxCap_->text(), picMaxMoni_->size());
  if (QFontInfo(picUnit_->font()).pixelSize() < captionFont.pixelSize())
    captionFont = picUnit_->font();
  lblUnitNum_->setGeometry(0, std::max(0, (picUnit_->height() - line) / 2), picUnit_->width(),
                           capHeight);
  for (auto* caption : {lblMaxCap_, lblMinCap_}) {
    caption->setFont(captionFont);
    caption->setGeometry(0, 0, picUnit_->width(), capHeight);
  }
  // The number stands below its caption where there is room, else at the bottom.
  const int height = picMaxMoni_->height();
  const int holdHeight = picMoniSub_->textHeight("DUMMY") / 2;
  const int holdTop =
      std::max(0, std::min(std::max(line, (height - holdHeight) / 2), height - holdHeight));
  QFont hold = picMoniSub_->font();
  hold.setPointSize(std::max(1, hold.pointSize() / 2));
  for (auto* label : {lblMaxMoni_, lblMinMoni_}) {
    label->setFont(hold);
    label->setGeometry(0, holdTop, label->parentWidget()->width(), holdHeight);
  }
}

}  // namespace vk
