// SPDX-License-Identifier: MIT
#include "monitors/frmMoniCircle.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/qtText.h"

namespace vk {

namespace {

constexpr int kIndent = 4;
/// A longer text is written smaller, so that usual ones do not change their size.
constexpr int kUsualCharacters = 9;

}  // namespace

frmMoniCircle::frmMoniCircle()
    : frmMonitor(MonitorKind::kCircle, "frmMoniCircle"), monitor_(gCircleMoni.at(monitorIndex())) {
  buildControls();
  hideControls({picWave_, lblMonitor_, lblUnitNum_});
}

void frmMoniCircle::buildControls() {
  buttons_ = addFrame("cmdReset");
  picWaveSub_ = addPicture("picWaveSub");
  picSubCircle_ = addPicture("picSubCircle");
  picWave_ = addPicture("picWave");
  picWave_->setAccessibleName(tr("Dial"));
  for (auto* picture : {picWaveSub_, picSubCircle_}) picture->setSmooth(true);
  const auto add = [this](const char* name, Qt::Alignment alignment) {
    auto* label = addLabel(QString::fromLatin1(name));
    label->setAlignment(alignment | Qt::AlignVCenter);
    label->setIndent(kIndent);
    return label;
  };
  lblMonitor_ = add("lblMonitor", Qt::AlignLeft);
  lblUnitNum_ = add("lblUnitNum", Qt::AlignLeft);
  lblSerNum_ = add("lblSerNum", Qt::AlignLeft);
  lblChNum_ = add("lblChNum", Qt::AlignLeft);
  lblYScale_ = add("lblYScale", Qt::AlignLeft);
  lblOffSet_ = add("lblOffSet", Qt::AlignHCenter);
  lbl1_3Scale_ = add("lbl1_3Scale", Qt::AlignRight);
  lbl1_3Scale_->setIndent(2);
  lbl2_3Scale_ = add("lbl2_3Scale", Qt::AlignHCenter);
  lblFullScale_ = add("lblFullScale", Qt::AlignLeft);
}

void frmMoniCircle::setInitMoniNum() {
  initCommon();
  const auto& record = gCircleMoni[monitorIndex()];
  lblSerNum_->setText(toQt(serialLabel(record.CRL_SER)));
  lblChNum_->setText(toQt(channelLabel(record.CRL_CH)));
  const auto scale = circleScale(record);
  lblOffSet_->setText(toQt(scale.offset));
  lbl1_3Scale_->setText(toQt(scale.oneThird));
  lbl2_3Scale_->setText(toQt(scale.twoThirds));
  lblFullScale_->setText(toQt(scale.full));
  lblYScale_->setText(toQt(monitor_.scaleText()));
  arrange();
}

void frmMoniCircle::sayLabels(std::size_t, const ChannelLabels& labels) {
  sayNew(lblUnitNum_, labels.unit);
  if (!labels.value) return;
  const QString shown = toQt(*labels.value);
  const QFont& font = shown.size() > kUsualCharacters ? longFont_ : usualFont_;
  if (lblMonitor_->font() != font) lblMonitor_->setFont(font);
  lblMonitor_->setText(shown);
}

// --- layout -----------------------------------------------------------------------------------

void frmMoniCircle::layoutMonitor() {
  arrange();
  showControls();
}

void frmMoniCircle::arrange() {
  storePlace();
  const auto layout = circleLayout(width(), height(), fontMetrics().height());
  buttons_->setDirection(layout.frameInRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  put(fraSet(), layout.frame);
  put(lblSerNum_, layout.serial);
  put(lblChNum_, layout.channel);
  put(lblYScale_, layout.yScale);
  put(lblOffSet_, layout.offset);
  put(lbl1_3Scale_, layout.oneThird);
  put(lbl2_3Scale_, layout.twoThirds);
  put(lblFullScale_, layout.full);
  placeValue(layout);
  placePictures(layout);
}

void frmMoniCircle::placeValue(const CircleLayout& layout) {
  lblMonitor_->setGeometry(layout.value.left, layout.value.top, layout.value.width,
                           layout.value.height);
  lblUnitNum_->setGeometry(layout.unit.left, layout.unit.top, layout.unit.width,
                           layout.unit.height);
  QFont bold = font();
  bold.setBold(true);
  constexpr double kPartOfHeight = 0.9;
  const auto room = [](const QLabel* label) {
    return QSize(label->width() - 2 * kIndent, toRow(label->height() * kPartOfHeight));
  };
  usualFont_ = fittingFont(bold, QStringLiteral("-88888.88"), room(lblMonitor_));
  longFont_ = fittingFont(bold, QStringLiteral("-0.00008888888"), room(lblMonitor_));
  lblUnitNum_->setFont(fittingFont(font(), QStringLiteral("kg/mm2"), room(lblUnitNum_)));
  lblMonitor_->setFont(lblMonitor_->text().size() > kUsualCharacters ? longFont_ : usualFont_);
}

void frmMoniCircle::placePictures(const CircleLayout& layout) {
  const auto& dial = layout.picture;
  picWave_->setGeometry(dial.left, dial.top, dial.width, dial.height);
  putTwin(picWaveSub_, *picWave_);
  putTwin(picSubCircle_, *picWave_, true);
  monitor_.setColours({fromQColor(palette().color(QPalette::Window)),
                       fromQColor(palette().color(QPalette::Button))});
  monitor_.resize(dial.width, dial.height);
  showReadings();
}

}  // namespace vk
