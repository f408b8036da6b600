// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace vktest {

/// While it lives no file of this process grows beyond a size: a write over it is cut short and the
/// next one fails, as on a full disk.
class FileLimit {
 public:
  explicit FileLimit(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    set(bytes);
  }
  ~FileLimit() { set(before_.rlim_cur); }
  FileLimit(const FileLimit&) = delete;
  FileLimit& operator=(const FileLimit&) = delete;

  void set(rlim_t bytes) {
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }

 private:
  rlimit before_{};
};

}  // namespace vktest
