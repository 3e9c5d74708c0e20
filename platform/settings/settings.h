// The user's settings: texts by application, section and key, names without regard to case.
//
// Reading is from memory. What other stations of the user wrote is seen after refresh() and after
// every write of one's own. Not for use by several threads at once.
#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "platform/settings/backend.h"
#include "platform/settings/values.h"
#include "platform/status/status.h"

namespace settings {

class Settings {
 public:
  // Empty until the first refresh() or write.
  explicit Settings(std::unique_ptr<Backend> backend) : backend_(std::move(backend)) {}

  // Reads again if somebody has written. Damaged: the file was set aside, and what was known stays
  // so until the next refresh or write.
  [[nodiscard]] platform::Status refresh();

  // The value, or the default of the caller when it is missing. Valid until the next refresh or
  // write, the default as long as the caller's own text. Allocates nothing.
  [[nodiscard]] std::string_view get(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view missing = {}) const;

  // Every write is kept at once, as a whole or not at all. Damaged: it was kept nevertheless, in a
  // new file.
  [[nodiscard]] platform::Status set(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view value);
  // Missing when there is no such setting.
  [[nodiscard]] platform::Status remove(std::string_view application, std::string_view section,
                                        std::string_view key);
  // Adds to a whole number, as one step between all stations; answers the sum. What is missing or
  // no number counts as 0; the sum stays at the limits of a long.
  [[nodiscard]] platform::Result<long> add(std::string_view application, std::string_view section,
                                           std::string_view key, long delta);

 private:
  platform::Status apply(const Change& change);

  std::unique_ptr<Backend> backend_;
  Values values_;
};

}  // namespace settings
