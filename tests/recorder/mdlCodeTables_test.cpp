// SPDX-License-Identifier: MIT
#include "recorder/mdlCodeTables.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "recorder/mdlModel.h"

namespace vk {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using Table = std::span<const std::string_view>;

TEST(CodeTables, SearchIsExactAndTakesTheFirstHit) {
  struct Row {
    Table table;
    const char* text;
    int32_t index, looked;  // the latter of a field that held 77
  };
  const Row rows[] = {{preAreaFile, "100%", 10, 10},  {preAreaName, "max", -1, 77},
                      {rangeName, "5000 ue", -1, 77}, {unitName, " ", 29, 29},
                      {rangeName, "", 24, 77},        {samplingCode, "005", -1, 77}};
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

/// An index in brackets, its spellings in a field each; "-" where a column has ended.
std::string rowsOf(const std::vector<Table>& columns) {
  std::size_t count = 0;
  for (const Table column : columns) count = std::max(count, column.size());
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    char mark = '[';
    for (const Table column : columns) {
      text += mark + std::string(i < column.size() ? column[i] : "-");
      mark = '|';
    }
    text += "]";
  }
  return text;
}

TEST(CodeTables, Spellings) {
  struct Row {
    std::vector<Table> columns;
    std::string spellings;  // line ends do not count
  };
  const Row rows[] = {
      {{chModeCode, chModeName, chModeFile}, "[1|1 Channel|1][2|2 Channel|2][4|4 Channel|4]"},
      {{rangeCode, rangeName, rangeName05, rangeFile, rangeCodeLow}, R"(
[01|     200 ue|     800 ue|200ue|][02|     500 ue|   2000 ue|500ue|]
[03|   1000 ue|   4000 ue|1000ue|][04|   2000 ue|   8000 ue|2000ue|]
[05|   5000 ue| 20000 ue|5000ue|05][06| 10000 ue| 40000 ue|10000ue|10]
[07| 20000 ue| 80000 ue|20000ue|20][08|30000 ue|120000 ue|30000ue|-]
[21|200.0 ue|800.0 ue|200.0ue|-][22|500.0 ue|2000.0 ue|500.0ue|-]
[23|1000.0 ue|4000.0 ue|1000.0ue|-][24|2000.0 ue|8000.0 ue|2000.0ue|-]
[11|    200 mV|    800 mV|200mV|-][12|    500 mV|   2000 mV|500mV|-]
[13|   1000 mV|   4000 mV|1000mV|-][14|   2000 mV|   8000 mV|2000mV|-]
[15|   5000 mV|  20000 mV|5000mV|-][16| 10000 mV| 40000 mV|10000mV|-]
[17| 20000 mV| 80000 mV|20000mV|-][18| 30000 mV|120000 mV|30000mV|-]
[31| 200.0 mV| 800.0 mV|200.0mV|-][32| 500.0 mV|2000.0 mV|500.0mV|-]
[33|1000.0 mV|4000.0 mV|1000.0mV|-][34|2000.0 mV|8000.0 mV|2000.0mV|-][||||-])"},
      {{carrierCode, carrierName, carrierFile}, "[0|OFF|OFF][1|0.5 V|0.5V][2|2.0 V|2.0V]"},
      {{filterCode, filterName, filterFile, filterCodeLow}, R"(
[01|  10 Hz|10Hz|][02|  30 Hz|30Hz|03][03|100 Hz|100Hz|10][04|300 Hz|300Hz|30][05|  1 kHz|1kHz|PS]
[06|  3 kHz|3kHz|-][07|10 kHz|10kHz|-][08|30kHz||-])"},
      {{trgModeCode, trgModeName, trgModeFile, trgSlopeCode, trgSlopeName, trgSlopeFile}, R"(
[S|SINGLE|SINGLE|U|UP|UP][C|CONTINUE|CONTINUE|D|DOWN|DOWN][F|FREE RUN|FREE RUN|U|OFF|OFF])"},
      {{samplingCode, samplingName, samplingFile, samplingHz, samplingFormat}, R"(
[005U|5 usec|5usec|200000|0.000000][010U|10 usec|10usec|100000|0.00000]
[020U|20 usec|20usec|50000|0.00000][050U|50 usec|50usec|20000|0.00000]
[100U|100 usec|100usec|10000|0.0000][200U|200 usec|200usec|5000|0.0000]
[500U|500 usec|500usec|2000|0.0000][001M|1 msec|1msec|1000|0.000][002M|2 msec|2msec|500|0.000]
[005M|5 msec|5msec|200|0.000][010M|10 msec|10msec|100|0.00][020M|20 msec|20msec|50|0.00]
[050M|50 msec|50msec|20|0.00][100M|100 msec|100msec|10|0.0][200M|200 msec|200msec|5|0.0]
[500M|500 msec|500msec|2|0.0][001S|1 sec|1sec|1|0])"},
      {{preAreaCode, preAreaName, preAreaFile}, R"(
[000|0 %|0%][010|10 %|10%][020|20 %|20%][030|30 %|30%][040|40 %|40%][050|50 %|50%][060|60 %|60%]
[070|70 %|70%][080|80 %|80%][090|90 %|90%][100|100(99) %|100%][100|Max|100%])"},
      {{onOffCode, onOffName, onOffFile}, "[0|ON|ON][1|OFF|OFF]"},
      {{dataSizeName, dataSizeFile, dataSizeCode}, R"(
[1K|1K|001K][2K|2K|002K][4K|4K|004K][8K|8K|008K][16K|16K|016K][32K|32K|032K][64K|64K|064K]
[128K|128K|128K][256K|256K|256K][512K|512K|512K][1M|1M|001M][2M|2M|002M][3M|3M|003M][4M|4M|004M]
[6M|6M|006M][8M|8M|008M][12M|12M|012M][16M|16M|016M][24M|24M|024M][32M|32M|032M][48M|48M|048M]
[60M|60M|060M][120M|120M|120M][240M|240M|240M])"},
      {{unitName}, R"(
[ue][mm][cm][m][C][F][deg][gf][kgf][tf][N][kN][MN][kg/mm2][kPa][MPa][kgm][mV][V][mA][A][ohm]
[Mohm][Hz][G][%][rpm][ppm][Tor][ ][Nm][###][kohm][m/S2][kg/cm2][hPa][u][N/mm2])"},
      {{masterSlaveName}, "[MASTER][SLAVE]"},
      {{modelName}, "[VK-240Q][VK-240Qe][VK-480Q][VK-480Qe]"},
      {{setFileLabel}, R"(
[Number of Channels :][Range :][Carrier :][Filter :][Balance :][Trigger Mode :][Trigger Slope :]
[Trigger Level :][Sampling :][Pre Area :][Data Size :][Unit :][Coeff :])"},
      {{headerKey}, R"(
[DATASET][VERSION][SERIES][DATE][TIME][RATE][VERT_UNITS][HORZ_UNITS][NUM_SERIES][STORAGE_MODE]
[FILE_TYPE][SLOPE][Y_OFFSET][X_OFFSET][NUM_SAMPS])"},
      {{decimalFormat}, "[0][0.0][0.00][0.000][0.0000][0.00000][0.000000]"},
      {{moniSpeedName}, R"(
[10msec][20msec][50msec][100msec][200msec][500msec][1sec][2sec][5sec][10sec][30sec][60sec])"},
      {{moniFullScale}, R"(
[0.1][0.2][0.5][1][2][5][10][20][50][100][200][500][1000][2000][5000][10000])"},
      {{meterFullScale}, R"(
[1][2][5][10][20][50][100][200][500][1000][2000][5000][10000][20000][50000][100000][300000]
[500000])"},
      {{meterOffset}, R"(
[-10000][-5000][-2000][-1000][-500][-200][-100][-50][-20][-10][-5][-2][-1][0][1][2][5][10][20]
[50][100][200][500][1000][2000][5000][10000])"},
  };
  for (const Row& row : rows) {
    std::string spellings = row.spellings;
    std::erase(spellings, '\n');
    EXPECT_EQ(rowsOf(row.columns), spellings);
  }
}

TEST(CodeTables, NumbersOfEachCondition) {
  EXPECT_THAT(chModeCount, ElementsAre(1, 2, 4));
  EXPECT_THAT(rangeOffered, ElementsAre(2, 3, 4, 5, 6, 10, 11));
  EXPECT_THAT(modelFamily(kVk240Q).rangesOffered, ElementsAre(4, 5, 6));
  EXPECT_THAT(samplingSec,
              ElementsAre(0.000005F, 0.00001F, 0.00002F, 0.00005F, 0.0001F, 0.0002F, 0.0005F,
                          0.001F, 0.002F, 0.005F, 0.01F, 0.02F, 0.05F, 0.1F, 0.2F, 0.5F, 1.0F));
  EXPECT_THAT(preAreaRatio, ElementsAre(0.0F, 0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.7F, 0.8F, 0.9F,
                                        0.99F, 0.99F));
  EXPECT_THAT(dataSizeSamples,
              ElementsAreArray({1024,     2048,     4096,     8192,     16384,     32768,
                                65536,    131072,   262144,   524288,   1048576,   2097152,
                                3145728,  4194304,  6291456,  8388608,  12582912,  16777216,
                                25165824, 33554432, 50331648, 62914560, 125829120, 251658240}));
}

}  // namespace
}  // namespace vk
