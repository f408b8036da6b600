// SPDX-License-Identifier: MIT
#include "monitors/frmMonitor.h"

#include <QCloseEvent>
#include <QFontInfo>
#include <QFrame>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <vector>

#include "base/clsDesktop.h"
#include "base/mdlTwips.h"
#include "desktop/clsPictureBox.h"
#include "desktop/qtText.h"
#include "monitors/frmMonitorSetting.h"
#include "monitors/mdlMonitorValue.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr int kResizeTickMs = 500;
constexpr int64_t kSettledMs = 200;
// Labels and buttons are smaller than the desktop's, but no smaller than this, in points.
constexpr double kSmallFont = 8.0;
constexpr double kSmaller = 0.85;

// Qt shows a mark of its own in place of this one, and this one in place of two of them.
constexpr QLatin1String kMark("[*]");
constexpr QLatin1String kShownMark("[*][*]");

// A file may hold anything; what a window is given stays within reach and memory.
int placeOf(int32_t twips) {
  constexpr int kFarthest = 16000;
  return qBound(-kFarthest, toPixels(twips), kFarthest);
}

int sizeOf(int32_t twips) {
  constexpr int kLargest = 4096;
  return qBound(1, toPixels(twips), kLargest);
}

/// How far the area is scrolled, which the places of its windows count from.
QPoint scrollOf(const QMdiSubWindow& window) {
  const auto* area = window.mdiArea();
  if (!area) return {};
  return {area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()};
}

}  // namespace

frmMonitor::frmMonitor(MonitorKind kind, const char* name)
    : kind_(kind), monitorIndex_(gMoniLoadIndex) {
  named(this, QString::fromLatin1(name));
  QFont small = font();
  const double usual = QFontInfo(small).pointSizeF();
  small.setPointSizeF(qMin(usual, qMax(kSmallFont, usual * kSmaller)));
  setFont(small);
  tmrResize_ = named(new QTimer(this), QStringLiteral("tmrResize"));
  tmrResize_->setInterval(kResizeTickMs);
  connect(tmrResize_, &QTimer::timeout, this, &frmMonitor::tmrResize_Timer);
  setMonitorWindow(kind_, monitorIndex_, this);
}

frmMonitor::~frmMonitor() {
  leaveList();
}

// --- life -----------------------------------------------------------------------------------

void frmMonitor::enter(QMdiArea& area) {
  const auto place = openingPlaceIn(area);
  auto* window = area.addSubWindow(this);
  const QPoint scrolled = scrollOf(*window);
  window->setGeometry(place.left - scrolled.x(), place.top - scrolled.y(), place.width,
                      place.height);
  desktop().doEvents();
}

MonitorPlace frmMonitor::openingPlaceIn(QMdiArea& area) const {
  std::vector<MonitorPlace> others;
  for (const auto* window : area.subWindowList()) {
    if (!window->isVisible()) continue;
    const QPoint at = window->pos() + scrollOf(*window);
    others.push_back({at.x(), at.y(), window->width(), window->height()});
  }
  const auto record = fields();
  return openingPlace(
      {placeOf(record.left), placeOf(record.top), sizeOf(record.width), sizeOf(record.height)},
      others, area.viewport()->width(), area.viewport()->height());
}

QMdiSubWindow* frmMonitor::child() const {
  return qobject_cast<QMdiSubWindow*>(parentWidget());
}

void frmMonitor::showWindow() {
  if (child()) child()->show();
}

void frmMonitor::hideWindow() {
  if (child()) child()->hide();
}

void frmMonitor::leaveList() {
  // A reconnect may have loaded another window in the meantime.
  if (monitorWindow(kind_, monitorIndex_) == this) setMonitorWindow(kind_, monitorIndex_, nullptr);
}

void frmMonitor::storePlace() {
  const auto* window = child();
  // What a maximised or minimised window measures is not where it belongs.
  if (!window || window->isMaximized() || window->isMinimized()) return;
  const auto record = fields();
  const QPoint scrolled = scrollOf(*window);
  record.top = toTwips(window->y() + scrolled.y());
  record.left = toTwips(window->x() + scrolled.x());
  record.height = toTwips(window->height());
  record.width = toTwips(window->width());
}

void frmMonitor::saveMonitorForm() {
  // It is about to go: back to the size that it has next time.
  auto* window = child();
  if (window && (window->isMaximized() || window->isMinimized())) window->showNormal();
  storePlace();
  fields().caption =
      titleOfCaption(fromQt(windowTitle().replace(kShownMark, kMark)), monitorIndex_);
}

void frmMonitor::unload() {
  saveMonitorForm();
  leaveList();
  tmrResize_->stop();
  hideWindow();
  if (child()) child()->deleteLater();
}

