// SPDX-License-Identifier: MIT
#include "conditions/mdlConditionList.h"

#include <algorithm>
#include <map>
#include <string>

#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

constexpr int32_t kSerial = 4810021;

class ConditionListTest : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(2, 3, kSerial);
    gBoxTable[2].model = kVk480Qe;
    replies = {{"LST0", "40505050507070707CUDUU+010N000P105M105200U100256K2212\r\n"},
               {"LST1", "ue,, ,kN\r\n"},
               {"LST2", "1.000000,-2.5,3,0.000010\r\n"},
               {"STA20", "02 26/01/05 09:30:00 01 0110 4810021 1.23 4.56\r\n"},
               {"FLN", "002,100\r\n"}};
    library().answer = [this](int32_t, const std::string& request) {
      const std::string& reply = replies[request];
      return reply.starts_with("-") ? vktest::ScriptedLibrary::Reply{"", std::stoi(reply)}
                                    : vktest::ScriptedLibrary::Reply{reply, 80};
    };
  }
  static std::string listed() {
    std::string text = "\n";
    for (const auto& line : fillConditionList(kSerial)) {
      text += line.caption + "=" + line.value + ";\n";
    }
    return text;
  }
  static std::string valueOf(const std::string& caption) {
    for (const auto& line : fillConditionList(kSerial)) {
      if (line.caption == caption) return line.value;
    }
    return "no line";
  }

  std::map<std::string, std::string> replies;
};

TEST_F(ConditionListTest, ABoxOfTheLaterFamily) {
  EXPECT_EQ(listed(), R"(
Model=VK-480Qe;
Serial No.=4810021;
Channel Mode=4 Channel;
Range=    5000 ue,    5000 ue,  20000 ue,    5000 ue;
Excitation= 2.0 V, 2.0 V, 0.5 V, 2.0 V;
Filter= 10 kHz, 10 kHz, 10 kHz, 10 kHz;
Trigger Mode=CONTINUE;
Trigger Slope= UP, OFF, UP, UP;
Trigger Level= +10 %, ---, +10.5 %, 10.5 %;
Sampling=200 usec;
Data Size=256K;
PreArea=100(99) %;
Unit= ue, ,  , kN;
Coefficient= 1.000000, -2.5, 3, 0.000010;
Date/Time=2026/01/05 09:30:00;
Master/Slave=Slave;
Balance= ON, OFF, OFF, ON;
BOOT ROM Version=1.23;
MAIN ROM Version=4.56;
Mes_File/Res_File=002/100;
VK-480Q Information=Waiting for Trigger ;
)");
  EXPECT_EQ(library().takeTranscript(),
            "write(3,LST0)\nread(3)\nwrite(3,LST1)\nread(3)\nwrite(3,LST2)\nread(3)\n"
            "write(3,STA20)\nread(3)\nwrite(3,FLN)\nread(3)\n");
}

TEST_F(ConditionListTest, ABoxOfTheEarlierFamily) {
  gBoxTable[2].model = kVk240Q;
  replies["LST0"] = "205102099PS031030SDDDD-020+100+010N000001S010240M";
  const std::string text = listed();
  EXPECT_EQ(text.substr(0, text.find("Unit")), R"(
Model=VK-240Q;
Serial No.=4810021;
Channel Mode=2 Channel;
Range=  5000 ue, 10000 ue, 20000 ue, ;
Excitation=2.0V, 2.0V, 2.0V, 2.0V;
Filter=  PASS,  30 Hz,  100 Hz,  300 Hz;
Trigger Mode=SINGLE;
Trigger Slope= DOWN, DOWN, DOWN, OFF;
Trigger Level= -20 %, +100 %, +10 %, ---;
Sampling=1 sec;
Data Size=240M;
PreArea=10 %;
)");
}

TEST_F(ConditionListTest, LevelFields) {
  vktest::expectAnswers(
      "N000=---|+010=+10 %|-020=-20 %|-000=0 %|P105=+10.5 %|P004=+0.4 %|"
      "M105=10.5 %|M004=0.4 %|P-00=+0.0 %|Pxyz=|+1x0=|    =|U010=",
      [this](const std::string& field) {
        replies["LST0"].replace(22, 4, field);
        const std::string value = valueOf("Trigger Level");
        EXPECT_TRUE(value.ends_with(", ---, +10.5 %, 10.5 %")) << value;
        return value.substr(1, value.find(',') - 1);
      });
}

TEST_F(ConditionListTest, EachFailedExchangeIsALine) {
  const std::tuple<const char*, const char*, int, bool> rows[] = {
      {"LST0", "Channel Mode=USB ERROR (MEASURE SETTING);\n", 12, true},
      {"LST1", "Unit=USB ERROR (UNIT SETTING);\n", 21, true},
      {"LST2", "Coefficient=USB ERROR (COEFF SETTING);\n", 21, true},
      {"STA20", "Date/Time=USB ERROR (STATUS);\n", 16, false},
      {"FLN", "Mes_File/Res_File=USB ERROR (FILE);\n", 21, false}};
  for (const auto& [request, line, lines, box] : rows) {
    SetUp();
    replies[request] = "-1005";
    const std::string text = listed();
    EXPECT_NE(text.find(line), std::string::npos) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), lines + 1) << request;
    EXPECT_EQ(library().takeTranscript().find("box[USB Error]") != std::string::npos, box);
  }
}

TEST_F(ConditionListTest, CardReplies) {
  vktest::expectAnswers(
      "002,100=002/100|ERR,50=CF card not inserted.|ERR,51=USB ERROR (FILE)|"
      "-1007=USB ERROR (FILE)|002100=USB ERROR (FILE)|1,2\r\n=1,2/",
      [this](std::string reply) {
        replies["FLN"] = std::move(reply);
        EXPECT_EQ(valueOf("Date/Time"), "2026/01/05 09:30:00");
        return valueOf("Mes_File/Res_File");
      });
}

// Both columns stay side by side whatever the box answers.
TEST_F(ConditionListTest, AnErrorOrShortReplyNeverBreaksTheLines) {
  for (const char* reply : {"ERR,22\r\n", "", "4\r\n", "02 26/01\r\n09:30:00", "\r\n,\n,\r,"}) {
    for (auto& [request, text] : replies) {
      if (request != "FLN") text = reply;
    }
    const auto list = fillConditionList(kSerial);
    EXPECT_EQ(list.size(), 21U);
    EXPECT_EQ(valueColumn(list).find('\r'), std::string::npos);
    for (const std::string& column : {captionColumn(list), valueColumn(list)}) {
      EXPECT_EQ(std::count(column.begin(), column.end(), '\n'), 20) << column;
    }
  }
  EXPECT_EQ(valueOf("VK-480Q Information"), "Error has occurred.ERROR - 0");
}

}  // namespace
}  // namespace vk
