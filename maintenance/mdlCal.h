// SPDX-License-Identifier: MIT
// The calibration output of the models with an analog output: off, plus or minus a volt added to
// it. An output that was switched on here does not outlive the form.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace vk {

inline constexpr int kCalOutputs = 3;
inline constexpr int kCalPictures = 2 * kCalOutputs;  ///< the normal ones, then the lit ones
inline constexpr std::string_view kCalCaption = "Calibration";
inline constexpr std::array<std::string_view, kCalOutputs> kCalButtons{"CAL OFF", "+CAL", "-CAL"};
inline constexpr std::string_view kCalExplanation =
    "Output a voltage after calibration voltage of +1V, 0V or -1V has been added to analog "
    "outputof VK-480Qe.";
inline constexpr int kNoCalButton = -1;

struct Calibration {
  int32_t serial = 0;
  bool on = false;             ///< a calibration voltage is on the output
  int pressed = kNoCalButton;  ///< the button whose picture is lit
};

/// A button (0 to 2) is pressed. False when the box has no calibration output: the message was
/// shown, and the form closes.
[[nodiscard]] bool pressCal(Calibration& calibration, int button);
/// The form closes: an output that is on goes off, when the box answers to its name.
void closeCal(Calibration& calibration);
/// The picture (0 to 5) of a button.
int calPicture(const Calibration& calibration, int button);

}  // namespace vk
