// SPDX-License-Identifier: MIT
// The instrument library of the unit tests: replies come from a list, every call leaves a line in
// a transcript. Linked in place of the shared library.
//
// Transcript lines: "count", "status", "close", "timeout(7)", "write(1,STA20)", "read(1)",
// "writeB(1,131072)", "readB(1,512)". The text of a write is exactly the bytes of its length.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace vktest {

struct ScriptedLibrary {
  /// Answers one read: `result` is returned; on a result above 0 `bytes` are copied in.
  struct Reply {
    std::string bytes;
    int32_t result = 1;
  };

  std::deque<Reply> replies;         ///< ASCII reads; an empty queue gives -1005
  std::deque<Reply> blocks;          ///< binary reads; an empty queue gives -1006
  std::deque<int32_t> writeResults;  ///< results of WriteA and WriteB; an empty queue gives 64
  int32_t devices = 1;
  int32_t open = 0;  ///< what Status returns; a transfer sets it to 1, a Close to 0
  std::vector<std::string> transcript;
  /// When set, asked first for the reply to the last text written to a handle.
  std::function<Reply(int32_t handle, const std::string& request)> answer;

  void reply(std::string bytes) { replies.push_back({std::move(bytes), 80}); }
  void fail(int32_t result) { replies.push_back({"", result}); }
  void block(std::string bytes) {
    const auto size = static_cast<int32_t>(bytes.size());
    blocks.push_back({std::move(bytes), size});
  }
  /// The transcript as one text, a line each, and empties it.
  std::string takeTranscript();
};

/// The one library of the process; a fixture sets it to ScriptedLibrary{} first.
ScriptedLibrary& library();

}  // namespace vktest
