// SPDX-License-Identifier: MIT
#include "shell/mdlBoxPanel.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "link/mdlUSBCommand.h"
#include "shell/mdlConfig.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_box.h"

namespace vk {
namespace {

using vktest::ScriptedBox;

class BoxPanel : public testing::Test {
 protected:
  BoxPanel() { clear(); }
  ~BoxPanel() override { clear(); }
  static void clear() {
    vktest::library() = {};
    resetBoxTable();
    gUSBBusy = 0;
    gMainBox = 1;
  }
  static MeasureSetting row(int32_t handle, int16_t state, int16_t syncMode, int32_t serial = 42) {
    MeasureSetting made;
    made.handle = handle;
    made.serial = serial;
    made.boxState = state;
    made.syncMode = syncMode;
    made.fileCountText = "003/120";
    return made;
  }
  /// "panel:left,top,width,height " of each panel that shows.
  static std::string places(int32_t mode, int32_t mainBox) {
    std::string text;
    const auto all = panelPlaces(mode, mainBox);
    for (std::size_t i = 0; i < all.size(); ++i) {
      const PanelPlace& at = all[i];
      if (at.visible)
        text += fmt::format("{}:{},{},{},{} ", i, at.left, at.top, at.width, at.height);
    }
    return text;
  }

  vktest::FakeDesktop desktop_;
};

TEST_F(BoxPanel, ColourOfAState) {
  constexpr int32_t kKept = -1;
  const std::pair<int32_t, int32_t> rows[] = {
      {-1, 0xFFFFFF}, {1, 0xFFFFFF},  {2, 0x8080FF},  {3, 0x80FF80}, {4, 0xFF8080},
      {5, 0x00FFFF},  {10, 0x00FFFF}, {99, 0x00FFFF}, {0, kKept},    {6, kKept},
      {9, kKept},     {100, kKept},   {-2, kKept}};
  for (const auto& [state, colour] : rows)
    EXPECT_EQ(stateColour(state).value_or(kKept), colour) << state;
}

TEST_F(BoxPanel, ContentsOfUnknownNumbersAreEmpty) {
  MeasureSetting box = row(1, 1, 2);
  box.model = 9;
  for (const int32_t choice : {-1, 2, 3, 4}) EXPECT_EQ(panelContent(box, choice), "") << choice;
  box.model = kVk240Qe;
  EXPECT_EQ(panelContent(box, 3), "VK-240Qe");
}

TEST_F(BoxPanel, WholePanel) {
  const struct {
    MeasureSetting row;
    PanelView view;
  } rows[] = {
      {row(1, 3, 0), {"0000042", 3, "Recording", 0x80FF80, true}},
      {row(0, 1, 0), {"0000042", 1, "Waiting", 0xFFFFFF, true}},
      {row(1, 0, 0), {"0000042", 0, "disconnect", std::nullopt, true}},
      {row(2, 46, 1), {"0000042", 46, "Power supply voltage drops.[ERROR-46]", 0x00FFFF, false}},
      {row(2, 6, 0), {"0000042", 6, "Error has occurred.ERROR - 6", std::nullopt, true}},
      {row(-1001, 3, 0), {"disconnect", -1, "disconnect", 0xFFFFFF, false}},
  };
  for (const auto& panel : rows) EXPECT_EQ(panelView(panel.row, 0), panel.view);
}

TEST_F(BoxPanel, ChoiceOfTheMainBoxAsksForItsState) {
  ScriptedBox recording;
  recording.state = "03";
  vktest::plugIn({{1, ScriptedBox{}}, {2, recording}});
  gBoxTable[1] = row(1, 1, 0);
  gBoxTable[2] = row(2, 1, 1, 43);
  const struct {
    int32_t index;
    bool changed;
    int32_t mainBox;
    const char* transcript;
  } rows[] = {{0, false, 1, ""},
              {1, true, 2, "write(2,STA20)\nread(2)\n"},
              {-1, false, 2, ""},
              {8, false, 2, ""},
              {7, true, 8, ""}};
  for (const auto& choice : rows) {
    EXPECT_EQ(selectMainBox(choice.index), choice.changed) << choice.index;
    EXPECT_EQ(gMainBox, choice.mainBox);
    EXPECT_EQ(vktest::library().takeTranscript(), choice.transcript) << choice.index;
  }
  EXPECT_EQ(gBoxTable[2].boxState, 3);
}

TEST_F(BoxPanel, CommandThenStateOfThePanelsBox) {
  ScriptedBox box;
  box.state = "02";
  ScriptedBox refusing;
  refusing.plain = "ERR,12";
  vktest::plugIn({{1, box}, {2, box}, {3, refusing}});
  for (int16_t i = 1; i <= 3; ++i) gBoxTable[i] = row(i, 1, 0, 41 + i);
  gMainBox = 2;
  const std::tuple<PanelCommand, int32_t, int32_t, const char*> rows[] = {
      {PanelCommand::kStart, 0, 2, "write(2,RUN)\nread(2)\nwrite(2,STA20)\nread(2)\n"},
      {PanelCommand::kStop, 1, 1, "write(1,HLT)\nread(1)\nwrite(1,STA20)\nread(1)\n"},
      {PanelCommand::kManualTrigger, 2, 2, "write(2,MTR)\nread(2)\nwrite(2,STA20)\nread(2)\n"},
      {PanelCommand::kStart, 3, 0, "write(3,RUN)\nread(3)\n"}};
  for (const auto& [command, panel, row, transcript] : rows) {
    gBoxTable[2].boxState = 1;
    EXPECT_EQ(runPanelCommand(command, panel), row);
    EXPECT_EQ(vktest::library().takeTranscript(), transcript);
    EXPECT_EQ(gBoxTable[2].boxState, row == 2 ? 2 : 1);
  }
  // The failure was shown once, and nothing read back.
  EXPECT_EQ(desktop_.takeLog(),
            "box[USB Error][Cannot be carried out under slave condition.[ERROR-12]][ok]"
            "[exclamation]\n");
}

TEST_F(BoxPanel, PlacesOfThePanels) {
  for (const int32_t mode : {0, 2})
    EXPECT_EQ(places(mode, 3),
              "1:1320,40,1710,795 2:3060,40,1710,795 3:4800,40,1710,795 4:6540,40,1710,795 "
              "5:8280,40,1710,795 6:10020,40,1710,795 7:11760,40,1710,795 8:13500,40,1710,795 ");
  EXPECT_EQ(panelsEnd(), 15240);
  const std::string first =
      "0:1320,40,5190,795 2:6540,40,1710,375 3:8280,40,1710,375 4:10020,40,1710,375 "
      "5:11760,40,1710,375 6:6540,440,1710,375 7:8280,440,1710,375 8:10020,440,1710,375 ";
  for (const int32_t mainBox : {1, 9, 0}) EXPECT_EQ(places(1, mainBox), first);
  EXPECT_EQ(places(1, 8),
            "0:1320,40,5190,795 1:6540,40,1710,375 2:8280,40,1710,375 3:10020,40,1710,375 "
            "4:11760,40,1710,375 5:6540,440,1710,375 6:8280,440,1710,375 7:10020,440,1710,375 ");
  EXPECT_EQ(framePlace(28800, 15000), (FramePlace{6900, 0, 2415}));
  EXPECT_EQ(framePlace(12000, 15000), (FramePlace{-1500, 0, 2415}));
}

TEST_F(BoxPanel, TheFrameGrowsForItsWindowsAsFarAsTheScreenAllows) {
  const std::pair<FrameRoom, int> rows[] = {
      {{true, 0, 1, 160, 899}, 0},     {{true, 100, 100, 260, 899}, 0},
      {{true, 101, 100, 260, 899}, 9}, {{true, 200, 1, 160, 899}, 207},
      {{true, 740, 1, 160, 899}, 739}, {{true, 200, 1, 899, 899}, 0},
      {{true, 200, 1, 950, 899}, 0},   {{false, 200, 1, 160, 899}, 0}};
  for (const auto& [room, growth] : rows) EXPECT_EQ(frameGrowth(room), growth) << room.lowest;
}

TEST_F(BoxPanel, CalibrationNeedsAnAnalogOutput) {
  const std::tuple<std::size_t, int16_t, bool> rows[] = {
      {1, kVk480Qe, true}, {8, kVk240Qe, true}, {1, kVk240Q, false}, {9, kVk480Qe, false}};
  for (const auto& [row, model, visible] : rows) {
    resetBoxTable();
    gBoxTable[row].model = model;
    EXPECT_EQ(calVisible(gBoxTable), visible) << row << " " << model;
  }
}

TEST_F(BoxPanel, SerialOfACaption) {
  constexpr int32_t kNone = -7;
  const std::pair<const char*, int32_t> rows[] = {{"[1] bridge <0001234>", 1234},
                                                  {"a <12> b <34>", 12},
                                                  {"> <5>", 5},
                                                  {"<abc>", kNone},
                                                  {"<", kNone},
                                                  {"12>", kNone},
                                                  {"", kNone}};
  for (const auto& [caption, serial] : rows)
    EXPECT_EQ(activeSerialOfCaption(caption).value_or(kNone), serial) << caption;
}

}  // namespace
}  // namespace vk
