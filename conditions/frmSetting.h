// SPDX-License-Identifier: MIT
// The dialog of the measurement conditions of one box: shows its row of the box table, keeps its
// lists to what may go together, loads and saves setting files, and writes the conditions to the
// box. What may go together and what is sent stands in conditions/mdlConditionRules and
// conditions/mdlDialogConditions; here the results go to the controls. Elements of control arrays
// are numbered by channel, 1 to 4.
#pragma once

#include <QDialog>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/mdlGuard.h"
#include "conditions/mdlDialogConditions.h"
#include "desktop/clsFieldGuard.h"
#include "link/mdlExchange.h"

class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTimer;

namespace vk {

/// Shows the dialog for the box with that serial and returns when it is closed; with kNoSerial it
/// opens without a box, and with a cancelled selection (kSelectCancelled) or all meters
/// (kSelectAllMeters) not at all. `tmrStatus`, the timer of the status poll, stands still
/// meanwhile: nobody else talks to the box while the dialog is open. True when conditions were set.
bool openMeasureSetting(int32_t serial, QWidget* parent, QTimer& tmrStatus);

class frmSetting : public QDialog {
  Q_OBJECT

 public:
  /// Fills the controls, and asks the box for its balance state. Shows nothing yet.
  explicit frmSetting(int32_t serial, QWidget* parent = nullptr);
  /// Escape, the close box and cmdCancel; not while the box is being set.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Channel {
    QLabel* lblAmpCh;
    QComboBox* cmbRangeSet;
    QComboBox* cmbCarrSet;
    QComboBox* cmbFilterSet;
    QComboBox* cmbBalSet;
    QLabel* lblSlpCh;
    QComboBox* cmbTrgSlopeSet;
    QLineEdit* txtTriggerLevel;
    QLabel* lblCoeffCh;
    QComboBox* cmbUnit;
    QLineEdit* txtCoeff;
    double level = 0;   ///< put back after a refused entry
    std::string coeff;  ///< likewise
  };

  // frmSettingBuild.cpp
  void build();
  QWidget* buildHead();
  QGroupBox* buildRecording();
  QGroupBox* buildAmplifier();
  QGroupBox* buildTrigger();
  QGroupBox* buildUnit();
  QWidget* buildButtons();
  QComboBox* addList(QWidget* parent, const QString& name, const QString& spoken, int characters);
  void addCaption(QGridLayout& grid, int column, const char* name, int index, const QString& text,
                  QWidget* buddy);
  void orderTabs();
  void connectControls();
  void guardFields();

  void takeBox(int32_t serial);
  void fillFixedLists();
  void fillRange(std::size_t channel, int32_t carrier);
  void showRecord(int32_t slot);
  void showBalance(int32_t slot);

  ConditionChoice choice() const;
  int32_t mode() const { return choice().mode; }
  DialogControls controls() const;
  void enableControls();
  void fillDataSize(const ConditionChoice& now, int32_t sampling);
  void fillSampling(const ConditionChoice& now);
  void fillPreArea(const ConditionChoice& now);
  void showTimes();

  void cmbChannelMode_Change();
  void cmbSampling_Change();
  void cmbDatasize_Change();
  void cmbCarrSet_Change(std::size_t channel);
  bool levelTaken(Channel& channel);
  bool coeffTaken(Channel& channel);

  void cmdSet_Click();
  void cmdLoad_Click();
  void cmdSave_Click();
  bool applyConditions();

  const FlagGuard<int16_t> linkBusy_;  ///< nobody polls while the dialog is there
  int32_t modelOfDialog_ = kNoModel;
  MeasureSetting dialogRecord_;
  bool listsLocked_ = false;  ///< lists are being filled: the change handlers are mute
  bool busy_ = false;         ///< a button is at work
  clsFieldGuard guard_;

  QLabel* lblMeter_;
  QLabel* lblSerNum_;
  QLabel* lblSerNumDmy_;
  QComboBox* cmbChannelMode_;
  QComboBox* cmbSampling_;
  QComboBox* cmbDatasize_;
  QComboBox* cmbTrigger_;
  QComboBox* cmbPreArea_;
  QLabel* lblDataSize_;
  QLabel* lblPreArea_;
  QLabel* lblAmp2_;
  QLabel* lblTrg1_;
  QLabel* lblTrg2_;
  PerChannel<Channel> channels_;
  QPushButton* cmdLoad_;
  QPushButton* cmdSave_;
  QPushButton* cmdSet_;
  QPushButton* cmdCancel_;
};

}  // namespace vk
