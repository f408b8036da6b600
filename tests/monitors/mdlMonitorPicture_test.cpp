// SPDX-License-Identifier: MIT
#include "monitors/mdlMonitorPicture.h"

#include <gtest/gtest.h>

#include "monitors/mdlMonitorRow.h"
#include "tests/support/recording_picture.h"

namespace vk {
namespace {

// Ties go to the even column: 2.5, 5, 7.5 and 10 beside column 12.
TEST(MonitorPicture, TenDivisionsAndACross) {
  vktest::RecordingPicture picture("grid", 25, 11);
  drawDivisions(picture, 12, 5, 1);
  drawCentre(picture, 12, 5, 2);
  EXPECT_EQ(picture.take(),
            "dotted\nline 10,0 10,11 000001\nline 14,0 14,11 000001\n"
            "line 7,0 7,11 000001\nline 17,0 17,11 000001\n"
            "line 4,0 4,11 000001\nline 20,0 20,11 000001\n"
            "line 2,0 2,11 000001\nline 22,0 22,11 000001\n"
            "line 0,4 25,4 000001\nline 0,6 25,6 000001\n"
            "line 0,3 25,3 000001\nline 0,7 25,7 000001\n"
            "line 0,2 25,2 000001\nline 0,8 25,8 000001\n"
            "line 0,1 25,1 000001\nline 0,9 25,9 000001\nsolid\n"
            "dotted\nline 0,5 25,5 000002\nline 12,0 12,11 000002\nsolid\n");
  drawLevels(picture, 9, 20, 3);
  const std::string levels = picture.take();
  EXPECT_TRUE(levels.starts_with("dotted\nline 0,9 25,9 000003\nline 0,7 25,7 000003\n"));
  EXPECT_TRUE(levels.ends_with("line 0,17 25,17 000003\nsolid\n"));
}

TEST(MonitorPicture, AMarkOutsideStandsYellowAtTheEdge) {
  const auto at = [](float row) { return markAt(row, 100, 7); };
  EXPECT_TRUE(at(-0.1F) == (ExtremeMark{0, kYellow}) && at(0) == (ExtremeMark{0, 7}));
  EXPECT_TRUE(at(99.1F) == (ExtremeMark{99, kYellow}) && at(99) == (ExtremeMark{99, 7}));
}

}  // namespace
}  // namespace vk
