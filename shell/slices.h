// Long work in slices, between which the window answers keys.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "platform/host/host.h"

namespace shell {

// When a slice has worked long enough.
class Deadline {
 public:
  explicit Deadline(std::chrono::milliseconds budget)
      : end_(std::chrono::steady_clock::now() + budget) {}
  [[nodiscard]] bool passed() const { return std::chrono::steady_clock::now() >= end_; }

 private:
  std::chrono::steady_clock::time_point end_;
};

// One piece of work at a time. It ends with its last slice, with stop(), or with this object.
class Slices {
 public:
  explicit Slices(host::Host& host) : host_(host) {}

  // Runs the first slice at once. A slice answers whether the work is done; it may stop the work,
  // or start other work.
  using Slice = std::function<bool()>;
  void start(Slice slice);
  void stop() { work_.reset(); }
  [[nodiscard]] bool running() const { return work_ != nullptr; }

 private:
  void run(const std::shared_ptr<Slice>& work);

  host::Host& host_;
  std::shared_ptr<Slice> work_;
};

}  // namespace shell
