// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "conditions/frmSetting.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "link/mdlExchange.h"

namespace vktest {
namespace {

constexpr int32_t kHigh = 4810021;
constexpr int32_t kLow = 2400052;

class frmSettingTest : public BoxWindowTest {
 protected:
  frmSettingTest() { connect(kThreeBoxes); }

  void open(int32_t serial) {
    form.reset();
    form = std::make_unique<vk::frmSetting>(serial);
    form->show();
    desk.doEvents();
  }
  /// "5000 ue": what stands in a list, field or label; "(off)" before it when it is disabled.
  std::string shown(const char* name) {
    auto* found = control<QWidget>(*form, name);
    QString text;
    if (auto* list = qobject_cast<QComboBox*>(found)) text = list->currentText();
    if (auto* edit = qobject_cast<QLineEdit*>(found)) text = edit->text();
    if (auto* label = qobject_cast<QLabel*>(found)) text = label->text();
    return (found->isEnabled() ? "" : "(off)") + vk::fromQt(text);
  }
  std::string entries(const char* name) {
    const auto* list = control<QComboBox>(*form, name);
    std::string text;
    for (int i = 0; i < list->count(); ++i) text += vk::fromQt(list->itemText(i)) + ",";
    return text;
  }
  void choose(const char* name, const char* text) {
    control<QComboBox>(*form, name)->setCurrentText(QString::fromUtf8(text));
  }
  QLineEdit* field(const char* name) { return control<QLineEdit>(*form, name); }
  void click(const char* name) { control<QPushButton>(*form, name)->click(); }
  /// Into the field and out of it again, as a user types.
  void type(const char* name, const char* text, Qt::Key key = Qt::Key_Tab) {
    field(name)->setFocus();
    field(name)->selectAll();
    QTest::keyClicks(field(name), text);
    QTest::keyClick(field(name), key);
    QTest::qWait(1);
  }

