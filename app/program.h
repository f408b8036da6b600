// SPDX-License-Identifier: MIT
// The wiring of the program: which window belongs to which stage of the run.
#pragma once

namespace vk {

/// Needs a QApplication; returns the exit code.
int runProgram();

}  // namespace vk
