// SPDX-License-Identifier: MIT
#include <algorithm>
#include <sstream>

#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::expectAnswers;
using vktest::library;

const std::string kQuestions =
    "write(6,LST1)\nread(6)\nwrite(6,LST2)\nread(6)\nwrite(6,MET)\nread(6)\n";

class ProbeTest : public vktest::LinkTest {
 protected:
  /// A probe leaves nothing behind but its transcript.
  static std::string transcript() {
    EXPECT_EQ(gLastReply, "old");
    EXPECT_EQ(gUSBBusy, 0);
    return library().takeTranscript();
  }
};

TEST_F(ProbeTest, Model) {
  // The replies to LST1, LST2 and MET; "lost" is a read that fails, "<" and ">" are the line end.
  // The model and how many questions were asked: an older box does not know the last one.
  expectAnswers(R"(
a,b,c,d<>;1,1,1,1<>;00<>=0 3|a,b,c,d;1,1,1,1;01=1 3|a,b,c,d;1,1,1,1; 3 >=3 3|
a,b,c,d;1,1,1,1;ERR,22<>=0 3|a,b,c,d;1,1,1,1;4=-1 3|a,b,c,d;1,1,1,1;-1=-1 3|
a,b,c,d;1,1,1,1;VK=-1 3|a,b,c,d;1,1,1,1;<>2=-1 3|a,b,c,d;1,1,1,1;lost=-1 3|
a,b,c,d;1,1,1<>=-1 2|a,b,c,d;lost=-1 2|a,b,c=-1 1|a,b,c,d,e=-1 1|ERR,22=-1 1|lost=-1 1)",
                [](std::string question) {
                  std::replace(question.begin(), question.end(), '<', '\r');
                  std::replace(question.begin(), question.end(), '>', '\n');
                  library() = {};
                  std::istringstream replies(question);
                  for (std::string reply; std::getline(replies, reply, ';');) {
                    reply == "lost" ? library().fail(-1005) : library().reply(reply);
                  }
                  const int32_t model = usbProbeModel(6);
                  const std::string seen = transcript();
                  const std::size_t asked = seen.size() > 44 ? 3 : seen.size() > 22 ? 2 : 1;
                  EXPECT_EQ(seen, kQuestions.substr(0, asked == 3 ? 65 : asked * 22));
                  return std::to_string(model) + " " + std::to_string(asked);
                });
}

TEST_F(ProbeTest, ModelStopsAtTheWriteThatFails) {
  for (std::size_t failing = 0; failing < 3; ++failing) {
    library() = {};
    library().writeResults.assign(failing, 64);
    library().writeResults.push_back(63);
    library().replies = {{"a,b,c,d", 80}, {"1,1,1,1", 80}, {"2", 80}};
    EXPECT_EQ(usbProbeModel(6), -1);
    EXPECT_EQ(transcript(), kQuestions.substr(0, failing * 22 + (failing == 2 ? 13 : 14)));
  }
}

TEST_F(ProbeTest, UpgradeMode) {
  struct Row {
    vktest::ScriptedLibrary::Reply reply;
    int32_t write;
    int32_t probe;    ///< usbProbeUpgrade
    int32_t upgrade;  ///< usbUpgradeMET
    int32_t type;
  };
  const Row rows[] = {
      {{"ue,ue,ue,ue\r\n", 80}, 64, 0, -1, 2},
      {{"ERR,22\r\n", 80}, 64, -1, -1, 0},
      {{"??ERR", 80}, 64, -1, -1, 0},
      {{"", 80}, 64, 0, -1, 2},
      {{"", 0}, 64, 0, 0, 0},
      {{"", -1005}, 64, 0, 0, 0},
      {{"ERR,22", 80}, 63, 0, 0, 0},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(&row - rows);
    const std::string read = row.write == 64 ? "read" : "";
    library() = {};
    library().writeResults = {row.write, row.write};
    library().replies = {row.reply, row.reply};
    EXPECT_EQ(usbProbeUpgrade(5), row.probe);
    EXPECT_EQ(transcript(), "write(5,LST1)\n" + (read.empty() ? "" : read + "(5)\n"));
    int32_t type = 77;
    EXPECT_EQ(usbUpgradeMET(type), row.upgrade);
    EXPECT_EQ(type, row.type);
    EXPECT_EQ(transcript(), "write(1,MET)\n" + (read.empty() ? "" : read + "(1)\n"));
  }
}

}  // namespace
}  // namespace vk