void frmMonitor::closeEvent(QCloseEvent* event) {
  // The close box; every other end of the window comes through unload() and leaves it on.
  if (monitorWindow(kind_, monitorIndex_) == this) {
    fields().on = false;
    saveMonitorForm();
    leaveList();
    tmrResize_->stop();
  }
  event->accept();
}

void frmMonitor::initCommon() {
  const auto record = fields();
  setWindowTitle(toQt(monitorCaption(monitorIndex_, record.caption)).replace(kMark, kShownMark));
  for (std::size_t i = 0; i < record.serial.size(); ++i) {
    boxSlot_[i] = slotIndexOf(record.serial[i]);
  }
  logic().init(std::span(boxSlot_).first(record.serial.size()));
}

// --- readings ---------------------------------------------------------------------------------

void frmMonitor::Monitoring(std::span<const std::string_view> readings) {
  logic().take(readings);
}

void frmMonitor::MoniDisConnect() {
  logic().lose();
}

void frmMonitor::setUnitLabel() {
  for (std::size_t i = 0; i < fields().serial.size(); ++i) {
    if (isBoxSlot(boxSlot_[i])) logic().reloadUnit(i);
  }
  showReadings();
}

void frmMonitor::showReadings() {
  if (logic().show(surfaces())) pictureShown();
  for (std::size_t i = 0; i < fields().serial.size(); ++i) sayLabels(i, logic().labels(i));
}

// --- size -----------------------------------------------------------------------------------

void frmMonitor::resizeEvent(QResizeEvent*) {
  lastResize_ = desktop().milliseconds();
  if (!tmrResize_->isActive()) tmrResize_->start();
}

void frmMonitor::tmrResize_Timer() {
  if (desktop().milliseconds() <= lastResize_ + kSettledMs) return;
  tmrResize_->stop();
  layoutMonitor();
}

void frmMonitor::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && isVisible()) paletteChanged();
}

void frmMonitor::hideControls(const QList<QWidget*>& surfaces) {
  surfaces_ = surfaces;
  for (auto* surface : surfaces_) surface->hide();
}

void frmMonitor::showControls() {
  for (auto* surface : surfaces_) surface->show();
}

// --- controls ---------------------------------------------------------------------------------

QLabel* frmMonitor::addLabel(const QString& name, QWidget* parent) {
  auto* label = named(new QLabel(parent ? parent : this), name);
  label->setTextFormat(Qt::PlainText);
  return label;
}

clsPictureBox* frmMonitor::addPicture(const char* name) {
  auto* picture = new clsPictureBox(this);
  return named(picture, QString::fromLatin1(name));
}

QSlider* frmMonitor::addGroundSlider(const QString& name, Qt::Orientation direction,
                                     const QString& spoken) {
  constexpr int kFarthest = 10;
  auto* slider = named(new QSlider(direction, this), name, spoken);
  slider->setRange(-kFarthest, kFarthest);
  slider->setPageStep(2);
  slider->setToolTip(tr("Gnd Level"));
  slider->setInvertedAppearance(direction == Qt::Vertical);
  slider->setInvertedControls(direction == Qt::Vertical);
  return slider;
}

void frmMonitor::put(QWidget* control, const MonitorPlace& place) {
  control->setGeometry(place.left, place.top, place.width, place.height);
  control->setVisible(place.width > 0 && place.height > 0);
}

void frmMonitor::putTwin(clsPictureBox* twin, const clsPictureBox& picture, bool second) {
  constexpr int kGap = 100;
  const QSize size = picture.QWidget::size();
  twin->setGeometry(second ? size.width() + kGap : 0, -size.height() - kGap, size.width(),
                    size.height());
}

QVBoxLayout* frmMonitor::addFrame(const char* clearButton) {
  fraSet_ = named(new QFrame(this), QStringLiteral("fraSet"));
  auto* column = new QVBoxLayout(fraSet_);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  const auto add = [&](const char* name, const QString& caption) {
    auto* button = named(new QPushButton(caption, fraSet_), QString::fromLatin1(name));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setMinimumWidth(1);
    column->addWidget(button);
    return button;
  };
  connect(add("cmdSet", tr("Set")), &QPushButton::clicked, this, &frmMonitor::cmdSet_Click);
  connect(add(clearButton, tr("Clear")), &QPushButton::clicked, this, &frmMonitor::cmdReset_Click);
  return column;
}

void frmMonitor::cmdSet_Click() {
  openMonitorSetting(kind_, monitorIndex_, window());
}

void frmMonitor::cmdReset_Click() {
  logic().clear();
}

void frmMonitor::sayNew(QLabel* label, const std::optional<std::string>& text) {
  if (!text) return;
  const QString shown = toQt(*text);
  if (label->text() != shown) label->setText(shown);
}

}  // namespace vk
