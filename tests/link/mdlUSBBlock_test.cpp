// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <sstream>
#include <vector>

#include "link/mdlConnection.h"
#include "tests/support/card_image.h"
#include "tests/support/link_fixture.h"
#include "tests/support/text_table.h"

namespace vk {
namespace {

using vktest::library;

constexpr int32_t kSerial = 1000001;

class BlockTest : public vktest::LinkTest {
 protected:
  void SetUp() override {
    LinkTest::SetUp();
    place(1, 2, kSerial);
  }
  static void serve(const std::string& image) {
    for (std::size_t i = 0; i < 32; ++i) library().block(image.substr(i * 512, 512));
  }
  static std::vector<std::string> partsOf(const std::string& question) {
    std::vector<std::string> parts(4);
    std::istringstream input(question);
    for (std::string& part : parts) std::getline(input, part, ';');
    return parts;
  }
  /// How often the read was tried, "none" when nothing was sent, and the text of the box.
  static std::string told(const std::string& request, const std::string& read) {
    EXPECT_EQ(gUSBBusy, 0);
    std::string text = library().takeTranscript();
    const bool sent = text.starts_with("write(2," + request + ")\n");
    if (sent) text.erase(0, request.size() + 10);
    int count = 0;
    for (; text.starts_with(read); ++count) text.erase(0, read.size());
    const std::string front = "busy box[USB Error][", back = "][ok][exclamation]\n";
    if (text.starts_with(front) && text.ends_with(back)) {
      text = text.substr(front.size(), text.size() - front.size() - back.size());
    }
    return (sent ? std::to_string(count) : "none") + " " + text;
  }
  static std::string reads(int count) {
    std::string text = "write(2,RTD)\n";
    for (int i = 0; i < count; ++i) text += "readB(2,512)\n";
    return text;
  }
};

TEST_F(BlockTest, DirectoryComesInThirtyTwoBlocksAndNoMoreFilesThanFit) {
  vktest::CardImage card;
  card.head().entry("WAVE    HED", 512);
  for (int i = 0; i < 255; ++i) card.entry("WAVE    DAT", 1, vktest::CardImage::date(2026, 1, 5));
  serve(card.whole());
  std::string progress, expected;
  const auto note = [&](double fraction) {
    progress += std::to_string(desk.yieldCount) + " " + std::to_string(fraction) + "\n";
  };
  EXPECT_EQ(usbRTD(kSerial, {{}, note, {}}), 0);
  for (int i = 0; i < 32; ++i) {
    expected += std::to_string(i) + " " + std::to_string(i / 31.0) + "\n";
  }
  EXPECT_EQ(progress, expected);
  serve(card.entry("WAVE    DAT", 1).whole());
  EXPECT_EQ(usbRTD(kSerial), kDirectoryOverrun);
  EXPECT_EQ(library().takeTranscript(), reads(32) + reads(32));
  ASSERT_EQ(gCardDirectory.size(), 255U);
  EXPECT_EQ(gCardDirectory[254].text, "WAVE.DAT,1,2026/01/05 00:00:00,00512");
  EXPECT_EQ(gUSBBusy, 0);
}

TEST_F(BlockTest, DirectoryFailures) {
  // The result of the write, the good blocks, the result and the text of the last one.
  vktest::expectAnswers(R"(
-1007;0;0;=-1007 0 Failed in writing ASCII Data.|65;0;0;=65 0 Error has occurred.ERROR - 65|
64;0;-1006;=-1006 1 Failed in reading Binary Data.|64;7;0;=0 8 Error has occurred.ERROR - 0|

64;0;512;ERR,43=43 1 Route directory breaks.[ERROR-43]|
64;4;64;ERR,50=50 5 CF card is not inserted.[ERROR-50]|
64;0;3;ERR=100 1 Unexpected communication error has occurred.)",
                        [](const std::string& question) {
                          const auto part = partsOf(question);
                          library() = {};
                          gCardDirectory = {{"of another card", 1, 1}};
                          library().writeResults = {std::stoi(part[0])};
                          for (int i = 0; i < std::stoi(part[1]); ++i) {
                            library().block(std::string(512, 'x'));
                          }
                          library().blocks.push_back({part[3], std::stoi(part[2])});
                          const int32_t result = usbRTD(kSerial);
                          EXPECT_TRUE(gCardDirectory.empty());
                          return std::to_string(result) + " " + told("RTD", "readB(2,512)\n");
                        });
}

TEST_F(BlockTest, AStoppedDirectoryReadingStillReadsAllBlocksUnlessTheProgramEnds) {
  serve(vktest::CardImage{}.whole());
  bool stop = false;
  desk.yields = {[&] { stop = true; }, [&] { stop = pollStatus(); }};
  EXPECT_EQ(usbRTD(kSerial, {{}, {}, [&] { return stop; }}), kUsbNoReply);
  EXPECT_EQ(library().takeTranscript(), reads(32));
  serve(vktest::CardImage{}.whole());
  desk.yields = {[] {}, [this] { desk.endProgram(); }};
  EXPECT_EQ(usbRTD(kSerial), kUsbNoReply);
  EXPECT_EQ(library().takeTranscript(), reads(2));
}

TEST_F(BlockTest, HeaderText) {
  // The size, the result of the write, of the read and its text ("h": as long as it says). The
  // result, the length of the text and its last character, and the reads with the box.
  vktest::expectAnswers(R"(
250;64;256;h=0 251h 1 |256;64;256;h=0 257. 1 |257;64;320;h=0 258h 1 |130;64;3;h=0 131. 1 |
1;64;64;h=0 2h 1 |0;64;0;=0 0 1 Error has occurred.ERROR - 0|
300;64;64;ERR,51=51 0 1 CF card Read Error[ERROR-51]|
300;64;64;ERR,x=100 0 1 Unexpected communication error has occurred.|
300;63;0;=63 0 0 Speed check of the CF card is not executed.[ERROR-63]|
-1;64;0;=100 0 none Unexpected communication error has occurred.|2147483647;64;0;=100 0 none Unexpected communication error has occurred.)",
                        [](const std::string& question) {
                          const auto part = partsOf(question);
                          const int32_t size = std::stoi(part[0]), count = std::stoi(part[2]);
                          library() = {};
                          library().writeResults = {std::stoi(part[1])};
                          const std::string full(static_cast<std::size_t>(std::max(count, 0)), 'h');
                          library().blocks = {{part[3] == "h" ? full : part[3], count}};
                          std::string text = "header of another file";
                          const int32_t result = usbHFL(kSerial, "WAVE.HED", size, text);
                          std::string seen = std::to_string(text.size());
                          if (!text.empty()) seen += text.back() == '\0' ? '.' : text.back();
                          const int64_t read = (int64_t{size} + 63) / 64 * 64;
                          return std::to_string(result) + " " + seen + " " +
                                 told("HFLWAVE.HED", "readB(2," + std::to_string(read) + ")\n");
                        });
}

TEST_F(BlockTest, DataFileIsAskedForAndPulledByTheCaller) {
  std::array<char, 128> buffer{};
  EXPECT_EQ(usbDAT(kSerial, "WAVE.DAT"), 0);
  library().blocks = {{"abc", 128}, {"", 0}};
  EXPECT_EQ(usbReadBlock(kSerial, buffer.data(), 128), 128);
  EXPECT_EQ(std::string(buffer.data()), "abc");
  EXPECT_EQ(usbReadBlock(kSerial, buffer.data(), 64), 0);
  library().writeResults = {-1007};
  EXPECT_EQ(usbDAT(kSerial, "WAVE.DAT"), -1007);
  EXPECT_EQ(library().takeTranscript(),
            "write(2,DATWAVE.DAT)\nreadB(2,128)\nreadB(2,64)\nwrite(2,DATWAVE.DAT)\n"
            "busy box[USB Error][Failed in writing ASCII Data.][ok][exclamation]\n");
  EXPECT_EQ(gUSBBusy, 0);
}

}  // namespace
}  // namespace vk
