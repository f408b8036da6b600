// SPDX-License-Identifier: MIT
#include "recorder/mdlCodeTables.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "base/mdlText.h"
#include "recorder/mdlModel.h"

namespace vk {
namespace {

using Table = std::span<const std::string_view>;

/// The number a name begins with.
int32_t numberOf(std::string_view name) {
  return std::atoi(std::string(name).c_str());
}

TEST(CodeTables, SearchIsExactAndTakesTheFirstHit) {
  struct Row {
    Table table;
    const char* text;
    int32_t index, looked;  // the latter of a field that held 77
  };
  const Row rows[] = {{preAreaFile, "100%", 10, 10},
                      {preAreaName, "max", -1, 77},
                      {unitName, " ", 29, 29},
                      {rangeName, "", 24, 77}};
  for (const Row& row : rows) {
    EXPECT_EQ(findIndex(row.table, row.text), row.index) << row.text;
    int16_t field = 77;
    lookup(row.table, row.text, field);
    EXPECT_EQ(field, row.looked) << row.text;
  }
  EXPECT_EQ(textAt(chModeName, 2), "4 Channel");
  EXPECT_EQ(textAt(chModeName, 3), "");
  EXPECT_EQ(textAt(chModeName, -1), "");
}

TEST(CodeTables, WordsThatFollowNoRule) {
  const Table tables[] = {
      chModeCode,     chModeName,    rangeCode,   rangeCodeLow,    rangeName,     carrierName,
      filterName,     filterCodeLow, trgModeCode, trgModeName,     trgSlopeCode,  trgSlopeName,
      onOffName,      unitName,      modelName,   masterSlaveName, moniSpeedName, moniFullScale,
      meterFullScale, meterOffset,   dataSizeName};
  std::string expected = R"(
[1|2|4][1 Channel|2 Channel|4 Channel]
[01|02|03|04|05|06|07|08|21|22|23|24|11|12|13|14|15|16|17|18|31|32|33|34|][||||05|10|20]
[     200 ue|     500 ue|   1000 ue|   2000 ue|   5000 ue| 10000 ue| 20000 ue|30000 ue|200.0 ue
|500.0 ue|1000.0 ue|2000.0 ue|    200 mV|    500 mV|   1000 mV|   2000 mV|   5000 mV| 10000 mV
| 20000 mV| 30000 mV| 200.0 mV| 500.0 mV|1000.0 mV|2000.0 mV|][OFF|0.5 V|2.0 V]
[  10 Hz|  30 Hz|100 Hz|300 Hz|  1 kHz|  3 kHz|10 kHz|30kHz][|03|10|30|PS][S|C|F]
[SINGLE|CONTINUE|FREE RUN][U|D|U][UP|DOWN|OFF][ON|OFF]
[ue|mm|cm|m|C|F|deg|gf|kgf|tf|N|kN|MN|kg/mm2|kPa|MPa|kgm|mV|V|mA|A|ohm|Mohm|Hz|G|%|rpm|ppm|Tor
| |Nm|###|kohm|m/S2|kg/cm2|hPa|u|N/mm2][VK-240Q|VK-240Qe|VK-480Q|VK-480Qe][MASTER|SLAVE]
[10msec|20msec|50msec|100msec|200msec|500msec|1sec|2sec|5sec|10sec|30sec|60sec]
[0.1|0.2|0.5|1|2|5|10|20|50|100|200|500|1000|2000|5000|10000]
[1|2|5|10|20|50|100|200|500|1000|2000|5000|10000|20000|50000|100000|300000|500000]
[-10000|-5000|-2000|-1000|-500|-200|-100|-50|-20|-10|-5|-2|-1|0|1|2|5|10|20|50|100|200|500|1000
|2000|5000|10000][1K|2K|4K|8K|16K|32K|64K|128K|256K|512K|1M|2M|3M|4M|6M|8M|12M|16M|24M|32M|48M
|60M|120M|240M])";
  std::erase(expected, '\n');
  std::string words;
  for (const Table table : tables) words += fmt::format("[{}]", fmt::join(table, "|"));
  EXPECT_EQ(words, expected);
}

TEST(CodeTables, FileWordsAreNamesWithoutBlanks) {
  const std::pair<Table, Table> rows[] = {
      {rangeName, rangeFile},     {carrierName, carrierFile},   {filterName, filterFile},
      {trgModeName, trgModeFile}, {trgSlopeName, trgSlopeFile}, {samplingName, samplingFile},
      {preAreaName, preAreaFile}, {onOffName, onOffFile},       {dataSizeName, dataSizeFile},
      {chModeCode, chModeFile}};
  for (const auto& [names, files] : rows) {
    ASSERT_EQ(names.size(), files.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
      std::string word(names[i]);
      if (word != "FREE RUN") std::erase(word, ' ');
      if (word == "30kHz") word = "";
      if (word == "100(99)%" || word == "Max") word = "100%";
      EXPECT_EQ(files[i], word);
    }
  }
}

TEST(CodeTables, SamplingsByTheirSecondsAndRangesByTheirExcitation) {
  const double steps[] = {5, 10, 20};
  for (std::size_t i = 0; i < kSamplings; ++i) {
    const double seconds = steps[i % 3] * std::pow(10.0, static_cast<double>(i / 3) - 6);
    const int32_t decimals = i == 0 ? 6 : 5 - (static_cast<int32_t>(i) - 1) / 3;
    const int32_t scale = i < 7 ? 6 : i < 16 ? 3 : 0;
    const auto number = static_cast<int32_t>(std::lround(seconds * std::pow(10.0, scale)));
    const char* const unit = scale == 6 ? "usec" : scale == 3 ? "msec" : "sec";
    EXPECT_FLOAT_EQ(samplingSec[i], static_cast<float>(seconds));
    EXPECT_EQ(numberOf(samplingHz[i]), std::lround(1 / seconds));
    EXPECT_EQ(samplingFormat[i], decimalFormat[static_cast<std::size_t>(decimals)]);
    EXPECT_EQ(samplingName[i], fmt::format("{} {}", number, unit));
    EXPECT_EQ(samplingCode[i], fmt::format("{:03}{}", number, "SMU"[scale / 3]));
  }
  for (std::size_t i = 0; i < decimalFormat.size(); ++i)
    EXPECT_EQ(decimalFormat[i], (i == 0 ? "0" : "0.") + std::string(i, '0'));
  for (std::size_t i = 0; i < rangeName.size(); ++i) {
    EXPECT_EQ(numberOf(rangeName05[i]), 4 * numberOf(rangeName[i]));
    EXPECT_EQ(right(rangeName05[i], 3), right(rangeName[i], 3));
  }
}

TEST(CodeTables, PreAreasAndDataSizesByTheirNumbers) {
  for (std::size_t i = 0; i < preAreaName.size(); ++i) {
    const auto percent = static_cast<int32_t>(std::min<std::size_t>(i, 10) * 10);
    EXPECT_EQ(preAreaCode[i], fmt::format("{:03}", percent));
    EXPECT_EQ(preAreaRatio[i], percent == 100 ? 0.99F : static_cast<float>(percent) / 100.0F);
    EXPECT_EQ(preAreaName[i], i == kPreAreaFull  ? "100(99) %"
                              : i == kPreAreaMax ? "Max"
                                                 : fmt::format("{} %", percent));
  }
  for (std::size_t i = 0; i < kDataSizes; ++i) {
    EXPECT_EQ(dataSizeCode[i], fmt::format("{:0>4}", dataSizeName[i]));
    const int32_t unit = dataSizeName[i].back() == 'K' ? 1 << 10 : 1 << 20;
    EXPECT_EQ(dataSizeSamples[i], numberOf(dataSizeName[i]) * unit);
  }
  EXPECT_EQ(fmt::format("{} {} {}", fmt::join(chModeCount, ","), fmt::join(rangeOffered, ","),
                        fmt::join(modelFamily(kVk240Q).rangesOffered, ",")),
            "1,2,4 2,3,4,5,6,10,11 4,5,6");
}

}  // namespace
}  // namespace vk
