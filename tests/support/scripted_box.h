// SPDX-License-Identifier: MIT
// Sound recorders behind the scripted library: each answers the requests of a scan, the status
// poll, and the plain commands by END.
#pragma once

#include <map>
#include <string>

#include "tests/support/scripted_library.h"

namespace vktest {

struct ScriptedBox {
  std::string state = "01";
  std::string role = "00";
  std::string serial = "0000001";
  std::string clock = "26/01/05 09:30:00";
  std::string plain = "END";  ///< reply to RUN, HLT, MTR, RTM
  std::string model = "02";   ///< reply to MET
  bool upgrade = false;       ///< in upgrade mode every request is refused

  std::string replyTo(const std::string& request) const {
    if (upgrade) return "ERR,22";
    if (request == "STA20") return state + " " + clock + " " + role + " 0000 " + serial;
    if (request == "LST0") return "40505050507070707CUUUU+010N000N000N000200U000128K2222";
    if (request == "LST1") return "ue,ue,ue,ue";
    if (request == "LST2") return "1.000000,1.000000,1.000000,1.000000";
    if (request == "FLN") return "002,100";
    return request == "MET" ? model : plain;
  }
};

/// Puts the boxes behind the library, by handle.
inline void plugIn(std::map<int32_t, ScriptedBox> boxes) {
  library() = {};
  library().devices = static_cast<int32_t>(boxes.size());
  library().answer = [boxes = std::move(boxes)](int32_t handle, const std::string& request) {
    const auto box = boxes.find(handle);
    if (box == boxes.end()) return ScriptedLibrary::Reply{"", -1001};
    return ScriptedLibrary::Reply{box->second.replyTo(request) + "\r\n", 80};
  };
}

}  // namespace vktest
