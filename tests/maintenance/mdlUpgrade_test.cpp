// SPDX-License-Identifier: MIT
#include "maintenance/mdlUpgrade.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "link/mdlUSBCommand.h"
#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_library.h"

namespace vk {
namespace {

class UpgradeTest : public ::testing::Test {
 protected:
  UpgradeTest() { vktest::library() = {}; }

  std::string file(const std::string& name, int32_t size) {
    return folder_.put(name, std::string(static_cast<std::size_t>(size), 'p')).string();
  }
  // A wizard that has read a good file of its kind and waits for "Run".
  Upgrade ready(int32_t kind) {
    Upgrade upgrade;
    vktest::library().reply(kind == 0 ? "ERR,22\r\n" : "02\r\n");
    beginUpgrade(upgrade);
    desktop_.files.push_back(file("new.prg", upgradeImageSize(kind)));
    EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
    EXPECT_EQ(upgrade.step, UpgradeStep::kReady);
    desktop_.log.clear();
    vktest::library().transcript.clear();
    return upgrade;
  }

  vktest::FakeDesktop desktop_;
  vktest::DataFolder folder_;
};

TEST_F(UpgradeTest, TakesOnlyAProgramFileOfTheRightLength) {
  std::string taken;
  Upgrade upgrade;
  for (const auto& [name, size] : {std::pair{"a.prg", 131072},
                                   {"a.PRG", 131072},
                                   {"a.Prg", 131072},
                                   {"a.prg", 131071},
                                   {"a.prg", 393216},
                                   {"a.bin", 131072}}) {
    upgrade = {};
    desktop_.files = {file(name, size)};
    EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
    const bool ready = upgrade.step == UpgradeStep::kReady;
    taken += ready ? "1" : "0";
    EXPECT_EQ(ready,
              !desktop_.takeLog().ends_with(
                  "box[Version Up][Specified file is not a program file.][ok][exclamation]\n"));
  }
  EXPECT_EQ(taken, "110000");
  // A cancelled dialog, and a file that is not there.
  for (const auto& chosen : {std::string(), (folder_.path() / "gone.prg").string()}) {
    upgrade = {};
    desktop_.files = {chosen};
    EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
    EXPECT_EQ(upgrade.step, UpgradeStep::kChooseFile);
    EXPECT_EQ(upgrade.message, "Specify the place of the program file.");
  }
}

TEST_F(UpgradeTest, EachResultHasItsWordsAndRestoresTheTimeout) {
  const std::string image = "writeB(1,131072)\n", renewing = "timeout(40)\nread(1)\ntimeout(7)\n";
  const char* const kProgram =
      "Program Error has occurred and failed in upgrading.\n"
      "VK-480Q has the possibility that it does not work normally.\n"
      "Upgrade work again.";
  const char* const kSending = "Transmitting Error has occurred.\nVK-480Q is not upgraded.";
  const char* const kDone =
      "Upgrade has been finished properly.\nTurn on the power of VK-480Q again.";
  const struct {
    int32_t kind, goodCommands, imageResult;
    const char *lastReply, *message;  ///< no reply when empty
    std::string behind;               ///< the commands, in the transcript
  } rows[] = {{0, 1, 64, "", "Program command error has occurred.\nVK-480Q is not upgraded.", ""},
              {0, 3, -1008, "", kSending, image},
              {0, 3, 63, "", kSending, image},
              {0, 3, 64, "", kProgram, image + renewing},
              {0, 3, 64, "ERR,38", kProgram, image + renewing},
              {2, 3, 64, "END", kDone, "writeB(1,393216)\n" + renewing}};
  for (const auto& row : rows) {
    vktest::library() = {};
    Upgrade upgrade = ready(row.kind);
    std::string expected;
    for (int block = 1; block <= std::min(row.goodCommands + 1, 3); ++block) {
      vktest::library().reply(block <= row.goodCommands ? "END" : "ERR,20");
      expected += std::string("write(1,PWE000000") + (row.kind == 0 ? "2048," : "6144,") +
                  std::to_string(block) + ")\nread(1)\n";
    }
    vktest::library().writeResults = {64, 64, 64, row.imageResult};
    if (*row.lastReply) vktest::library().reply(row.lastReply);
    EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
    EXPECT_EQ(upgrade.step, row.message == kDone ? UpgradeStep::kFinished : UpgradeStep::kFailed);
    EXPECT_EQ(upgrade.message, row.message);
    EXPECT_EQ(vktest::library().takeTranscript() + desktop_.takeLog(), expected + row.behind);
    EXPECT_TRUE(nextUpgradeStep(upgrade, {}));
  }
}

}  // namespace
}  // namespace vk
