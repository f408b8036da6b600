// SPDX-License-Identifier: MIT
// Other file names and series names for the files that are to be saved. The edit boxes take effect
// on Enter; "Set" hands all rows back, "Cancel" none.
#pragma once

#include <QDialog>
#include <string_view>

class QLineEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace vk {

struct CardReading;
struct NamingList;

class frmSetFileSer : public QDialog {
  Q_OBJECT

 public:
  /// `list` as prepareNaming left it; "Set" copies into `reading`.
  frmSetFileSer(NamingList& list, CardReading& reading, QWidget* parent = nullptr);

  QSize sizeHint() const override { return {560, 470}; }

 protected:
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void buildControls();
  void buildLayout();
  void connectControls();

  void lvwFileName_ItemClick(QTreeWidgetItem* item);
  void txtFileName_KeyPress();
  void txtSerName_KeyPress();
  void cmdFAutoSet_Click();
  void cmdSAutoSet_Click();
  void cmdSet_Click();

  void showRows();
  void takeRow(int row);
  /// Runs a rule on an edit box's text and shows the rows when they have changed.
  void apply(bool (*rule)(NamingList&, std::string_view), const QLineEdit& box);

  NamingList& list_;
  CardReading& reading_;
  bool activated_ = false;
  QTreeWidget* lvwFileName_;
  QLineEdit* txtFileName_;
  QLineEdit* txtSerName_;
  QLineEdit* txtAutoFileName_;
  QLineEdit* txtAutoSerName_;
  QPushButton* cmdFAutoSet_;
  QPushButton* cmdSAutoSet_;
  QPushButton* cmdSet_;
  QPushButton* cmdCancel_;
};

}  // namespace vk
