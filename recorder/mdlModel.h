// SPDX-License-Identifier: MIT
// What tells the models apart: one row per model, and one per family for what its models share.
// Everything else in the program is the same for all of them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "recorder/mdlCodeTables.h"

namespace vk {

/// Index into modelName and the table of models.
enum Model : int16_t { kVk240Q = 0, kVk240Qe = 1, kVk480Q = 2, kVk480Qe = 3 };
inline constexpr int32_t kNoModel = -1;

/// The settings strings of an instrument whose contents are not normal.
inline constexpr std::string_view kDefaultSetLow =
    "405050505PSPSPSPSCUUUU+010N000N000N000200U000128K";
inline constexpr std::string_view kDefaultSetHigh =
    "40505050507070707CUUUU+010N000N000N000200U000128K2222";

using Texts = std::span<const std::string_view>;
using Indices = std::span<const int32_t>;

struct ModelFamily {
  Model dialect;  ///< whose name a setting file of the family begins with
  std::string_view defaultSet;
  bool excitation;    ///< can be chosen, and stands in its texts
  bool tenthLevels;   ///< levels below 100 % travel as tenths
  bool ownFilesOnly;  ///< its dialog takes no setting file of the other family

  Texts rangeCodes;  ///< at the indices of rangeName
  std::string_view rangeCodeElse;
  Texts filterCodes;  ///< at the indices of filterName
  std::string_view filterCodeElse;

  Indices rangesOffered;
  Indices carriersOffered;
  Indices filtersOffered;
  const RuleTable<kDataSizes>& fastestSampling;

  Texts rangesListed;    ///< names in the list of conditions
  Texts rangesListed05;  ///< the same at an excitation of 0.5 V
  Texts filtersListed;
};

struct ModelRow {
  std::string_view banner;  ///< in the log of a scan
  bool analogOutput;
  const ModelFamily& family;
};

/// An index into modelName.
bool isModel(int32_t model);
/// The row of a model; what is no model counts as VK-480Q.
const ModelRow& modelRow(int32_t model);
inline const ModelFamily& modelFamily(int32_t model) {
  return modelRow(model).family;
}

}  // namespace vk
