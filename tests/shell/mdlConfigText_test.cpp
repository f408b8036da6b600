// SPDX-License-Identifier: MIT
#include "shell/mdlConfigText.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "monitors/mdlMonitorRecords.h"
#include "shell/mdlConfig.h"
#include "tests/support/fake_desktop.h"

namespace vk {
namespace {

/// Key, count of values, the default of each.
constexpr const char* kDefaults =
    R"(NUM_BACK:32:3092271 NUM_FORE:32:16777215 NUM_C_BACK:32:4210752 NUM_C_FORE:32:16777215
WAV_BACK:8:3092271 WAV_FORE:8:255 WAV_C_BACK:8:4210752 WAV_C_FORE:8:255 WAV_GND:8:9408399
WAV_GRID:8:5197647 XY_BACK:4:3092271 XY_FORE:4:255 XY_POINT:4:65535 XY_C_BACK:4:4210752
XY_C_FORE:4:255 XY_C_POINT:4:65535 XY_GND:4:9408399 XY_GRID:4:5197647 MES_BACK:0: MES_FORE:0:
MES_CUR1:0: MES_CUR2:0: MES_POINT:0: NUM_SER:32:9999999 NUM_CH:32:1 NUM_ONOFF:32:False
NUM_SPEED:32:0 NUM_POINT:32:0 NUM_CVAL_ONOFF:32:False NUM_CVAL_UP:32:999999
NUM_CVAL_DOWN:32:-999999 WAV_SER:8:9999999 WAV_CH:8:1 WAV_ONOFF:8:False WAV_SPEED:8:0
WAV_FULL:8:1000 WAV_OFFSET:8:0 WAV_CUP_VALUE:8:0 WAV_CUP_ON:8:False WAV_CVAL_ONOFF:8:False
WAV_CVAL_UP:8:999999 WAV_CVALDOWN:8:-999999 XY_SER:4:9999999 XY_CH:4:1 XY_ONOFF:4:False
XY_SPEED:4:0 XY_FULL:4:1000 XY_OFFSET:4:0 XY_CVAL_ONOFF:4:False XY_CVAL_UP:4:999999
XY_CVALDOWN:4:-999999 XY_SUB_SER:4:9999999 XY_SUB_CH:4:1 XY_SUB_FULL:4:1000 XY_SUB_OFFSET:4:0
XY_SUB_CVAL_UP:4:999999 XY_SUB_CVAL_DOWN:4:-999999 NUM_CAPTION:32: WAV_CAPTION:8: XY_CAPTION:4:
NUM_TOP:32:0 NUM_LEFT:32:0 NUM_HEIGHT:32:2500 NUM_WIDTH:32:6000 WAV_TOP:8:0 WAV_LEFT:8:0
WAV_HEIGHT:8:2500 WAV_WIDTH:8:6800 XY_TOP:4:0 XY_LEFT:4:0 XY_HEIGHT:4:3300 XY_WIDTH:4:5300
BAR_CAPTION:4: BAR_TOP:4:0 BAR_LEFT:4:0 BAR_HEIGHT:4:3500 BAR_WIDTH:4:6800 BAR_ONOFF:4:False
BAR_SPEED:4:0 BAR_BACK:4:3092271 BAR_C_BACK:4:4210752 BAR_GND:4:9408399 BAR_GRID:4:5197647
BAR_1ST_SER:4:9999999 BAR_1ST_CH:4:1 BAR_1ST_FULL:4:1000 BAR_1ST_OFFSET:4:0
BAR_1ST_CVAL_ONOFF:4:False BAR_1ST_CVAL_UP:4:999999 BAR_1ST_CVAL_DOWN:4:-999999 BAR_1ST_FORE:4:255
BAR_1ST_CFORE:4:255 BAR_2ND_SER:4:9999999 BAR_2ND_CH:4:1 BAR_2ND_FULL:4:1000 BAR_2ND_OFFSET:4:0
BAR_2ND_CVAL_ONOFF:4:False BAR_2ND_CVAL_UP:4:999999 BAR_2ND_CVAL_DOWN:4:-999999 BAR_2ND_FORE:4:255
BAR_2ND_CFORE:4:255 BAR_3RD_SER:4:9999999 BAR_3RD_CH:4:1 BAR_3RD_FULL:4:1000 BAR_3RD_OFFSET:4:0
BAR_3RD_CVAL_ONOFF:4:False BAR_3RD_CVAL_UP:4:999999 BAR_3RD_CVAL_DOWN:4:-999999 BAR_3RD_FORE:4:255
BAR_3RD_CFORE:4:255 BAR_4TH_SER:4:9999999 BAR_4TH_CH:4:1 BAR_4TH_FULL:4:1000 BAR_4TH_OFFSET:4:0
BAR_4TH_CVAL_ONOFF:4:False BAR_4TH_CVAL_UP:4:999999 BAR_4TH_CVAL_DOWN:4:-999999 BAR_4TH_FORE:4:255
BAR_4TH_CFORE:4:255 CRL_CAPTION:8: CRL_TOP:8:0 CRL_LEFT:8:0 CRL_HEIGHT:8:2600 CRL_WIDTH:8:4200
CRL_ONOFF:8:False CRL_SPEED:8:0 CRL_BACK:8:3092271 CRL_C_BACK:8:4210752 CRL_GND:8:9408399
CRL_GRID:8:5197647 CRL_SER:8:9999999 CRL_CH:8:1 CRL_FULL:8:1000 CRL_OFFSET:8:0
CRL_CVAL_ONOFF:8:False CRL_CVAL_UP:8:999999 CRL_CVAL_DOWN:8:-999999 CRL_FORE:8:255
CRL_C_FORE:8:255 PIC_BAR_SHORTCUT:1:True PIC_BAR_STATUS:1:True STATUS_MODE:1:0 STATUS_MAINCH:1:1
STATUS_CONTENTS:1:0 DFLT_FOLDER:1:d:\)";

constexpr const char* kHead =
    "**** Rewriting the contents of cfg file may not get operation properly. ****\r\n"
    "**** Do not rewrite.                                                    ****\r\n"
    "\r\nVK-480Q cfg.file\r\n";

using Values = std::vector<std::string>;

std::string lineOf(const std::string& key, const Values& values) {
  return fmt::format("\r\n{} {}", key, fmt::join(values, ","));
}

/// The file line by line, as the table above says.
std::string defaultText() {
  std::istringstream table(kDefaults);
  std::string text = kHead, key, count, value;
  while (table >> std::ws && std::getline(table, key, ':') && std::getline(table, count, ':')) {
    value.clear();
    if (!std::isspace(table.peek())) table >> value;
    text += lineOf(key, Values(std::stoul(count), value));
  }
  return text;
}

/// Gives each field a value of its own and keeps what the file must say.
struct Filler {
  template <typename T>
  void operator()(const std::string& key, T& field) {
    std::string text = std::to_string(++count);
    if constexpr (std::is_same_v<T, bool>) {
      field = std::popcount(count) % 2 == 0;
      text = field ? "True" : "False";
    } else if constexpr (std::is_same_v<T, std::string>) {
      field = text = "c " + text;
    } else {
      field = static_cast<T>(count + 0.5);
      if (std::is_same_v<T, float>) text += ".5";
    }
    values[key].push_back(text);
  }
  std::string expected() {
    std::string text = kHead;
    for (int32_t n = 0; n < configKeyCount(); ++n) {
      const std::string key(configKeyName(n));
      text += lineOf(key, values[key]);
    }
    return text;
  }

