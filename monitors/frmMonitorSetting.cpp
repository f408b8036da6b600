// SPDX-License-Identifier: MIT
#include "monitors/frmMonitorSetting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

#include "base/clsDesktop.h"
#include "base/mdlText.h"
#include "desktop/clsPictureBox.h"
#include "desktop/clsQuietList.h"
#include "desktop/qtText.h"
#include "monitors/frmMonitorForms.h"
#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorValue.h"
#include "recorder/mdlBoxTable.h"

namespace vk {

namespace {

constexpr int kListedAtOnce = 12;

// Only what the user changed goes back: a text has fewer digits than the number it shows.
void storeNumber(const QString& text, float fallback, float& number) {
  const std::string entry = fromQt(text);
  const auto value = readSingle(entry);
  if (value && entry != numberText(number, fallback)) number = *value;
}

void setText(QComboBox& list, const std::string& text) {
  list.setCurrentIndex(list.findText(toQt(text)));
  list.setEditText(toQt(text));
}

}  // namespace

void openMonitorSetting(MonitorKind kind, std::size_t index, QWidget* parent) {
  static std::array<QPointer<frmMonitorSetting>, kMonitorKinds.size()> dialogs;
  auto& dialog = dialogs[static_cast<std::size_t>(kind)];
  const bool open = dialog && dialog->isVisible();  // a closed one is only waiting for its end
  if (!open) dialog = monitorForm(kind).dialog(parent);
  dialog->setInitMoniSet(index);
  if (!open) centreOnScreen(*dialog);
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
}

// --- colours ----------------------------------------------------------------------------------

void ColourArea::setBackColor(Colour colour) {
  colour_ = colour;
  update();
}

void ColourArea::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (!isEnabled()) painter.setOpacity(0.4);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(toQColor(colour_));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void frmMonitorSetting::addColour(QFormLayout* form, const QString& label, int i,
                                  const Field<Colour>& colour) {
  auto* holder = new QWidget(form->parentWidget());
  auto* row = new QHBoxLayout(holder);
  row->setContentsMargins(0, 0, 0, 0);
  auto* area = named(new ColourArea(holder), elementName("picColor", i));
  area->setMinimumSize(48, 22);
  auto* button = new QPushButton(tr("Choose..."), holder);
  named(button, elementName("cmdColor", i), tr("%1, choose").arg(QString(label).remove(u'&')));
  button->setAutoDefault(false);
  row->addWidget(area, 1);
  row->addWidget(button);
  form->addRow(label, holder);
  if (auto* text = qobject_cast<QLabel*>(form->labelForField(holder))) text->setBuddy(button);
  colours_[i] = area;
  area->onClick = [this, i] { cmdColor_Click(i); };
  connect(button, &QPushButton::clicked, this, [this, i] { cmdColor_Click(i); });
  bind(
      [=, this] {
        area->setBackColor(colour());
        colourChanged(i);
      },
      [=] { colour() = area->backColor(); });
}

void frmMonitorSetting::cmdColor_Click(int i) {
  if (!guard_.checkLeft()) return;
  const auto colour = desktop().colourDialog(colourOf(i));
  if (!colour) return;
  colours_.at(i)->setBackColor(*colour);
  colourChanged(i);
}

// --- building ---------------------------------------------------------------------------------

frmMonitorSetting::frmMonitorSetting(MonitorKind kind, const char* name, const QString& title,
                                     QWidget* parent)
    : QDialog(parent), kind_(kind), guard_(sayInvalid, [this] { cmdSet_Click(); }) {
  named(this, QString::fromLatin1(name));
  setWindowTitle(title);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(14, 12, 14, 12);
  column->setSpacing(10);
  lblMonitor_ = named(new QLabel(this), QStringLiteral("lblMonitor"));
  lblMonitor_->setTextFormat(Qt::PlainText);
  QFont bold = lblMonitor_->font();
  bold.setBold(true);
  lblMonitor_->setFont(bold);
  column->addWidget(lblMonitor_);
  grid_ = new QGridLayout;
  grid_->setSpacing(10);
  column->addLayout(grid_);
  column->addStretch(1);
  setAttribute(Qt::WA_DeleteOnClose);
}

void frmMonitorSetting::addButtons() {
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  const auto add = [&](const QString& text, const char* name) {
    auto* button = named(new QPushButton(text, this), QString::fromLatin1(name));
    // A default button would fire on Enter in any field.
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
  };
  connect(add(tr("&Set"), "cmdSet"), &QPushButton::clicked, this, &frmMonitorSetting::cmdSet_Click);
  connect(add(tr("Cancel"), "cmdCancel"), &QPushButton::clicked, this, &QDialog::reject);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

QFormLayout* frmMonitorSetting::addFrame(const QString& title, int row, int column, int columns,
                                         int rows) {
  auto* frame = new QGroupBox(title, this);
  auto* form = new QFormLayout(frame);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  grid_->addWidget(frame, row, column, rows, columns);
  return form;
}

QFormLayout* frmMonitorSetting::addHiddenFrame() {
  auto* frame = named(new QFrame(this), QStringLiteral("fraAbnormal"));
  frame->hide();
  return new QFormLayout(frame);
}

QString frmMonitorSetting::nameOf(const char* name, int i) {
  return i == kLone ? QString::fromLatin1(name) : elementName(name, i);
}

void frmMonitorSetting::nameLabel(QFormLayout* form, const char* name) {
  const auto* row = form->itemAt(form->rowCount() - 1, QFormLayout::LabelRole);
  named(row->widget(), QString::fromLatin1(name));
}

QComboBox* frmMonitorSetting::addClosedList(QFormLayout* form, const QString& label,
                                            const QString& name,
                                            const std::vector<std::string>& texts) {
  auto* list = named(new clsQuietList(form->parentWidget()), name);
  list->setMaxVisibleItems(kListedAtOnce);
  for (const auto& text : texts) list->addItem(toQt(text));
  form->addRow(label, list);
  return list;
}

QComboBox* frmMonitorSetting::addOpenList(QFormLayout* form, const QString& label,
                                          const QString& name,
                                          std::span<const std::string_view> texts, EntryRule rule) {
  auto* list = addClosedList(form, label, name, {texts.begin(), texts.end()});
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->setCompleter(nullptr);  // it would make "1000" of a "1"
  list->setMinimumContentsLength(9);
  guard_.watch(*list, [rule](const std::string& text) { return validEntry(rule, text); });
  return list;
}

void frmMonitorSetting::addSource(QFormLayout* form, std::size_t channel) {
  const bool several = monitorFields(kind_, 0).serial.size() > 1;
  const int number = several ? static_cast<int>(channel) : kLone;
  auto* serials = addOpenList(form, several ? tr("Serial No.") : tr("Serial &No."),
                              nameOf("cmbSerNum", number), {}, EntryRule::kSerial);
  auto* channels = addClosedList(form, several ? tr("Channel") : tr("C&hannel"),
                                 nameOf("cmbChNum", number), channelTexts());
  bind(
      [=, this] {
        const auto fields = monitorFields(kind_, index_);
        serials->clear();
        for (const auto& text : serialTexts()) serials->addItem(toQt(text));
        setText(*serials, serialText(fields.serial[channel]));
        setListIndex(*channels, fields.channel[channel] - 1.0);
      },
      [=, this] {
        const auto fields = monitorFields(kind_, index_);
        if (const auto serial = readWhole(fromQt(serials->currentText())))
          fields.serial[channel] = *serial;
        fields.channel[channel] = listIndexOf(*channels) + 1;
      });
}

void frmMonitorSetting::addCaption(QFormLayout* form) {
  auto* edit = named(new QLineEdit(form->parentWidget()), QStringLiteral("txtCaption"));
  form->addRow(tr("Ca&ption"), edit);
  edit->setToolTip(tr("Without commas"));
  guard_.watch(
      *edit, [](const std::string& text) { return validEntry(EntryRule::kCaption, text); },
      clsFieldGuard::Enter::kIgnored);
  bind([=, this] { edit->setText(toQt(monitorFields(kind_, index_).caption)); },
       [=, this] { monitorFields(kind_, index_).caption = fromQt(edit->text()); });
}

QComboBox* frmMonitorSetting::addScale(QFormLayout* form, const QString& label, const QString& name,
                                       std::span<const std::string_view> texts,
                                       const Field<float>& number) {
  constexpr float kUsual = 1000.0F;
  auto* list = addOpenList(form, label, name, texts, EntryRule::kScale);
  bind([=] { setText(*list, numberText(number(), kUsual)); },
       [=] { storeNumber(list->currentText(), kUsual, number()); });
  return list;
}

QComboBox* frmMonitorSetting::addDialStart(QFormLayout* form, const QString& label,
                                           const QString& name,
                                           std::span<const std::string_view> texts,
                                           const Field<int32_t>& number) {
  auto* list = addOpenList(form, label, name, texts, EntryRule::kDialStart);
  bind([=] { setText(*list, textOf(number())); },
       [=] {
         if (const auto value = readWhole(fromQt(list->currentText()))) number() = *value;
       });
  return list;
}

QLineEdit* frmMonitorSetting::addLimit(QFormLayout* form, const QString& label, const QString& name,
                                       const Field<float>& number, float fallback) {
  auto* edit = named(new QLineEdit(form->parentWidget()), name);
  form->addRow(label, edit);
  bind([=] { edit->setText(toQt(numberText(number(), fallback))); },
       [=] { storeNumber(edit->text(), fallback, number()); });
  return edit;
}

void frmMonitorSetting::checkLimit(QLineEdit& edit) {
  guard_.watch(edit, [](const std::string& text) { return validEntry(EntryRule::kLimit, text); });
}

void frmMonitorSetting::addHiddenLimits(QFormLayout* form, int i, const Field<float>& up,
                                        const Field<float>& down) {
  addLimit(form, {}, nameOf("txtUp", i), up, kUpperLimit);
  addLimit(form, {}, nameOf("txtDown", i), down, kLowerLimit);
}

QCheckBox* frmMonitorSetting::addCheck(QWidget* parent, int i, const Field<bool>& flag) {
  auto* check =
      named(new QCheckBox(tr("&Enable abnormality display"), parent), nameOf("chkCaution", i));
  bind([=] { check->setChecked(flag()); }, [=] { flag() = check->isChecked(); });
  return check;
}

void frmMonitorSetting::setListIndex(QComboBox& list, double number) {
  list.setCurrentIndex(listIndex(number, list.count()));
}

int frmMonitorSetting::listIndexOf(const QComboBox& list) {
  return qMax(list.currentIndex(), 0);
}

// --- use --------------------------------------------------------------------------------------

void frmMonitorSetting::setInitMoniSet(std::size_t index) {
  index_ = index;
  lblMonitor_->setText(toQt(monitorCaption(index_, monitorFields(kind_, index_).caption)));
  for (const auto& binding : bindings_) binding.load();
  guard_.forgetLeft();
}

void frmMonitorSetting::cmdSet_Click() {
  if (!guard_.checkAll() || !entriesAgree()) return;
  for (const auto& binding : bindings_) binding.store();
  // A reconnect may have loaded another window, and a close box may have left none.
  if (auto* window = monitorWindow(kind_, index_)) window->setInitMoniNum();
  accept();
}

void frmMonitorSetting::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return QDialog::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) button->click();
}

}  // namespace vk
