// SPDX-License-Identifier: MIT
#include "monitors/frmMoniX_Y.h"

#include <QBoxLayout>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <algorithm>

#include "desktop/qtText.h"

namespace vk {

/// The round mark of the latest point.
class Pointer : public QWidget {
 public:
  explicit Pointer(QWidget* parent) : QWidget(parent) {
    constexpr int kSize = 9;
    resize(kSize, kSize);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }
  void setColour(Colour colour) {
    colour_ = toQColor(colour);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour_);
    painter.drawEllipse(rect());
  }

 private:
  QColor colour_;
};

namespace {

constexpr std::array kAxisLetters{"Y", "X"};

/// A longer text is written smaller, so that usual ones do not change their size.
constexpr int kUsualCharacters = 9;

/// A label in its row; without a row it is hidden.
void placeAt(QLabel* label, int left, int top, int width, int height) {
  label->setVisible(top >= 0);
  if (top >= 0) label->setGeometry(left, top, std::max(1, width), height);
}

}  // namespace

frmMoniX_Y::frmMoniX_Y()
    : frmMonitor(MonitorKind::kXY, "frmMoniX_Y"), monitor_(gXYMoni.at(monitorIndex())) {
  picWave_ = addPicture("picWave");
  picWave_->setAccessibleName(tr("Plot"));
  picWaveSub_ = addPicture("picWaveSub");
  shpPoint_ = named(new Pointer(picWave_), QStringLiteral("shpPoint"));
  for (std::size_t i = 0; i < kXYAxes; ++i) addAxis(i);
  auto* column = addFrame("cmdReset");
  column->setDirection(QBoxLayout::LeftToRight);
  hideControls({picWave_, picWaveSub_});
}

void frmMoniX_Y::addAxis(std::size_t axis) {
  const int index = static_cast<int>(axis);
  const QString letter = QLatin1String(kAxisLetters[axis]);
  const auto element = [&](const char* name) { return addLabel(elementName(name, index)); };
  const auto caption = [&](int number) {
    auto* label = addLabel(QStringLiteral("lbl%1Cap%2").arg(letter).arg(number));
    label->setText(letter + QLatin1Char(':'));
    return label;
  };
  auto& block = axes_[axis];
  block.lblSerNum = element("lblSerNum");
  block.lblChNum = element("lblChNum");
  block.caption = caption(1);
  block.lblMonitor = element("lblMonitor");
  block.lblMonitor->setAccessibleName(tr("%1 value").arg(letter));
  block.lblUnitNum = element("lblUnitNum");
  block.scaleCaption = caption(2);
  block.lblScale = element("lblScale");
  block.offsetCaption = element("lblGndCap");
  block.offsetCaption->setText(tr("Gnd:"));
  block.lblOffSet = element("lblOffSet");
  block.lblOffSet->setAccessibleName(tr("%1 ground level").arg(letter));
  block.sdrPos =
      addGroundSlider(elementName("sdrPos", index), axis == 0 ? Qt::Vertical : Qt::Horizontal,
                      tr("%1 ground level").arg(letter));
  block.lblOffSet->setToolTip(block.sdrPos->toolTip());
  connect(block.sdrPos, &QSlider::valueChanged, this,
          [this, axis](int value) { sdrPos_Change(axis, value); });
}

void frmMoniX_Y::setInitMoniNum() {
  initCommon();
  const auto& record = gXYMoni[monitorIndex()];
  putTwin(picWaveSub_, *picWave_);
  monitor_.resize(picWave_->width(), picWave_->height());
  for (std::size_t i = 0; i < kXYAxes; ++i) {
    auto& block = axes_[i];
    block.lblSerNum->setText(QLatin1String(kAxisLetters[i]) + QLatin1Char(' ') +
                             toQt(serialLabel(record.XY_SER[i])));
    block.lblChNum->setText(toQt(channelLabel(record.XY_CH[i])));
    block.lblScale->setText(toQt(monitor_.scaleText(i)));
    block.lblOffSet->setText(toQt(monitor_.offsetText(i)));
    const QSignalBlocker quiet(block.sdrPos);
    block.sdrPos->setValue(record.XY_OFFSET[i]);
  }
  shpPoint_->setColour(record.XY_POINT);
  placeLabels(layoutOfSize());
  showReadings();
}

void frmMoniX_Y::MoniLblDisconnect(std::size_t axis) {
  monitor_.loseChannel(axis);
}

void frmMoniX_Y::sdrPos_Change(std::size_t axis, int value) {
  monitor_.moveGround(axis, value);
  axes_[axis].lblOffSet->setText(toQt(monitor_.offsetText(axis)));
}

