// Where settings are kept between runs, and shared with the user's other running stations.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <utility>

#include "platform/settings/values.h"
#include "platform/status/status.h"

namespace settings {

// Edits the values; answers whether it did.
enum class Edit { Changed, Same };
using Change = std::function<Edit(Values&)>;

class Backend {
 public:
  virtual ~Backend() = default;

  // All values. Damaged when they cannot be read; they have been set aside then, and the next call
  // starts empty.
  virtual platform::Result<Values> load() = 0;
  // Whether somebody may have written since the last load or update.
  [[nodiscard]] virtual bool isChanged() const = 0;
  // Runs the change on the newest values and keeps the outcome, as one step between all writers.
  // Answers the values as they are now; on a fault nothing is kept.
  virtual platform::Result<Values> update(const Change& change) = 0;
};

// For as long as the program runs.
class MemoryBackend : public Backend {
 public:
  explicit MemoryBackend(Values values = {}) : values_(std::move(values)) {}

  platform::Result<Values> load() override;
  [[nodiscard]] bool isChanged() const override { return !loaded_; }
  platform::Result<Values> update(const Change& change) override;

 private:
  Values values_;
  bool loaded_ = false;
};

// A file at this path, its folder created when missing. Where that cannot be written, or with an
// empty path: memory, beginning with what the file holds.
[[nodiscard]] std::unique_ptr<Backend> openBackend(const std::filesystem::path& path);

}  // namespace settings
