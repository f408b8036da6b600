// SPDX-License-Identifier: MIT
#include "storage/mdlCsvText.h"

#include <gtest/gtest.h>

#include "base/mdlText.h"
#include "tests/support/text_table.h"

namespace {

vk::HeaderRecord header(const std::string& rate, const std::string& slope = "0.5,2") {
  vk::HeaderRecord record;
  record.field = {"REC1", "1", "CH1,CH2", "01-05-2026", "09:30:00", rate,  "ue,V", "SEC",
                  "2",    "I", "J",       slope,        "7,8",      "9,9", "1024"};
  return record;
}

TEST(CsvText, TimesHaveTheFormatOfTheirRate) {
  // The rates at the end stand in general form.
  vktest::expectAnswers(
      "10=0.0sec - 102.3sec|20=0.00sec - 51.15sec|50=0.00sec - 20.46sec|100=0.00sec - 10.23sec|"
      "200=0.000sec - 5.115sec|500=0.000sec - 2.046sec|1000=0.000sec - 1.023sec|"
      "2000=0.0000sec - 0.5115sec|5000=0.0000sec - 0.2046sec|10000=0.0000sec - 0.1023sec|"
      "20000=0.00000sec - 0.05115sec|1=0sec - 1023sec|2=0sec - 511.5sec|5=0sec - 204.6sec|"
      "50000=0sec - 0.02046sec|100000=0sec - 0.01023sec|200000=0sec - 0.005115sec",
      [](const std::string& rate) { return vk::csvTimeLine(0, 1023, std::stoi(rate)).substr(9); });
}

TEST(CsvText, HeadsAndNamesOfTheFiles) {
  const auto part = vk::csvPartHeader(header("1000"), vk::csvFileName("A.B", 12), 0);
  EXPECT_EQ(vk::csvHead(part, 5000, 4999),
            "CSV Data,5.000sec - 4.999sec\r\nDATASET,A.B_0012\r\nVERSION,1\r\nSERIES,CH1,CH2\r\n"
            "DATE,01-05-2026\r\nTIME,09:30:00\r\nRATE,1000\r\nVERT_UNITS,ue,V\r\nHORZ_UNITS,SEC\r\n"
            "NUM_SERIES,2\r\nSTORAGE_MODE,I\r\nFILE_TYPE,J\r\nSLOPE,0.5,2\r\nX_OFFSET,9,9\r\n"
            "Y_OFFSET,7,8\r\nNUM_SAMPS,0\r\n,CH1,CH2\r\n");
  EXPECT_EQ(vk::csvFileName("A", 0) + vk::csvFileName("A", 12345), "A.csvA_12345.csv");
  for (const char* rate : {"0", "x"})
    EXPECT_THROW(vk::csvHead(header(rate), 0, 1), vk::TypeMismatch);
  // No other item stands in for a missing one.
  for (const char* slope : {"0.5", "0.5,", "0.5,x"})
    EXPECT_THROW(vk::slopesOf(header("1", slope)), vk::TypeMismatch);
}

TEST(CsvText, EveryRawValueHasItsExactText) {
  const std::vector<float> slopes = {0.5F, 0.0305185F, 1000, 3e-9F, 1e34F, 0.5F};
  for (const bool scaled : {true, false}) {
    vk::CsvLines lines(slopes, scaled);
    std::string frames, expected;
    constexpr std::size_t kCount = 65536 + 100;
    for (std::size_t i = 0; i < kCount; ++i) {
      const auto raw = static_cast<int16_t>(i);
      expected += std::to_string(i + 1);
      for (const float slope : slopes) {
        frames += {static_cast<char>(raw), static_cast<char>(raw >> 8)};
        expected += "," + (scaled ? vk::textOf(raw * slope) : std::to_string(raw));
      }
      expected += "\r\n";
    }
    // In pieces, which end where the room does.
    std::string text(expected.size() + lines.lineRoom(), '~');
    const auto* bytes = reinterpret_cast<const unsigned char*>(frames.data());
    const auto first = lines.write(text.data(), text.data() + 1000, bytes, kCount);
    EXPECT_LT(first.lines, 100U);
    const auto rest = lines.write(first.end, text.data() + text.size(),
                                  bytes + first.lines * slopes.size() * 2, kCount - first.lines);
    EXPECT_EQ(first.lines + rest.lines, kCount);
    text.resize(static_cast<std::size_t>(rest.end - text.data()));
    EXPECT_TRUE(text == expected) << scaled;
    lines.restart();
    lines.write(text.data(), text.data() + 1, bytes, 1);
    EXPECT_EQ(text.substr(0, 4), "1,0,");
  }
  EXPECT_EQ(vk::textOf(30000.0F * 1000), "3E+07");
}

TEST(CsvText, TheLongestValueFitsAndAnInfiniteOneIsRefused) {
  const auto line = [](float slope, unsigned char raw) {
    vk::CsvLines lines(std::vector<float>{slope}, true);
    const unsigned char frame[] = {raw, 0};
    std::string text(lines.lineRoom(), '~');
    char* const end = lines.write(text.data(), text.data() + 1, frame, 1).end;
    return text.substr(0, static_cast<std::size_t>(end - text.data()));
  };
  EXPECT_EQ(line(-1.234567E-5F, 1), "1,-0.00001234567\r\n");
  EXPECT_EQ(line(3E38F, 1), "1,3E+38\r\n");
  EXPECT_THROW(line(3E38F, 2), vk::TypeMismatch);
}

}  // namespace
