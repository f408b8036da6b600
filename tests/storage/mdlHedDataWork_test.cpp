// SPDX-License-Identifier: MIT
#include "storage/mdlHedDataWork.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/mdlGeneral.h"
#include "base/mdlText.h"

namespace {

const std::string kGood =
    "DATASET DAT00001\r\nVERSION 1\r\nSERIES CH1,CH2,CH3,CH4\r\nDATE 12-31-2026\r\n"
    "TIME 23:59:59\r\nRATE 200000\r\nVERT_UNITS ue,V,mm,\r\nHORZ_UNITS SEC\r\nNUM_SERIES 4\r\n"
    "STORAGE_MODE INTERLACED\r\nFILE_TYPE INTEGER\r\nSLOPE 0.1,0.2,1.000000E+00,-4\r\n"
    "X_OFFSET 0,0,0,0\r\nY_OFFSET 0,0,0,1\r\nNUM_SAMPS 16384\r\n";

std::string with(std::string text, const std::string& key, const std::string& value) {
  const auto start = ("\n" + text).find("\n" + key + " ") + key.size() + 1;
  return text.replace(start, text.find("\r\n", start) - start, value);
}

TEST(HeaderCheck, TheFirstFailingCheckGivesItsNumber) {
  std::string text = kGood;
  std::string results;
  for (const char* key : {"NUM_SAMPS", "X_OFFSET", "Y_OFFSET", "SLOPE", "VERT_UNITS", "RATE",
                          "TIME", "DATE", "SERIES", "NUM_SERIES", "VERSION"}) {
    results += std::to_string(vk::checkHeaderText(text)) + " ";
    text = with(text, key, "x");
  }
  EXPECT_EQ(results, "0 -15 -14 -13 -12 -7 -6 -5 -4 -3 -9 ");
  EXPECT_EQ(vk::checkHeaderText(text), -2);
}

TEST(HeaderCheck, BoundsOfTheValues) {
  const struct {
    int32_t result;
    std::string key, values;  ///< the values with bars between them
  } rows[] = {
      {0, "VERSION", "1.5"},
      {-9, "NUM_SERIES", "0|65|99999999999"},
      {-3, "NUM_SERIES", "3|64"},
      {0, "SERIES", ",,,"},
      {-4, "DATE", "00-31-2026|13-31-2026|12-00-2026|12-32-2026|12-31-1999|12-31-2100"},
      {0, "DATE", "01-01-2000|02-31-2099"},
      {-5, "TIME", "24:00:00|00:60:00|00:00:60|9:30:00"},
      {0, "TIME", "00:00:00"},
      {0, "SLOPE", "0.1"},
      {-12, "SLOPE", "0.1,0.2|1,x,1,1|1E+40,1,1,1"},
      {-13, "Y_OFFSET", "0,0,0,a|0,0.5,0"},
      {0, "X_OFFSET", "0,0.5"},
      {-14, "X_OFFSET", "0.5,0"},
      {-15, "NUM_SAMPS", "3000000000"},
      // A key inside an earlier value is found there.
      {-4, "DATASET", "UPDATE1"},
  };
  for (const auto& row : rows) {
    std::istringstream values(row.values);
    for (std::string value; std::getline(values, value, '|');)
      EXPECT_EQ(vk::checkHeaderText(with(kGood, row.key, value)), row.result) << value;
  }
}

TEST(HeaderValue, FindsCutsAndTrims) {
  for (const auto& [text, value] : {std::pair{"KEY   two words  \r\nKEY b\r\n", "two words"},
                                    {"KEYvalue\r\n", "value"},
                                    {"key value\r\n", ""},
                                    {"KEY a\nb\rc\r\n", "a\nb\rc"}}) {
    EXPECT_EQ(vk::headerValue(text, "KEY"), value) << text;
  }
  EXPECT_THROW(static_cast<void>(vk::headerValue("KEY value\n", "KEY")), vk::TypeMismatch);
}

TEST(HeaderText, ComesBackInLineOrderUnderTheStemOfAHedFile) {
  vk::HeaderRecord record;
  EXPECT_EQ(vk::textToHeader(kGood.substr(0, kGood.size() - 2) + "\n", record), -15);
  EXPECT_EQ(record[vk::kXOffset] + record[vk::kNumSamps], "0,0,0,0");
  EXPECT_EQ(vk::textToHeader(kGood, record), 0);
  EXPECT_EQ(vk::headerToText(record, "") + "\r\n", kGood);
  for (const auto& [file, dataset] : {std::pair{"/home/u/NEW.hed", "NEW"},
                                      {"C:\\data\\NEW.hed", "NEW"},
                                      {"AB.C.hed", "AB.C"},
                                      {"/x/NEW.HED", "DAT00001"},
                                      {"/x.hed/NEW", "DAT00001"}}) {
    EXPECT_EQ(vk::headerToText(record, file) + "\r\n", with(kGood, "DATASET", dataset));
  }
}

}  // namespace
