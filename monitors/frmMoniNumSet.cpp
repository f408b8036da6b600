// SPDX-License-Identifier: MIT
#include "monitors/frmMoniNumSet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "desktop/clsPictureBox.h"
#include "desktop/qtText.h"
#include "recorder/mdlCodeTables.h"

namespace vk {

namespace {

/// Out of reach, an entry that is not valid would keep the dialog open for good.
void dropInvalid(QLineEdit& edit, float recorded, float fallback) {
  if (!validEntry(EntryRule::kLimit, fromQt(edit.text())))
    edit.setText(toQt(numberText(recorded, fallback)));
}

}  // namespace

frmMoniNumSet::frmMoniNumSet(QWidget* parent)
    : frmMonitorSetting(MonitorKind::kNumerical, "frmMoniNumSet", tr("Numerical monitor setting"),
                        parent) {
  auto* basic = addFrame(tr("Basic setting"), 0, 0);
  addSource(basic);
  addList(basic, tr("&Average count"), "cmbMoniAve", averageTexts(),
          field(gNumMoni, &NumMonitorRec::NUM_SPEED));
  addCaption(basic);
  buildNormal();
  buildAbnormal();
  addButtons();
}

void frmMoniNumSet::buildNormal() {
  auto* display = addFrame(tr("Display setting"), 1, 0);
  normal_ = addSample(display, "picNmlBack", "lblNmlFore");
  addColour(display, tr("&Back color"), 0, field(gNumMoni, &NumMonitorRec::NUM_BACK));
  addColour(display, tr("&Fore color"), 1, field(gNumMoni, &NumMonitorRec::NUM_FORE));
  auto* cmbPoint = addList(display, tr("&Display digits"), "cmbPoint",
                           {decimalFormat.begin(), decimalFormat.end()},
                           field(gNumMoni, &NumMonitorRec::NUM_POINT));
  connect(cmbPoint, &QComboBox::currentIndexChanged, this, &frmMoniNumSet::cmbPoint_Click);
}

void frmMoniNumSet::cmbPoint_Click(int decimals) {
  for (auto* sample : {normal_.fore, abnormal_.fore}) sample->setText(toQt(sampleText(decimals)));
}

void frmMoniNumSet::buildAbnormal() {
  auto* column = new QVBoxLayout;
  auto* chkCaution = addCheck(this, kLone, field(gNumMoni, &NumMonitorRec::NUM_CVAL_ONOFF));
  column->addWidget(chkCaution);
  fraAbnormal_ =
      named(new QGroupBox(tr("Abnormality display setting"), this), QStringLiteral("fraAbnormal"));
  column->addWidget(fraAbnormal_);
  column->addStretch(1);
  grid()->addLayout(column, 0, 1, 2, 1);

  const auto upper = field(gNumMoni, &NumMonitorRec::NUM_CVAL_UP);
  const auto lower = field(gNumMoni, &NumMonitorRec::NUM_CVAL_DOWN);
  const auto back = field(gNumMoni, &NumMonitorRec::NUM_C_BACK);
  const auto fore = field(gNumMoni, &NumMonitorRec::NUM_C_FORE);
  auto* form = new QFormLayout(fraAbnormal_);
  abnormal_ = addSample(form, "picAbnBack", "lblAbnFore");
  txtUp_ = addLimit(form, tr("&Upper limit value"), QStringLiteral("txtUp"), upper, kUpperLimit);
  nameLabel(form, "lblUpper");
  txtDown_ =
      addLimit(form, tr("&Lower limit value"), QStringLiteral("txtDown"), lower, kLowerLimit);
  nameLabel(form, "lblLower");
  checkLimit(*txtUp_);
  checkLimit(*txtDown_);
  addColour(form, tr("Bac&k color"), 2, back);
  nameLabel(form, "lblBackColorAb");
  addColour(form, tr("F&ore color"), 3, fore);
  nameLabel(form, "lblForeColorAb");
  fraAbnormal_->setEnabled(false);
  connect(chkCaution, &QCheckBox::toggled, this, &frmMoniNumSet::chkCaution_Click);
}

void frmMoniNumSet::chkCaution_Click(bool on) {
  fraAbnormal_->setEnabled(on);
  const auto& record = gNumMoni.at(monitorIndex());
  if (on) {
    colourSample(2, record.NUM_C_BACK);
    colourSample(3, record.NUM_C_FORE);
  } else {
    dropInvalid(*txtUp_, record.NUM_CVAL_UP, kUpperLimit);
    dropInvalid(*txtDown_, record.NUM_CVAL_DOWN, kLowerLimit);
  }
}

frmMoniNumSet::Sample frmMoniNumSet::addSample(QFormLayout* form, const char* back,
                                               const char* fore) {
  auto* area = named(new ColourArea(form->parentWidget()), QString::fromLatin1(back));
  auto* row = new QHBoxLayout(area);
  auto* label = named(new QLabel(toQt(sampleText(0)), area), QString::fromLatin1(fore));
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  QFont large = label->font();
  large.setBold(true);
  large.setPointSizeF(QFontInfo(large).pointSizeF() * 1.6);
  label->setFont(large);
  row->addWidget(label);
  form->addRow(area);
  return {area, label};
}

void frmMoniNumSet::colourChanged(int i) {
  colourSample(i, colourOf(i));
}

void frmMoniNumSet::colourSample(int i, Colour colour) {
  const Sample& sample = i < 2 ? normal_ : abnormal_;
  if (i % 2 == 0) return sample.back->setBackColor(colour);
  QPalette palette = sample.fore->palette();
  palette.setColor(QPalette::WindowText, toQColor(colour));
  sample.fore->setPalette(palette);
}

bool frmMoniNumSet::entriesAgree() {
  if (limitsAgree(fromQt(txtUp_->text()), fromQt(txtDown_->text()))) return true;
  txtDown_->setFocus();
  txtDown_->selectAll();
  return false;
}

}  // namespace vk
