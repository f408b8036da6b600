// SPDX-License-Identifier: MIT
// A box with serial 1234567 on device 1, a folder of the test's own to save to, and a card window
// whose labels go to the desktop's log, so that boxes and labels stand there in their order.
#pragma once

#include <gtest/gtest.h>

#include <set>

#include "base/mdlGeneral.h"
#include "link/mdlCardDirectory.h"
#include "link/mdlUSBCommand.h"
#include "recorder/mdlBoxTable.h"
#include "storage/mdlCardSaving.h"
#include "storage/mdlTempFiles.h"
#include "storage/mdlWaveOpenRequest.h"
#include "tests/support/data_folder.h"
#include "tests/support/fake_desktop.h"
#include "tests/support/scripted_library.h"

namespace vktest {

/// A header of two series, 320 bytes as a box writes it.
inline std::string cardHeader(const std::string& slope = "0.5,0.25") {
  const std::string rest =
      "\r\nVERSION 1\r\nSERIES CH1,CH2\r\nDATE 01-05-2026\r\nTIME 09:30:00\r\nRATE 1000\r\n"
      "VERT_UNITS ue,V\r\nHORZ_UNITS SEC\r\nNUM_SERIES 2\r\nSTORAGE_MODE INTERLACED\r\n"
      "FILE_TYPE INTEGER\r\nSLOPE " +
      slope + "\r\nX_OFFSET 0\r\nY_OFFSET 0,0\r\nNUM_SAMPS 16384\r\n";
  std::string first = "DATASET DAT00001";
  first.resize(320 - rest.size(), ' ');
  return first + rest;
}

/// Bytes that differ from block to block.
inline std::string wave(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(i * 7 + i / 65536 * 3 + 1);
  return bytes;
}

class CardTest : public testing::Test {
 protected:
  CardTest() {
    std::filesystem::create_directory(folder / "tmp");
    library() = {};
    vk::resetBoxTable();
    vk::gBoxTable[1].serial = reading.serial = 1234567;
    vk::gBoxTable[1].handle = 1;
    vk::gUSBBusy = 0;
    vk::gCardDirectory.clear();
    vk::gTempFileList.clear();
    vk::resetWaveOpenRequest();
    reading.folder = {folder.string(), folder.string()};
    reading.temporaryFolder = (folder / "tmp").string();
    view.say = [this](const std::string& text, const std::string&) { note("label " + text); };
    view.progress = [this](double fraction) {
      const int percent = vk::percentOf(fraction);
      if (percent != shown) note(std::to_string(percent) + "%");
      shown = percent;
    };
  }

  void note(const std::string& line) { desktop.log.push_back(line); }
  /// The log with the test's folder as "<>" and CR LF as "|".
  std::string takeLog() { return readable(desktop.takeLog()); }
  std::string readable(std::string text) const {
    for (const auto& [from, to] : {std::pair{folder.string(), "<>"}, {"\r\n", "|"}}) {
      for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
        text.replace(at, from.size(), to);
      }
    }
    return text;
  }
  std::string saved(const std::string& name) const { return DataFolder::bytesOf(folder / name); }
  /// Names and sizes of what lies in the folder, temporary leftovers included.
  std::string listing() const {
    std::set<std::string> lines;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (entry.is_directory()) continue;
      lines.insert(std::filesystem::relative(entry.path(), folder).string() + " " +
                   std::to_string(entry.file_size()) + "\n");
    }
    std::string text;
    for (const auto& line : lines) text += line;
    return text;
  }
  /// An empty folder, no file on the card and nothing to read from it.
  void startOver() {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.path().filename() != "tmp") std::filesystem::remove_all(entry.path());
    }
    reading.files.clear();
    library() = {};
    desktop.yieldCount = 0;
  }
  void addFile(const std::string& stem, int64_t size = 4, int64_t headerSize = 320) {
    vk::CardEntry entry;
    entry.cardFileName = entry.saveFileName = entry.rowText = stem + ".DAT";
    entry.size = size;
    entry.headerSize = headerSize;
    entry.seriesText = "CH1,CH2";
    entry.checked = true;
    reading.files.push_back(entry);
  }
  /// Queues a header and the blocks in which a box serves a data file.
  static void serve(std::size_t size = 4, const std::string& header = cardHeader()) {
    library().block(header);
    const std::string bytes = wave(size);
    for (std::size_t at = 0; at < size; at += vk::kBlockBytes) {
      std::string block = bytes.substr(at, vk::kBlockBytes);
      block.resize((block.size() + 63) / 64 * 64, '~');
      library().block(block);
    }
  }
  /// Ends the program in the yield of that number.
  void endInYield(int number) {
    desktop.yields.assign(static_cast<std::size_t>(number - 1), [] {});
    desktop.yields.push_back([this] { desktop.endProgram(); });
  }

  FakeDesktop desktop;
  DataFolder place;
  const std::filesystem::path folder = place.path();
  vk::CardReading reading;
  vk::JobView view;
  int shown = -1;  ///< percent
};

}  // namespace vktest