  uint32_t count = 100;
  std::map<std::string, Values> values;
};

#define F(field) put(#field, r.field)

void fillLists(Filler& put) {
  for (auto& r : gNumMoni) {
    F(NUM_BACK), F(NUM_FORE), F(NUM_C_BACK), F(NUM_C_FORE), F(NUM_SER), F(NUM_CH), F(NUM_ONOFF);
    F(NUM_SPEED), F(NUM_POINT), F(NUM_CVAL_ONOFF), F(NUM_CVAL_UP), F(NUM_CVAL_DOWN);
    F(NUM_CAPTION), F(NUM_TOP), F(NUM_LEFT), F(NUM_HEIGHT), F(NUM_WIDTH);
  }
  for (auto& r : gWaveMoni) {
    F(WAV_BACK), F(WAV_FORE), F(WAV_C_BACK), F(WAV_C_FORE), F(WAV_GND), F(WAV_GRID), F(WAV_SER);
    F(WAV_CH), F(WAV_ONOFF), F(WAV_SPEED), F(WAV_FULL), F(WAV_OFFSET), F(WAV_CUP_VALUE);
    F(WAV_CUP_ON), F(WAV_CVAL_ONOFF), F(WAV_CVAL_UP), F(WAV_CVALDOWN), F(WAV_CAPTION), F(WAV_TOP);
    F(WAV_LEFT), F(WAV_HEIGHT), F(WAV_WIDTH);
  }
  for (auto& r : gCircleMoni) {
    F(CRL_CAPTION), F(CRL_TOP), F(CRL_LEFT), F(CRL_HEIGHT), F(CRL_WIDTH), F(CRL_ONOFF);
    F(CRL_SPEED), F(CRL_BACK), F(CRL_C_BACK), F(CRL_GND), F(CRL_GRID), F(CRL_SER), F(CRL_CH);
    F(CRL_FULL), F(CRL_OFFSET), F(CRL_CVAL_ONOFF), F(CRL_CVAL_UP), F(CRL_CVAL_DOWN), F(CRL_FORE);
    F(CRL_C_FORE);
  }
}

/// The records with a value for each axis or bar.
void fillArrays(Filler& put) {
  for (auto& r : gXYMoni) {
    F(XY_BACK), F(XY_FORE), F(XY_POINT), F(XY_C_BACK), F(XY_C_FORE), F(XY_C_POINT), F(XY_GND);
    F(XY_GRID), F(XY_ONOFF), F(XY_SPEED), F(XY_CVAL_ONOFF), F(XY_CAPTION), F(XY_TOP), F(XY_LEFT);
    F(XY_HEIGHT), F(XY_WIDTH), put("XY_CVALDOWN", r.XY_CVALDOWN[0]);
    put("XY_SUB_CVAL_DOWN", r.XY_CVALDOWN[1]);
    for (std::size_t i = 0; i < kXYAxes; ++i) {
      const std::string key = i == 0 ? "XY_" : "XY_SUB_";
      put(key + "SER", r.XY_SER[i]), put(key + "CH", r.XY_CH[i]), put(key + "FULL", r.XY_FULL[i]);
      put(key + "OFFSET", r.XY_OFFSET[i]), put(key + "CVAL_UP", r.XY_CVAL_UP[i]);
    }
  }
  for (auto& r : gBarMoni) {
    F(BAR_CAPTION), F(BAR_TOP), F(BAR_LEFT), F(BAR_HEIGHT), F(BAR_WIDTH), F(BAR_ONOFF);
    F(BAR_SPEED), F(BAR_BACK), F(BAR_C_BACK), F(BAR_GND), F(BAR_GRID);
    const std::string names[] = {"BAR_1ST_", "BAR_2ND_", "BAR_3RD_", "BAR_4TH_"};
    for (std::size_t i = 0; i < kBars; ++i) {
      const std::string& key = names[i];
      put(key + "SER", r.BAR_SER[i]), put(key + "CH", r.BAR_CH[i]);
      put(key + "FULL", r.BAR_FULL[i]), put(key + "OFFSET", r.BAR_OFFSET[i]);
      put(key + "CVAL_ONOFF", r.BAR_CVAL_ONOFF[i]), put(key + "CVAL_UP", r.BAR_CVAL_UP[i]);
      put(key + "CVAL_DOWN", r.BAR_CVAL_DOWN[i]), put(key + "FORE", r.BAR_FORE[i]);
      put(key + "CFORE", r.BAR_CFORE[i]);
    }
  }
}

#undef F

class ConfigText : public testing::Test {
 protected:
  ConfigText() {
    gResOffset = 5000;
    setDefaults();
  }
  static std::string replaced(std::string text, const std::string& part, const std::string& by) {
    const auto at = text.find(part);
    EXPECT_NE(at, std::string::npos) << part;
    return at == std::string::npos ? text : text.replace(at, part.size(), by);
  }
  /// What the program holds after reading the text in place of the defaults.
  static std::string after(const std::string& text, bool reads) {
    setDefaults();
    EXPECT_EQ(readConfigText(text), reads);
    return configText();
  }

