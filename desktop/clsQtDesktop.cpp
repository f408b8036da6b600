// SPDX-License-Identifier: MIT
#include "desktop/clsQtDesktop.h"

#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "desktop/clsPictureBox.h"
#include "desktop/qtText.h"

namespace vk {

namespace {

QMessageBox::StandardButtons buttonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case BoxButtons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case BoxButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon iconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kInformation:
      return QMessageBox::Information;
    case BoxIcon::kExclamation:
      return QMessageBox::Warning;
    case BoxIcon::kQuestion:
      return QMessageBox::Question;
    case BoxIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

// Qt takes No for the close box of a yes-no question. Here closing is an answer of its own, and who
// asks decides what it means.
class QuestionBox : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (!asksYesNo()) return QMessageBox::closeEvent(event);
    event->accept();
    QDialog::reject();
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (asksYesNo() && event->matches(QKeySequence::Cancel)) return QDialog::reject();
    QMessageBox::keyPressEvent(event);
  }

 private:
  bool asksYesNo() const { return standardButtons() == (QMessageBox::Yes | QMessageBox::No); }
};

BoxAnswer answerOf(const QMessageBox& box) {
  const auto* clicked = box.clickedButton();
  if (!clicked) return BoxAnswer::kClosed;
  switch (box.standardButton(const_cast<QAbstractButton*>(clicked))) {
    case QMessageBox::Ok:
      return BoxAnswer::kOk;
    case QMessageBox::Cancel:
      return BoxAnswer::kCancel;
    case QMessageBox::Yes:
      return BoxAnswer::kYes;
    case QMessageBox::No:
      return BoxAnswer::kNo;
    default:
      return BoxAnswer::kClosed;
  }
}

// "DAT File (*.dat)|*.dat|All Files(*.*)|*.*|" to Qt's "DAT File (*.dat) (*.dat *.DAT)". The dialog
// hides the last parentheses, so that the text stands as it was given. "*.*" would leave out names
// without a point.
QStringList nameFiltersOf(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'), Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString pattern = parts[i + 1];
    if (pattern == QLatin1String("*.*")) {
      pattern = QStringLiteral("*");
    } else if (pattern.toUpper() != pattern) {
      pattern += QLatin1Char(' ') + pattern.toUpper();
    }
    filters << QStringLiteral("%1 (%2)").arg(parts[i], pattern);
  }
  return filters;
}

}  // namespace

BoxAnswer clsQtDesktop::messageBox(const std::string& title, const std::string& text,
                                   BoxButtons buttons, BoxIcon icon) {
  QuestionBox box(QApplication::activeWindow());
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(toQt(title));
  box.setText(toQt(text));
  box.setIcon(iconOf(icon));
  box.setStandardButtons(buttonsOf(buttons));
  // What is asked so cannot be undone: one Enter too many must not agree to it.
  if (buttons == BoxButtons::kOkCancel && icon == BoxIcon::kQuestion)
    box.setDefaultButton(QMessageBox::Cancel);
  if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
    // A short text would leave the title too little room.
    constexpr int kTitleButtons = 140;
    const int titleWidth = box.fontMetrics().horizontalAdvance(box.windowTitle()) + kTitleButtons;
    grid->addItem(new QSpacerItem(titleWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
  }
  const bool hourglass = QGuiApplication::overrideCursor() != nullptr;
  if (hourglass) QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
  box.exec();
  if (hourglass && QGuiApplication::overrideCursor())
    QGuiApplication::changeOverrideCursor(Qt::WaitCursor);
  return answerOf(box);
}

void clsQtDesktop::processEvents(bool wait) {
  ++depth_;
  QCoreApplication::processEvents(wait ? QEventLoop::WaitForMoreEvents : QEventLoop::AllEvents);
  // Deferred deletes belong to the outermost round only: further in, a handler of the object may
  // still be running.
  if (depth_ == 1 && QThread::currentThread()->loopLevel() == 0) {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  --depth_;
}

void clsQtDesktop::doEvents() {
  processEvents(false);
}

void clsQtDesktop::waitEvents(int milliseconds) {
  QTimer wake;
  if (milliseconds >= 0) {
    wake.setSingleShot(true);
    wake.setTimerType(Qt::PreciseTimer);
    wake.start(milliseconds);
  }
  processEvents(true);
}

int64_t clsQtDesktop::milliseconds() {
  static QElapsedTimer clock;
  if (!clock.isValid()) clock.start();
  return clock.elapsed();
}

DateTime clsQtDesktop::now() {
  const QDateTime time = QDateTime::currentDateTime();
  const QDate date = time.date();
  const QTime day = time.time();
  return {date.year(), date.month(), date.day(), day.hour(), day.minute(), day.second()};
}

std::string clsQtDesktop::fileDialog(FileDialogKind kind, const std::string& title,
                                     const std::string& filter, const std::string& folder) {
  QFileDialog dialog(QApplication::activeWindow(), toQt(title), toQt(folder));
  dialog.setNameFilters(nameFiltersOf(toQt(filter)));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  const bool save = kind == FileDialogKind::kSave;
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  // A name without its extension has to pass in both directions: who asked for it completes it, and
  // tells by himself when there is no such file. Dialogs of the desktop would refuse it.
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  // The program asks its own overwrite question.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return fromQt(dialog.selectedFiles().constFirst());
}

std::optional<Colour> clsQtDesktop::colourDialog(Colour colour) {
  QColorDialog dialog(toQColor(colour), QApplication::activeWindow());
  dialog.setOption(QColorDialog::DontUseNativeDialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return fromQColor(dialog.selectedColor());
}

std::filesystem::path clsQtDesktop::specialFolder(SpecialFolder folder) {
  const auto location = [folder] {
    switch (folder) {
      case SpecialFolder::kMyDocuments:
        return QStandardPaths::DocumentsLocation;
      case SpecialFolder::kAppData:
        return QStandardPaths::GenericConfigLocation;
      case SpecialFolder::kCommonAppData:
        break;
    }
    return QStandardPaths::GenericDataLocation;
  }();
  return fromQt(QStandardPaths::writableLocation(location));
}

std::filesystem::path clsQtDesktop::applicationFolder() {
  return fromQt(QCoreApplication::applicationDirPath());
}

std::string clsQtDesktop::applicationTitle() {
  return "VK-480Q CONTROLLER";
}

std::string clsQtDesktop::decimalSymbol() {
  return fromQt(QLocale::system().decimalPoint());
}

void clsQtDesktop::setHourglass(bool on) {
  const bool shown = QGuiApplication::overrideCursor() != nullptr;
  if (on && !shown) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  if (!on && shown) QGuiApplication::restoreOverrideCursor();
}

void clsQtDesktop::endProgram() {
  ending_ = true;
  std::fflush(nullptr);
  // Handlers may still be on the stack below, with their windows: leave without unwinding them.
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace vk
