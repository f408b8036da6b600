// SPDX-License-Identifier: MIT
#include "conditions/mdlSendConditions.h"

#include "base/mdlText.h"
#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

class SendConditions : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(1, 3, 1000001);
    send = {1000001, {"c", "u", "k"}, 1, {}};
    send.balance[2] = 1;
  }
  ConditionsToSend send;
};

TEST_F(SendConditions, InOrderUpToTheFirstFailureOrStop) {
  // Number of good replies; "s" and the number of yields after which the view says stop.
  vktest::expectAnswers(
      R"(
9=SETc UNTu CEFk DMC1,0 DMC2,1 ok 25 50 75 100|0=SETc failed|1=SETc UNTu failed 25
|2=SETc UNTu CEFk failed 25 50|4=SETc UNTu CEFk DMC1,0 DMC2,1 failed 25 50 75
|s1=SETc failed 25|s2=SETc UNTu failed 25 50|s4=SETc UNTu CEFk DMC1,0 DMC2,1 failed 25 50 75 100)",
      [this](const std::string& question) {
        SetUp();
        const bool stops = question.front() == 's';
        int good = stops ? 9 : std::stoi(question);
        std::string sent, shown;
        library().answer = [&](int32_t handle, const std::string& request) {
          EXPECT_EQ(handle, 3);
          sent += request + " ";
          return vktest::ScriptedLibrary::Reply{good-- > 0 ? "END" : "ERR,20", 80};
        };
        int yields = 0;
        JobView view;
        view.progress = [&](double done) { shown += " " + textOf(roundWhole(done * 100)); };
        view.stopped = [&] { return stops && ++yields == std::stoi(question.substr(1)); };
        const bool done = sendConditions(send, view);
        return sent + (done ? "ok" : "failed") + shown;
      });
}

TEST_F(SendConditions, TheBalanceOfAStatus) {
  library().reply(std::string(24, ' ') + "10x1");
  gBoxTable[1].balance.fill(0);
  const auto balance = fetchBalance(gBoxTable[1]);
  ASSERT_TRUE(balance);
  std::string seen;
  for (std::size_t i = 1; i <= kChannels; ++i) {
    seen += std::to_string((*balance)[i]) + "/" + std::to_string(gBoxTable[1].balance[i]) + " ";
  }
  EXPECT_EQ(seen, "1/1 0/0 -1/0 1/1 ");
  library().fail(-1005);
  EXPECT_FALSE(fetchBalance(gBoxTable[1]));
}

}  // namespace
}  // namespace vk
