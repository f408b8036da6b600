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
  const std::tuple<const char*, int32_t, bool> rows[] = {
      {"a.prg", 131072, true},   {"a.PRG", 131072, true},  {"a.Prg", 131072, false},
      {"a.prg", 131071, false},  {"a.prg", 393216, false}, {"a.bin", 131072, false},
      {"missing.prg", -1, false}};
  for (const auto& [name, size, good] : rows) {
    SCOPED_TRACE(std::string(name) + " " + std::to_string(size));
    Upgrade upgrade;
    desktop_.log.clear();
    desktop_.files = {size < 0 ? (folder_.path() / name).string() : file(name, size)};
    EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
    EXPECT_EQ(upgrade.step, good ? UpgradeStep::kReady : UpgradeStep::kChooseFile);
    EXPECT_EQ(desktop_.takeLog().ends_with(
                  "box[Version Up][Specified file is not a program file.][ok][exclamation]\n"),
              !good);
  }
  // A cancelled dialog keeps the step.
  Upgrade upgrade;
  EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
  EXPECT_EQ(upgrade.step, UpgradeStep::kChooseFile);
  EXPECT_EQ(upgrade.message, "Specify the place of the program file.");
}

TEST_F(UpgradeTest, EachResultHasItsWordsAndRestoresTheTimeout) {
  struct Row {
    int32_t kind;
    int goodCommands;
    int32_t imageResult;
    const char* lastReply;  // nullptr: no reply
    const char* message;
    std::string behind;  ///< the commands, in the transcript
  };
  const std::string image = "writeB(1,131072)\n";
  const std::string renewing = "timeout(40)\nread(1)\ntimeout(7)\n";
  const char* const kProgram =
      "Program Error has occurred and failed in upgrading.\n"
      "VK-480Q has the possibility that it does not work normally.\n"
      "Upgrade work again.";
  const char* const kSending = "Transmitting Error has occurred.\nVK-480Q is not upgraded.";
  const char* const kDone =
      "Upgrade has been finished properly.\nTurn on the power of VK-480Q again.";
  const Row rows[] = {
      {0, 1, 64, nullptr, "Program command error has occurred.\nVK-480Q is not upgraded.", ""},
      {0, 3, -1008, nullptr, kSending, image},
      {0, 3, 63, nullptr, kSending, image},
      {0, 3, 64, nullptr, kProgram, image + renewing},
      {0, 3, 64, "ERR,38\r\n", kProgram, image + renewing},
      {2, 3, 64, "END\r\n", kDone, "writeB(1,393216)\n" + renewing}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.message);
    vktest::library() = {};
    Upgrade upgrade = ready(row.kind);
    for (int i = 0; i < row.goodCommands; ++i) vktest::library().reply("END\r\n");
    if (row.goodCommands < 3) vktest::library().reply("ERR,20\r\n");
    vktest::library().writeResults = {64, 64, 64, row.imageResult};
    if (row.lastReply) vktest::library().reply(row.lastReply);
    EXPECT_FALSE(nextUpgradeStep(upgrade, {}));
    EXPECT_EQ(upgrade.step, row.message == kDone ? UpgradeStep::kFinished : UpgradeStep::kFailed);
    EXPECT_EQ(upgrade.message, row.message);
    std::string expected;
    for (int block = 1; block <= std::min(row.goodCommands + 1, 3); ++block) {
      expected += std::string("write(1,PWE000000") + (row.kind == 0 ? "2048," : "6144,") +
                  std::to_string(block) + ")\nread(1)\n";
    }
    EXPECT_EQ(vktest::library().takeTranscript(), expected + row.behind);
    EXPECT_EQ(desktop_.takeLog(), "");
    EXPECT_TRUE(nextUpgradeStep(upgrade, {}));
  }
}

}  // namespace
}  // namespace vk
