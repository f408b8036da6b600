// SPDX-License-Identifier: MIT
#include "tour/tourSteps.h"

#include <QAbstractButton>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

namespace vktour {

namespace {

constexpr int kStepMs = 100;
constexpr qint64 kDwellMs = 400;  // what a step waits for is looked at for a while
constexpr qint64 kPatienceMs = 60000;

}  // namespace

bool isShown(const char* name) {
  auto* widget = control<QWidget>(QLatin1String(name));
  return widget && widget->isVisible();
}

void click(const QString& name) {
  control<QAbstractButton>(name)->click();
}

void Tour::begin() {
  patience_.start();
  next();
}

void Tour::next() {
  QTimer::singleShot(kStepMs, qApp, [this] { run(); });
}

void Tour::run() {
  if (at_ == steps_.size()) return;
  const Step& step = steps_[at_];
  if (!step.ready()) {
    if (patience_.elapsed() > kPatienceMs) fail(step.what);
    seen_.invalidate();
    next();
    return;
  }
  if (!seen_.isValid()) seen_.start();
  if (step.picture && seen_.elapsed() < kDwellMs) {
    next();
    return;
  }
  seen_.invalidate();
  if (step.picture) takePicture(QLatin1String(step.picture));
  std::printf("%s\n", step.what);
  std::fflush(stdout);
  ++at_;
  patience_.restart();
  // The action may open a modal window and return much later.
  next();
  step.act();
}

void Tour::fail(const char* what) {
  takePicture(QStringLiteral("failed"));
  std::fprintf(stderr, "The tour waited in vain: %s\n", what);
  std::_Exit(EXIT_FAILURE);
}

void Tour::takePicture(const QString& name) const {
  const QPixmap shot = QApplication::primaryScreen()->grabWindow(0);
  if (!shot.save(output_ + QLatin1Char('/') + name + QStringLiteral(".png"))) {
    std::fprintf(stderr, "Cannot write the picture %s\n", qPrintable(name));
    std::_Exit(EXIT_FAILURE);
  }
}

}  // namespace vktour
