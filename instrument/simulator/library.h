// SPDX-License-Identifier: MIT
//
// The way for a test to put its own bus behind the C operations of vk240q_lib.h. Without one they
// make their own from the scenario file beside the library, on the steady clock.
#pragma once

#include "instrument/simulator/bus.h"

namespace vksim {

/// The bus stays the caller's and must outlive its use; null takes it away again.
void attachBus(Bus* bus);

}  // namespace vksim
