// SPDX-License-Identifier: MIT
// The spellings of every measurement condition: the code that travels to and from the instrument,
// the text that the dialogs show, the word that the setting file stores. All spellings of one
// condition share one index, and the index is what a record keeps. Display texts keep their
// leading blanks, because a selection is found by comparing texts. The rule tables of
// recorder/mdlConditionRules.h stand here too; which family uses which is told in
// recorder/mdlModel.h. Everything is constant.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace vk {

/// Index of the first entry that is exactly `text`, -1 without one.
int32_t findIndex(std::span<const std::string_view> table, std::string_view text);

/// The entry, or an empty text for an index outside the table.
std::string_view textAt(std::span<const std::string_view> table, int32_t index);

/// Puts the index of `text` into `field`, which keeps its value when the table does not hold the
/// text. An empty text is no spelling of anything, even where a table has an empty entry.
template <typename Field>
void lookup(std::span<const std::string_view> table, std::string_view text, Field& field) {
  const int32_t index = text.empty() ? -1 : findIndex(table, text);
  if (index >= 0) field = static_cast<Field>(index);
}

// --- channel mode -----------------------------------------------------------------------------

inline constexpr int kModes = 3;
inline constexpr auto chModeCode = std::to_array<std::string_view>({"1", "2", "4"});
inline constexpr auto chModeName =
    std::to_array<std::string_view>({"1 Channel", "2 Channel", "4 Channel"});
inline constexpr auto chModeFile = std::to_array<std::string_view>({"1", "2", "4"});
/// Channels in use: 1 to the count of the mode.
inline constexpr std::array<int, kModes> chModeCount{1, 2, 4};
/// Of a record, which may hold nonsense: then all channels.
inline constexpr int channelCount(int mode) {
  return mode >= 0 && mode < kModes ? chModeCount[mode] : chModeCount.back();
}

// --- range ------------------------------------------------------------------------------------

// Slot 24 is empty: a search for an empty text ends there, and its file word is an empty word.
inline constexpr auto rangeCode = std::to_array<std::string_view>(
    {"01", "02", "03", "04", "05", "06", "07", "08", "21", "22", "23", "24", "11",
     "12", "13", "14", "15", "16", "17", "18", "31", "32", "33", "34", ""});
/// At excitation "2.0 V".
inline constexpr auto rangeName = std::to_array<std::string_view>({
    "     200 ue", "     500 ue", "   1000 ue", "   2000 ue", "   5000 ue",
    " 10000 ue",   " 20000 ue",   "30000 ue",   "200.0 ue",   "500.0 ue",
    "1000.0 ue",   "2000.0 ue",   "    200 mV", "    500 mV", "   1000 mV",
    "   2000 mV",  "   5000 mV",  " 10000 mV",  " 20000 mV",  " 30000 mV",
    " 200.0 mV",   " 500.0 mV",   "1000.0 mV",  "2000.0 mV",  "",
});
/// At excitation "0.5 V" the same index means a four times wider range.
inline constexpr auto rangeName05 = std::to_array<std::string_view>({
    "     800 ue", "   2000 ue", "   4000 ue", "   8000 ue", " 20000 ue",
    " 40000 ue",   " 80000 ue",  "120000 ue",  "800.0 ue",   "2000.0 ue",
    "4000.0 ue",   "8000.0 ue",  "    800 mV", "   2000 mV", "   4000 mV",
    "   8000 mV",  "  20000 mV", " 40000 mV",  " 80000 mV",  "120000 mV",
    " 800.0 mV",   "2000.0 mV",  "4000.0 mV",  "8000.0 mV",  "",
});
/// The wording at 2.0 V, whatever the excitation.
inline constexpr auto rangeFile = std::to_array<std::string_view>({
    "200ue",   "500ue",    "1000ue",   "2000ue",   "5000ue",   "10000ue", "20000ue",
    "30000ue", "200.0ue",  "500.0ue",  "1000.0ue", "2000.0ue", "200mV",   "500mV",
    "1000mV",  "2000mV",   "5000mV",   "10000mV",  "20000mV",  "30000mV", "200.0mV",
    "500.0mV", "1000.0mV", "2000.0mV", "",
});
/// The VK-240Q family knows three ranges and spells them in its own way.
inline constexpr auto rangeCodeLow =
    std::to_array<std::string_view>({"", "", "", "", "05", "10", "20"});
