// SPDX-License-Identifier: MIT
//
// The card as it comes over the wire, decoded here by readers of their own.
#include "instrument/simulator/card.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>

#include "tests/instrument/simulator/bench.h"

namespace vksim {
namespace {

constexpr const char* kBox = R"(
[box 4800001]
model = VK-480Q
role = master
units = kN,mm,ue,V
coefficients = 2.5,0.001,1,1
signal1 = sine 1800 1000 25
signal2 = step 2500 2000
signal3 = ramp 4000 5000 -100
signal4 = open
recording = 4 200U 16384
recording = 1 005U 32769
recording = 2 001S 7
recording = 4 500M 600000
)";

std::uint32_t number(const std::string& bytes, std::size_t at, int count) {
  std::uint32_t value = 0;
  for (int i = count - 1; i >= 0; --i)
    value = value << 8 | static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
  return value;
}

// One line per living entry: name, attribute, date and time, size.
std::string listing(const std::string& image) {
  std::string lines;
  for (std::size_t at = 0; at < image.size() && image[at] != 0; at += 32) {
    if (image[at] == static_cast<char>(0xE5)) continue;
    const auto time = number(image, at + 22, 2);
    const auto date = number(image, at + 24, 2);
    lines += fmt::format("{} {:02x} {}/{}/{} {}:{}:{} {}\n", image.substr(at, 11), image[at + 11],
                         1980 + (date >> 9), date >> 5 & 15, date & 31, time >> 11, time >> 5 & 63,
                         (time & 31) * 2, number(image, at + 28, 4));
  }
  return lines;
}

TEST(Card, DirectoryIsAFatRootDirectory) {
  Bench bench(kBox);
  const std::string image = bench.fetch(1, "RTD", 512, kDirectoryBytes);
  ASSERT_EQ(image.size(), kDirectoryBytes);
  std::string expected =
      "VK-9480     08 2025/4/1 9:0:0 0\nVKSYSTEMINI 20 2025/4/1 9:0:0 512\n"
      "DAT00001HED 20 2026/1/5 5:30:2 ?\nDAT00001DAT 20 2026/1/5 5:30:2 131072\n"
      "DAT00002HED 20 2026/1/5 6:30:0 ?\nDAT00002DAT 20 2026/1/5 6:30:0 65538\n"
      "DAT00003HED 20 2026/1/5 7:30:6 ?\nDAT00003DAT 20 2026/1/5 7:30:6 28\n"
      "DAT00004HED 20 2026/1/8 19:50:0 ?\nDAT00004DAT 20 2026/1/8 19:50:0 4800000\n";
  for (const CardFile& file : bench.box(0).card.files)
    expected.replace(expected.find('?'), 1, std::to_string(file.header.size()));
  EXPECT_EQ(listing(image), expected);
  EXPECT_EQ(image.substr(64, 1), "\xE5") << "a deleted entry stands between";
}

TEST(Card, HeaderTellsTheRecording) {
  Bench bench(kBox);
  const std::string header = bench.box(0).card.files[0].header;
  EXPECT_EQ(header,
            "DATASET DAT00001\r\nVERSION 1\r\nSERIES CH1,CH2,CH3,CH4\r\nDATE 01-05-2026\r\n"
            "TIME 05:30:00\r\nRATE 5000\r\nVERT_UNITS kN,mm,ue,V\r\nHORZ_UNITS SEC\r\n"
            "NUM_SERIES 4\r\nSTORAGE_MODE INTERLACED\r\nFILE_TYPE INTEGER\r\n"
            "SLOPE 2.500000E+00,1.000000E-03,1.000000E+00,1.000000E+00\r\n"
            "X_OFFSET 0,0,0,0\r\nY_OFFSET 0,0,0,0\r\nNUM_SAMPS 16384\r\n"
            "BOX_MODEL VK-480Q\r\nBOX_NUMBER 4800001\r\n"
            "CONDITIONS 40505050507070707CUUUU+010N000N000N000200U000128K2222\r\n");
  for (const char* name : {"HFLDAT00001", "HFLDAT00001.HED", "HFLDAT00001.DAT.HED"})
    EXPECT_EQ(bench.fetch(1, name, 512, header.size()), header) << name;
  // Tenths on channel 1, half a volt on channel 2, both on channel 3.
  ASSERT_EQ(bench.asks(1, "SET42405240507070707FUUUU+010N000N000N000001M000001K2112|RUN"),
            "END END ");
  bench.clock.wait(2 * kSecond);
  ASSERT_EQ(bench.state(1), 1);
  EXPECT_NE(bench.box(0).card.files.back().header.find(
                "SLOPE 2.500000E-01,4.000000E-03,4.000000E-01,1.000000E+00\r\n"),
            std::string::npos);
  for (const CardFile& file : bench.box(0).card.files)
    EXPECT_GE(file.header.size(), 300U) << file.stem << ": smaller ones are not shown";
}

// The raw words of a recording from the sensors' formulas, at 5000 microstrain.
int expectedReading(std::size_t channel, double seconds) {
  const auto part = [&](double period) { return std::fmod(seconds, period) / period; };
  const double filter = 1 / std::sqrt(1 + 1e-8);  // 10 kHz before 1 Hz
  switch (channel) {
    case 0:
      return static_cast<int>(
          std::lround(25 + 1800 * filter * std::sin(2 * 3.14159265358979323846 * part(1))));
    case 1:
      return part(2) < 0.5 ? 0 : 2500;
    case 2:
      return static_cast<int>(std::lround(-100 + 4000 * (2 * part(5) - 1)));
    default:
      return 5250;
  }
}

TEST(Card, DataAreTheSignalsInterlaced) {
  const std::tuple<const char*, std::size_t, double, std::size_t> rows[] = {
      {"DATDAT00001.DAT", 4, 0.0002, 16384},
      {"DATDAT00002.DAT", 1, 0.000005, 32769},
      {"DATDAT00004.DAT", 4, 0.5, 600000}};
  Bench bench(kBox);
  for (const auto& [request, channels, interval, frames] : rows) {
    const std::string bytes = bench.fetch(1, request, 65536, channels * frames * 2);
    ASSERT_EQ(bytes.size(), channels * frames * 2) << request;
    std::size_t wrong = 0;
    for (std::size_t i = 0; i < channels * frames; ++i) {
      const auto raw = static_cast<std::int16_t>(number(bytes, i * 2, 2));
      const double at = static_cast<double>(i / channels) * interval;
      // One more or less where the formula falls between two numbers.
      if (std::abs(raw - expectedReading(i % channels, at)) > 1) ++wrong;
    }
    EXPECT_EQ(wrong, 0U) << request;
  }
}

TEST(Card, TailOfTheLastBlockIsFilled) {
  Bench bench(kBox);
  const std::string whole = bench.fetch(1, "DATDAT00003.DAT", 64, 28);
  ASSERT_EQ(bench.bus.writeA(1, "DATDAT00003.DAT"), 64);
  std::string bytes(65, 'w');
  EXPECT_EQ(bench.bus.readB(1, reinterpret_cast<std::byte*>(bytes.data()), 64), 64);
  EXPECT_EQ(bytes, whole + std::string(36, '\0') + "w");
  EXPECT_EQ(bench.bus.readB(1, reinterpret_cast<std::byte*>(bytes.data()), 64), kReadBFailed);
}

TEST(Card, NamesGoOnAfterTheLast) {
  Card card;
  EXPECT_EQ(card.nextStem(), "DAT00001");
  card.files.push_back({"DAT00041", "", {}, {}});
  card.files.push_back({"DATA", "", {}, {}});
  EXPECT_EQ(card.nextStem(), "DAT00042");
}

TEST(Card, DamagedDirectoriesAreAsNamed) {
  Bench bench(kBox);
  const auto fetch = [&](int damage) {
    if (damage > 0) bench.box(0).faults.add({FaultKind::kDirectory, "", damage, 1});
    return bench.fetch(1, "RTD", 512, kDirectoryBytes);
  };
  // The headers and the data files.
  const auto counts = [](const std::string& image) {
    int headers = 0, data = 0;
    for (std::size_t at = 8; at < image.size(); at += 32) {
      headers += image.compare(at, 3, "HED") == 0;
      data += image.compare(at, 3, "DAT") == 0;
    }
    return fmt::format("{} {}", headers, data);
  };
  const std::string good = fetch(0);
  EXPECT_EQ(counts(good), "4 5");
  EXPECT_NE(fetch(1), good) << "random";
  EXPECT_EQ(counts(fetch(2)), "0 512") << "crowded";
  EXPECT_EQ(counts(fetch(3)), "0 5") << "headless";
  EXPECT_EQ(fetch(4), std::string(kDirectoryBytes, '\xE5')) << "no end";
  EXPECT_EQ(number(fetch(5), 4 * 32 + 28, 4), 0xFFFFFFFF) << "wild sizes";
  EXPECT_EQ(fetch(0), good) << "each only once";
}

}  // namespace
}  // namespace vksim
