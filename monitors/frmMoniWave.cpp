// SPDX-License-Identifier: MIT
#include "monitors/frmMoniWave.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "desktop/qtText.h"
#include "monitors/mdlWaveLayout.h"

namespace vk {

namespace {

void letter(QLabel* label, int pixels, bool bold = false) {
  QFont sized = label->font();
  // A letter's box is about a quarter higher than its font.
  sized.setPixelSize(qMax(1, pixels * 4 / 5));
  sized.setBold(bold);
  label->setFont(sized);
}

}  // namespace

frmMoniWave::frmMoniWave()
    : frmMonitor(MonitorKind::kWave, "frmMoniWave"),
      monitor_(gWaveMoni.at(monitorIndex())),
      picWave_(addPicture("picWave")),
      picWaveSub_(addPicture("picWaveSub")),
      picMaxMin_(addPicture("picMaxMin")),
      lblSerNum_(addLabel(QStringLiteral("lblSerNum"))),
      lblChNum_(addLabel(QStringLiteral("lblChNum"))),
      lblOffSet_(addLabel(QStringLiteral("lblOffSet"))),
      lblMonitor_(addLabel(QStringLiteral("lblMonitor"))),
      lblUnitNum_(addLabel(QStringLiteral("lblUnitNum"))),
      lblYScale_(addLabel(QStringLiteral("lblYScale"))),
      lblXScale_(addLabel(QStringLiteral("lblXScale"))) {
  picWave_->setAccessibleName(tr("Wave"));
  picMaxMin_->setAccessibleName(tr("Held maximum and minimum"));
  lblMonitor_->setAccessibleDescription(tr("Live value"));
  lblMonitor_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblOffSet_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  lblOffSet_->setAccessibleDescription(tr("Ground level"));
  lblXScale_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  buildFrame();
  buildSlider();
  hideControls({picWave_, picMaxMin_, lblSerNum_, lblChNum_, fraSet(), lblOffSet_, sdrYPos_,
                lblMonitor_, lblUnitNum_, lblYScale_, lblXScale_});
}

void frmMoniWave::buildFrame() {
  auto* column = addFrame("cmdReset");
  chkPause_ = named(new QCheckBox(tr("PAUSE"), fraSet()), QStringLiteral("chkPause"));
  chkOff_ = named(new QCheckBox(tr("OFFSET"), fraSet()), QStringLiteral("chkOff"));
  chkOff_->setToolTip(tr("Brings the trace to the ground level"));
  column->addWidget(chkPause_);
  column->addWidget(chkOff_);
  connect(chkPause_, &QCheckBox::toggled, this, &frmMoniWave::chkPause_Click);
  connect(chkOff_, &QCheckBox::toggled, this, &frmMoniWave::chkOff_Click);
}

void frmMoniWave::buildSlider() {
  sdrYPos_ = addGroundSlider(QStringLiteral("sdrYPos"), Qt::Vertical, tr("Ground level"));
  connect(sdrYPos_, &QSlider::valueChanged, this, &frmMoniWave::sdrYPos_Change);
}

void frmMoniWave::setInitMoniNum() {
  initCommon();
  const auto& record = gWaveMoni.at(monitorIndex());
  lblSerNum_->setText(toQt(serialLabel(record.WAV_SER)));
  lblChNum_->setText(toQt(channelLabel(record.WAV_CH)));
  putTwin(picWaveSub_, *picWave_);
  monitor_.resize(picWave_->width(), picWave_->height());
  lblYScale_->setText(toQt(monitor_.yScaleText()));
  lblXScale_->setText(toQt(monitor_.xScaleText()));
  lblOffSet_->setText(toQt(monitor_.offsetText()));
  const QSignalBlocker quietSlider(sdrYPos_);
  const QSignalBlocker quietOffset(chkOff_);
  sdrYPos_->setValue(record.WAV_OFFSET);
  chkOff_->setChecked(record.WAV_CUP_ON);
}

void frmMoniWave::sayLabels(std::size_t, const ChannelLabels& labels) {
  sayNew(lblMonitor_, labels.value);
  sayNew(lblUnitNum_, labels.unit);
}

void frmMoniWave::chkPause_Click(bool on) {
  // What came before the click belongs to the picture that stands from now on.
  if (on) showReadings();
  monitor_.setPaused(on);
}

void frmMoniWave::chkOff_Click(bool on) {
  monitor_.setOffsetCancel(on);
}

void frmMoniWave::sdrYPos_Change(int position) {
  monitor_.moveGround(position);
  lblOffSet_->setText(toQt(monitor_.offsetText()));
}

void frmMoniWave::layoutMonitor() {
  storePlace();
  const QFontMetrics metrics(font());
  const auto at = waveLayout(
      width(), height(),
      {metrics.height(), metrics.horizontalAdvance(QStringLiteral("Ser: 0000000")) + 2,
       metrics.horizontalAdvance(QStringLiteral("-50000")) + 2, sdrYPos_->sizeHint().width(),
       fraSet()->sizeHint().width(), fraSet()->sizeHint().height()});
  showControls();
  letter(lblMonitor_, at.valueFont, true);
  letter(lblUnitNum_, at.unitFont);
  letter(lblYScale_, at.scaleFont);
  letter(lblXScale_, at.scaleFont);
  put(picWave_, at.picWave);
  putTwin(picWaveSub_, *picWave_);
  put(picMaxMin_, at.picMaxMin);
  put(sdrYPos_, at.sdrYPos);
  put(lblOffSet_, at.lblOffSet);
  put(lblMonitor_, at.lblMonitor);
  put(lblUnitNum_, at.lblUnitNum);
  put(lblSerNum_, at.lblSerNum);
  put(lblChNum_, at.lblChNum);
  put(fraSet(), at.fraSet);
  put(lblYScale_, at.lblYScale);
  put(lblXScale_, at.lblXScale);
  monitor_.resize(at.picWave.width, at.picWave.height);
  showReadings();
}

}  // namespace vk
