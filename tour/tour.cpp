// SPDX-License-Identifier: MIT
// The main job without a user: finds the boxes, records with a manual trigger, watches live values,
// reads the card and saves the recording; then, started anew, finds the monitors where they were.
// It runs the real program; after each step a screenshot goes to the output folder.
#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTreeWidget>
#include <cstdio>

#include "app/program.h"
#include "desktop/qtText.h"
#include "tour/tourSteps.h"

namespace vktour {

namespace {

QString stateOf(int panel) {
  auto* label = control<QLabel>(vk::elementName("fraMeterStatus", panel));
  return label ? label->text() : QString();
}

void addRecording(Tour& tour) {
  tour.add({"the main window shows three boxes; start",
            [] { return stateOf(1) == QLatin1String("Waiting"); },
            [] { click(vk::elementName("cmdStart", 1)); }, "2-main"});
  tour.add({"the box waits for its trigger; trigger by hand",
            [] { return stateOf(1) == QLatin1String("Waiting for Trigger "); },
            [] { click(vk::elementName("cmdMtrg", 1)); }, "3-armed"});
  tour.add({"the box records", [] { return stateOf(1) == QLatin1String("Recording"); }, [] {},
            "4-recording"});
  // With CONTINUE the box waits for the next trigger when the recording is on the card.
  tour.add({"the recording is on the card; stop",
            [] { return stateOf(1) == QLatin1String("Waiting for Trigger "); },
            [] { click(vk::elementName("cmdStop", 1)); }});
  tour.add({"the box rests; all in one look with the main panel",
            [] { return stateOf(1) == QLatin1String("Waiting"); },
            [] { click(vk::elementName("optStaMode", 1)); }});
}

void addSaving(Tour& tour) {
  tour.add({"read the card: choose the box", [] { return isShown("mdiMain"); },
            [] { click(vk::elementName("cmdShtCut", 2)); }, "5-main-panel"});
  tour.add({"the first box", [] { return isShown("frmSelectMeterCh"); },
            [] {
              control<QComboBox>(QStringLiteral("cmbMeter"))->setCurrentIndex(0);
              click(QStringLiteral("cmdRun"));
            }});
  tour.add({"the card is listed; the header of the newest recording",
            [] { return isShown("frmRouteDirectory"); },
            [] {
              auto* list = control<QTreeWidget>(QStringLiteral("lvwFileName"));
              auto* newest = list->topLevelItem(list->topLevelItemCount() - 1);
              list->setCurrentItem(newest);
              Q_EMIT list->itemClicked(newest, 0);
            }});
  tour.add({"to the binary saving",
            [] {
              auto* head = control<QPlainTextEdit>(QStringLiteral("txtHead"));
              return head && head->toPlainText().contains(QLatin1String("NUM_SAMPS"));
            },
            [] { control<QTabBar>(QStringLiteral("tbsSelect"))->setCurrentIndex(1); }, "6-card"});
  tour.add({"save the newest recording", [] { return isShown("picBinSave"); },
            [&tour] {
              auto* list = control<QTreeWidget>(QStringLiteral("lvwFileName"));
              list->topLevelItem(list->topLevelItemCount() - 1)->setCheckState(0, Qt::Checked);
              control<QLineEdit>(vk::elementName("txtFolder", 0))->setText(tour.output());
              click(QStringLiteral("cmdBinSave"));
            },
            "7-saving"});
  tour.add({"the recording is on the disk",
            [] {
              auto* label = control<QLabel>(QStringLiteral("lblPrg"));
              return label && label->text() == QLatin1String("Ended.");
            },
            [] {}, "8-saved"});
  addCsv(tour);
  tour.add({"close the card", [] { return isShown("frmRouteDirectory"); },
            [] { click(QStringLiteral("cmdCancel")); }});
}

}  // namespace

void addStart(Tour& tour) {
  tour.add({"the start form searches the bus",
            [] {
              auto* ok = control<QAbstractButton>(QStringLiteral("cmdOK"));
              return ok && ok->isEnabled();
            },
            [] {
              auto* list = control<QTreeWidget>(QStringLiteral("lvwCnnt240Q"));
              for (int i = 0; i < list->topLevelItemCount(); ++i) {
                list->topLevelItem(i)->setCheckState(0, Qt::Checked);
              }
              click(QStringLiteral("cmdSet"));
            }});
  tour.add({"the boxes' clocks are set; on to the main window",
            [] {
              auto* list = control<QTreeWidget>(QStringLiteral("lvwCnnt240Q"));
              return list && list->topLevelItemCount() == 3 &&
                     !list->topLevelItem(2)->text(1).isEmpty();
            },
            [] { click(QStringLiteral("cmdOK")); }, "1-start"});
}

void addEnd(Tour& tour) {
  tour.add({"the end", [] { return isShown("mdiMain"); },
            [] { control<QAction>(QStringLiteral("mnuFEND"))->trigger(); }, "9-end"});
}

}  // namespace vktour

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = QApplication::arguments();
  const bool again = arguments.size() == 3 && arguments[2] == QLatin1String("again");
  if ((arguments.size() != 2 && !again) || !QDir(arguments[1]).exists()) {
    std::fputs("usage: vk480q-tour <existing output folder> [again]\n", stderr);
    return 2;
  }
  vktour::Tour tour(QDir(arguments[1]).absolutePath());
  vktour::addStart(tour);
  if (again) {
    vktour::addReopened(tour);
  } else {
    vktour::addRecording(tour);
    vktour::addMonitors(tour);
    vktour::addConditions(tour);
    vktour::addTriggeredRecording(tour);
    vktour::addSaving(tour);
  }
  vktour::addEnd(tour);
  tour.begin();
  return vk::runProgram();
}
