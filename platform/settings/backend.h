// Where settings are kept between runs, and shared with the user's other running stations.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/settings/guard_file.h"
#include "platform/settings/values.h"
#include "platform/status/status.h"

namespace settings {

// Edits the values; answers whether it did.
enum class Edit { Changed, Same };
using Change = std::function<Edit(Values&)>;

class Backend {
 public:
  virtual ~Backend() = default;

  // All values. Damaged when not all of them can be read: what there was has been kept aside then,
  // and the next call answers what could be read. Where nothing can be kept aside, that is answered
  // at once, and nothing is written.
  virtual platform::Result<Values> load() = 0;
  // Whether somebody may have written since the last load or update.
  [[nodiscard]] virtual bool isChanged() const = 0;
  // Runs the change on the newest values and keeps the outcome, as one step between all writers.
  // Answers the values as they are now; on a fault nothing is kept.
  virtual platform::Result<Values> update(const Change& change) = 0;

  // Whether that setting kept something closed when it was last there; see GuardFile.
  [[nodiscard]] virtual bool isGuarded(const PlaceView&) const { return false; }
  // The file that remembers it; empty when there is none.
  [[nodiscard]] virtual std::filesystem::path guardPath() const { return {}; }
};

// For as long as the program runs.
class MemoryBackend : public Backend {
 public:
  explicit MemoryBackend(Values values = {}, std::optional<GuardFile> guard = {})
      : values_(std::move(values)), guard_(std::move(guard)) {}

  platform::Result<Values> load() override;
  [[nodiscard]] bool isChanged() const override { return !loaded_; }
  platform::Result<Values> update(const Change& change) override;
  [[nodiscard]] bool isGuarded(const PlaceView& place) const override {
    return guard_ && guard_->holds(place);
  }
  [[nodiscard]] std::filesystem::path guardPath() const override {
    return guard_ ? guard_->path() : std::filesystem::path();
  }

 private:
  Values values_;
  std::optional<GuardFile> guard_;
  bool loaded_ = false;
};

// A file at this path, its folder created when missing. Where that cannot be written, or with an
// empty path: memory, beginning with what the file holds.
// `guarded` are the settings that keep something closed.
[[nodiscard]] std::unique_ptr<Backend> openBackend(const std::filesystem::path& path,
                                                   std::vector<Place> guarded = {});

}  // namespace settings