/// What the dialog offers; entries of rangeName or rangeName05.
inline constexpr auto rangeOffered = std::to_array<int32_t>({2, 3, 4, 5, 6, 10, 11});
/// What a record may hold: the offered ranges and their voltage twins.
inline constexpr auto rangeAccepted =
    std::to_array<int32_t>({2, 3, 4, 5, 6, 10, 11, 14, 15, 16, 17, 18, 22, 23});

// --- excitation, filter -----------------------------------------------------------------------

inline constexpr auto carrierCode = std::to_array<std::string_view>({"0", "1", "2"});
inline constexpr auto carrierName = std::to_array<std::string_view>({"OFF", "0.5 V", "2.0 V"});
inline constexpr auto carrierFile = std::to_array<std::string_view>({"OFF", "0.5V", "2.0V"});
inline constexpr int32_t kCarrier05 = 1;
inline constexpr int32_t kCarrier20 = 2;

inline constexpr auto filterCode =
    std::to_array<std::string_view>({"01", "02", "03", "04", "05", "06", "07", "08"});
/// No dialog offers the last entry, which is written without its blank and has no file word.
inline constexpr auto filterName = std::to_array<std::string_view>(
    {"  10 Hz", "  30 Hz", "100 Hz", "300 Hz", "  1 kHz", "  3 kHz", "10 kHz", "30kHz"});
inline constexpr auto filterFile = std::to_array<std::string_view>(
    {"10Hz", "30Hz", "100Hz", "300Hz", "1kHz", "3kHz", "10kHz", ""});
/// On the VK-240Q family "PS" passes the signal through; it shows as "  1 kHz".
inline constexpr auto filterCodeLow = std::to_array<std::string_view>({"", "03", "10", "30", "PS"});

// --- trigger ----------------------------------------------------------------------------------

inline constexpr auto trgModeCode = std::to_array<std::string_view>({"S", "C", "F"});
inline constexpr auto trgModeName =
    std::to_array<std::string_view>({"SINGLE", "CONTINUE", "FREE RUN"});
inline constexpr auto trgModeFile = trgModeName;
inline constexpr int32_t kFreeRun = 2;

/// A slope that is off has the letter of "UP"; the level field tells it.
inline constexpr auto trgSlopeCode = std::to_array<std::string_view>({"U", "D", "U"});
inline constexpr auto trgSlopeName = std::to_array<std::string_view>({"UP", "DOWN", "OFF"});
inline constexpr auto trgSlopeFile = trgSlopeName;
inline constexpr int32_t kSlopeOff = 2;

// --- sampling ---------------------------------------------------------------------------------

inline constexpr int kSamplings = 17;
inline constexpr auto samplingCode = std::to_array<std::string_view>(
    {"005U", "010U", "020U", "050U", "100U", "200U", "500U", "001M", "002M", "005M", "010M", "020M",
     "050M", "100M", "200M", "500M", "001S"});
inline constexpr auto samplingName = std::to_array<std::string_view>(
    {"5 usec", "10 usec", "20 usec", "50 usec", "100 usec", "200 usec", "500 usec", "1 msec",
     "2 msec", "5 msec", "10 msec", "20 msec", "50 msec", "100 msec", "200 msec", "500 msec",
     "1 sec"});
inline constexpr auto samplingFile = std::to_array<std::string_view>(
    {"5usec", "10usec", "20usec", "50usec", "100usec", "200usec", "500usec", "1msec", "2msec",
     "5msec", "10msec", "20msec", "50msec", "100msec", "200msec", "500msec", "1sec"});
inline constexpr std::array<float, kSamplings> samplingSec{
    0.000005F, 0.00001F, 0.00002F, 0.00005F, 0.0001F, 0.0002F, 0.0005F, 0.001F, 0.002F,
    0.005F,    0.01F,    0.02F,    0.05F,    0.1F,    0.2F,    0.5F,    1.0F};
