#include "platform/host/clock.h"

#include <chrono>
#include <ctime>

namespace host {

namespace {

text::DateTime localTime(std::time_t seconds) {
  std::tm local{};
  localtime_r(&seconds, &local);
  return text::DateTime::of(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon) + 1,
                            static_cast<unsigned>(local.tm_mday),
                            local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec);
}

}  // namespace

text::DateTime SystemClock::now() const {
  return localTime(std::time(nullptr));
}

text::DateTime localTime(std::filesystem::file_time_type time) {
  using std::chrono::system_clock;
  const auto since = std::chrono::file_clock::to_sys(time);
  return localTime(
      system_clock::to_time_t(std::chrono::time_point_cast<system_clock::duration>(since)));
}

}  // namespace host
