// SPDX-License-Identifier: MIT
#include "monitors/frmMoniBar.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "desktop/qtText.h"
#include "monitors/mdlBarLayout.h"

namespace vk {

namespace {

constexpr int kPanelMargin = 3;
constexpr int kSmallest = 7;    // pixels; letters below this cannot be read
constexpr int kUsualValue = 8;  // characters

/// Part of a number looks like another number: what has no room is all signs.
class NumberLabel : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  void paintEvent(QPaintEvent* event) override {
    const bool fits = fontMetrics().horizontalAdvance(text()) <= width();
    setToolTip(fits ? QString() : text());
    if (fits) return QLabel::paintEvent(event);
    const QChar sign(u'#');
    const int count = qMax(1, width() / fontMetrics().horizontalAdvance(sign));
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignCenter, QString(count, sign));
  }
};

/// Gives the label the largest font up to `most` pixels in which the text has room. False when that
/// would be one that nobody can read; then the label has the smallest.
bool fit(QLabel* label, const QString& text, int most) {
  QFont font = fittingFont(label->font(), text, label->size());
  const bool readable = font.pixelSize() >= kSmallest;
  font.setPixelSize(qMax(kSmallest, qMin(most, font.pixelSize())));
  if (label->font() != font) label->setFont(font);
  return readable;
}

}  // namespace

frmMoniBar::frmMoniBar()
    : frmMonitor(MonitorKind::kBar, "frmMoniBar"),
      monitor_(gBarMoni.at(monitorIndex())),
      picWave_(addPicture("picWave")),
      picWaveSub_(addPicture("picWaveSub")) {
  picWave_->setAccessibleName(tr("Bars"));
  buttons_ = addFrame("cmdReset");
  buildSlider();
  QList<QWidget*> surfaces{picWave_, fraSet(), sdrYPos_};
  for (std::size_t i = 0; i < kBars; ++i) {
    panels_[i] = buildPanel(static_cast<int>(i));
    surfaces.append(panels_[i].picCh);
  }
  hideControls(surfaces);
}

frmMoniBar::Panel frmMoniBar::buildPanel(int bar) {
  Panel panel;
  panel.picCh = named(new QWidget(this), elementName("picCh", bar), tr("Bar %1").arg(bar + 1));
  panel.lblMonitor = named(new NumberLabel(panel.picCh), elementName("lblMonitor", bar));
  panel.lblMonitor->setTextFormat(Qt::PlainText);
  panel.lblMonitor->setAlignment(Qt::AlignCenter);
  const auto add = [&](const char* name, Qt::Alignment side) {
    auto* label = addLabel(elementName(name, bar), panel.picCh);
    label->setAlignment(side | Qt::AlignVCenter);
    return label;
  };
  panel.lblScale = add("lblScale", Qt::AlignHCenter);
  panel.lblSerNum = add("lblSerNum", Qt::AlignHCenter);
  panel.lblChNum = add("lblChNum", Qt::AlignRight);
  panel.lblUnit = add("lblUnit", Qt::AlignLeft);
  QFont bold = font();
  bold.setBold(true);
  panel.lblMonitor->setFont(bold);
  panel.lblMonitor->setAccessibleDescription(tr("Live value of bar %1").arg(bar + 1));
  return panel;
}

void frmMoniBar::buildSlider() {
  sdrYPos_ = addGroundSlider(QStringLiteral("sdrYPos"), Qt::Vertical, tr("Ground level"));
  connect(sdrYPos_, &QSlider::valueChanged, this, &frmMoniBar::sdrYPos_Change);
}

void frmMoniBar::sdrYPos_Change(int position) {
  monitor_.moveGround(position);
}

