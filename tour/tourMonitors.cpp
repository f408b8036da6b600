// SPDX-License-Identifier: MIT
// The live part of the tour: one monitor of each kind.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRect>
#include <algorithm>
#include <array>

#include "desktop/qtText.h"
#include "tour/tourSteps.h"

namespace vktour {

namespace {

using Fill = std::function<void(QWidget& dialog)>;

struct Monitor {
  const char* form;
  const char* tick;
  const char* dialog;
  QRect place;
  Fill fill;
};

template <typename Control>
Control& at(QWidget& form, const QString& name) {
  return *form.findChild<Control*>(name);
}

void choose(QWidget& dialog, const QString& list, const QString& entry) {
  at<QComboBox>(dialog, list).setCurrentText(entry);
}

void source(QWidget& dialog, const QString& number, const char* serial, const char* channel) {
  choose(dialog, QStringLiteral("cmbSerNum") + number, QLatin1String(serial));
  choose(dialog, QStringLiteral("cmbChNum") + number, QLatin1String(channel));
}

const std::array<Monitor, 5>& monitors() {
  static const std::array<Monitor, 5> all{{
      {"frmMoniNum", "chkNumMoni(0)", "frmMoniNumSet", QRect(0, 0, 520, 250),
       [](QWidget& dialog) {
         source(dialog, {}, "4810021", "Ch 2");
         choose(dialog, QStringLiteral("cmbMoniAve"), QStringLiteral("10"));
         at<QLineEdit>(dialog, QStringLiteral("txtCaption")).setText(QStringLiteral("left wing"));
       }},
      {"frmMoniWave", "chkWaveMoni(0)", "frmMoniWavSet", QRect(520, 0, 820, 330),
       [](QWidget& dialog) {
         source(dialog, {}, "4810021", "Ch 2");
         choose(dialog, QStringLiteral("cmbYScale"), QStringLiteral("500"));
         choose(dialog, QStringLiteral("cmbXScale"), QStringLiteral("100msec"));
       }},
      {"frmMoniX_Y", "chkX_YMoni(0)", "frmMoniX_YSet", QRect(0, 250, 520, 430),
       [](QWidget& dialog) {
         source(dialog, QStringLiteral("(0)"), "4810021", "Ch 2");
         source(dialog, QStringLiteral("(1)"), "4800137", "Ch 2");
         choose(dialog, QStringLiteral("cmbScale(0)"), QStringLiteral("500"));
         choose(dialog, QStringLiteral("cmbScale(1)"), QStringLiteral("1000"));
       }},
      {"frmMoniBar", "chkBarMoni(0)", "frmMoniBarSet", QRect(520, 330, 480, 350),
       [](QWidget& dialog) {
         source(dialog, QStringLiteral("(0)"), "4810021", "Ch 2");
         source(dialog, QStringLiteral("(1)"), "4800137", "Ch 1");
         source(dialog, QStringLiteral("(2)"), "4800137", "Ch 2");
       }},
      {"frmMoniCircle", "chkCircleMoni(0)", "frmMoniCircleSet", QRect(1000, 330, 340, 350),
       [](QWidget& dialog) {
         source(dialog, {}, "4800137", "Ch 2");
         choose(dialog, QStringLiteral("cmbScale(0)"), QStringLiteral("5000"));
         choose(dialog, QStringLiteral("cmbScale(1)"), QStringLiteral("-5000"));
       }},
  }};
  return all;
}

QWidget* form(const Monitor& monitor) {
  return control<QWidget>(QLatin1String(monitor.form));
}

/// Shown, with a value in it.
bool isLive(const Monitor& monitor) {
  auto* window = form(monitor);
  if (!window || !window->isVisible()) return false;
  auto* value = window->findChild<QLabel*>(QStringLiteral("lblMaxMoni"));
  if (!value) value = window->findChild<QLabel*>(QStringLiteral("lblMonitor"));
  if (!value) value = window->findChild<QLabel*>(QStringLiteral("lblMonitor(0)"));
  bool isNumber = false;
  if (value) value->text().toDouble(&isNumber);
  return isNumber;
}

bool allLive() {
  return std::ranges::all_of(monitors(), isLive);
}

bool allPlaced() {
  return std::ranges::all_of(monitors(), [](const Monitor& monitor) {
    auto* window = form(monitor);
    return window && window->parentWidget()->geometry() == monitor.place;
  });
}

void addSetting(Tour& tour, const Monitor& monitor) {
  tour.add({monitor.form, [&monitor] { return form(monitor) != nullptr; },
            [&monitor] {
              form(monitor)->parentWidget()->setGeometry(monitor.place);
              at<QAbstractButton>(*form(monitor), QStringLiteral("cmdSet")).click();
            }});
  tour.add({monitor.dialog, [&monitor] { return isShown(monitor.dialog); },
            [&monitor] {
              auto* dialog = control<QWidget>(QLatin1String(monitor.dialog));
              monitor.fill(*dialog);
              at<QAbstractButton>(*dialog, QStringLiteral("cmdSet")).click();
            },
            monitor.dialog});
}

}  // namespace

void addMonitors(Tour& tour) {
  tour.add({"choose the monitors", [] { return isShown("mdiMain"); },
            [] { click(QStringLiteral("cmdShtCut(4)")); }});
  tour.add({"one of each kind", [] { return isShown("frmSetMonitor"); },
            [] {
              for (const auto& monitor : monitors())
                control<QCheckBox>(QLatin1String(monitor.tick))->setChecked(true);
            }});
  tour.add({"they open", [] { return isShown("frmSetMonitor"); },
            [] {
              control<QWidget>(QStringLiteral("mdiMain"))->showMaximized();
              auto* dialog = control<QWidget>(QStringLiteral("frmSetMonitor"));
              at<QAbstractButton>(*dialog, QStringLiteral("cmdSet")).click();
            },
            "frmSetMonitor"});
  for (const auto& monitor : monitors()) addSetting(tour, monitor);
  tour.add({"all five live; put back the extremes that their opening left", allLive,
            [] { click(QStringLiteral("cmdPReset")); }});
  int frames = 0;
  tour.add({"two seconds of sweep",
            [frames]() mutable {
              constexpr int kTwentySteps = 20;
              return ++frames > kTwentySteps && allLive();
            },
            [] {}, "live-monitors"});
}

void addReopened(Tour& tour) {
  tour.add({"the monitors stand where they were, and are live",
            [] { return allLive() && allPlaced(); }, [] {}, "live-reopened"});
}

}  // namespace vktour
