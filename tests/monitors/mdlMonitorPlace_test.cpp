// SPDX-License-Identifier: MIT
// Where windows open, and where everything lies in the window of each kind, from usual to tiny.
#include "monitors/mdlMonitorPlace.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "monitors/mdlBarLayout.h"
#include "monitors/mdlCircleLayout.h"
#include "monitors/mdlNumLayout.h"
#include "monitors/mdlWaveLayout.h"
#include "monitors/mdlXYLayout.h"

namespace vk {
namespace {

std::string text(std::initializer_list<MonitorPlace> places) {
  std::string all;
  for (const auto& place : places)
    all += fmt::format("{},{} {}x{}; ", place.left, place.top, place.width, place.height);
  return all;
}

/// Opens windows of these places one after the other; returns their corners.
std::string opened(const std::vector<MonitorPlace>& stored, int areaWidth, int areaHeight) {
  std::vector<MonitorPlace> windows;
  std::string corners;
  for (const auto& place : stored) {
    windows.push_back(openingPlace(place, windows, areaWidth, areaHeight));
    corners += fmt::format("{},{} ", windows.back().left, windows.back().top);
  }
  return corners;
}

TEST(MonitorPlaces, CoverAsLittleAsTheyCanAndNoTitle) {
  const MonitorPlace fresh{0, 0, 400, 160};
  EXPECT_EQ(opened({fresh, fresh, fresh, fresh}, 1000, 400), "0,0 400,0 0,160 400,160 ");
  // The first row may be cut off by the area, the next not.
  EXPECT_EQ(opened({fresh, fresh, fresh, fresh}, 1000, 50), "0,0 400,0 600,0 30,30 ");
  // Stored places stay, and are stepped around: half covered titles count as covered.
  EXPECT_EQ(opened({{40, 20, 400, 160}, {5, 5, 400, 160}, fresh, fresh}, 450, 100),
            "40,20 5,5 60,60 90,90 ");
  EXPECT_EQ(opened({{200, 0, 400, 160}, fresh}, 450, 100), "200,0 0,0 ");
}

TEST(MonitorPlaces, PanelsOfABarStandUnderTheirQuartersOrPacked) {
  const auto at = [](int width, int height) {
    const auto all = barLayout(width, height, {20, 60, 24, 300});
    return text({all.picWave, all.picCh[3], all.sdrYPos, all.fraSet});
  };
  EXPECT_EQ(at(445, 200), "92,8 329x126; 341,134 78x66; 70,0 20x142; 4,8 60x50; ");
  // Narrow, the buttons stand above the picture; low, the panels give way.
  EXPECT_EQ(at(218, 83), "28,28 166x1; 169,29 47x54; 6,20 20x17; 28,2 122x24; ");
  EXPECT_EQ(at(1, 1).substr(0, 10), "28,28 1x1;");
}

TEST(MonitorPlaces, PictureOfAWaveLeavesTheStripAndTheScalesTheirRoom) {
  const auto at = [](int width, int height) {
    const auto all = waveLayout(width, height, {13, 70, 40, 20, 70, 90});
    return text({all.picWave, all.picMaxMin, all.sdrYPos, all.lblSerNum, all.fraSet});
  };
  EXPECT_EQ(at(445, 134), "142,24 244x86; 387,24 10x86; 120,17 20x101; 4,2 70x13; 4,30 70x90; ");
  EXPECT_EQ(at(445, 100), "142,18 244x64; 387,18 10x64; 120,11 20x79; 0,0 0x0; 4,2 70x90; ");
  EXPECT_EQ(at(10, 5), "68,14 1x1; 70,14 10x1; 46,7 20x16; 0,0 0x0; 0,0 0x0; ");
}

TEST(MonitorPlaces, SurfacesOfANumberFillWhatTheColumnLeaves) {
  const auto at = [](int width, int height) {
    const auto all = numLayout(width, height, {66, 14, 22});
    return text({all.monitor, all.unit, all.max, all.min, all.frame}) +
           (all.buttonsBeside ? "beside" : "");
  };
  EXPECT_EQ(at(392, 134), "74,4 263x86; 337,4 39x86; 74,92 143x38; 233,92 143x38; 4,84 66x46; ");
  EXPECT_EQ(at(405, 134).substr(0, 44), "74,4 274x86; 348,4 41x86; 74,92 150x38; 239,");
  EXPECT_EQ(at(50, 10), "74,4 1x1; 75,4 1x1; 74,7 1x1; 75,7 1x1; 4,32 66x1; beside");
}

TEST(MonitorPlaces, RowsOfAnXYPlotWithoutRoomAreLeftOut) {
  const auto tops = [](int width, int height) {
    const auto all = xyLayout(width, height, {88, 32, 13, 22});
    const auto& b = all.block[1];
    return fmt::format("{} {}: {} {} {} {} {} {} /{}", all.wave.width, all.columnWidth, b.serial,
                       b.channel, b.value, b.unit, b.scale, b.offset, all.frame.top);
  };
  EXPECT_EQ(tops(345, 187), "163 147: 72 72 85 85 103 116 /163");
  EXPECT_EQ(tops(252, 347), "130 87: 80 93 106 93 119 132 /323");
  EXPECT_EQ(tops(169, 77), "47 87: -1 -1 27 -1 40 -1 /53");
  EXPECT_EQ(tops(10, 10), "1 1: -1 -1 13 -1 -1 -1 /0");
}

// Small, the dial stands without its scale, and the buttons in a row below the value.
TEST(MonitorPlaces, DialAndValueShareTheRoom) {
  const auto at = [](int width, int height) {
    const auto all = circleLayout(width, height, 13);
    return text({all.picture, all.value, all.unit, all.serial, all.offset, all.full, all.frame});
  };
  EXPECT_EQ(at(600, 120),
            "70,15 89x89; 159,66 439x34; 159,100 439x17; 159,0 439x13; 70,104 89x13; "
            "159,53 439x13; 2,2 60x41; ");
  EXPECT_EQ(at(150, 500),
            "2,2 52x52; 54,62 94x23; 54,85 94x13; 54,0 94x13; 0,0 0x0; 0,0 0x0; 56,478 92x21; ");
  EXPECT_EQ(at(132, 53),
            "2,2 34x34; 36,0 94x17; 36,17 94x13; 0,0 0x0; 0,0 0x0; 0,0 0x0; 38,31 92x21; ");
  EXPECT_EQ(at(1, 1).substr(0, 9), "2,2 1x1; ");
}

}  // namespace
}  // namespace vk
