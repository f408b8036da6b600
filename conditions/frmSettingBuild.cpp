// SPDX-License-Identifier: MIT
// The controls of the condition dialog and their places; what they do stands in frmSetting.cpp.
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "conditions/frmSetting.h"
#include "desktop/clsQuietList.h"
#include "desktop/qtText.h"
#include "desktop/uiIcons.h"

namespace vk {

namespace {

constexpr int kListedAtOnce = 24;
constexpr int kFieldCharacters = 8;

QLabel* plainLabel(const QString& text, QWidget* parent, const QString& name,
                   const QString& spoken = {}) {
  auto* label = named(new QLabel(text, parent), name, spoken);
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// A value with room for the longest text.
QLabel* valueLabel(QWidget* parent, const QString& name, const QString& spoken,
                   const QString& longest) {
  auto* label = plainLabel({}, parent, name, spoken);
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(longest));
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QLineEdit* numberField(QWidget* parent, const QString& name, const QString& spoken,
                       const QString& limits) {
  auto* edit = named(new QLineEdit(parent), name, spoken);
  edit->setAlignment(Qt::AlignRight);
  edit->setToolTip(limits);
  edit->setAccessibleDescription(limits);
  const int digits = edit->fontMetrics().horizontalAdvance(QString(kFieldCharacters, u'0'));
  edit->setMinimumWidth(digits + 20);
  return edit;
}

QGridLayout* channelGrid(QGroupBox* box) {
  auto* grid = new QGridLayout(box);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(6);
  // The rows of the frames beside each other stand on the same height.
  const int height = qMax(QComboBox().sizeHint().height(), QLineEdit().sizeHint().height());
  for (int row = 1; row <= kChannels; ++row) grid->setRowMinimumHeight(row, height);
  grid->setRowStretch(kChannels + 1, 1);
  return grid;
}

QString ofChannel(const QString& what, int channel) {
  return frmSetting::tr("%1 of channel %2").arg(what).arg(channel);
}

QString channelText(int channel) {
  return frmSetting::tr("CH %1").arg(channel);
}

}  // namespace

void frmSetting::build() {
  named(this, QStringLiteral("frmSetting"));
  setWindowTitle(tr("Measurement condition setting"));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(14, 12, 14, 14);
  column->setSpacing(10);
  column->addWidget(buildHead());
  column->addWidget(buildRecording());
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addWidget(buildAmplifier(), 4);
  row->addWidget(buildTrigger(), 2);
  row->addWidget(buildUnit(), 2);
  column->addLayout(row, 1);
  column->addWidget(buildButtons());
  orderTabs();
  connectControls();
  guardFields();
}

QWidget* frmSetting::buildHead() {
  auto* head = new QWidget(this);
  lblMeter_ = valueLabel(head, QStringLiteral("lblMeter"), tr("Model"), QStringLiteral("VK-480Qe"));
  lblSerNum_ =
      valueLabel(head, QStringLiteral("lblSerNum"), tr("Serial number"), QStringLiteral("0000000"));
  lblSerNumDmy_ = plainLabel({}, head, QStringLiteral("lblSerNumDmy"));
  lblSerNumDmy_->hide();
  auto* line = new QHBoxLayout(head);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(new QLabel(tr("Model"), head));
  line->addWidget(lblMeter_);
  line->addSpacing(18);
  line->addWidget(new QLabel(tr("Serial No."), head));
  line->addWidget(lblSerNum_);
  line->addStretch(1);
  return head;
}

QComboBox* frmSetting::addList(QWidget* parent, const QString& name, const QString& spoken,
                               int characters) {
  auto* list = named(new clsQuietList(parent), name, spoken);
  list->setMaxVisibleItems(kListedAtOnce);
  list->setMinimumContentsLength(characters);
  // The entries change with the other choices, the width does not.
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  return list;
}

QGroupBox* frmSetting::buildRecording() {
  auto* box = new QGroupBox(tr("Recording"), this);
  auto* grid = new QGridLayout(box);
  grid->setHorizontalSpacing(10);
  const auto add = [&](QComboBox*& list, const char* name, const QString& caption, int row,
                       int column) {
    auto* label = new QLabel(caption, box);
    list = addList(box, QString::fromLatin1(name), QString(caption).remove(u'&'), 8);
    label->setBuddy(list);
    grid->addWidget(label, row, column);
    grid->addWidget(list, row, column + 1);
    return label;
  };
  add(cmbChannelMode_, "cmbChannelMode", tr("&Channel mode"), 0, 0);
  add(cmbSampling_, "cmbSampling", tr("Sa&mpling"), 0, 3);
  add(cmbDatasize_, "cmbDatasize", tr("&Data size"), 0, 6);
  named(add(cmbTrigger_, "cmbTrigger", tr("&Trigger mode"), 1, 0), elementName("lblTrg", 0));
  add(cmbPreArea_, "cmbPreArea", tr("&Pre-area"), 1, 6);
  const QString longest = QStringLiteral("2912d 17h 4m 0s");
  lblDataSize_ = valueLabel(box, QStringLiteral("lblDataSize"), tr("Recording time"), longest);
  lblPreArea_ = valueLabel(box, QStringLiteral("lblPreArea"), tr("Pre time"), longest);
  grid->addWidget(new QLabel(tr("Recording time"), box), 0, 9);
  grid->addWidget(lblDataSize_, 0, 10);
  grid->addWidget(new QLabel(tr("Pre time"), box), 1, 9);
  grid->addWidget(lblPreArea_, 1, 10);
  for (const int gap : {2, 5, 8}) grid->setColumnMinimumWidth(gap, 12);
  grid->setColumnStretch(11, 1);
  return box;
}

void frmSetting::addCaption(QGridLayout& grid, int column, const char* name, int index,
                            const QString& text, QWidget* buddy) {
  auto* label = named(new QLabel(text, grid.parentWidget()), elementName(name, index));
  label->setBuddy(buddy);
  grid.addWidget(label, 0, column);
}

QGroupBox* frmSetting::buildAmplifier() {
  auto* box = new QGroupBox(tr("Amplifier"), this);
  auto* grid = channelGrid(box);
  for (int i = 1; i <= kChannels; ++i) {
    Channel& channel = channels_[i];
    const auto add = [&](const char* name, const QString& what, int characters, int column) {
      auto* list = addList(box, elementName(name, i), ofChannel(what, i), characters);
      grid->addWidget(list, i, column);
      grid->setColumnStretch(column, characters);
      return list;
    };
    channel.lblAmpCh = plainLabel(channelText(i), box, elementName("lblAmpCh", i));
    grid->addWidget(channel.lblAmpCh, i, 0);
    channel.cmbRangeSet = add("cmbRangeSet", tr("Range"), 7, 1);
    channel.cmbCarrSet = add("cmbCarrSet", tr("Excitation"), 5, 2);
    channel.cmbFilterSet = add("cmbFilterSet", tr("Filter"), 5, 3);
    channel.cmbBalSet = add("cmbBalSet", tr("Balance"), 4, 4);
  }
  const Channel& first = channels_[1];
  addCaption(*grid, 1, "lblAmp", 1, tr("&Range"), first.cmbRangeSet);
  addCaption(*grid, 2, "lblAmp", 2, tr("&Excitation"), first.cmbCarrSet);
  addCaption(*grid, 3, "lblAmp", 3, tr("&Filter"), first.cmbFilterSet);
  addCaption(*grid, 4, "lblAmp", 4, tr("&Balance"), first.cmbBalSet);
  lblAmp2_ = box->findChild<QLabel*>(elementName("lblAmp", 2));
  return box;
}

QGroupBox* frmSetting::buildTrigger() {
  auto* box = new QGroupBox(tr("Trigger"), this);
  auto* grid = channelGrid(box);
  for (int i = 1; i <= kChannels; ++i) {
    Channel& channel = channels_[i];
    channel.lblSlpCh = plainLabel(channelText(i), box, elementName("lblSlpCh", i));
    channel.cmbTrgSlopeSet =
        addList(box, elementName("cmbTrgSlopeSet", i), ofChannel(tr("Slope"), i), 5);
    channel.txtTriggerLevel =
        numberField(box, elementName("txtTriggerLevel", i), ofChannel(tr("Level in percent"), i),
                    tr("-100.0 to +100.0 % of the range"));
    grid->addWidget(channel.lblSlpCh, i, 0);
    grid->addWidget(channel.cmbTrgSlopeSet, i, 1);
    grid->addWidget(channel.txtTriggerLevel, i, 2);
  }
  const Channel& first = channels_[1];
  addCaption(*grid, 1, "lblTrg", 1, tr("Sl&ope"), first.cmbTrgSlopeSet);
  addCaption(*grid, 2, "lblTrg", 2, tr("Le&vel (%)"), first.txtTriggerLevel);
  lblTrg1_ = box->findChild<QLabel*>(elementName("lblTrg", 1));
  lblTrg2_ = box->findChild<QLabel*>(elementName("lblTrg", 2));
  return box;
}

QGroupBox* frmSetting::buildUnit() {
  auto* box = new QGroupBox(tr("Unit and coefficient"), this);
  auto* grid = channelGrid(box);
  for (int i = 1; i <= kChannels; ++i) {
    Channel& channel = channels_[i];
    channel.lblCoeffCh = plainLabel(channelText(i), box, elementName("lblCoeffCh", i));
    channel.cmbUnit = addList(box, elementName("cmbUnit", i), ofChannel(tr("Unit"), i), 5);
    channel.txtCoeff = numberField(box, elementName("txtCoeff", i), ofChannel(tr("Coefficient"), i),
                                   tr("0.000010 to 9999999, above or below zero"));
    grid->addWidget(channel.lblCoeffCh, i, 0);
    grid->addWidget(channel.cmbUnit, i, 1);
    grid->addWidget(channel.txtCoeff, i, 2);
  }
  const Channel& first = channels_[1];
  addCaption(*grid, 1, "lblCoeff", 1, tr("&Unit"), first.cmbUnit);
  addCaption(*grid, 2, "lblCoeff", 2, tr("Coeff&icient"), first.txtCoeff);
  return box;
}

QWidget* frmSetting::buildButtons() {
  auto* row = new QWidget(this);
  auto* line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  const auto add = [&](const QString& text, const char* name, const QString& tip) {
    auto* button = named(new QPushButton(text, row), QString::fromLatin1(name));
    // A default button would set the box on Enter in any list.
    button->setAutoDefault(false);
    button->setToolTip(tip);
    line->addWidget(button);
    return button;
  };
  cmdLoad_ = add(tr("&Load..."), "cmdLoad", tr("Show the conditions of a setting file"));
  cmdSave_ = add(tr("S&ave..."), "cmdSave", tr("Write the conditions to a setting file"));
  line->addStretch(1);
  cmdSet_ = add(tr("&Set"), "cmdSet", tr("Send the conditions to the box"));
  cmdCancel_ = add(tr("Cancel"), "cmdCancel", tr("Close without sending"));
  return row;
}

void frmSetting::orderTabs() {
  QWidget* before = nullptr;
  const auto next = [&before](QWidget* widget) {
    if (before) setTabOrder(before, widget);
    before = widget;
  };
  for (auto* list : {cmbChannelMode_, cmbTrigger_, cmbSampling_, cmbDatasize_, cmbPreArea_})
    next(list);
  for (const Channel& channel : channels_) {
    for (auto* list :
         {channel.cmbRangeSet, channel.cmbCarrSet, channel.cmbFilterSet, channel.cmbBalSet})
      next(list);
  }
  for (const Channel& channel : channels_) {
    next(channel.cmbTrgSlopeSet);
    next(channel.txtTriggerLevel);
  }
  for (const Channel& channel : channels_) {
    next(channel.cmbUnit);
    next(channel.txtCoeff);
  }
  for (auto* button : {cmdLoad_, cmdSave_, cmdSet_, cmdCancel_}) next(button);
}

void frmSetting::connectControls() {
  const auto onChange = [this](QComboBox* list, auto handler) {
    connect(list, &QComboBox::currentIndexChanged, this, handler);
  };
  const auto enable = [this] {
    if (!listsLocked_) enableControls();
  };
  onChange(cmbChannelMode_, [this] { cmbChannelMode_Change(); });
  onChange(cmbSampling_, [this] { cmbSampling_Change(); });
  onChange(cmbDatasize_, [this] { cmbDatasize_Change(); });
  onChange(cmbPreArea_, [this] {
    if (!listsLocked_) showTimes();
  });
  onChange(cmbTrigger_, enable);
  for (std::size_t i = 1; i <= kChannels; ++i) {
    onChange(channels_[i].cmbTrgSlopeSet, enable);
    onChange(channels_[i].cmbCarrSet, [this, i] { cmbCarrSet_Change(i); });
  }
  connect(cmdSet_, &QPushButton::clicked, this, &frmSetting::cmdSet_Click);
  connect(cmdLoad_, &QPushButton::clicked, this, &frmSetting::cmdLoad_Click);
  connect(cmdSave_, &QPushButton::clicked, this, &frmSetting::cmdSave_Click);
  connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSetting::guardFields() {
  for (std::size_t i = 1; i <= kChannels; ++i) {
    Channel& channel = channels_[i];
    guard_.watch(
        *channel.txtTriggerLevel,
        clsFieldGuard::Entry{
            [&channel] { channel.level = levelOf(fromQt(channel.txtTriggerLevel->text())); },
            [this, &channel] { return levelTaken(channel); }});
    guard_.watch(
        *channel.txtCoeff,
        clsFieldGuard::Entry{[&channel] { channel.coeff = fromQt(channel.txtCoeff->text()); },
                             [this, &channel] { return coeffTaken(channel); }});
  }
}

}  // namespace vk
