// SPDX-License-Identifier: MIT
#include "shell/mdlConfig.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/mdlDataFolder.h"
#include "base/mdlGeneral.h"
#include "base/mdlMessages.h"
#include "monitors/mdlMonitorCycle.h"
#include "monitors/mdlMonitorRecords.h"
#include "recorder/mdlBoxTable.h"
#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_library.h"

namespace vk {
namespace {

namespace fs = std::filesystem;

class Config : public testing::Test {
 protected:
  Config() {
    vktest::library() = {};
    gResOffset = 5000;
    desktop_.folders[SpecialFolder::kCommonAppData] = folder_.path() / "share";
    setDefaults();
  }
  fs::path own() const { return folder_.path() / "share/NRV/VK-480Q CONTROLLER"; }
  fs::path file() const { return own() / "VK480Q.cfg"; }
  static std::string readAnew() {
    setDefaults();
    readConfig();
    return gDefaultFolder;
  }

  vktest::DataFolder folder_;
  vktest::FakeDesktop desktop_;
};

TEST_F(Config, DefaultsReachEverything) {
  const std::string before = configText();
  gNumMoni[31].NUM_ONOFF = true;
  gBoxTable[3].handle = 3;
  gMonitorRun = false;
  gShowShortcut = gShowStatus = false;
  gStartMode = gStatusMode = gStatusContents = 1;
  gMainBox = 5;
  gDefaultFolder = "/data";
  vktest::library().takeTranscript();
  setDefaults();
  EXPECT_EQ(configText(), before);
  EXPECT_TRUE(gBoxTable[3] == MeasureSetting() && gMonitorRun && gStartMode == 0);
  EXPECT_EQ(vktest::library().takeTranscript(), "timeout(7)\n");
}

TEST_F(Config, FirstStartMakesFileAndFoldersAndWhatWasWrittenIsRead) {
  const std::string text = configText();
  readConfig();
  EXPECT_EQ(vktest::DataFolder::bytesOf(file()), text + "\r\n");
  EXPECT_TRUE(fs::is_directory(own() / "tmp"));
  EXPECT_EQ(gDefaultFolder, "d:\\");
  EXPECT_EQ(configPath(), file().string());
  EXPECT_EQ(tempFolder(), own().string() + "/tmp/");
  gStatusMode = 1;
  gDefaultFolder = "/data/runs";
  const std::string changed = configText();
  writeConfig();
  readAnew();
  EXPECT_EQ(configText(), changed);
}

TEST_F(Config, FileWithItsExtensionInCapitalsIsReadUntilTheOwnOneIsWritten) {
  gDefaultFolder = "/data/runs";
  const std::string text = configText() + "\r\n";
  const auto capitals = folder_.put("share/NRV/VK-480Q CONTROLLER/VK480Q.CFG", text);
  EXPECT_EQ(readAnew(), "/data/runs");
  EXPECT_FALSE(fs::exists(file()));
  gDefaultFolder = "/data/later";
  writeConfig();
  EXPECT_EQ(vktest::DataFolder::bytesOf(capitals), text);
  EXPECT_EQ(readAnew(), "/data/later");
}

TEST_F(Config, DataFolderStandsInForAFolderThatCannotBeRead) {
  const std::string text = configText();
  const std::string contents[] = {"", text.substr(0, text.find("XY_SER")),
                                  text.substr(0, text.find("d:\\")),
                                  std::string(9U << 20, 'x') + text};
  for (const std::string& bytes : contents) {
    folder_.put("share/NRV/VK-480Q CONTROLLER/VK480Q.cfg", bytes);
    EXPECT_EQ(readAnew(), own().string() + "/") << bytes.size();
    EXPECT_EQ(vktest::DataFolder::bytesOf(file()), bytes);
  }
}

TEST_F(Config, WithoutADataFolderNothingIsDone) {
  desktop_.folders.clear();
  readConfig();
  writeConfig();
  clearTempFiles(true, "");
  EXPECT_EQ(configPath() + tempFolder() + gDefaultFolder, "d:\\");
}

TEST_F(Config, TemporaryFilesGo) {
  const std::string tmp = "share/NRV/VK-480Q CONTROLLER/tmp/";
  for (const std::string& name : {tmp + "A.dat", tmp + "readonly.dat", tmp + "folder/B.dat",
                                  std::string("C.dat"), std::string("D.dat"), std::string("E.dat")})
    folder_.put(name, "1");
  const std::string data = folder_.path().string() + "/";
  fs::create_directory(data + "none");
  fs::permissions(own() / "tmp/readonly.dat", fs::perms::owner_read);
  const auto left = [&] {
    std::string names;
    for (const char* name : {"C.dat", "none", "D.dat", "E.dat", "A.dat"})
      if (fs::exists(data + name) || fs::exists(data + tmp + name)) names += *name;
    return names;
  };
  clearTempFiles(false, data + "C.dat\r\n" + data + "missing\r\n" + data + "none\r\n" + data +
                            "D.dat\r\n\r\n" + data + "E.dat\r\n");
  EXPECT_EQ(left(), "nEA");
  clearTempFiles(true, data + "E.dat");  // without its line end
  EXPECT_EQ(left(), "n");
  EXPECT_TRUE(fs::exists(own() / "tmp/readonly.dat") && fs::exists(own() / "tmp/folder/B.dat"));
}

}  // namespace
}  // namespace vk
