// SPDX-License-Identifier: MIT
//
// What a recorder answers to the text of one command. The layouts are the wire's; docs/simulator.md
// lists them.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "instrument/simulator/rig.h"

namespace vksim {

struct Answer {
  std::string text;                    ///< with its CR LF, when there are no blocks
  std::unique_ptr<ByteSource> blocks;  ///< what ReadB serves
  bool refusedFile = false;            ///< text stands where file data were asked for
  Micros busy = 0;                     ///< how long the recorder works before it answers
};

/// "ERR,nn" and a line end.
[[nodiscard]] std::string errorReply(int number);

[[nodiscard]] Answer answerCommand(Rig& rig, Recorder& recorder, std::string_view request);

/// Takes a program image. What comes after it is its result.
[[nodiscard]] Answer answerImage(Recorder& recorder, std::int64_t length);

}  // namespace vksim
