// SPDX-License-Identifier: MIT
// The conditions of a box read into its row of the box table, and replaced by the default ones.
#pragma once

#include <cstdint>

namespace vk {

/// LST 0, 1, 2 with their decoders; the sum of the decoders' results.
[[nodiscard]] int32_t readMeasureSetting(int32_t serial);
/// SET, UNT, CEF with the default texts; the sum of the three results.
int32_t writeDefaultSetting(int32_t serial);

}  // namespace vk
