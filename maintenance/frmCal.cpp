// SPDX-License-Identifier: MIT
#include "maintenance/frmCal.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "base/mdlGuard.h"
#include "desktop/qtText.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr QSize kPictureSize(64, 40);
constexpr int kLevels[kCalOutputs] = {0, 1, -1};

/// A small screen with the zero line and the level that the output steps to: dim, or lit like a
/// lamp. Drawn anew for each size, so that it is crisp on every screen and follows the palette.
class CalPicture : public QIconEngine {
 public:
  CalPicture(int level, bool lit) : level_(level), lit_(lit) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    const QColor text = palette.color(QPalette::Text);
    const QColor screen = lit_ ? QColor(0xFF, 0xC4, 0x2E) : palette.color(QPalette::Base);
    const QColor ink = lit_ ? QColor(0x26, 0x1C, 0x00) : text;
    QColor zero = ink;
    zero.setAlphaF(0.45F);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) painter->setOpacity(0.35);
    painter->translate(rect.topLeft());
    painter->scale(1.0 * rect.width() / kPictureSize.width(),
                   1.0 * rect.height() / kPictureSize.height());
    painter->setPen(QPen(lit_ ? QColor(0xB0, 0x78, 0x00) : palette.color(QPalette::Mid), 1.5));
    painter->setBrush(screen);
    painter->drawRoundedRect(QRectF(1, 1, 62, 38), 4, 4);
    painter->setPen(QPen(zero, 1, Qt::DashLine));
    painter->drawLine(QPointF(6, 20), QPointF(58, 20));
    painter->setPen(QPen(ink, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    const qreal y = 20 - 11 * level_;
    painter->drawPolyline(QPolygonF({{7, 20}, {24, 20}, {24, y}, {57, y}}));
    painter->restore();
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }
  QIconEngine* clone() const override { return new CalPicture(level_, lit_); }

 private:
  int level_;
  bool lit_;
};

QIcon calIcon(int picture) {
  return QIcon(new CalPicture(kLevels[picture % kCalOutputs], picture >= kCalOutputs));
}

}  // namespace

frmCal::frmCal(int32_t serial, QWidget* parent) : QDialog(parent) {
  named(this, QStringLiteral("frmCal"));
  setWindowTitle(toQt(kCalCaption));
  calibration_.serial = serial;
  build();
  showPictures();
  centreOnScreen(*this);
}

QHBoxLayout* frmCal::outputs() {
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  for (int i = 0; i < kCalOutputs; ++i) {
    const std::size_t at = i;
    auto* button = named(new QPushButton(toQt(kCalButtons[at]), this), elementName("cmdCal", i));
    button->setIconSize(kPictureSize);
    button->setIcon(calIcon(i));
    connect(button, &QPushButton::clicked, this, [this, i] { cmdCal_Click(i); });
    cmdCal_[at] = button;
    row->addWidget(button, 1);
  }
  int width = 0;
  for (const auto* button : cmdCal_) width = std::max(width, button->sizeHint().width());
  for (auto* button : cmdCal_) button->setMinimumWidth(width);
  return row;
}

/// The pictures themselves stay hidden; the buttons wear them.
void frmCal::addPictures() {
  for (int i = 0; i < kCalPictures; ++i) {
    auto* picture = named(new QLabel(this), elementName("imgCal", i));
    picture->setPixmap(calIcon(i).pixmap(kPictureSize, devicePixelRatioF()));
    picture->hide();
  }
}

void frmCal::build() {
  auto* lblSer = named(new QLabel(toQt(serialText(calibration_.serial)), this),
                       QStringLiteral("lblSer"), tr("Serial number"));
  lblSer->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* head = new QHBoxLayout;
  head->addWidget(new QLabel(tr("Serial No."), this));
  head->addWidget(lblSer, 1);
  auto* explanation = new QLabel(toQt(kCalExplanation), this);
  explanation->setWordWrap(true);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(16, 16, 16, 14);
  lines->setSpacing(12);
  lines->addLayout(head);
  lines->addWidget(explanation);
  lines->addLayout(outputs());
  addPictures();
  auto* cmdClose = named(new QPushButton(tr("Close"), this), QStringLiteral("cmdClose"));
  connect(cmdClose, &QPushButton::clicked, this, &frmCal::reject);
  lines->addStretch(1);
  lines->addWidget(cmdClose, 0, Qt::AlignRight);
}

void frmCal::cmdCal_Click(int button) {
  if (busy_) return;
  bool stays = false;
  {
    const FlagGuard busy(busy_);
    stays = pressCal(calibration_, button);
  }
  if (!stays) {
    reject();
    return;
  }
  showPictures();
}

void frmCal::showPictures() {
  for (int i = 0; i < kCalOutputs; ++i) {
    auto* button = cmdCal_[i];
    const int picture = calPicture(calibration_, i);
    button->setIcon(calIcon(picture));
    button->setAccessibleDescription(picture >= kCalOutputs ? tr("pressed last") : QString());
  }
}

void frmCal::done(int result) {
  if (busy_) return;
  {
    const FlagGuard busy(busy_);
    closeCal(calibration_);
  }
  QDialog::done(result);
}

}  // namespace vk
