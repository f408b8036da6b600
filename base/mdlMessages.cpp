// SPDX-License-Identifier: MIT
#include "base/mdlMessages.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>

namespace vk {

int32_t gResOffset = 5000;

namespace {

struct StringRow {
  int32_t number;  // of the English half; the other half is never shown
  std::string_view text;
};

constexpr auto kStringTable = std::to_array<StringRow>({
    {5330, "VK-480Q is not connected."},
    {5460, "Waiting"},
    {5461, "Waiting for Trigger "},
    {5462, "Recording"},
    {5463, "Writing in file"},
    {5464, "There is no rest capacity of the CF card."},
    {5465, "Cannot be carried out during measurement.[ERROR-10]"},
    {5466, "Can be carried out only during measurement.[ERROR-11]"},
    {5467, "Cannot be carried out under slave condition.[ERROR-12]"},
    {5468, "Measurement start cannot be carried out.[ERROR-13]"},
    {5469, "Measurement stop cannot be carried out.[ERROR-14]"},
    {5470, "It can be carried out only during trigger detection.[ERROR-15]"},
    {5471, "Cannot carried out Manual Trigger for some reasons.[ERROR-16]"},
    {5472, "Parameter Error[ERROR-20]"},
    {5473, "RAM DATA Error[ERROR-21]"},
    {5474, "COMMAND Error[ERROR-22]"},
    {5475, "EEPROM Program Write Error[ERROR-30]"},
    {5476, "S-EEPROM Program Write Error[ERROR-31]"},
    {5477, "ROM Check Error[ERROR-32]"},
    {5478, "RAM Hardware Error[ERROR-33]"},
    {5479, "CPU RAM Building in Hardware Error[ERROR-34]"},
    {5480, "EEPROM Writing SAM Check Error[ERROR-35]"},
    {5481, "EEPROM Writing Check Table Error[ERROR-36]"},
    {5482, "EEPROM Writing Protection Release Error[ERROR-37]"},
    {5483, "EEPROM rewrite Error[ERROR-38]"},
    {5484, "EEPROM Writing Protection Setting Error[ERROR-39]"},
    {5485, "AMP Setting Error[ERROR-40]"},
    {5486, "Monitor Timeout Error[ERROR-41]"},
    {5487, "Balance Error[ERROR-42]"},
    {5488, "Route directory breaks.[ERROR-43]"},
    {5489, "Channel Shift Error[ERROR-45]"},
    {5490, "Power supply voltage drops.[ERROR-46]"},
    {5491, "CF card is not inserted.[ERROR-50]"},
    {5492, "CF card Read Error[ERROR-51]"},
    {5493, "FAT Table Error[ERROR-52]"},
    {5494, "Cannot be carried out if a CF card is not in clear condition.[ERROR-53]"},
    {5495, "CF card Error[ERROR-54]"},
    {5496, "A different CF card from when not in clear condition is inserted.[ERROR-55]"},
    {5497, "CF card capacity is short.[ERROR-56]"},
    {5498, "CF card Read/Write Error[ERROR-57]"},
    {5499, "Compact flash card is not enough for the capacity.[ERROR-60]"},
    {5500, "VK-480Q Setting Error[ERROR-61]"},
    {5501, "VK-480Q RAM Error[ERROR-62]"},
    {5502, "USB Output Timeout Error[ERROR-70]"},
    {5503, "Stable period of Master-Slave[ERROR-80]"},
    {5504, "Master-Slave synchronous Error[ERROR-81]"},
    {5505, "The setting of Master-Slave is different.[ERROR-82]"},
    {5558, "**** Rewriting the contents of cfg file may not get operation properly. ****"},
    {5559, "**** Do not rewrite.                                                    ****"},
    {5607, "Unexpected communication error has occurred."},
    {5608, "USB driver isn't effective or is not Loaded."},
    {5609, "Pipe reset error has occurred."},
    {5610, "Failed in opening VK-480Q."},
    {5611, "Failed in reading ASCII Data."},
    {5612, "Failed in reading Binary Data."},
    {5613, "Failed in writing ASCII Data."},
    {5614, "Failed in writing Binary Data."},
    {5615, "Inside communication Error"},
    {5616, "VK-480Q has already been opened."},
    {5617, "VK-480Q has already been closed."},
    {5618, "Error has occurred."},
    {5653, "Error occurred during the open check.[ERROR-44]"},
    {5654, "This CF-Card can't be used.[ERROR-58]"},
    {5655, "Cannot be carried out during Panel-Balance.[ERROR-90]"},
    {5656, "VK-9480's version is old.Cannot be carried out.[ERROR-83]"},
    {5665, "VK-480's version is old.Cannot be carried out.[ERROR-84]"},
    {5798, "Speed check of the CF card is not executed.[ERROR-63]"},
    {5799, "Writing speed of the CF card is not sufficient.[ERROR-64]"},
});

struct ErrorRow {
  int32_t error;
  int32_t row;  // of the string table, without the offset
};

// -1009 and -1010 share a row.
constexpr auto kErrorRows = std::to_array<ErrorRow>({
    {-1012, 617}, {-1011, 616}, {-1010, 615}, {-1009, 615}, {-1008, 614}, {-1007, 613},
    {-1006, 612}, {-1005, 611}, {-1004, 610}, {-1003, 609}, {-1002, 608}, {-1001, 330},
    {1, 460},     {2, 461},     {3, 462},     {4, 463},     {5, 464},     {10, 465},
    {11, 466},    {12, 467},    {13, 468},    {14, 469},    {15, 470},    {16, 471},
    {20, 472},    {21, 473},    {22, 474},    {30, 475},    {31, 476},    {32, 477},
    {33, 478},    {34, 479},    {35, 480},    {36, 481},    {37, 482},    {38, 483},
    {39, 484},    {40, 485},    {41, 486},    {42, 487},    {43, 488},    {44, 653},
    {45, 489},    {46, 490},    {50, 491},    {51, 492},    {52, 493},    {53, 494},
    {54, 495},    {55, 496},    {56, 497},    {57, 498},    {58, 654},    {60, 499},
    {61, 500},    {62, 501},    {63, 798},    {64, 799},    {70, 502},    {80, 503},
    {81, 504},    {82, 505},    {83, 656},    {84, 665},    {90, 655},    {100, 607},
});

constexpr int32_t kRowUnknownError = 618;

static_assert(std::ranges::is_sorted(kStringTable, std::ranges::less_equal{}, &StringRow::number));
static_assert(std::ranges::is_sorted(kErrorRows, std::ranges::less_equal{}, &ErrorRow::error));

}  // namespace

std::string LoadResString(int32_t number) {
  const auto found = std::ranges::lower_bound(kStringTable, number, {}, &StringRow::number);
  if (found == kStringTable.end() || found->number != number) return {};
  return std::string(found->text);
}

std::string errorText(int32_t number) {
  const auto found = std::ranges::lower_bound(kErrorRows, number, {}, &ErrorRow::error);
  if (found != kErrorRows.end() && found->error == number) {
    return LoadResString(found->row + gResOffset);
  }
  return LoadResString(kRowUnknownError + gResOffset) + "ERROR - " + std::to_string(number);
}

std::string fileErrorText(int32_t number) {
  switch (number) {
    case 7:
      return "Out of memory.";
    case 52:
      return "Invalid file name.";
    case 53:
      return "File does not exist.";
    case 55:
      return "Already open file";
    case 67:
      return "There are too many files inside chosen folder.";
    case 70:
      return "The file is write-protected or already used. ";
    default:
      return "Error has occurred.";
  }
}

std::string dataFileErrorText(int32_t code) {
  switch (code) {
    case 1:
      return "Header File Size Error";
    case 2:
      return "The contents of header file are not right.";
    case 3:
      return "Cannot read Data file.";
    case 4:
      return "Memory is short.";
    case 5:
      return "Folder does not exist.";
    case 21:
      return "Header File Error";
    case 23:
      return "Data File Error";
    case 24:
      return "Memory Error";
    case 25:
      return "File Error";
    default:
      return {};
  }
}

std::string fileDialogText(int32_t code) {
  switch (code) {
    case 1:
      return "Read File";
    case 11:
      return "Saving Binary File.";
    case 12:
      return "DAT File (*.dat)|*.dat|All Files(*.*)|*.*|";
    case 13:
      return "Saving CSV File.";
    case 14:
      return "CSV File (*csv)|*.csv|All Files(*.*)|*.*|";
    case 15:
      return "Saveig File";
    case 16:
      return "Setting File (*.set)|*.set|All Files(*.*)|*.*|";
    case 17:
      return "Program File (*.prg)|*.prg|";
    case 20:
      return "All Files (*.*)|*.*";
    default:
      return {};
  }
}

}  // namespace vk
