// SPDX-License-Identifier: MIT
#include <algorithm>
#include <sstream>

#include "base/mdlText.h"
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
a,b,c,d<>;1,1,1,1<>;00<>=0 3|a,b,c,d;1,1,1,1; 3 >=3 3|a,b,c,d;1,1,1,1;ERR,22<>=0 3|
a,b,c,d;1,1,1,1;4=-1 3|a,b,c,d;1,1,1,1;-1=-1 3|a,b,c,d;1,1,1,1;<>2=-1 3|
a,b,c,d;1,1,1,1;lost=-1 3|a,b,c,d;1,1,1<>=-1 2|a,b,c=-1 1|a,b,c,d,e=-1 1|lost=-1 1)",
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
  library().writeResults = {64, 65};
  library().reply("a,b,c,d");
  EXPECT_EQ(usbProbeModel(6), -1);
  EXPECT_EQ(transcript(), kQuestions.substr(0, 36));
}

TEST_F(ProbeTest, UpgradeMode) {
  // The reply and the result of the read. The two results, and the type that was read.
  expectAnswers(
      "ue,ue;80=0 -1 2|ERR,22;80=-1 -1 0|??ERR;80=-1 -1 0|;80=0 -1 2|;0=0 0 0|;-1005=0 0 0",
      [](const std::string& question) {
        const std::size_t end = question.find(';');
        const vktest::ScriptedLibrary::Reply reply{question.substr(0, end),
                                                   std::stoi(question.substr(end + 1))};
        library().replies = {reply, reply};
        int32_t type = 77;
        const int32_t probed = usbProbeUpgrade(5), upgraded = usbUpgradeMET(type);
        EXPECT_EQ(transcript(), "write(5,LST1)\nread(5)\nwrite(1,MET)\nread(1)\n");
        return textOf(probed) + " " + textOf(upgraded) + " " + textOf(type);
      });
  library().writeResults = {63, 63};
  int32_t type = 77;
  EXPECT_EQ(usbProbeUpgrade(5), 0);
  EXPECT_EQ(usbUpgradeMET(type), 0);
  EXPECT_EQ(transcript(), "write(5,LST1)\nwrite(1,MET)\n");
}

}  // namespace
}  // namespace vk
