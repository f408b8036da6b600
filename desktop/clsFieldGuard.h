// SPDX-License-Identifier: MIT
// Watches the text fields and editable lists of a form. A field is selected whole when it gets the
// focus and checked when it loses it to another control of the form; Enter checks it and then
// accepts the form. Another window, a menu or a list that drops down is no leaving. A field with an
// Entry of its own judges, rewrites and restores its text itself, gets the focus back when it is
// left with a refused text, and accepts nothing by Enter.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

class QComboBox;
class QLineEdit;
class QWidget;

namespace vk {

class clsFieldGuard : public QObject {
  Q_OBJECT

 public:
  using Rule = std::function<bool(const std::string&)>;

  /// `complain` tells the user that his entry is not valid; `accept` follows Enter in a valid
  /// field.
  clsFieldGuard(std::function<void()> complain, std::function<void()> accept,
                QObject* parent = nullptr);

  enum class Enter { kAccepts, kChecks, kIgnored };
  void watch(QLineEdit& field, Rule rule, Enter enter = Enter::kAccepts);
  void watch(QComboBox& field, Rule rule);

  struct Entry {
    std::function<void()> remember;  ///< the field got the focus
    std::function<bool()> take;      ///< false: the user was told, the remembered text is back
  };
  void watch(QLineEdit& field, Entry entry);

  /// Checks every field within reach. The first that is not valid gets complaint, focus and
  /// selection.
  bool checkAll();
  /// Checks what was left just now, before what follows covers the complaint.
  bool checkLeft();
  /// After the form was filled anew: nothing was left.
  void forgetLeft();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Field {
    QWidget* widget;  ///< gets focus and keys
    QLineEdit* edit;
    Rule rule;
    Enter enter;
    std::function<void()> remember = {};  ///< only of a field with an Entry
    bool left = false;
  };
  void add(Field field);
  void select(Field& field, bool byMouse);
  bool check(Field& field);
  void bringBack(Field& field);
  void leavingTimer();

  std::function<void()> complain_;
  std::function<void()> accept_;
  std::vector<Field> fields_;
  QTimer leaving_;
};

}  // namespace vk
