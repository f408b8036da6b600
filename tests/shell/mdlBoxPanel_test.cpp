// SPDX-License-Identifier: MIT
#include "shell/mdlBoxPanel.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vk {
namespace {

TEST(BoxPanel, ColourOfAState) {
  constexpr int32_t kKept = -1;
  const std::pair<int32_t, int32_t> rows[] = {
      {-1, 0xFFFFFF}, {1, 0xFFFFFF},  {2, 0x8080FF},  {3, 0x80FF80}, {4, 0xFF8080},
      {5, 0x00FFFF},  {10, 0x00FFFF}, {99, 0x00FFFF}, {0, kKept},    {6, kKept},
      {9, kKept},     {100, kKept},   {-2, kKept}};
  for (const auto& [state, colour] : rows)
    EXPECT_EQ(stateColour(state).value_or(kKept), colour) << state;
}

TEST(BoxPanel, WholePanel) {
  const std::tuple<int32_t, int16_t, int16_t, PanelView> rows[] = {
      {1, 3, 0, {"0000042", 3, "Recording", 0x80FF80, true}},
      {0, 0, 0, {"0000042", 0, "disconnect", std::nullopt, true}},
      {2, 46, 1, {"0000042", 46, "Power supply voltage drops.[ERROR-46]", 0x00FFFF, false}},
      {-1001, 3, 0, {"disconnect", -1, "disconnect", 0xFFFFFF, false}}};
  for (const auto& [handle, state, syncMode, view] : rows) {
    MeasureSetting box;
    box.serial = 42;
    box.handle = handle;
    box.boxState = state;
    box.syncMode = syncMode;
    EXPECT_EQ(panelView(box, 0), view) << state;
  }
}

TEST(BoxPanel, PlacesOfThePanels) {
  for (const int32_t mode : {0, 2}) {
    const auto places = panelPlaces(mode, 3);
    EXPECT_FALSE(places[0].visible);
    for (int32_t i = 1; i <= 8; ++i)
      EXPECT_EQ(places[i], (PanelPlace{true, 1740 * i - 420, 40, 1710, 795})) << i;
  }
  EXPECT_EQ(panelsEnd(), 15240);
  for (const int32_t mainBox : {1, 3, 8, 9, 0}) {
    const int32_t hidden = mainBox == 3 || mainBox == 8 ? mainBox : 1;
    const auto places = panelPlaces(1, mainBox);
    EXPECT_EQ(places[0], (PanelPlace{true, 1320, 40, 5190, 795}));
    EXPECT_FALSE(places[hidden].visible);
    for (int32_t i = 1, at = 0; i <= 8; ++i) {
      if (i == hidden) continue;
      const PanelPlace place{true, 6540 + at % 4 * 1740, at < 4 ? 40 : 440, 1710, 375};
      EXPECT_EQ(places[i], place) << mainBox << i;
      ++at;
    }
  }
  EXPECT_EQ(framePlace(28800, 15000), (FramePlace{6900, 0, 2415}));
  EXPECT_EQ(framePlace(12000, 15000), (FramePlace{-1500, 0, 2415}));
}

TEST(BoxPanel, TheFrameGrowsForItsWindowsAsFarAsTheScreenAllows) {
  const std::pair<FrameRoom, int> rows[] = {
      {{true, 0, 1, 160, 899}, 0},     {{true, 100, 100, 260, 899}, 0},
      {{true, 101, 100, 260, 899}, 9}, {{true, 200, 1, 160, 899}, 207},
      {{true, 740, 1, 160, 899}, 739}, {{true, 200, 1, 899, 899}, 0},
      {{true, 200, 1, 950, 899}, 0},   {{false, 200, 1, 160, 899}, 0}};
  for (const auto& [room, growth] : rows) EXPECT_EQ(frameGrowth(room), growth) << room.lowest;
}

TEST(BoxPanel, SerialOfACaption) {
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
