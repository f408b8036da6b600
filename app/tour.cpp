// SPDX-License-Identifier: MIT
// The main job without a user: finds the boxes, records with a manual trigger, reads the card and
// saves the recording. It runs the real program and works its windows by their control names;
// after each step a screenshot goes to the output folder.
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <QTreeWidget>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "app/program.h"
#include "desktop/qtText.h"

namespace {

constexpr int kStepMs = 100;
constexpr qint64 kDwellMs = 400;  // what a step waits for is looked at for a while
constexpr qint64 kPatienceMs = 60000;

template <typename Control>
Control* control(const QString& name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    if (window->objectName() == name) {
      if (auto* found = qobject_cast<Control*>(window)) return found;
    }
    if (auto* found = window->findChild<Control*>(name)) return found;
  }
  return nullptr;
}

bool isShown(const char* name) {
  auto* widget = control<QWidget>(QLatin1String(name));
  return widget && widget->isVisible();
}

void click(const QString& name) {
  control<QAbstractButton>(name)->click();
}

QString stateOf(int panel) {
  auto* label = control<QLabel>(vk::elementName("fraMeterStatus", panel));
  return label ? label->text() : QString();
}

/// What to do when the condition holds. The last three are optional.
struct Step {
  const char* what;
  std::function<bool()> ready;
  std::function<void()> act;
  const char* picture = nullptr;  ///< taken before acting
};

class Tour {
 public:
  explicit Tour(const QString& output) : output_(output) { build(); }

  void begin() {
    patience_.start();
    next();
  }

 private:
  void build();
  void buildRecording();
  void buildSaving();

  void next() {
    QTimer::singleShot(kStepMs, qApp, [this] { run(); });
  }

  void run() {
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

  void fail(const char* what) {
    takePicture(QStringLiteral("failed"));
    std::fprintf(stderr, "The tour waited in vain: %s\n", what);
    std::_Exit(EXIT_FAILURE);
  }

  void takePicture(const QString& name) const {
    const QPixmap shot = QApplication::primaryScreen()->grabWindow(0);
    if (!shot.save(output_ + QLatin1Char('/') + name + QStringLiteral(".png"))) {
      std::fprintf(stderr, "Cannot write the picture %s\n", qPrintable(name));
      std::_Exit(EXIT_FAILURE);
    }
  }

  QString output_;
  std::vector<Step> steps_;
  std::size_t at_ = 0;
  QElapsedTimer patience_;
  QElapsedTimer seen_;
};

void Tour::build() {
  steps_.push_back({"the start form searches the bus",
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
  steps_.push_back({"the boxes' clocks are set; on to the main window",
                    [] {
                      auto* list = control<QTreeWidget>(QStringLiteral("lvwCnnt240Q"));
                      return list && list->topLevelItemCount() == 3 &&
                             !list->topLevelItem(2)->text(1).isEmpty();
                    },
                    [] { click(QStringLiteral("cmdOK")); }, "1-start"});
  buildRecording();
  buildSaving();
  steps_.push_back({"the end", [] { return isShown("mdiMain"); },
                    [] { control<QAction>(QStringLiteral("mnuFEND"))->trigger(); }, "9-end"});
}

void Tour::buildRecording() {
  steps_.push_back({"the main window shows three boxes; start",
                    [] { return stateOf(1) == QLatin1String("Waiting"); },
                    [] { click(vk::elementName("cmdStart", 1)); }, "2-main"});
  steps_.push_back({"the box waits for its trigger; trigger by hand",
                    [] { return stateOf(1) == QLatin1String("Waiting for Trigger "); },
                    [] { click(vk::elementName("cmdMtrg", 1)); }, "3-armed"});
  steps_.push_back({"the box records", [] { return stateOf(1) == QLatin1String("Recording"); },
                    [] {}, "4-recording"});
  // With CONTINUE the box waits for the next trigger when the recording is on the card.
  steps_.push_back({"the recording is on the card; stop",
                    [] { return stateOf(1) == QLatin1String("Waiting for Trigger "); },
                    [] { click(vk::elementName("cmdStop", 1)); }});
  steps_.push_back({"the box rests; all in one look with the main panel",
                    [] { return stateOf(1) == QLatin1String("Waiting"); },
                    [] { click(vk::elementName("optStaMode", 1)); }});
}

void Tour::buildSaving() {
  steps_.push_back({"read the card: choose the box", [] { return isShown("mdiMain"); },
                    [] { click(vk::elementName("cmdShtCut", 2)); }, "5-main-panel"});
  steps_.push_back({"the first box", [] { return isShown("frmSelectMeterCh"); },
                    [] {
                      control<QComboBox>(QStringLiteral("cmbMeter"))->setCurrentIndex(0);
                      click(QStringLiteral("cmdRun"));
                    }});
  steps_.push_back({"the card is listed; the header of the newest recording",
                    [] { return isShown("frmRouteDirectory"); },
                    [] {
                      auto* list = control<QTreeWidget>(QStringLiteral("lvwFileName"));
                      auto* newest = list->topLevelItem(list->topLevelItemCount() - 1);
                      list->setCurrentItem(newest);
                      Q_EMIT list->itemClicked(newest, 0);
                    }});
  steps_.push_back({"to the binary saving",
                    [] {
                      auto* head = control<QPlainTextEdit>(QStringLiteral("txtHead"));
                      return head && head->toPlainText().contains(QLatin1String("NUM_SAMPS"));
                    },
                    [] { control<QTabBar>(QStringLiteral("tbsSelect"))->setCurrentIndex(1); },
                    "6-card"});
  steps_.push_back(
      {"save the newest recording", [] { return isShown("picBinSave"); },
       [this] {
         auto* list = control<QTreeWidget>(QStringLiteral("lvwFileName"));
         list->topLevelItem(list->topLevelItemCount() - 1)->setCheckState(0, Qt::Checked);
         control<QLineEdit>(vk::elementName("txtFolder", 0))->setText(output_);
         click(QStringLiteral("cmdBinSave"));
       },
       "7-saving"});
  steps_.push_back({"the recording is on the disk",
                    [] {
                      auto* label = control<QLabel>(QStringLiteral("lblPrg"));
                      return label && label->text() == QLatin1String("Ended.");
                    },
                    [] { click(QStringLiteral("cmdCancel")); }, "8-saved"});
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 2 || !QDir(arguments[1]).exists()) {
    std::fputs("usage: vk480q-tour <existing output folder>\n", stderr);
    return 2;
  }
  Tour tour(QDir(arguments[1]).absolutePath());
  tour.begin();
  return vk::runProgram();
}
