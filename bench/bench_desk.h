// A desk without people, a folder that goes away, and a clock: what measurements of the card need.
#pragma once

#include <stdlib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "platform/settings/backend.h"
#include "registry/frm_main.h"
#include "tools/practice.h"

namespace bench {

using Milliseconds = std::chrono::duration<double, std::milli>;

// A desk where nobody sits: put-off tasks wait until the measurement asks for them.
class EmptyDesk : public host::Host {
 public:
  std::deque<std::function<void()>> tasks;

  host::Answer messageBox(const host::Message&) override { return host::Answer::Yes; }
  std::string inputBox(std::string_view, std::string_view, std::string_view) override { return {}; }
  std::optional<std::string> openFile(const host::FileRequest&) override { return std::nullopt; }
  std::optional<std::string> chooseFolder(std::string_view, std::string_view) override {
    return std::nullopt;
  }
  std::optional<forms::Font> chooseFont(const forms::Font&) override { return std::nullopt; }
  std::optional<forms::Colour> chooseColour(forms::Colour) override { return std::nullopt; }
  void show(forms::Form&) override {}
  void showModal(forms::Form&) override {}
  void close(forms::Form&) override {}
  void later(std::function<void()> task) override { tasks.push_back(std::move(task)); }
  void pause(int) override {}
  void shellOpen(std::string_view) override {}
  void beep() override {}
  void sendKeys(std::string_view) override {}
  void runtimeError(const platform::Status& status) override {
    std::fprintf(stderr, "%s\n", status.text().c_str());
  }
  std::optional<Size> pictureSize(std::string_view) override { return std::nullopt; }
};

class StandingClock : public host::Clock {
 public:
  [[nodiscard]] text::DateTime now() const override { return tools::PracticeOptions().reference; }
};

struct Desk {
  explicit Desk(const std::string& folder)
      : settings(std::make_unique<settings::MemoryBackend>()),
        station({host, clock, settings, screens}, folder, "General Medicine"),
        main(station) {
    main.Load();
  }

  EmptyDesk host;
  StandingClock clock;
  settings::Settings settings;
  shell::ScreenDirectory screens;
  shell::Station station;
  registry::FrmMain main;
};

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "bench-XXXXXX");
    if (::mkdtemp(pattern.data()) != nullptr) path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  [[nodiscard]] const std::string& path() const { return path_; }

 private:
  std::string path_;
};

[[noreturn]] inline void fail(const std::string& why) {
  throw std::runtime_error(why);
}
inline void need(const platform::Status& status) {
  if (!status) fail(status.text());
}

template <class Work>
double timed(Work work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return Milliseconds(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> times) {
  std::ranges::sort(times);
  return times[times.size() / 2];
}

}  // namespace bench
