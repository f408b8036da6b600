// SPDX-License-Identifier: MIT
#include "desktop/clsFieldGuard.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "desktop/qtText.h"

namespace vk {

namespace {

constexpr int kMouseHeldMs = 10;

bool withinForm(Qt::FocusReason reason) {
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
         reason != Qt::MenuBarFocusReason;
}

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

clsFieldGuard::clsFieldGuard(std::function<void()> complain, std::function<void()> accept,
                             QObject* parent)
    : QObject(parent), complain_(std::move(complain)), accept_(std::move(accept)) {
  leaving_.setSingleShot(true);
  connect(&leaving_, &QTimer::timeout, this, &clsFieldGuard::leavingTimer);
}

void clsFieldGuard::watch(QLineEdit& field, Rule rule, Enter enter) {
  add({&field, &field, std::move(rule), enter});
}

void clsFieldGuard::watch(QComboBox& field, Rule rule) {
  // An editable list hands the focus of its text on to itself.
  add({&field, field.lineEdit(), std::move(rule), Enter::kAccepts});
}

void clsFieldGuard::watch(QLineEdit& field, Entry entry) {
  const auto take = [take = std::move(entry.take)](const std::string&) { return take(); };
  add({&field, &field, take, Enter::kChecks, std::move(entry.remember)});
}

void clsFieldGuard::add(Field field) {
  field.widget->installEventFilter(this);
  fields_.push_back(std::move(field));
}

bool clsFieldGuard::eventFilter(QObject* watched, QEvent* event) {
  const auto found = std::ranges::find(fields_, watched, &Field::widget);
  if (found == fields_.end()) return false;
  if (event->type() == QEvent::FocusIn) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (withinForm(reason)) select(*found, reason == Qt::MouseFocusReason);
  } else if (event->type() == QEvent::FocusOut) {
    if (withinForm(static_cast<QFocusEvent*>(event)->reason())) {
      found->left = true;
      leaving_.start(0);
    }
  } else if (event->type() == QEvent::KeyPress && isEnter(*static_cast<QKeyEvent*>(event))) {
    if (found->enter != Enter::kIgnored && check(*found) && found->enter == Enter::kAccepts)
      accept_();
    return true;
  }
  return false;
}

void clsFieldGuard::select(Field& field, bool byMouse) {
  field.left = false;
  if (field.remember) field.remember();
  field.edit->selectAll();
  // The click that follows would take the selection away again.
  if (byMouse) QTimer::singleShot(0, field.edit, &QLineEdit::selectAll);
}

bool clsFieldGuard::check(Field& field) {
  if (field.rule(fromQt(field.edit->text()))) return true;
  if (!field.remember) complain_();
  field.edit->selectAll();
  return false;
}

void clsFieldGuard::bringBack(Field& field) {
  field.widget->setFocus();
  field.edit->selectAll();
  // The field that gave its focus away was left by no act of the user.
  forgetLeft();
}

// Not in the focus event itself: a box in the middle of a click would take the release away from
// the button that was pressed. So a click on a cancelling button cancels, without a complaint.
void clsFieldGuard::leavingTimer() {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) return leaving_.start(kMouseHeldMs);
  checkLeft();
}

bool clsFieldGuard::checkLeft() {
  bool valid = true;
  leaving_.stop();
  for (auto& field : fields_) {
    if (!field.left) continue;
    field.left = false;
    if (!field.edit->isVisible() || check(field)) continue;
    valid = false;
    if (!field.remember) continue;
    bringBack(field);
    break;
  }
  return valid;
}

void clsFieldGuard::forgetLeft() {
  leaving_.stop();
  for (auto& field : fields_) field.left = false;
}

bool clsFieldGuard::checkAll() {
  forgetLeft();
  for (auto& field : fields_) {
    if (!field.widget->isEnabled() || check(field)) continue;
    bringBack(field);
    return false;
  }
  return true;
}

}  // namespace vk
