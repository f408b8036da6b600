// SPDX-License-Identifier: MIT
// The folder picker of the saving and reading forms. It starts at the default folder; "Select"
// makes the chosen one the default folder, which the caller shows afterwards in any case.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace vk {

class frmSelectFolder : public QDialog {
  Q_OBJECT

 public:
  /// The role is gFolderRole (storage/mdlFolderList.h).
  explicit frmSelectFolder(QWidget* parent = nullptr);

  QSize sizeHint() const override { return {440, 440}; }

 private:
  void buildControls();
  void buildLayout();
  void connectControls();
  /// Rebuilds Dir1 from the drive down to the path, and selects the path.
  void showPath(const std::string& path);
  /// Reads the folders below an item, once; the item of `open`, which is put in when hidden.
  QTreeWidgetItem* fill(QTreeWidgetItem* item, const std::string& open);
  void Drive1_Change(int index);
  void Dir1_Change(QTreeWidgetItem* item);
  void cmdSet_Click();

  std::vector<std::string> drives_;
  std::string path_;
  QComboBox* Drive1_;
  QTreeWidget* Dir1_;
  QLabel* lblText_;
  QLabel* lblFolder_;
};

}  // namespace vk
