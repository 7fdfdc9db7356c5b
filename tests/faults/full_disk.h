#pragma once

#include <sys/resource.h>

#include <csignal>
#include <cstddef>
#include <stdexcept>

namespace brindlepage {

// A disk on which no file may grow beyond that many bytes, while it lives.
class FullDisk {
 public:
  explicit FullDisk(std::size_t most) {
    std::signal(SIGXFSZ, SIG_IGN);  // or a write beyond it would end the process
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = most;
    if (setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("can't limit files");
  }
  ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  rlimit before_{};
};

}  // namespace brindlepage
