// SPDX-License-Identifier: MIT
#include "maintenance/mdlDateTime.h"

#include <sstream>

#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::expectAnswers;
using vktest::library;

class DateTimeTest : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(1, 1, 4810021);
  }
  /// Six texts with a slash between them.
  static DateTexts boxes(const std::string& text) {
    DateTexts texts;
    std::istringstream input(text);
    for (auto& item : texts) std::getline(input, item, '/');
    return texts;
  }
};

TEST_F(DateTimeTest, EnterChecksOneBox) {
  // Box, then the six texts.
  expectAnswers(
      "0 1999/=outside|0 2000/=ok|0 2099/=ok|0 2100/=outside|0 26/=outside|0 x/=invalid|"
      "1 /0=outside|1 /1=ok|1 /07=ok|1 / 12 =ok|1 /13=outside|1 /=invalid|"
      "2 2026/1/31=ok|2 2026/1/32=outside|2 2026/4/30=ok|2 2026/4/31=outside|2 2026/12/0=ok|"
      "2 2026/6/-1=outside|2 2026/3/x=invalid|2 2026/13/99=ok|2 2026/x/99=ok|2 2026//x=ok|"
      "2 2026/11/31=outside|2 2026/8/31=ok|2 2026/9/31=outside|"
      "2 2016/2/29=ok|2 2016/2/30=outside|2 2004/2/29=ok|2 2008/2/29=ok|2 2012/2/29=ok|"
      "2 2000/2/29=outside|2 2020/2/29=outside|2 2024/2/29=outside|2 2024/2/28=ok|"
      "2 x/2/29=outside|2 x/2/28=ok|"
      "3 ///-1=outside|3 ///0=ok|3 ///23=ok|3 ///24=outside|"
      "4 ////0=ok|4 ////59=ok|4 ////60=outside|4 ////59.5=outside|4 ////5.5=ok|"
      "5 /////59=ok|5 /////60=outside|5 /////99999999999=outside|5 /////0x1=invalid",
      [](const std::string& question) -> std::string {
        if (acceptDateBox(boxes(question.substr(2)), question[0] - '0')) return "ok";
        const std::string shown = library().takeTranscript();
        if (shown == "idle box[Input Error][Invalid　value][ok][exclamation]\n") return "invalid";
        return shown == "idle box[Input Error][Outside value][ok][exclamation]\n" ? "outside"
                                                                                  : shown;
      });
}

TEST_F(DateTimeTest, SetSendsTheNumbersAsTheyStand) {
  EXPECT_EQ(dateTexts({2026, 1, 5, 9, 30, 0}), boxes("2026/1/5/9/30/0"));
  // Nothing is checked but that they are numbers.
  expectAnswers(
      "2026/07/05/09/30/00=RTM26/7/5/9:30:0|2005/12/31/23/59/59=RTM5/12/31/23:59:59|"
      "2024/2/29/0/0/0=RTM24/2/29/0:0:0|1900/13/99/-1/60/1,000=RTM0/13/99/-1:60:1000|"
      "2026/x/1/1/1/=bad 1][Invalid　value|2026/1/1/1/1/=bad 5][Invalid　value|"
      "2026/1/1/99999999999/1/1=bad 3][Outside value",
      [](const std::string& question) -> std::string {
        library() = {};
        library().reply("END");
        const DateSent sent = sendDate(4810021, boxes(question));
        const std::string seen = library().takeTranscript();
        const auto from = seen.find(sent.badBox ? "][" : "RTM"),
                   to = seen.find_first_of("])", from + 2);
        const auto cut = seen.substr(from, to - from);
        return sent.badBox ? "bad " + std::to_string(*sent.badBox) + cut : cut;
      });
}

}  // namespace
}  // namespace vk
