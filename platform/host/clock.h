// The present date and time, so that tests can set them.
#pragma once

#include <filesystem>

#include "platform/text/date.h"

namespace host {

class Clock {
 public:
  virtual ~Clock() = default;
  // The local date with the seconds passed of the day.
  [[nodiscard]] virtual text::DateTime now() const = 0;
  [[nodiscard]] text::DateTime today() const { return {now().day, 0}; }
};

class SystemClock final : public Clock {
 public:
  [[nodiscard]] text::DateTime now() const override;
};

// The local date and time of a file.
[[nodiscard]] text::DateTime localTime(std::filesystem::file_time_type time);

}  // namespace host
