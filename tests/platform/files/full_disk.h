#pragma once

#include <sys/resource.h>

#include <csignal>

// The file size limit stands for a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  void (*handler_)(int);
  rlimit before_{};
};
