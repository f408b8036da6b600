// SPDX-License-Identifier: MIT
#include "tests/shell/box_window.h"

// Keeps the blocks apart: the fixture comes first.
#include "shell/frmSelectMeterCh.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include "recorder/mdlSelectMeter.h"

namespace vktest {
namespace {

class frmSelectMeterChTest : public BoxWindowTest {
 protected:
  frmSelectMeterChTest() { connect(kThreeBoxes); }
};

std::string listText(QDialog& form, const char* name) {
  const auto* list = control<QComboBox>(form, name);
  std::string text;
  for (int i = 0; i < list->count(); ++i) text += vk::fromQt(list->itemText(i)) + ",";
  return text;
}

TEST_F(frmSelectMeterChTest, EachModeOffersItsOwn) {
  const std::string connected = "4810021,4800137,2400052,";
  const std::string eight = connected + "disconnect,disconnect,disconnect,disconnect,disconnect,";
  const std::tuple<int32_t, bool, std::string> rows[] = {
      {vk::kSelectBoxAndChannel, false,
       "All Meters," + eight + "|All Channels,Channel 1,Channel 2,Channel 3,Channel 4,|Balance"},
      {vk::kSelectBox, false, eight + "||Select"},
      {vk::kSelectBox, true, eight + "||Check"},
      {vk::kSelectConnected, false, connected + "||Select"}};
  for (const auto& [mode, check, texts] : rows) {
    vk::gSelMode = mode;
    vk::frmSelectMeterCh form(check);
    form.show();
    EXPECT_EQ(form.windowTitle(), "Meter-Channel selection");
    EXPECT_EQ(listText(form, "cmbMeter") + "|" + listText(form, "cmbChannel") + "|" +
                  vk::fromQt(control<QPushButton>(form, "cmdRun")->text()),
              texts);
    EXPECT_EQ(control<QComboBox>(form, "cmbChannel")->isVisible(),
              mode == vk::kSelectBoxAndChannel);
    QTest::keyClick(&form, Qt::Key_Escape);  // cancels
    EXPECT_TRUE(vk::gSelSerial == vk::kSelectCancelled && !form.isVisible());
    vk::gSelSerial = 5;
  }
}

TEST_F(frmSelectMeterChTest, AChannelThatTheBoxLacksIsRefused) {
  vk::gSelMode = vk::kSelectBoxAndChannel;
  vk::gBoxTable[1].channelMode = 1;
  vk::frmSelectMeterCh form;
  form.show();
  auto* run = control<QPushButton>(form, "cmdRun");
  const auto choose = [&](int channel) {
    control<QComboBox>(form, "cmbMeter")->setCurrentIndex(1);
    control<QComboBox>(form, "cmbChannel")->setCurrentIndex(channel);
    run->click();
  };
  choose(3);
  EXPECT_EQ(desk.takeLog(),
            "box[Error][This channel can not be used.Change the setting of the number of "
            "channels.]\n");
  EXPECT_TRUE(form.isVisible() && !run->isEnabled());
  EXPECT_EQ(control<QComboBox>(form, "cmbChannel")->currentIndex(), -1);
  choose(2);
  EXPECT_FALSE(form.isVisible());
  EXPECT_TRUE(vk::gSelSerial == 4810021 && vk::gSelChannel == 2);
}

}  // namespace
}  // namespace vktest
