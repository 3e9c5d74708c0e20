#include "shell/background_work.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>

#include "shell/frm_progress.h"

namespace shell {

namespace {

constexpr std::chrono::milliseconds withoutProgress{300};
constexpr std::chrono::milliseconds perLook{30};
constexpr std::int64_t percent = 100;

class Worker {
 public:
  explicit Worker(const FileWork& work) : thread_([this, &work] { run(work); }) {}

  [[nodiscard]] bool endsWithin(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    return ended_.wait_for(lock, patience, [this] { return result_.has_value(); });
  }
  [[nodiscard]] std::int64_t done() const { return done_; }
  // Waits until the work has noticed.
  BackgroundResult stop() {
    const bool running = !endsWithin(std::chrono::milliseconds{0});
    stopped_ = true;
    thread_.join();
    return {*result_, running && !result_->ok()};
  }

 private:
  void run(const FileWork& work) {
    const dao::Status status = work([this](std::int64_t done, std::int64_t total) {
      done_ = percent * done / std::max<std::int64_t>(total, 1);
      return !stopped_;
    });
    const std::scoped_lock lock(mutex_);
    result_ = status;
    ended_.notify_one();
  }

  std::atomic<std::int64_t> done_ = 0;
  std::atomic<bool> stopped_ = false;
  std::mutex mutex_;
  std::condition_variable ended_;
  std::optional<dao::Status> result_;
  std::jthread thread_;  // last: it uses the others
};

}  // namespace

BackgroundResult arkadaYap(Station& istasyon, const std::string& title, const FileWork& work) {
  Worker worker(work);
  if (worker.endsWithin(withoutProgress)) return worker.stop();
  const auto look = [&worker]() -> std::optional<std::int64_t> {
    if (worker.endsWithin(perLook)) return std::nullopt;
    return worker.done();
  };
  surdurerekYap(istasyon, {title, percent, look, ProgressUnit::Percent});
  return worker.stop();
}

}  // namespace shell
