// SPDX-License-Identifier: MIT
// The setting dialogs of the monitors. What the five have in common stands here: a list of
// controls, each bound to a field of the record, the checks of the entries, colours, Set and
// Cancel. A kind adds its frames and bindings. A dialog knows kind and index of its monitor, never
// its window: that may be closed or loaded anew behind the dialog.
#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/clsClickArea.h"
#include "desktop/clsFieldGuard.h"
#include "monitors/mdlMonitorDialog.h"
#include "monitors/mdlMonitorRecords.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace vk {

/// Opens the kind's dialog for the record, or turns the open one to it. Not modal: the monitors go
/// on behind it.
void openMonitorSetting(MonitorKind kind, std::size_t index, QWidget* parent);

/// An area in a colour that is the control's value.
class ColourArea : public clsClickArea {
 public:
  using clsClickArea::clsClickArea;
  Colour backColor() const { return colour_; }
  void setBackColor(Colour colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Colour colour_ = 0;
};

class frmMonitorSetting : public QDialog {
  Q_OBJECT

 public:
  /// Fills lists and fields for the monitor.
  void setInitMoniSet(std::size_t index);

 protected:
  /// The record field that a control edits, of the monitor whose turn it is.
  template <typename T>
  using Field = std::function<T&()>;
  /// A lone control has no number in its name.
  static constexpr int kLone = -1;

  frmMonitorSetting(MonitorKind kind, const char* name, const QString& title, QWidget* parent);

  template <typename Record, std::size_t N, typename T>
  Field<T> field(std::array<Record, N>& records, T Record::*member) const {
    return [this, &records, member]() -> T& { return records.at(index_).*member; };
  }
  template <typename Record, std::size_t N, typename T, std::size_t M>
  Field<T> field(std::array<Record, N>& records, std::array<T, M> Record::*member,
                 std::size_t element) const {
    return [this, &records, member, element]() -> T& {
      return (records.at(index_).*member).at(element);
    };
  }

  QFormLayout* addFrame(const QString& title, int row, int column, int columns = 1, int rows = 1);
  /// fraAbnormal, for what the kind keeps in its record and acts on in no way: its controls are
  /// there by their names and out of everyone's reach.
  QFormLayout* addHiddenFrame();
  /// txtUp and txtDown in it.
  void addHiddenLimits(QFormLayout* form, int i, const Field<float>& up, const Field<float>& down);

  /// cmbSerNum and cmbChNum of a channel, numbered where the kind has several.
  void addSource(QFormLayout* form, std::size_t channel = 0);
  void addCaption(QFormLayout* form);
  /// A closed list whose index is the field.
  template <typename T>
  QComboBox* addList(QFormLayout* form, const QString& label, const char* name,
                     const std::vector<std::string>& texts, Field<T> number) {
    auto* list = addClosedList(form, label, QString::fromLatin1(name), texts);
    bind([=] { setListIndex(*list, number()); },
         [=] { number() = static_cast<T>(listIndexOf(*list)); });
    return list;
  }
  QComboBox* addScale(QFormLayout* form, const QString& label, const QString& name,
                      std::span<const std::string_view> texts, const Field<float>& number);
  QComboBox* addDialStart(QFormLayout* form, const QString& label, const QString& name,
                          std::span<const std::string_view> texts, const Field<int32_t>& number);
  QLineEdit* addLimit(QFormLayout* form, const QString& label, const QString& name,
                      const Field<float>& number, float fallback);
  /// Limits out of reach are not checked.
  void checkLimit(QLineEdit& edit);
  /// chkCaution.
  QCheckBox* addCheck(QWidget* parent, int i, const Field<bool>& flag);
  /// picColor(i) with its cmdColor(i).
  void addColour(QFormLayout* form, const QString& label, int i, const Field<Colour>& colour);
  /// Gives the label of the row that was added last its name.
  void nameLabel(QFormLayout* form, const char* name);
  Colour colourOf(int i) const { return colours_.at(i)->backColor(); }

  /// cmdSet and cmdCancel, after all else: Tab goes in the order of building.
  void addButtons();

  QGridLayout* grid() const { return grid_; }
  std::size_t monitorIndex() const { return index_; }

  /// A colour was loaded or chosen.
  virtual void colourChanged(int) {}
  /// The entries, each valid, go together; the user was told if not.
  virtual bool entriesAgree() { return true; }

  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Binding {
    std::function<void()> load;
    std::function<void()> store;
  };
  void bind(std::function<void()> load, std::function<void()> store) {
    bindings_.push_back({std::move(load), std::move(store)});
  }
  static QString nameOf(const char* name, int i);
  QComboBox* addClosedList(QFormLayout* form, const QString& label, const QString& name,
                           const std::vector<std::string>& texts);
  QComboBox* addOpenList(QFormLayout* form, const QString& label, const QString& name,
                         std::span<const std::string_view> texts, EntryRule rule);
  static void setListIndex(QComboBox& list, double number);
  static int listIndexOf(const QComboBox& list);
  void cmdColor_Click(int i);
  void cmdSet_Click();

  const MonitorKind kind_;
  std::size_t index_ = 0;
  clsFieldGuard guard_;
  std::vector<Binding> bindings_;
  std::map<int, ColourArea*> colours_;
  QGridLayout* grid_;
  QLabel* lblMonitor_;
};

}  // namespace vk
