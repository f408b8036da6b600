// SPDX-License-Identifier: MIT
#include "shell/frmBoxPanel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include "base/mdlTwips.h"
#include "desktop/clsElidedLabel.h"
#include "desktop/clsPictureBox.h"
#include "desktop/qtText.h"
#include "desktop/uiIcons.h"

namespace vk {

namespace {

constexpr int kLamp = 12;
constexpr int kMainLamp = 18;

// State colours are light; the text on them is dark, whatever the desktop's theme.
const QColor kStateInk(0x20, 0x20, 0x20);

}  // namespace

frmBoxPanel::frmBoxPanel(int index, QWidget* parent) : QFrame(parent), index_(index) {
  named(this, elementName("picBoxNo", index),
        index == 0 ? tr("Main box") : tr("Box %1").arg(index));
  setFrameShape(QFrame::StyledPanel);
  imgLED_ = named(new QLabel(this), elementName("imgLED", index));
  lblSerNumber_ = named(new clsElidedLabel(this), elementName("lblSerNumber", index));
  shpStatus_ = named(new QFrame(this), elementName("shpStatus", index));
  shpStatus_->setAutoFillBackground(true);
  fraMeterStatus_ = named(new clsElidedLabel(shpStatus_), elementName("fraMeterStatus", index));
  fraMeterStatus_->setAlignment(Qt::AlignCenter);
  auto* inside = new QHBoxLayout(shpStatus_);
  inside->setContentsMargins(1, 0, 1, 0);
  inside->addWidget(fraMeterStatus_);
  if (index == 0) {
    cmbSerNum_ = named(new QComboBox(this), QStringLiteral("cmbSerNum"), tr("Main box"));
  } else {
    QFont small = font();
    small.setPointSizeF(qMax(7.0, small.pointSizeF() - 1));
    lblSerNumber_->setFont(small);
    fraMeterStatus_->setFont(small);
  }
  cmdStart_ = button("cmdStart", index, PanelCommand::kStart);
  cmdStop_ = button("cmdStop", index, PanelCommand::kStop);
  cmdMtrg_ = button("cmdMtrg", index, PanelCommand::kManualTrigger);
  setState(0xFFFFFF, std::string(kDisconnect));
}

QToolButton* frmBoxPanel::button(const char* name, int index, PanelCommand command) {
  static const QString kTexts[] = {tr("Start"), tr("Stop"), tr("Trigger")};
  static const QString kTips[] = {tr("Start recording"), tr("Stop recording"),
                                  tr("Trigger by hand")};
  static constexpr UiIcon kIcons[] = {UiIcon::kStart, UiIcon::kStop, UiIcon::kTrigger};
  const auto which = static_cast<int>(command);
  auto* made = named(new QToolButton(this), elementName(name, index), kTips[which]);
  made->setIcon(uiIcon(kIcons[which]));
  made->setText(kTexts[which]);
  made->setToolTip(kTips[which]);
  made->setFocusPolicy(Qt::StrongFocus);
  made->setIconSize(index == 0 ? QSize(18, 18) : QSize(12, 12));
  if (index == 0) made->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  made->setMinimumWidth(0);
  if (index > 0) made->setFixedHeight(17);
  connect(made, &QToolButton::clicked, this, [this, command] {
    if (onCommand) onCommand(command);
  });
  return made;
}

void frmBoxPanel::clearLayout() {
  delete layout();
}

void frmBoxPanel::arrangeSmall() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(2, 1, 2, 1);
  grid->setSpacing(1);
  auto* head = new QHBoxLayout;
  head->setSpacing(3);
  head->addWidget(imgLED_);
  head->addWidget(lblSerNumber_, 1);
  grid->addLayout(head, 0, 0, 1, 3);
  grid->addWidget(shpStatus_, 1, 0, 1, 3);
  grid->addWidget(cmdStart_, 2, 0);
  grid->addWidget(cmdStop_, 2, 1);
  grid->addWidget(cmdMtrg_, 2, 2);
  grid->setRowStretch(1, 1);
}

void frmBoxPanel::arrangeMain() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(6, 3, 6, 3);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(3);
  grid->addWidget(cmbSerNum_, 0, 0);
  grid->addWidget(lblSerNumber_, 0, 1);
  grid->addWidget(imgLED_, 0, 2);
  grid->addWidget(shpStatus_, 0, 3);
  auto* row = new QHBoxLayout;
  row->setSpacing(4);
  row->addWidget(cmdStart_);
  row->addWidget(cmdStop_);
  row->addWidget(cmdMtrg_);
  grid->addLayout(row, 1, 0, 1, 4);
  grid->setColumnStretch(1, 2);
  grid->setColumnStretch(3, 3);
}

void frmBoxPanel::arrangeLow() {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(1, 1, 1, 1);
  row->setSpacing(2);
  row->addWidget(imgLED_);
  row->addWidget(lblSerNumber_, 1);
  row->addWidget(shpStatus_, 1);
}

void frmBoxPanel::place(const PanelPlace& place) {
  setVisible(place.visible);
  if (!place.visible) return;
  setGeometry(toPixels(place.left), toPixels(place.top), toPixels(place.width),
              toPixels(place.height));
  constexpr int kLowTwips = 500;
  const bool low = index_ > 0 && place.height < kLowTwips;
  clearLayout();
  for (auto* each : {cmdStart_, cmdStop_, cmdMtrg_}) each->setVisible(!low);
  if (low) {
    arrangeLow();
  } else if (index_ == 0) {
    arrangeMain();
  } else {
    arrangeSmall();
  }
}

void frmBoxPanel::setContent(const std::string& content) {
  lblSerNumber_->setText(toQt(content));
}

void frmBoxPanel::setButtonsEnabled(bool enabled) {
  for (auto* each : {cmdStart_, cmdStop_, cmdMtrg_}) each->setEnabled(enabled);
}

void frmBoxPanel::setState(const std::optional<Colour>& colour, const std::string& text) {
  colour_ = colour.value_or(colour_);
  const QColor shown = toQColor(colour_);
  QPalette colours = shpStatus_->palette();
  colours.setColor(QPalette::Window, shown);
  colours.setColor(QPalette::WindowText, kStateInk);
  shpStatus_->setPalette(colours);
  fraMeterStatus_->setPalette(colours);
  imgLED_->setPixmap(lampPixmap(shown, index_ == 0 ? kMainLamp : kLamp, devicePixelRatioF()));
  fraMeterStatus_->setText(toQt(text));
  fraMeterStatus_->setAccessibleName(toQt(text));
}

}  // namespace vk