  vktest::FakeDesktop desktop_;
};

TEST_F(ConfigText, DefaultsAreByteExact) {
  const std::string text = configText();
  EXPECT_EQ(text, defaultText());
  EXPECT_EQ(text.size() + 2, 8094U);
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n') + 1, 150);
}

TEST_F(ConfigText, EveryFieldGoesOutUnderItsKeyAndComesBack) {
  Filler filler;
  fillLists(filler);
  fillArrays(filler);
  filler.count = 0;  // the single numbers have ranges
  filler("STATUS_MODE", gStatusMode), filler("STATUS_MAINCH", gMainBox);
  filler("STATUS_CONTENTS", gStatusContents), filler("PIC_BAR_SHORTCUT", gShowShortcut);
  filler("PIC_BAR_STATUS", gShowStatus);
  filler.values["DFLT_FOLDER"] = {gDefaultFolder = "/data/a,b"};
  const std::string text = configText();
  EXPECT_EQ(text, filler.expected());
  EXPECT_EQ(after(text, true), text);
  // The order of lines and their ends mean nothing.
  std::istringstream lines(text);
  std::string reversed;
  for (std::string line; std::getline(lines, line);)
    reversed = line.substr(0, line.find('\r')) + "\n" + reversed;
  EXPECT_EQ(after(reversed, true), text);
}

TEST_F(ConfigText, CutAnywhereLosesAtMostTheCutValue) {
  const std::string text = defaultText();
  const std::size_t folder = text.find("DFLT_FOLDER");
  const std::size_t contents = text.find("STATUS_CONTENTS ") + 16;
  // Every place of the last lines, which are all different, and a sample of the lists before them.
  for (std::size_t size = text.size(); size > 7; size -= size > folder - 300 ? 1 : 7) {
    SCOPED_TRACE(size);
    const std::string kept = after(text.substr(0, size), size > contents);
    const auto from = std::mismatch(text.begin(), text.end(), kept.begin(), kept.end()).first;
    const auto to = std::mismatch(text.rbegin(), text.rend(), kept.rbegin(), kept.rend()).first;
    const std::string changed(from, std::max(from, to.base()));
    ASSERT_EQ(changed.find_first_of(",\r"), std::string::npos) << changed;
    ASSERT_TRUE(size <= folder || kept.starts_with(text.substr(0, folder)));
  }
}

TEST_F(ConfigText, MissingKeyEndsTheReadingUnlessItsValuesAreTexts) {
  for (const std::string key : {"BAR_CAPTION", "DFLT_FOLDER", "MES_BACK", "CRL_TOP", "NUM_FORE"})
    after(replaced(defaultText(), "\r\n" + key + " ", "\r\nx "),
          key != "CRL_TOP" && key != "NUM_FORE");
}

TEST_F(ConfigText, ReadingStopsRecordByRecord) {
  // The third numerical record cannot be read from its point on; what stands before it is kept.
  std::string text = defaultText(), kept = defaultText();
  const char* const parts[][3] = {{"NUM_POINT 0,0,0,", "NUM_POINT 4,5,x,", "NUM_POINT 4,5,0,"},
                                  {"NUM_CH 1,1,1,1,", "NUM_CH 2,3,4,2,", "NUM_CH 2,3,4,1,"},
                                  {"NUM_TOP 0,0,0,", "NUM_TOP 15,30,45,", "NUM_TOP 15,30,0,"},
                                  {"WAV_CH 1,", "WAV_CH 3,", "WAV_CH 1,"},
                                  {"STATUS_MODE 0", "STATUS_MODE 1", "STATUS_MODE 0"}};
  for (const auto& part : parts) {
    text = replaced(text, part[0], part[1]);
    kept = replaced(kept, part[0], part[2]);
  }
  EXPECT_EQ(after(text, false), kept);
}

TEST_F(ConfigText, CaptionsTakeThePlaceOfALaterKeyAndShiftAtACommaTheOnesBehind) {
  gNumMoni[0].NUM_CAPTION = "BAR_TOP 9";
  gXYMoni[0].XY_CAPTION = "a,b";
  gXYMoni[1].XY_CAPTION = " c ";
  gXYMoni[3].XY_CAPTION = "d ";
  gCircleMoni[0].CRL_CH = 4;
  std::string kept = replaced(defaultText(), "NUM_CAPTION ", "NUM_CAPTION BAR_TOP 9");
  kept = replaced(kept, "XY_CAPTION ,,,", "XY_CAPTION a,b, c ,");
  EXPECT_EQ(after(configText(), false), replaced(kept, "\r\nBAR_TOP 0", "\r\nBAR_TOP 9"));
}

TEST_F(ConfigText, ValuesReadInTheirFormsAndRanges) {
  const struct {
    std::string key, before;
    std::vector<std::pair<std::string, std::string>> forms;  ///< and what is kept; "": unreadable
  } rows[] = {
      {"PIC_BAR_SHORTCUT", "True", {{"true", "True"}, {"  TRUE  ", "True"}, {"-1", "True"}}},
      {"PIC_BAR_SHORTCUT", "True", {{"0", "False"}, {"yes", ""}}},
      {"STATUS_MODE", "0", {{"0.4", "0"}, {"2147483648", ""}, {"2", "0"}, {"-1", "0"}}},
      {"WAV_FULL", "1000", {{"1E2", "100"}, {"1E39", ""}}},
      {"BAR_ONOFF", "False,False", {{"FALSE,0", "False,False"}, {"False,", ""}}},
      {"XY_SPEED", "0,0,0,0", {{"0,0,0", ""}, {"0,0,0,0,7", "0,0,0,0"}}},
      {"STATUS_MAINCH", "1", {{"8", "8"}, {"9", "1"}, {"0", "1"}}},
      {"STATUS_CONTENTS", "0", {{"4", "0"}, {"-1", "0"}}},
      {"STATUS_MAINCH", "1\r\nSTATUS_CONTENTS 0", {{"9\r\nSTATUS_CONTENTS x", ""}}},
  };
  for (const auto& row : rows) {
    for (const auto& [value, kept] : row.forms) {
      SCOPED_TRACE(row.key + " " + value);
      const std::string line = row.key + " " + row.before;
      EXPECT_EQ(after(replaced(defaultText(), line, row.key + " " + value), !kept.empty()),
                replaced(defaultText(), line, row.key + " " + (kept.empty() ? row.before : kept)));
    }
  }
}

TEST_F(ConfigText, LongGarbageChangesNothing) {
  for (const char one : {',', 'N', '\0'})
    EXPECT_EQ(after("NUM_BACK " + std::string(500000, one), false), defaultText());
}

}  // namespace
}  // namespace vk
