// SPDX-License-Identifier: MIT
// The conditions and the state of one box as the box itself reports them, in two columns. The list
// is fetched once, when the form opens; nothing else may talk to the box meanwhile.
#pragma once

#include <QDialog>
#include <cstdint>

class QLabel;
class QScrollArea;

namespace vk {

class frmList : public QDialog {
  Q_OBJECT

 public:
  explicit frmList(int32_t serial, QWidget* parent = nullptr);

 private:
  QLabel* column(const QString& name, const QString& spoken);
  void build();
  void fill(int32_t serial);
  void fitToList();

  QWidget* txtList_;
  QScrollArea* picList_;
  QLabel* lblList_;
  QLabel* lblData_;
  QString copyText_;
};

}  // namespace vk
