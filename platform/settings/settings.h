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

  // Reads again if somebody has written. Damaged: not everything could be read; the file was kept
  // aside, and what could be read counts from now on.
  [[nodiscard]] platform::Status refresh();

  // The value, or the default of the caller when it is missing. Valid until the next refresh or
  // write, the default as long as the caller's own text. Allocates nothing.
  [[nodiscard]] std::string_view get(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view missing = {}) const;

  // Every write is kept at once, as a whole or not at all. Damaged: it was kept nevertheless,
  // beside what could be read of the file.
  [[nodiscard]] platform::Status set(std::string_view application, std::string_view section,
                                     std::string_view key, std::string_view value);
  // Missing when there is no such setting.
  [[nodiscard]] platform::Status remove(std::string_view application, std::string_view section,
                                        std::string_view key);
  // Adds to a whole number, as one step between all stations; answers the sum. What is missing or
  // no number counts as 0; the sum stays at the limits of a long.
  [[nodiscard]] platform::Result<long> add(std::string_view application, std::string_view section,
                                           std::string_view key, long delta);

  // Whether the setting kept something closed, nobody has turned it off, and it is not there any
  // more: its file was lost or damaged. What it kept closed has to stay so.
  [[nodiscard]] bool isLost(std::string_view application, std::string_view section,
                            std::string_view key) const;
  // The file that remembers it: whoever removes it, opens what is closed.
  [[nodiscard]] std::filesystem::path guardPath() const { return backend_->guardPath(); }

 private:
  platform::Status apply(const Change& change);

  std::unique_ptr<Backend> backend_;
  Values values_;
};

}  // namespace settings
