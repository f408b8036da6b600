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
  // The texts of the instrument's errors carry their numbers.
  std::string carried;
  const auto plain = [&](int32_t number) {
    const auto text = vk::errorText(number);
    if (!text.ends_with("[ERROR-" + std::to_string(number) + "]")) return composed(number);
    carried += std::to_string(number) + " ";
    return text;
  };
  EXPECT_EQ(allTexts(vk::errorText, -1100, 1100, plain), kErrors);
  EXPECT_EQ(
      carried,
      "10 11 12 13 14 15 16 20 21 22 30 31 32 33 34 35 36 37 38 39 40 41 42 43 44 45 46 50 51 "
      "52 53 54 55 56 57 58 60 61 62 63 64 70 80 81 82 83 84 90 ");
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
