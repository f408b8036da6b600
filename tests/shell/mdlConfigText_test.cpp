// SPDX-License-Identifier: MIT
#include "shell/mdlConfigText.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "monitors/mdlMonitorRecords.h"
#include "shell/mdlConfig.h"
#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"

namespace vk {
namespace {

/// The file as a first start writes it.
const std::string kDefaults = [] {
  const std::string bytes = vktest::DataFolder::bytesOf(VK_TEST_DATA "/default.cfg");
  return bytes.substr(0, bytes.rfind('\r'));
}();

/// Gives each field a value of its own and keeps what the file must say of it.
struct Filler {
  uint32_t count = 100;
  std::map<std::string, std::vector<std::string>> values;

  template <typename T>
  void put(const std::string& key, T& field) {
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
  /// "XY_SER" of each axis, "BAR_SER" of each bar; one key is spelled differently.
  template <typename T, std::size_t N>
  void put(const std::string& key, std::array<T, N>& field) {
    static const char* const kInfix[2][4] = {{"", "SUB_"}, {"1ST_", "2ND_", "3RD_", "4TH_"}};
    const std::size_t start = key.find('_') + 1;
    for (std::size_t i = 0; i < N; ++i) {
      const std::string name = key.substr(0, start) + kInfix[N == kBars][i] + key.substr(start);
      put(name == "XY_SUB_CVALDOWN" ? "XY_SUB_CVAL_DOWN" : name, field[i]);
    }
  }
  template <typename... T>
  void putAll(const std::string& names, T&... fields) {
    std::istringstream list(names);
    const auto next = [&list] {
      std::string name;
      std::getline(list >> std::ws, name, ',');
      return name;
    };
    (put(next(), fields), ...);
  }
};

// The fields of a record in the order of their declaration.
#define FILL(records, ...)                    \
  for (auto& record : records) {              \
    auto& [__VA_ARGS__] = record;             \
    filler.putAll(#__VA_ARGS__, __VA_ARGS__); \
  }

void fillRecords(Filler& filler) {
  FILL(gNumMoni, NUM_ONOFF, NUM_CAPTION, NUM_SER, NUM_CH, NUM_FORE, NUM_BACK, NUM_C_FORE,
       NUM_C_BACK, NUM_CVAL_ONOFF, NUM_CVAL_UP, NUM_CVAL_DOWN, NUM_TOP, NUM_LEFT, NUM_HEIGHT,
       NUM_WIDTH, NUM_SPEED, NUM_POINT)
  FILL(gWaveMoni, WAV_ONOFF, WAV_CAPTION, WAV_SER, WAV_CH, WAV_FULL, WAV_OFFSET, WAV_SPEED,
       WAV_CUP_ON, WAV_CUP_VALUE, WAV_FORE, WAV_BACK, WAV_C_FORE, WAV_C_BACK, WAV_GND, WAV_GRID,
       WAV_CVAL_ONOFF, WAV_CVAL_UP, WAV_CVALDOWN, WAV_TOP, WAV_LEFT, WAV_HEIGHT, WAV_WIDTH)
  FILL(gXYMoni, XY_ONOFF, XY_CAPTION, XY_SER, XY_CH, XY_FULL, XY_OFFSET, XY_SPEED, XY_FORE, XY_BACK,
       XY_POINT, XY_C_FORE, XY_C_BACK, XY_C_POINT, XY_GND, XY_GRID, XY_CVAL_ONOFF, XY_CVAL_UP,
       XY_CVALDOWN, XY_TOP, XY_LEFT, XY_HEIGHT, XY_WIDTH)
  FILL(gBarMoni, BAR_ONOFF, BAR_CAPTION, BAR_SPEED, BAR_TOP, BAR_LEFT, BAR_HEIGHT, BAR_WIDTH,
       BAR_GND, BAR_GRID, BAR_BACK, BAR_C_BACK, BAR_SER, BAR_CH, BAR_FULL, BAR_OFFSET,
       BAR_CVAL_ONOFF, BAR_FORE, BAR_CFORE, BAR_CVAL_UP, BAR_CVAL_DOWN)
  FILL(gCircleMoni, CRL_ONOFF, CRL_CAPTION, CRL_SER, CRL_CH, CRL_FULL, CRL_OFFSET, CRL_SPEED,
       CRL_FORE, CRL_BACK, CRL_C_FORE, CRL_C_BACK, CRL_GND, CRL_GRID, CRL_CVAL_ONOFF, CRL_CVAL_UP,
       CRL_CVAL_DOWN, CRL_TOP, CRL_LEFT, CRL_HEIGHT, CRL_WIDTH)
}

#undef FILL

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
  EXPECT_EQ(configText(), kDefaults);
}

TEST_F(ConfigText, EveryFieldGoesOutUnderItsKeyAndComesBack) {
  Filler filler;
  fillRecords(filler);
  filler.count = 0;  // the single numbers have ranges
  filler.put("STATUS_MODE", gStatusMode), filler.put("STATUS_MAINCH", gMainBox);
  filler.put("STATUS_CONTENTS", gStatusContents), filler.put("PIC_BAR_SHORTCUT", gShowShortcut);
  filler.put("PIC_BAR_STATUS", gShowStatus);
  filler.values["DFLT_FOLDER"] = {gDefaultFolder = "/data/a,b"};
  const std::string text = configText();
  std::string expected = kDefaults.substr(0, kDefaults.find("\r\nNUM_BACK"));
  std::string reversed;  // the order of lines and their ends mean nothing
  for (int32_t n = 0; n < configKeyCount(); ++n) {
    const std::string key(configKeyName(n));
    const std::string line = fmt::format("{} {}", key, fmt::join(filler.values[key], ","));
    expected += "\r\n" + line;
    reversed = line + "\n" + reversed;
  }
  EXPECT_EQ(text, expected);
  EXPECT_EQ(after(text, true), text);
  EXPECT_EQ(after(reversed, true), text);
}

TEST_F(ConfigText, CutAnywhereLosesAtMostTheCutValue) {
  const std::string& text = kDefaults;
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

TEST_F(ConfigText, ReadingStopsRecordByRecord) {
  // The third numerical record cannot be read from its point on; what stands before it is kept.
  std::string text = kDefaults, kept = kDefaults;
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
  std::string kept = replaced(kDefaults, "NUM_CAPTION ", "NUM_CAPTION BAR_TOP 9");
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
      EXPECT_EQ(after(replaced(kDefaults, line, row.key + " " + value), !kept.empty()),
                replaced(kDefaults, line, row.key + " " + (kept.empty() ? row.before : kept)));
    }
  }
}

}  // namespace
}  // namespace vk
