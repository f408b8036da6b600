// SPDX-License-Identifier: MIT
#include "recorder/mdlModel.h"

#include <array>
#include <cstddef>

namespace vk {

namespace {

constexpr auto kRangesOfferedLow = std::to_array<int32_t>({4, 5, 6});
constexpr auto kCarriersLow = std::to_array<int32_t>({kCarrier20});
constexpr auto kCarriersHigh = std::to_array<int32_t>({kCarrier05, kCarrier20});
constexpr auto kFiltersLow = std::to_array<int32_t>({1, 2, 3, 4});
constexpr auto kFiltersHigh = std::to_array<int32_t>({0, 1, 2, 3, 4, 5, 6});
constexpr auto kRangesListedLow =
    std::to_array<std::string_view>({"", "", "", "", " 5000 ue", "10000 ue", "20000 ue"});
constexpr auto kFiltersListedLow =
    std::to_array<std::string_view>({"", " 30 Hz", " 100 Hz", " 300 Hz", " PASS"});

constexpr ModelFamily kLow{
    .dialect = kVk240Q,
    .defaultSet = kDefaultSetLow,
    .excitation = false,
    .tenthLevels = false,
    .ownFilesOnly = true,
    .rangeCodes = rangeCodeLow,
    .rangeCodeElse = "05",
    .filterCodes = filterCodeLow,
    .filterCodeElse = "PS",
    .rangesOffered = kRangesOfferedLow,
    .carriersOffered = kCarriersLow,
    .filtersOffered = kFiltersLow,
    .fastestSampling = minSamplingLow,
    .rangesListed = kRangesListedLow,
    .rangesListed05 = kRangesListedLow,
    .filtersListed = kFiltersListedLow,
};

constexpr ModelFamily kHigh{
    .dialect = kVk480Q,
    .defaultSet = kDefaultSetHigh,
    .excitation = true,
    .tenthLevels = true,
    .ownFilesOnly = false,
    .rangeCodes = rangeCode,
    .rangeCodeElse = "",
    .filterCodes = filterCode,
    .filterCodeElse = "",
    .rangesOffered = rangeOffered,
    .carriersOffered = kCarriersHigh,
    .filtersOffered = kFiltersHigh,
    .fastestSampling = minSampling,
    .rangesListed = rangeName,
    .rangesListed05 = rangeName05,
    .filtersListed = filterName,
};

constexpr std::array<ModelRow, modelName.size()> kModels{{
    {"===== VK-240Q =====", false, kLow},
    {"===== VK-240Qe =====", true, kLow},
    {"===== VK-480Q =====", false, kHigh},
    {"===== VK-480Qe =====", true, kHigh},
}};

}  // namespace

bool isModel(int32_t model) {
  return model >= 0 && static_cast<std::size_t>(model) < kModels.size();
}

const ModelRow& modelRow(int32_t model) {
  return kModels[isModel(model) ? model : kVk480Q];
}

}  // namespace vk
