// SPDX-License-Identifier: MIT
//
// The C operations on a test's bus.
#include "instrument/simulator/library.h"

#include <gtest/gtest.h>

#include "link/vk240q_lib.h"
#include "tests/instrument/simulator/bench.h"

namespace vksim {
namespace {

class Library : public testing::Test {
 protected:
  Library() { attachBus(&bench.bus); }
  ~Library() override { attachBus(nullptr); }

  Bench bench{"[box 4800001]\nrole = master\nrecording = 4 200U 100\n[box 4800002]\n"};
};

TEST_F(Library, CarriesExchangesAndBlocks) {
  EXPECT_EQ(Vk240qStatus(), 0);
  EXPECT_EQ(Vk240qCountDevices(), 2);
  char buffer[1024];
  std::memset(buffer, ' ', 80);
  buffer[80] = '!';
  EXPECT_EQ(Vk240qWriteA(2, "STA200", 5), 64);
  EXPECT_EQ(Vk240qReadA(2, buffer), 48);
  EXPECT_EQ(std::string(buffer, 81),
            "01 26/01/05 09:30:00 01 0000 4800002 1.02 2.10\r\n" + std::string(32, ' ') + "!");
  EXPECT_EQ(Vk240qWriteA(2, "STA200", 6), 64);
  EXPECT_EQ(Vk240qReadA(2, buffer), 8) << "six characters are another argument";
  EXPECT_EQ(Vk240qStatus(), 1);

  EXPECT_EQ(Vk240qWriteA(1, "DATDAT00001.DAT", 15), 64);
  EXPECT_EQ(Vk240qReadB(1, buffer, 832), 832);
  EXPECT_EQ(Vk240qSetReadTimeout(15), 0);
  EXPECT_EQ(Vk240qGetReadTimeout(), 15);
  const Micros before = bench.clock.now();
  EXPECT_EQ(Vk240qReadB(1, buffer, 64), -1006);
  EXPECT_EQ(bench.clock.now() - before, 15 * kSecond);
  EXPECT_EQ(Vk240qWriteB(1, buffer, 1024), 64);
  EXPECT_EQ(Vk240qResetPipe(1) + Vk240qClose() + Vk240qStatus(), 0);
}

TEST_F(Library, RefusesWhatItCannotDo) {
  char buffer[80];
  std::string results;
  for (const int result :
       {Vk240qWriteA(3, "RUN", 3), Vk240qReadA(0, buffer), Vk240qReadB(-1, buffer, 64),
        Vk240qGetDeviceDescriptor(3, buffer, 18), Vk240qReadA(1, nullptr),
        Vk240qReadB(1, nullptr, 64), Vk240qReadB(1, buffer, 0), Vk240qWriteA(1, nullptr, 3),
        Vk240qWriteA(1, "RUN", -1), Vk240qWriteB(1, nullptr, 64),
        Vk240qGetDeviceDescriptor(1, buffer, 80)})
    results += std::to_string(result) + " ";
  EXPECT_EQ(results, "-1001 -1001 -1001 -1001 -1005 -1006 -1006 -1007 -1007 -1008 18 ");
  EXPECT_EQ(buffer[0], 18);
}

}  // namespace
}  // namespace vksim