/// Samples per second, as a header file writes them.
inline constexpr auto samplingHz =
    std::to_array<std::string_view>({"200000", "100000", "50000", "20000", "10000", "5000", "2000",
                                     "1000", "500", "200", "100", "50", "20", "10", "5", "2", "1"});
/// Shows seconds at the resolution of the sampling.
inline constexpr auto samplingFormat = std::to_array<std::string_view>(
    {"0.000000", "0.00000", "0.00000", "0.00000", "0.0000", "0.0000", "0.0000", "0.000", "0.000",
     "0.000", "0.00", "0.00", "0.00", "0.0", "0.0", "0.0", "0"});
inline constexpr int32_t kSampling1msec = 7;

// --- pre-area, data size ----------------------------------------------------------------------

/// The last two both stand for the most that a data size allows: "100(99) %" where the store
/// before the trigger holds the whole recording, "Max" where it is smaller.
inline constexpr auto preAreaCode = std::to_array<std::string_view>(
    {"000", "010", "020", "030", "040", "050", "060", "070", "080", "090", "100", "100"});
inline constexpr auto preAreaName =
    std::to_array<std::string_view>({"0 %", "10 %", "20 %", "30 %", "40 %", "50 %", "60 %", "70 %",
                                     "80 %", "90 %", "100(99) %", "Max"});
inline constexpr auto preAreaFile = std::to_array<std::string_view>(
    {"0%", "10%", "20%", "30%", "40%", "50%", "60%", "70%", "80%", "90%", "100%", "100%"});
inline constexpr std::array<float, 12> preAreaRatio{0.0F, 0.1F, 0.2F, 0.3F, 0.4F,  0.5F,
                                                    0.6F, 0.7F, 0.8F, 0.9F, 0.99F, 0.99F};
inline constexpr int32_t kPreAreaFull = 10;
inline constexpr int32_t kPreAreaMax = 11;

inline constexpr int kDataSizes = 24;
inline constexpr auto dataSizeCode = std::to_array<std::string_view>(
    {"001K", "002K", "004K", "008K", "016K", "032K", "064K", "128K",
     "256K", "512K", "001M", "002M", "003M", "004M", "006M", "008M",
     "012M", "016M", "024M", "032M", "048M", "060M", "120M", "240M"});
inline constexpr auto dataSizeName = std::to_array<std::string_view>(
    {"1K", "2K", "4K", "8K", "16K", "32K", "64K", "128K", "256K", "512K", "1M",   "2M",
     "3M", "4M", "6M", "8M", "12M", "16M", "24M", "32M",  "48M",  "60M",  "120M", "240M"});
inline constexpr auto dataSizeFile = dataSizeName;
/// K and M are binary.
inline constexpr std::array<int32_t, kDataSizes> dataSizeSamples{
    1024,     2048,     4096,     8192,     16384,    32768,    65536,     131072,
    262144,   524288,   1048576,  2097152,  3145728,  4194304,  6291456,   8388608,
    12582912, 16777216, 25165824, 33554432, 50331648, 62914560, 125829120, 251658240};
inline constexpr int32_t kDataSize32K = 5;

// --- unit, balance, model ---------------------------------------------------------------------

/// A blank and the number signs are units that a user can pick.
inline constexpr auto unitName = std::to_array<std::string_view>(
    {"ue", "mm",  "cm",   "m",      "C",      "F",   "deg", "gf",   "kgf", "tf",
     "N",  "kN",  "MN",   "kg/mm2", "kPa",    "MPa", "kgm", "mV",   "V",   "mA",
     "A",  "ohm", "Mohm", "Hz",     "G",      "%",   "rpm", "ppm",  "Tor", " ",
     "Nm", "###", "kohm", "m/S2",   "kg/cm2", "hPa", "u",   "N/mm2"});

inline constexpr auto onOffCode = std::to_array<std::string_view>({"0", "1"});
inline constexpr auto onOffName = std::to_array<std::string_view>({"ON", "OFF"});
inline constexpr auto onOffFile = onOffName;

