// SPDX-License-Identifier: MIT
#include "base/mdlGeneral.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/recording_picture.h"

namespace {

TEST(Lists, Fields) {
  EXPECT_EQ(vk::fieldCount("", ',') + vk::fieldCount("a", ','), 0);
  EXPECT_EQ(vk::fieldCount("a,b,,", ','), 3);
  EXPECT_EQ(vk::fieldCount("a b,c", ' '), 1);
  std::string fields;
  for (const auto n : {1, 2, 3, 4, 0, -1, 2000000000}) fields += vk::listField(" a ,,c", n) + "|";
  EXPECT_EQ(fields + vk::listField("abc", 1) + vk::listField("abc", 2), " a ||c|||||abc");
  EXPECT_EQ(vk::dropLastComma("1,2") + "|" + vk::dropLastComma("1,,") + "|" +
                vk::dropLastComma(",") + vk::dropLastComma(""),
            "1,2|1,|");
}

TEST(Lists, KeyValueAndLeftOf) {
  std::string values, lefts;
  for (const char* key : {"NUM_BACK ", "XY_GND ", "MES_BACK ", "BAR_TOP ", "LAST ", "NO ", "last "})
    values += vk::keyValue(
                  "NUM_BACK 1,2\r\nXY_GND   7 \nMES_BACK \r\nCAP BAR_TOP 9\rBAR_TOP 5\r\n"
                  "LAST a b ",
                  key) +
              "|";
  EXPECT_EQ(values, "1,2|7||9|a b|||") << "the first occurrence, wherever it stands";
  for (const char* text : {"abc\r\ndef", "abc\ndef", "\nabc", "a\nb\nc", "abc", ""})
    lefts += vk::leftOf(text, "\n") + "|";
  EXPECT_EQ(lefts + vk::leftOf("name.DAT.HED", ".HED"), "abc|ab|||abc||name.DA");
}

TEST(Paths, WithBackslashAndWhatIsMissing) {
  std::string paths;
  for (const char* path : {"/data", "/data/", "d:\\", ""}) paths += vk::withBackslash(path) + "|";
  EXPECT_EQ(paths, "/data/|/data/|d:\\|/|");
  const vktest::DataFolder folder;
  folder.put("A.dat", "x");
  folder.put("sub.dat/A.dat", "x");
  std::string missing;  // as a folder and as a file
  for (const char* name : {"", "A.dat", "A.DAT", "a.dat", "sub.dat", "none/A.dat"}) {
    const auto path = (folder.path() / name).string();
    missing += fmt::format("{}{} ", vk::folderMissing(path), vk::fileMissing(path));
  }
  EXPECT_EQ(missing, "01 10 10 11 01 11 ");
  EXPECT_EQ(vk::folderMissing("") + vk::fileMissing(""), 2);
}

class General : public ::testing::Test {
 protected:
  ~General() override { vk::gDefaultFolder.clear(); }

  vktest::FakeDesktop desktop_;
};

TEST_F(General, FileDialogKeepsTheFolder) {
  vk::gDefaultFolder = "d:\\";  // not there: the dialog begins in the program's own folder
  desktop_.files = {"/usr/lib/A.set", "", "/gone/A.set", "A.set", "/only/folder/"};
  std::string seen;
  for (const auto kind :
       {vk::FileDialogKind::kSave, vk::FileDialogKind::kOpen, vk::FileDialogKind::kOpen,
        vk::FileDialogKind::kOpen, vk::FileDialogKind::kOpen}) {
    const auto chosen = vk::fileDialog(kind, "Title", "Text|*.set|");
    seen += desktop_.takeLog() + chosen.name + " " + chosen.path + " " + vk::gDefaultFolder + "\n";
  }
  EXPECT_EQ(seen,
            "save[Title][Text|*.set|][/nonexistent]\nA.set /usr/lib/A.set /usr/lib/\n"
            "open[Title][Text|*.set|][/usr/lib/]\n  /usr/lib/\n"
            "open[Title][Text|*.set|][/usr/lib/]\nA.set /gone/A.set /gone/\n"
            "open[Title][Text|*.set|][/nonexistent]\nA.set A.set /gone/\n"
            "open[Title][Text|*.set|][/nonexistent]\n  /gone/\n");
}

/// A clock whose yields come back early, as a queue full of events does.
class BusyDesktop : public vktest::FakeDesktop {
 public:
  void waitEvents(int) override {
    clock = (clock + 10) & 0xFFFFFFFF;
    doEvents();
  }
};

TEST(Wait, GoesOnAcrossTheWrapOfTheCounterAndLeavesWhenTheProgramEnds) {
  BusyDesktop desktop;
  desktop.clock = 0xFFFFFFFF - 55;
  vk::waitSeconds(0.1);
  EXPECT_EQ(desktop.yieldCount, 10);
  EXPECT_EQ(desktop.clock, 44);
  std::string moved;
  for (const double seconds : {0.0004, 0.0, -5.0, std::nan("")}) {
    desktop.clock = 0;
    vk::waitSeconds(seconds);
    moved += fmt::format("{} ", desktop.clock);
  }
  EXPECT_EQ(moved, "10 0 0 0 ");
  desktop.yields = {[] {}, [&] { desktop.endProgram(); }};
  for (int i = 0; i < 2; ++i) vk::waitSeconds(3600);
  EXPECT_EQ(desktop.clock, 20);
}

TEST(Progress, Percent) {
  std::string percents;
  for (const double fraction : {0.0, 0.004999, 0.005, 0.015, 0.494, 0.495, 0.994999, 0.995, 1.0,
                                -1.0, 1e300, std::nan("")}) {
    percents += fmt::format("{},{} ", vk::progressPercent(fraction, true),
                            vk::progressPercent(fraction, false));
  }
  EXPECT_EQ(percents, "0,1 0,1 1,1 2,2 49,49 50,50 99,99 100,99 100,99 0,1 100,99 0,1 ");
}

TEST(Progress, Bar) {
  vktest::RecordingPicture picture("bar", 200, 20);
  vk::progressBar(picture, 0.5, true);
  vk::progressBar(picture, 0, true);
  vk::progressBar(picture, 0, false);
  EXPECT_EQ(picture.take(), R"(clear FFFFFF
text 88,2 800000 [50%]
inverted 0,0 99,19 800000
refresh
clear FFFFFF
text 92,2 800000 [0%]
refresh
clear FFFFFF
text 92,2 800000 [1%]
inverted 0,0 1,19 800000
refresh
)");
}

}  // namespace
