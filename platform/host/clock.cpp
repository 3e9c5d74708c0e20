#include "platform/host/clock.h"

#include <ctime>

namespace host {

text::DateTime SystemClock::now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  localtime_r(&seconds, &local);
  return text::DateTime::of(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon) + 1,
                            static_cast<unsigned>(local.tm_mday),
                            local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec);
}

}  // namespace host