inline constexpr auto masterSlaveName = std::to_array<std::string_view>({"MASTER", "SLAVE"});
inline constexpr auto modelName =
    std::to_array<std::string_view>({"VK-240Q", "VK-240Qe", "VK-480Q", "VK-480Qe"});

// --- labels and keys of files -----------------------------------------------------------------

/// In file order.
inline constexpr auto setFileLabel = std::to_array<std::string_view>(
    {"Number of Channels :", "Range :", "Carrier :", "Filter :", "Balance :", "Trigger Mode :",
     "Trigger Slope :", "Trigger Level :", "Sampling :", "Pre Area :", "Data Size :", "Unit :",
     "Coeff :"});
/// Not the order in which a header file writes them.
inline constexpr auto headerKey = std::to_array<std::string_view>(
    {"DATASET", "VERSION", "SERIES", "DATE", "TIME", "RATE", "VERT_UNITS", "HORZ_UNITS",
     "NUM_SERIES", "STORAGE_MODE", "FILE_TYPE", "SLOPE", "Y_OFFSET", "X_OFFSET", "NUM_SAMPS"});

// --- lists of the monitors --------------------------------------------------------------------

/// By the number of decimals.
inline constexpr auto decimalFormat =
    std::to_array<std::string_view>({"0", "0.0", "0.00", "0.000", "0.0000", "0.00000", "0.000000"});
/// Sweep of the wave monitor.
inline constexpr auto moniSpeedName =
    std::to_array<std::string_view>({"10msec", "20msec", "50msec", "100msec", "200msec", "500msec",
                                     "1sec", "2sec", "5sec", "10sec", "30sec", "60sec"});
/// Wave, X-Y and bar monitors.
inline constexpr auto moniFullScale =
    std::to_array<std::string_view>({"0.1", "0.2", "0.5", "1", "2", "5", "10", "20", "50", "100",
                                     "200", "500", "1000", "2000", "5000", "10000"});
/// Circle monitor.
inline constexpr auto meterFullScale = std::to_array<std::string_view>(
    {"1", "2", "5", "10", "20", "50", "100", "200", "500", "1000", "2000", "5000", "10000", "20000",
     "50000", "100000", "300000", "500000"});
inline constexpr auto meterOffset = std::to_array<std::string_view>(
    {"-10000", "-5000", "-2000", "-1000", "-500", "-200", "-100", "-50",  "-20",
     "-10",    "-5",    "-2",    "-1",    "0",    "1",    "2",    "5",    "10",
     "20",     "50",    "100",   "200",   "500",  "1000", "2000", "5000", "10000"});

// --- rule tables, by channel mode and index -----------------------------------------------------

template <std::size_t N>
using RuleTable = std::array<std::array<int32_t, N>, kModes>;

/// The smallest data size of a sampling; -1 when the channel mode cannot use the sampling.
inline constexpr RuleTable<kSamplings> minDataSize{{
    {6, 5, 4, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {-1, 5, 4, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {-1, -1, 4, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
}};

/// The fastest sampling of a data size on the VK-480Q family, and without a box.
inline constexpr RuleTable<kDataSizes> minSampling{{
    {5, 4, 3, 3, 2, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
    {5, 4, 3, 3, 2, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1},
    {5, 4, 3, 3, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2},
}};

/// The same on the VK-240Q family.
inline constexpr RuleTable<kDataSizes> minSamplingLow{{
    {5, 4, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3},
    {5, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4},
    {5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5},
}};

/// The greatest pre-area of a data size; kPreAreaMax when only "0 %" and "Max" go with it.
inline constexpr RuleTable<kDataSizes> maxPreArea{{
    {10, 10, 10, 10, 10, 10, 10, 10, 10, 5, 2, 1, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11},
    {10, 10, 10, 10, 10, 10, 10, 10, 5, 2, 1, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11},
    {10, 10, 10, 10, 10, 10, 10, 5, 2, 1, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11, 11},
}};

/// Samples that the store before the trigger holds per channel.
inline constexpr std::array<int32_t, kModes> preTriggerStore{262144, 131072, 65536};

}  // namespace vk
