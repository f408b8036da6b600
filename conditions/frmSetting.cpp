// SPDX-License-Identifier: MIT
#include "conditions/frmSetting.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "base/mdlBox.h"
#include "base/mdlText.h"
#include "conditions/mdlSendConditions.h"
#include "conditions/mdlSettingFile.h"
#include "desktop/clsTimerPause.h"
#include "desktop/frmStatusBar.h"
#include "desktop/qtText.h"
#include "recorder/mdlBoxTable.h"
#include "recorder/mdlCodeTables.h"
#include "recorder/mdlSelectMeter.h"

namespace vk {

namespace {

template <typename Texts>
void fill(QComboBox& list, const Texts& texts) {
  list.clear();
  for (const auto& text : texts) list.addItem(toQt(text));
  list.setCurrentIndex(-1);
}

void fillSlice(QComboBox& list, std::span<const std::string_view> names,
               const std::vector<int32_t>& indices, int32_t selected) {
  fill(list, std::vector<std::string_view>{});
  for (const int32_t index : indices) list.addItem(toQt(textAt(names, index)));
  list.setCurrentIndex(list.findText(toQt(textAt(names, selected))));
}

// What a list does not hold leaves it as it is.
void selectPosition(QComboBox& list, int position) {
  if (position >= 0 && position < list.count()) list.setCurrentIndex(position);
}

void selectText(QComboBox& list, const std::string& text) {
  selectPosition(list, list.findText(toQt(text)));
}

std::string textOf(const QComboBox& list) {
  return fromQt(list.currentText());
}

void enableAll(bool on, std::initializer_list<QWidget*> widgets) {
  for (auto* widget : widgets) widget->setEnabled(on);
}

}  // namespace

bool openMeasureSetting(int32_t serial, QWidget* parent, QTimer& tmrStatus) {
  if (serial == kSelectCancelled || serial == kSelectAllMeters) return false;
  const clsTimerPause pause(tmrStatus);
  return frmSetting(serial, parent).exec() == QDialog::Accepted;
}

// --- opening ------------------------------------------------------------------------------------

frmSetting::frmSetting(int32_t serial, QWidget* parent)
    : QDialog(parent), linkBusy_(gUSBBusy), guard_({}, {}) {
  build();
  takeBox(serial);
  centreOnScreen(*this);
}

void frmSetting::takeBox(int32_t serial) {
  const FlagGuard lock(listsLocked_);
  lblSerNum_->setText(serial == kNoSerial ? tr("---") : toQt(serialText(serial)));
  lblSerNumDmy_->setText(toQt(vk::textOf(serial)));
  const int32_t found = slotIndexOf(serial);
  const int32_t slot = found > 0 ? found : kFileRow;
  modelOfDialog_ = found > 0 ? gBoxTable[found].model : kNoModel;
  lblMeter_->setText(found > 0 ? toQt(textAt(modelName, modelOfDialog_)) : tr("---"));
  fillFixedLists();
  for (std::size_t i = 1; i <= kChannels; ++i) fillRange(i, gBoxTable[slot].carrier[i]);
  showRecord(slot);
  if (found > 0) showBalance(slot);
}

void frmSetting::fillFixedLists() {
  fill(*cmbChannelMode_, chModeName);
  fill(*cmbTrigger_, trgModeName);
  for (std::size_t i = 1; i <= kChannels; ++i) {
    const Channel& channel = channels_[i];
    fill(*channel.cmbCarrSet, carrierEntries(modelOfDialog_));
    if (channel.cmbCarrSet->count() == 1) channel.cmbCarrSet->setCurrentIndex(0);
    fill(*channel.cmbFilterSet, filterEntries(modelOfDialog_));
    fill(*channel.cmbBalSet, onOffName);
    fill(*channel.cmbTrgSlopeSet, trgSlopeName);
    fill(*channel.cmbUnit, unitName);
  }
  lblAmp2_->setEnabled(modelFamily(modelOfDialog_).excitation);
}

void frmSetting::fillRange(std::size_t channel, int32_t carrier) {
  fill(*channels_[channel].cmbRangeSet, rangeEntries(modelOfDialog_, carrier));
}

// The dialog stays one for its own box and model, whatever row is shown.
void frmSetting::showRecord(int32_t slot) {
  const MeasureSetting& record = gBoxTable[slot];
  selectPosition(*cmbChannelMode_, record.channelMode);
  const ConditionChoice wanted{choice().mode, record.sampling, record.dataSize, record.preArea};
  const ConditionChoice now = refillAll(wanted, modelOfDialog_);
  fillDataSize(now, wanted.sampling);
  fillSampling(now);
  fillPreArea(now);
  selectPosition(*cmbTrigger_, record.triggerMode);
  showTimes();
  for (std::size_t i = 1; i <= kChannels; ++i) {
    Channel& channel = channels_[i];
    const ChannelControls shown = channelControls(record, i);
    selectText(*channel.cmbCarrSet, shown.carrier);
    selectText(*channel.cmbRangeSet, shown.range);
    selectText(*channel.cmbFilterSet, shown.filter);
    selectPosition(*channel.cmbBalSet, shown.balance);
    selectPosition(*channel.cmbTrgSlopeSet, shown.slope);
    selectPosition(*channel.cmbUnit, shown.unit);
    channel.txtTriggerLevel->setText(toQt(shown.level));
    channel.level = levelOf(shown.level);
    channel.txtCoeff->setText(toQt(shown.coeff));
    channel.coeff = shown.coeff;
  }
  enableControls();
  guard_.forgetLeft();
  // A box may hold a coefficient that is too large for an entry. It stays until it is changed.
  for (Channel& channel : channels_) {
    if (coeffTaken(channel)) continue;
    channel.txtCoeff->setFocus();
    channel.txtCoeff->selectAll();
  }
}

void frmSetting::showBalance(int32_t slot) {
  const auto balance = fetchBalance(gBoxTable[slot]);
  if (!balance) return;
  for (std::size_t i = 1; i <= kChannels; ++i) {
    selectPosition(*channels_[i].cmbBalSet, (*balance)[i]);
  }
}

// --- reading the controls -----------------------------------------------------------------------

ConditionChoice frmSetting::choice() const {
  const auto indexIn = [](std::span<const std::string_view> names, const QComboBox& list) {
    return qMax(findIndex(names, textOf(list)), 0);
  };
  return {indexIn(chModeName, *cmbChannelMode_), indexIn(samplingName, *cmbSampling_),
          indexIn(dataSizeName, *cmbDatasize_), indexIn(preAreaName, *cmbPreArea_)};
}

DialogControls frmSetting::controls() const {
  DialogControls now;
  now.model = modelOfDialog_;
  now.serial = readWhole(fromQt(lblSerNumDmy_->text())).value_or(kNoSerial);
  now.channelMode = textOf(*cmbChannelMode_);
  now.sampling = textOf(*cmbSampling_);
  now.dataSize = textOf(*cmbDatasize_);
  now.preArea = textOf(*cmbPreArea_);
  now.trigger = cmbTrigger_->currentIndex();
  for (std::size_t i = 1; i <= kChannels; ++i) {
    const Channel& channel = channels_[i];
    now.channel[i] = {textOf(*channel.cmbCarrSet),
                      textOf(*channel.cmbRangeSet),
                      textOf(*channel.cmbFilterSet),
                      channel.cmbBalSet->currentIndex(),
                      channel.cmbTrgSlopeSet->currentIndex(),
                      channel.cmbUnit->currentIndex(),
                      fromQt(channel.txtTriggerLevel->text()),
                      fromQt(channel.txtCoeff->text())};
  }
  return now;
}

// --- what follows from a choice -----------------------------------------------------------------

void frmSetting::enableControls() {
  PerChannel<int32_t> slopes;
  for (std::size_t i = 1; i <= kChannels; ++i)
    slopes[i] = channels_[i].cmbTrgSlopeSet->currentIndex();
  const DialogEnable enable =
      dialogEnable(modelOfDialog_, mode(), cmbTrigger_->currentIndex(), slopes);
  for (std::size_t i = 1; i <= kChannels; ++i) {
    const Channel& channel = channels_[i];
    const ChannelEnable& on = enable.channel[i];
    enableAll(on.channel,
              {channel.lblAmpCh, channel.cmbRangeSet, channel.cmbFilterSet, channel.cmbBalSet,
               channel.lblCoeffCh, channel.cmbUnit, channel.txtCoeff});
    channel.cmbCarrSet->setEnabled(on.carrier);
    channel.cmbTrgSlopeSet->setEnabled(on.slope);
    enableAll(on.level, {channel.lblSlpCh, channel.txtTriggerLevel});
  }
  enableAll(enable.trigger, {lblTrg1_, lblTrg2_, cmbPreArea_});
}

void frmSetting::fillDataSize(const ConditionChoice& now, int32_t sampling) {
  fillSlice(*cmbDatasize_, dataSizeName, dataSizeList(now.mode, sampling), now.dataSize);
}

void frmSetting::fillSampling(const ConditionChoice& now) {
  fillSlice(*cmbSampling_, samplingName, samplingList(now.mode, now.dataSize, modelOfDialog_),
            now.sampling);
}

void frmSetting::fillPreArea(const ConditionChoice& now) {
  fillSlice(*cmbPreArea_, preAreaName, preAreaList(now.mode, now.dataSize), now.preArea);
}

void frmSetting::showTimes() {
  const ConditionChoice now = choice();
  const float recording = recordingTime(now.sampling, now.dataSize);
  const float pre = preTime(now.mode, now.sampling, now.dataSize, now.preArea);
  lblDataSize_->setText(toQt(timeText(recording, now.sampling)));
  lblPreArea_->setText(toQt(timeText(pre, now.sampling)));
}

void frmSetting::cmbChannelMode_Change() {
  if (listsLocked_) return;
  const FlagGuard lock(listsLocked_);
  const ConditionChoice now = onChannelModeChange(choice(), modelOfDialog_);
  enableControls();
  fillDataSize(now, now.sampling);
  fillSampling(now);
  fillPreArea(now);
  showTimes();
}

void frmSetting::cmbSampling_Change() {
  if (listsLocked_) return;
  const FlagGuard lock(listsLocked_);
  const ConditionChoice now = onSamplingChange(choice());
  fillDataSize(now, now.sampling);
  fillPreArea(now);
  showTimes();
}

void frmSetting::cmbDatasize_Change() {
  if (listsLocked_) return;
  const FlagGuard lock(listsLocked_);
  const ConditionChoice now = onDataSizeChange(choice(), modelOfDialog_);
  fillSampling(now);
  fillPreArea(now);
  showTimes();
}

// The channel keeps its place in the list, whose texts change to the wider or narrower ranges. The
// place is taken here, because a list can change without ever having had the focus.
void frmSetting::cmbCarrSet_Change(std::size_t channel) {
  if (listsLocked_) return;
  QComboBox& ranges = *channels_[channel].cmbRangeSet;
  const int position = ranges.currentIndex();
  fillRange(channel, findIndex(carrierName, textOf(*channels_[channel].cmbCarrSet)));
  selectPosition(ranges, position);
}

bool frmSetting::levelTaken(Channel& channel) {
  const FieldEntry entry = levelEntered(fromQt(channel.txtTriggerLevel->text()));
  if (!entry.accepted) showBox(kLevelErrorTitle, entry.message);
  channel.txtTriggerLevel->setText(
      toQt(entry.accepted ? entry.text : levelRestored(channel.level)));
  return entry.accepted;
}

bool frmSetting::coeffTaken(Channel& channel) {
  const FieldEntry entry = coeffEntered(fromQt(channel.txtCoeff->text()));
  if (entry.accepted) {
    channel.coeff = entry.text;
  } else {
    showBox(kCoeffErrorTitle, entry.message);
  }
  channel.txtCoeff->setText(toQt(channel.coeff));
  return entry.accepted;
}

// --- buttons ------------------------------------------------------------------------------------

void frmSetting::cmdSet_Click() {
  if (busy_) return;
  const FlagGuard busy(busy_);
  if (!guard_.checkAll()) return;
  // A disabled button gives its focus away.
  const bool focused = cmdSet_->hasFocus();
  cmdSet_->setEnabled(false);
  if (applyConditions()) return accept();
  cmdSet_->setEnabled(true);
  if (focused) cmdSet_->setFocus();
}

bool frmSetting::applyConditions() {
  const DialogControls shown = controls();
  PerChannel<int16_t> slopes;
  for (std::size_t i = 1; i <= kChannels; ++i)
    slopes[i] = static_cast<int16_t>(shown.channel[i].slope);
  if (triggerCaution(mode(), shown.trigger, slopes))
    showBox(kTriggerCautionTitle, kTriggerCautionText);
  if (const int32_t error = checkControls(shown, dialogRecord_); error != kSettingOk) {
    MeasureSetErrorView(error);
    return false;
  }
  const ConditionsToSend send{dialogRecord_.serial, buildCommandTexts(shown),
                              dialogRecord_.channelMode, dialogRecord_.balance};
  frmStatusBar status(tr("Set"), this);
  status.setLines(tr("Now Setting VK-480Q."));
  status.open();
  if (!sendConditions(send, status.jobView())) return false;
  storeRecord(slotIndexOf(dialogRecord_.serial), dialogRecord_);
  return true;
}

void frmSetting::cmdLoad_Click() {
  if (busy_) return;
  const FlagGuard busy(busy_);
  // A mnemonic leaves the focus in a field whose entry is not checked yet.
  cmdLoad_->setFocus(Qt::ShortcutFocusReason);
  if (!guard_.checkLeft() || !loadSettingFile(modelOfDialog_)) return;
  const FlagGuard lock(listsLocked_);
  for (std::size_t i = 1; i <= kChannels; ++i) fillRange(i, gBoxTable[kFileRow].carrier[i]);
  showRecord(kFileRow);
}

void frmSetting::cmdSave_Click() {
  if (busy_) return;
  const FlagGuard busy(busy_);
  if (guard_.checkAll()) saveSettingFile(controls());
}

void frmSetting::reject() {
  if (!busy_) QDialog::reject();
}

// Enter in a list or a field is no wish to set the box.
void frmSetting::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

}  // namespace vk
