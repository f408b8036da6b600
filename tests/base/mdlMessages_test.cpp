// SPDX-License-Identifier: MIT
// Every function is asked for every number of a range; what has a text of its own is compared as
// one whole.
#include "base/mdlMessages.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr const char* kErrors =
    "-1012 VK-480Q has already been closed.|-1011 VK-480Q has already been opened.|"
    "-1010 Inside communication Error|-1009 Inside communication Error|"
    "-1008 Failed in writing Binary Data.|-1007 Failed in writing ASCII Data.|"
    "-1006 Failed in reading Binary Data.|-1005 Failed in reading ASCII Data.|"
    "-1004 Failed in opening VK-480Q.|-1003 Pipe reset error has occurred.|"
    "-1002 USB driver isn't effective or is not Loaded.|-1001 VK-480Q is not connected.|"
    "1 Waiting|2 Waiting for Trigger |3 Recording|4 Writing in file|"
    "5 There is no rest capacity of the CF card.|"
    "10 Cannot be carried out during measurement.[ERROR-10]|"
    "11 Can be carried out only during measurement.[ERROR-11]|"
    "12 Cannot be carried out under slave condition.[ERROR-12]|"
    "13 Measurement start cannot be carried out.[ERROR-13]|"
    "14 Measurement stop cannot be carried out.[ERROR-14]|"
    "15 It can be carried out only during trigger detection.[ERROR-15]|"
    "16 Cannot carried out Manual Trigger for some reasons.[ERROR-16]|"
    "20 Parameter Error[ERROR-20]|21 RAM DATA Error[ERROR-21]|22 COMMAND Error[ERROR-22]|"
    "30 EEPROM Program Write Error[ERROR-30]|31 S-EEPROM Program Write Error[ERROR-31]|"
    "32 ROM Check Error[ERROR-32]|33 RAM Hardware Error[ERROR-33]|"
    "34 CPU RAM Building in Hardware Error[ERROR-34]|"
    "35 EEPROM Writing SAM Check Error[ERROR-35]|"
    "36 EEPROM Writing Check Table Error[ERROR-36]|"
    "37 EEPROM Writing Protection Release Error[ERROR-37]|38 EEPROM rewrite Error[ERROR-38]|"
    "39 EEPROM Writing Protection Setting Error[ERROR-39]|40 AMP Setting Error[ERROR-40]|"
    "41 Monitor Timeout Error[ERROR-41]|42 Balance Error[ERROR-42]|"
    "43 Route directory breaks.[ERROR-43]|44 Error occurred during the open check.[ERROR-44]|"
    "45 Channel Shift Error[ERROR-45]|46 Power supply voltage drops.[ERROR-46]|"
    "50 CF card is not inserted.[ERROR-50]|51 CF card Read Error[ERROR-51]|"
    "52 FAT Table Error[ERROR-52]|"
    "53 Cannot be carried out if a CF card is not in clear condition.[ERROR-53]|"
    "54 CF card Error[ERROR-54]|"
    "55 A different CF card from when not in clear condition is inserted.[ERROR-55]|"
    "56 CF card capacity is short.[ERROR-56]|57 CF card Read/Write Error[ERROR-57]|"
    "58 This CF-Card can't be used.[ERROR-58]|"
    "60 Compact flash card is not enough for the capacity.[ERROR-60]|"
    "61 VK-480Q Setting Error[ERROR-61]|62 VK-480Q RAM Error[ERROR-62]|"
    "63 Speed check of the CF card is not executed.[ERROR-63]|"
    "64 Writing speed of the CF card is not sufficient.[ERROR-64]|"
    "70 USB Output Timeout Error[ERROR-70]|80 Stable period of Master-Slave[ERROR-80]|"
    "81 Master-Slave synchronous Error[ERROR-81]|"
    "82 The setting of Master-Slave is different.[ERROR-82]|"
    "83 VK-9480's version is old.Cannot be carried out.[ERROR-83]|"
    "84 VK-480's version is old.Cannot be carried out.[ERROR-84]|"
    "90 Cannot be carried out during Panel-Balance.[ERROR-90]|"
    "100 Unexpected communication error has occurred.|";

/// "number text|" of each number from first to last whose text is not the given one.
template <typename Other>
std::string allTexts(std::string (*textOf)(int32_t), int32_t first, int32_t last, Other other) {
  std::string all;
  for (int32_t number = first; number <= last; ++number) {
    const auto text = textOf(number);
    if (text != other(number)) all += std::to_string(number) + " " + text + "|";
  }
  return all;
}

TEST(ErrorText, KnownNumbersAndTheComposedText) {
  const auto composed = [](int32_t number) {
    return "Error has occurred.ERROR - " + std::to_string(number);
  };
  EXPECT_EQ(allTexts(vk::errorText, -1100, 1100, composed), kErrors);
  EXPECT_EQ(vk::errorText(INT32_MIN), composed(INT32_MIN));
}

TEST(LoadResString, RowsOutsideTheTableAreEmpty) {
  EXPECT_EQ(vk::gResOffset, 5000);
  for (const int32_t number : {0, 330, 5329, 5331, 5800, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(vk::LoadResString(number), "") << number;
  }
  EXPECT_EQ(vk::LoadResString(5558),
            "**** Rewriting the contents of cfg file may not get operation properly. ****");
  EXPECT_EQ(vk::LoadResString(5559),
            "**** Do not rewrite.                                                    ****");
}

TEST(FileTexts, KnownNumbersAndAnyOther) {
  EXPECT_EQ(allTexts(vk::fileErrorText, -10, 200, [](int) { return "Error has occurred."; }),
            "7 Out of memory.|52 Invalid file name.|53 File does not exist.|55 Already open file|"
            "67 There are too many files inside chosen folder.|"
            "70 The file is write-protected or already used. |");
  EXPECT_EQ(allTexts(vk::dataFileErrorText, -10, 200, [](int) { return ""; }),
            "1 Header File Size Error|2 The contents of header file are not right.|"
            "3 Cannot read Data file.|4 Memory is short.|5 Folder does not exist.|"
            "21 Header File Error|23 Data File Error|24 Memory Error|25 File Error|");
  EXPECT_EQ(allTexts(vk::fileDialogText, -10, 200, [](int) { return ""; }),
            "1 Read File|11 Saving Binary File.|12 DAT File (*.dat)|*.dat|All Files(*.*)|*.*||"
            "13 Saving CSV File.|14 CSV File (*csv)|*.csv|All Files(*.*)|*.*||15 Saveig File|"
            "16 Setting File (*.set)|*.set|All Files(*.*)|*.*||17 Program File (*.prg)|*.prg||"
            "20 All Files (*.*)|*.*|");
}

}  // namespace
