// SPDX-License-Identifier: MIT
// The part of the tour around a recording: conditions from a file, balance, a recording by its own
// trigger, and the CSV file compared with the samples.
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTreeWidget>

#include "desktop/qtText.h"
#include "tour/tourSteps.h"

namespace vktour {

namespace {

// Channel 2 sees a signal that rises above the level by itself.
constexpr const char* kConditions =
    "VK-480Q Setting Data\r\n"
    "Number of Channels :4\r\n"
    "Range :5000ue,5000ue,5000ue,5000ue\r\n"
    "Carrier :2.0V,2.0V,2.0V,2.0V\r\n"
    "Filter :10kHz,10kHz,10kHz,10kHz\r\n"
    "Balance :ON,ON,ON,ON\r\n"
    "Trigger Mode :SINGLE\r\n"
    "Trigger Slope :OFF,UP,OFF,OFF\r\n"
    "Trigger Level :0.0,+10.0,0.0,0.0\r\n"
    "Sampling :200usec\r\n"
    "Pre Area :20%\r\n"
    "Data Size :64K\r\n"
    "Unit :ue,ue,ue,ue\r\n"
    "Coeff :1.000000E+00,1.000000E+00,1.000000E+00,1.000000E+00\r\n";

constexpr int kChannels = 4;
/// The channel that is balanced; another one has no sensor, and would be told as an error.
constexpr int kSignalChannel = 2;

void chooseBox(Tour& tour, const char* what, int shortcut) {
  tour.add({what, [] { return isShown("mdiMain") && !QApplication::activeModalWidget(); },
            [shortcut] { click(vk::elementName("cmdShtCut", shortcut)); }});
  tour.add({"the first box", [] { return isShown("frmSelectMeterCh"); },
            [] {
              control<QComboBox>(QStringLiteral("cmbMeter"))->setCurrentIndex(0);
              if (auto* channels = control<QComboBox>(QStringLiteral("cmbChannel"));
                  channels && channels->isVisible())
                channels->setCurrentIndex(kSignalChannel);
              click(QStringLiteral("cmdRun"));
            }});
}

bool main() {
  return isShown("mdiMain") && !QApplication::activeModalWidget();
}

QString stateOfFirst() {
  auto* label = control<QLabel>(vk::elementName("fraMeterStatus", 1));
  return label ? label->text() : QString();
}

QList<QByteArray> linesOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().split('\n');
}

/// Every line of samples in the CSV file holds the raw samples of the recording beside it.
bool csvHoldsTheSamples(const QString& folder, const QString& stem) {
  QFile data(folder + QLatin1Char('/') + stem + QStringLiteral(".dat"));
  if (!data.open(QIODevice::ReadOnly)) return false;
  const QByteArray bytes = data.readAll();
  const auto lines = linesOf(folder + QLatin1Char('/') + stem + QStringLiteral(".csv"));
  constexpr qsizetype kHead = 17;
  const qsizetype samples = bytes.size() / (qsizetype{2} * kChannels);
  if (samples == 0 || lines.size() != kHead + samples + 1) return false;
  const auto* words = reinterpret_cast<const uchar*>(bytes.constData());
  for (qsizetype i = 0; i < samples; ++i) {
    QByteArray expected = QByteArray::number(i + 1);
    for (int c = 0; c < kChannels; ++c, words += 2) {
      expected += ',' + QByteArray::number(static_cast<qint16>(words[0] | words[1] << 8));
    }
    if (lines[kHead + i] != expected + '\r') return false;
  }
  return true;
}

QString newestStem() {
  auto* list = control<QTreeWidget>(QStringLiteral("lvwFileName"));
  return list->topLevelItem(list->topLevelItemCount() - 1)->text(0).chopped(4);
}

}  // namespace

void addConditions(Tour& tour) {
  chooseBox(tour, "set the conditions", 3);
  tour.add({"load them from a file", [] { return isShown("frmSetting"); },
            [&tour] {
              QFile file(tour.output() + QStringLiteral("/tour.set"));
              if (file.open(QIODevice::WriteOnly)) file.write(kConditions);
              file.close();
              click(QStringLiteral("cmdLoad"));
            }});
  tour.add({"the file",
            [] { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); },
            [&tour] {
              auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
              // Without its extension, which the program adds.
              dialog->findChild<QLineEdit*>()->setText(tour.output() + QStringLiteral("/tour"));
              QMetaObject::invokeMethod(dialog, "accept");
            }});
  tour.add({"the dialog shows them; set",
            [] {
              auto* size = control<QComboBox>(QStringLiteral("cmbDatasize"));
              return isShown("frmSetting") && size && size->currentText() == QLatin1String("64K");
            },
            [] {
              auto* dialog = control<QWidget>(QStringLiteral("frmSetting"));
              dialog->findChild<QAbstractButton*>(QStringLiteral("cmdSet"))->click();
            },
            "frmSetting"});
  chooseBox(tour, "balance a channel", 5);
  chooseBox(tour, "list what the box reports", 8);
  tour.add({"the list", [] { return isShown("frmList"); },
            [] { click(QStringLiteral("cmdClose")); }, "frmList"});
}

void addTriggeredRecording(Tour& tour) {
  tour.add({"start; the signal is the trigger",
            [] { return main() && stateOfFirst() == QLatin1String("Waiting"); },
            [] { click(vk::elementName("cmdStart", 1)); }});
  tour.add({"the box records by itself",
            [] { return stateOfFirst() == QLatin1String("Recording"); }, [] {}, "triggered"});
  tour.add({"the recording is on the card",
            [] { return stateOfFirst() == QLatin1String("Waiting"); }, [] {}});
}

void addCsv(Tour& tour) {
  tour.add({"to the CSV saving", [] { return isShown("picBinSave"); },
            [&tour] {
              control<QTabBar>(QStringLiteral("tbsSelect"))->setCurrentIndex(2);
              control<QLineEdit>(vk::elementName("txtFolder", 1))->setText(tour.output());
              control<QAbstractButton>(vk::elementName("optCoeff", 1))->setChecked(true);
              click(QStringLiteral("cmdCSVSave"));
            }});
  tour.add({"the CSV file holds the samples of the recording",
            [&tour] { return csvHoldsTheSamples(tour.output(), newestStem()); }, [] {}, "csv"});
}

}  // namespace vktour