  std::unique_ptr<vk::frmSetting> form;
};

TEST_F(frmSettingTest, ShowsTheBoxAndItsBalance) {
  bench.box(0).balanceOff[2] = true;
  QTimer tmrStatus;
  tmrStatus.start(1000);
  std::string seen;
  inModal("frmSetting", [&](QDialog& dialog) {
    for (const char* name : {"lblMeter", "lblSerNum", "lblSerNumDmy"})
      seen += vk::fromQt(control<QLabel>(dialog, name)->text()) + ",";
    seen += tmrStatus.isActive() ? "polled" : "quiet";
    dialog.reject();
  });
  EXPECT_FALSE(vk::openMeasureSetting(kHigh, nullptr, tmrStatus));
  EXPECT_EQ(seen, "VK-480Qe,4810021,4810021,quiet");
  EXPECT_TRUE(tmrStatus.isActive() && vk::gUSBBusy == 0);
  EXPECT_EQ(vk::gBoxTable[1].balance[3], 1);
  EXPECT_FALSE(vk::openMeasureSetting(-1, nullptr, tmrStatus));  // cancelled: nothing to answer

  open(kHigh);
  EXPECT_EQ(shown("cmbBalSet(2)") + shown("cmbBalSet(3)"), "ONOFF");
  EXPECT_EQ(entries("cmbRangeSet(1)"),
            "   1000 ue,   2000 ue,   5000 ue, 10000 ue, 20000 ue,1000.0 ue,2000.0 ue,");
  EXPECT_EQ(entries("cmbCarrSet(4)"), "0.5 V,2.0 V,");
  EXPECT_EQ(shown("txtTriggerLevel(1)") + shown("txtCoeff(4)"), "+10.01.000000");
  EXPECT_EQ(shown("txtTriggerLevel(2)") + shown("lblSlpCh(2)"), "(off)0.0(off)CH 2");
  EXPECT_EQ(shown("lblDataSize"), "26.2144s");

  open(kLow);
  EXPECT_EQ(entries("cmbRangeSet(1)") + entries("cmbCarrSet(1)") + entries("cmbFilterSet(1)"),
            "   5000 ue, 10000 ue, 20000 ue,2.0 V,  30 Hz,100 Hz,300 Hz,  1 kHz,");
  EXPECT_EQ(shown("cmbCarrSet(1)") + shown("lblAmp(2)"), "(off)2.0 V(off)&Excitation");
  EXPECT_EQ(desk.takeLog(), "");
}

TEST_F(frmSettingTest, TheWheelTurnsNoListOnItsWay) {
  open(kHigh);
  auto* unit = control<QComboBox>(*form, "cmbUnit(2)");
  const auto turn = [&] {
    QWheelEvent wheel({5, 5}, unit->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(unit, &wheel);
  };
  field("txtCoeff(1)")->setFocus();
  turn();
  EXPECT_EQ(shown("cmbUnit(2)"), "ue");
  unit->setFocus();
  turn();
  EXPECT_EQ(shown("cmbUnit(2)"), "mm");
}

TEST_F(frmSettingTest, AChoiceCorrectsTheOthers) {
  open(kHigh);
  choose("cmbDatasize", "1M");
  choose("cmbPreArea", "Max");
  EXPECT_EQ(shown("lblPreArea"), "13.1072s");
  choose("cmbDatasize", "512K");
  EXPECT_EQ(entries("cmbPreArea") + shown("cmbPreArea"), "0 %,10 %,0 %");
  choose("cmbSampling", "20 usec");
  EXPECT_EQ(entries("cmbDatasize").substr(0, 8) + shown("cmbDatasize"), "16K,32K,512K");
  choose("cmbDatasize", "16K");
  choose("cmbChannelMode", "1 Channel");
  EXPECT_EQ(shown("cmbDatasize") + shown("cmbSampling"), "16K20 usec");
  choose("cmbDatasize", "240M");
  choose("cmbChannelMode", "4 Channel");
  EXPECT_EQ(shown("lblDataSize"), "0.32768s");
  choose("cmbDatasize", "32K");
  EXPECT_EQ(shown("lblDataSize"), "0.65536s");
  choose("cmbDatasize", "16K");
  choose("cmbChannelMode", "1 Channel");
  EXPECT_TRUE(entries("cmbDatasize").ends_with("120M,240M,"));
  EXPECT_EQ(shown("lblAmpCh(1)") + shown("lblAmpCh(2)") + shown("cmbCarrSet(2)"),
            "CH 1(off)CH 2(off)2.0 V");
  EXPECT_EQ(shown("cmbTrgSlopeSet(1)") + shown("cmbTrgSlopeSet(2)"), "UP(off)OFF");
  choose("cmbTrigger", "FREE RUN");
  EXPECT_EQ(shown("lblTrg(2)") + shown("cmbPreArea") + shown("txtTriggerLevel(1)"),
            "(off)Le&vel (%)(off)0 %(off)+10.0");
  choose("cmbTrigger", "SINGLE");
  choose("cmbTrgSlopeSet(1)", "OFF");
  EXPECT_EQ(shown("cmbTrgSlopeSet(1)") + shown("txtTriggerLevel(1)"), "OFF(off)+10.0");

  choose("cmbRangeSet(1)", " 20000 ue");
  choose("cmbCarrSet(1)", "0.5 V");
  EXPECT_EQ(shown("cmbRangeSet(1)") + shown("cmbRangeSet(2)"), " 80000 ue(off)   5000 ue");
}

TEST_F(frmSettingTest, FieldsTakeOrRestore) {
  open(kHigh);
  const auto level = std::string("box[Input Error][Outside value]\n");
  const auto coeff = std::string("box[Caution - Input][Setting range 0.000010 - 9999999 ]\n");
  type("txtTriggerLevel(1)", "-99.94", Qt::Key_Return);
  EXPECT_EQ(shown("txtTriggerLevel(1)"), "-99.9");
  type("txtTriggerLevel(1)", "101", Qt::Key_Return);
  EXPECT_EQ(shown("txtTriggerLevel(1)"), "+10.0") << "as it stood when the focus came";
  EXPECT_EQ(desk.takeLog(), level);
  type("txtTriggerLevel(1)", "101");
  EXPECT_EQ(desk.takeLog(), level);
  EXPECT_TRUE(field("txtTriggerLevel(1)")->hasFocus());
  EXPECT_EQ(field("txtTriggerLevel(1)")->selectedText(), "+10.0");

  type("txtCoeff(2)", "-1.5", Qt::Key_Enter);
  type("txtCoeff(2)", "x");
  EXPECT_EQ(shown("txtCoeff(2)"), "-1.50000");
  EXPECT_TRUE(field("txtCoeff(2)")->hasFocus());
  EXPECT_EQ(desk.takeLog(), coeff);
  EXPECT_EQ(bench.box(0).conditionsText(), vksim::factoryConditions(vksim::Model::kVK480Qe))
      << "Enter in a field sends nothing";

  field("txtCoeff(1)")->setText("0");
  click("cmdSet");
  EXPECT_EQ(desk.takeLog(), coeff);
  EXPECT_TRUE(form->isVisible() && field("txtCoeff(1)")->hasFocus());
}

TEST_F(frmSettingTest, SetAgreesWithTheBox) {
  open(kHigh);
  choose("cmbChannelMode", "2 Channel");
  choose("cmbCarrSet(1)", "0.5 V");
  choose("cmbBalSet(1)", "OFF");
  choose("cmbBalSet(3)", "OFF");
  choose("cmbTrgSlopeSet(1)", "OFF");
  choose("cmbUnit(2)", "mm");
  type("txtCoeff(2)", "2.5");
  control<QPushButton>(*form, "cmdSet")->setFocus();
  QTest::keyClick(form.get(), Qt::Key_Return);
  EXPECT_EQ(form->result(), QDialog::Accepted);
  EXPECT_TRUE(desk.takeLog().starts_with("box[Caution on Trigger Mode][Trigger Set of the use"));
  const auto& box = bench.box(0);
  EXPECT_EQ(box.conditionsText(), "20505050507070707CUUUUN000N000N000N000200U000128K1222");
  EXPECT_EQ(box.units[1] + box.coefficientTexts[1], "mm2.500000");
  EXPECT_TRUE(box.balanceOff[0] && !box.balanceOff[2]) << "a channel in use only";
  const auto& row = vk::gBoxTable[1];
  EXPECT_TRUE(row.channelMode == 1 && row.carrier[1] == 1 && row.balance[1] == 1 &&
              row.unit[2] == 1 && row.coeff[2] == 2.5F && row.handle == 1 && row.serial == kHigh);
}

TEST_F(frmSettingTest, AFailureSkipsTheRestAndStays) {
  open(kHigh);
  choose("cmbUnit(1)", "mm");
  choose("cmbBalSet(1)", "OFF");
  field("txtCoeff(1)")->setText("3");
  bench.box(0).faults.add({vksim::FaultKind::kError, "CEF", 20, 1});
  click("cmdSet");
  EXPECT_TRUE(desk.takeLog().starts_with("box[USB Error]["));
  const auto& box = bench.box(0);
  EXPECT_TRUE(box.units[0] == "mm" && box.coefficientTexts[0] != "3.000000" && !box.balanceOff[0]);
  EXPECT_EQ(vk::gBoxTable[1].unit[1], 0);
  EXPECT_TRUE(form->isVisible() && control<QPushButton>(*form, "cmdSet")->isEnabled());
  click("cmdSet");
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(box.balanceOff[0]);

  form.reset();
  EXPECT_EQ(vk::gUSBBusy, 0);
  open(vk::kNoSerial);
  EXPECT_EQ(vk::gUSBBusy, 1) << "nobody polls, also without a box";
  EXPECT_EQ(shown("lblMeter") + shown("lblSerNum") + shown("lblSerNumDmy"), "------9999999");
  click("cmdSet");
  EXPECT_TRUE(desk.takeLog().starts_with("box[USB Error]["));
  EXPECT_TRUE(form->isVisible());
  form.reset();
  EXPECT_EQ(vk::gUSBBusy, 0);
}

TEST_F(frmSettingTest, NothingElseRunsWhileItSends) {
  open(kHigh);
  int yields = 0;
  std::string meanwhile;
  QTimer again;
  QObject::connect(&again, &QTimer::timeout, [&] {
    ++yields;
    click("cmdSet");
    click("cmdLoad");
    form->reject();
    if (form->isVisible()) meanwhile = "open";
  });
  again.start(0);
  click("cmdSet");
  again.stop();
  EXPECT_TRUE(yields > 0 && meanwhile == "open" && !form->isVisible());
  EXPECT_EQ(desk.takeLog(), "") << "no file dialog";
}

TEST_F(frmSettingTest, ASettingFileComesBack) {
  const std::string path = desk.data.filePath("a.set").toStdString();
  open(kHigh);
  choose("cmbCarrSet(2)", "0.5 V");
  choose("cmbRangeSet(2)", " 80000 ue");
  choose("cmbDatasize", "1M");
  choose("cmbPreArea", "Max");
  choose("cmbTrigger", "FREE RUN");
  desk.files = {path};
  click("cmdSave");

  open(vk::kNoSerial);
  desk.files = {path};
  click("cmdLoad");
  EXPECT_EQ(shown("cmbRangeSet(2)") + shown("cmbDatasize") + shown("cmbPreArea"),
            " 80000 ue1M(off)Max");
  EXPECT_EQ(shown("lblMeter") + shown("lblPreArea"), "---13.1072s");
  choose("cmbTrigger", "SINGLE");  // the handlers answer again
  EXPECT_EQ(shown("cmbPreArea"), "Max");
  EXPECT_EQ(vk::gBoxTable[1].dataSize, 7) << "nothing reaches a box before Set";
}

}  // namespace
}  // namespace vktest