void frmMoniX_Y::pictureShown() {
  shpPoint_->move(monitor_.pointerX() - shpPoint_->width() / 2,
                  monitor_.pointerY() - shpPoint_->height() / 2);
  shpPoint_->setVisible(monitor_.pointerVisible());
}

void frmMoniX_Y::sayLabels(std::size_t axis, const ChannelLabels& labels) {
  if (labels.value) sayValue(axes_[axis], toQt(*labels.value));
  sayNew(axes_[axis].lblUnitNum, labels.unit);
}

void frmMoniX_Y::sayValue(const Block& block, const QString& text) {
  const QFont& font = text.size() > kUsualCharacters ? block.tight : block.usual;
  if (block.lblMonitor->font() != font) block.lblMonitor->setFont(font);
  if (block.lblMonitor->text() != text) block.lblMonitor->setText(text);
}

// --- size -----------------------------------------------------------------------------------

XYLayout frmMoniX_Y::layoutOfSize() const {
  const auto& block = axes_[0];
  const QSize serial = block.lblSerNum->sizeHint();
  const auto* button = fraSet()->layout()->itemAt(0)->widget();
  return xyLayout(width(), height(),
                  {serial.width(), block.lblChNum->sizeHint().width(), serial.height(),
                   button->sizeHint().height()});
}

void frmMoniX_Y::layoutMonitor() {
  storePlace();
  const auto all = layoutOfSize();
  put(picWave_, all.wave);
  putTwin(picWaveSub_, *picWave_);
  for (std::size_t i = 0; i < kXYAxes; ++i) put(axes_[i].sdrPos, all.slider[i]);
  placeLabels(all);
  monitor_.resize(all.wave.width, all.wave.height);
  showReadings();
  showControls();
}

void frmMoniX_Y::placeLabels(const XYLayout& all) {
  put(fraSet(), all.frame);
  for (std::size_t i = 0; i < kXYAxes; ++i) placeBlock(axes_[i], all.block[i], all);
}

void frmMoniX_Y::placeBlock(Block& block, const XYBlock& rows, const XYLayout& all) {
  constexpr int kGap = 4;
  constexpr double kHeightShare = 0.9;
  const int left = all.column;
  const int right = left + all.columnWidth;
  const int line = block.lblSerNum->sizeHint().height();
  const auto widthOf = [](const QLabel* label) { return label->sizeHint().width(); };
  const int serial = rows.channel == rows.serial ? widthOf(block.lblSerNum) : all.columnWidth;
  const int channel = rows.channel == rows.serial ? left + serial + kGap : left;
  placeAt(block.lblSerNum, left, rows.serial, serial, line);
  placeAt(block.lblChNum, channel, rows.channel, widthOf(block.lblChNum), line);

  const int value = left + widthOf(block.caption) + kGap / 2;
  const int unit = block.lblUnitNum->fontMetrics().horizontalAdvance(QStringLiteral("kg/mm2"));
  const bool beside = rows.unit == rows.value;
  const int room = right - value - (beside ? unit + kGap : 0);
  QFont bold = font();
  bold.setBold(true);
  const QSize area(room, toRow(all.valueHeight * kHeightShare));
  block.usual = fittingFont(bold, QStringLiteral("-12345.67"), area);
  const int longest = QFontMetrics(block.usual).horizontalAdvance(QStringLiteral("-12345.6789"));
  const int valueWidth = beside ? std::min(room, longest) : room;
  block.tight = fittingFont(bold, QStringLiteral("-0.00008888888"), {valueWidth, area.height()});
  placeAt(block.caption, left, rows.value, value - left, all.valueHeight);
  placeAt(block.lblMonitor, value, rows.value, valueWidth, all.valueHeight);
  sayValue(block, block.lblMonitor->text());
  placeAt(block.lblUnitNum, beside ? value + valueWidth + kGap : right - unit, rows.unit, unit,
          beside ? all.valueHeight : line);

  // A scale with a long unit takes the place of its caption, and a smaller font if need be.
  const QString text = block.lblScale->text();
  const int scale = fontMetrics().horizontalAdvance(text) + kGap / 2;
  const bool tight = value + scale > right;
  QFont small = font();
  if (scale > all.columnWidth) small = fittingFont(small, text, {all.columnWidth - kGap / 2, line});
  block.lblScale->setFont(small);
  placeAt(block.scaleCaption, left, tight ? -1 : rows.scale, value - left, line);
  placeAt(block.lblScale, tight ? left : value, rows.scale, right - (tight ? left : value), line);

  const int offset = left + widthOf(block.offsetCaption) + kGap / 2;
  placeAt(block.offsetCaption, left, rows.offset, offset - left, line);
  placeAt(block.lblOffSet, offset, rows.offset, right - offset, line);
}

}  // namespace vk