void frmMoniBar::setInitMoniNum() {
  initCommon();
  const auto& record = gBarMoni.at(monitorIndex());
  for (std::size_t i = 0; i < kBars; ++i) {
    panels_[i].lblSerNum->setText(toQt(serialLabel(record.BAR_SER[i])));
    panels_[i].lblChNum->setText(toQt(channelLabel(record.BAR_CH[i])));
  }
  putTwin(picWaveSub_, *picWave_);
  monitor_.resize(picWave_->width(), picWave_->height());
  for (std::size_t i = 0; i < kBars; ++i) {
    panels_[i].lblScale->setText(toQt(monitor_.scaleText(i)));
    fitTexts(panels_[i]);
  }
  const QSignalBlocker quiet(sdrYPos_);
  sdrYPos_->setValue(record.BAR_OFFSET[0]);
  const QFontMetrics metrics(font());
  const int panel = metrics.horizontalAdvance(QStringLiteral("Ser: 0000000")) + 2 * kPanelMargin;
  panelRow_ = panel * int{kBars};
}

void frmMoniBar::MoniLblDisconnect(std::size_t bar) {
  monitor_.loseChannel(bar);
}

void frmMoniBar::MoniNotUseCh() {
  monitor_.showEmpty();
}

void frmMoniBar::sayLabels(std::size_t bar, const ChannelLabels& labels) {
  const auto& panel = panels_[bar];
  if (labels.unit) {
    panel.lblUnit->setText(toQt(*labels.unit));
    fitTexts(panel);
  }
  if (!labels.value) return;
  const bool fitted = panel.lblMonitor->text().size() <= kUsualValue;
  panel.lblMonitor->setText(toQt(*labels.value));
  if (!fitted || labels.value->size() > kUsualValue) fitValue(panel);
}

// --- layout -------------------------------------------------------------------------------------

void frmMoniBar::layoutMonitor() {
  storePlace();
  const QSize button = buttons_->itemAt(0)->widget()->sizeHint();
  const auto at =
      barLayout(width(), height(),
                {sdrYPos_->sizeHint().width(), button.width(), button.height(), panelRow_});
  showControls();
  put(picWave_, at.picWave);
  putTwin(picWaveSub_, *picWave_);
  put(sdrYPos_, at.sdrYPos);
  buttons_->setDirection(at.buttonsBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  put(fraSet(), at.fraSet);
  for (std::size_t i = 0; i < kBars; ++i) {
    put(panels_[i].picCh, at.picCh[i]);
    layoutPanel(panels_[i]);
  }
  monitor_.resize(at.picWave.width, at.picWave.height);
  showReadings();
}

void frmMoniBar::layoutPanel(const Panel& panel) {
  const int width = qMax(1, panel.picCh->width() - 2 * kPanelMargin);
  const int line = QFontMetrics(font()).height();
  const int value = qMax(1, panel.picCh->height() - kPanelMargin - 3 * line);
  panel.lblMonitor->setGeometry(kPanelMargin, kPanelMargin, width, value);
  int top = kPanelMargin + value;
  const int half = width / 2;
  panel.lblChNum->setGeometry(kPanelMargin, top, half - kPanelMargin, line);
  panel.lblUnit->setGeometry(2 * kPanelMargin + half, top, width - half - kPanelMargin, line);
  panel.lblScale->setGeometry(kPanelMargin, top += line, width, line);
  panel.lblSerNum->setGeometry(kPanelMargin, top + line, width, line);
  fitValue(panel);
  fitTexts(panel);
}

/// A longer text than usual takes smaller letters, so that no digit is cut off.
void frmMoniBar::fitValue(const Panel& panel) {
  const QString usual(kUsualValue, QLatin1Char('0'));
  const QString text = panel.lblMonitor->text();
  fit(panel.lblMonitor, text.size() > kUsualValue ? text : usual, panel.lblMonitor->height());
}

void frmMoniBar::fitTexts(const Panel& panel) {
  int most = QFontInfo(font()).pixelSize();
  for (auto* label : {panel.lblChNum, panel.lblUnit, panel.lblScale, panel.lblSerNum}) {
    label->setVisible(fit(label, label->text(), most));
    most = qMin(most, QFontInfo(panel.lblChNum->font()).pixelSize());
  }
}

}  // namespace vk
