// Settings in one small text file of the user's, replaced as a whole with every write. Writers of
// several stations take turns by a lock on "<file>.lock" and start from what the last one wrote.
// One that cannot be understood, or not all of it, is kept as "<file>.damaged" and made whole again
// from what can be read. "<file>.protected" is the file of the guarded settings. All of them are
// for this user alone. A link in the place of the settings is followed, and stays.
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/files/descriptor.h"
#include "platform/settings/backend.h"

namespace settings {

class FileBackend : public Backend {
 public:
  static constexpr std::size_t largest = std::size_t{4} << 20U;  // bytes

  explicit FileBackend(std::filesystem::path path, std::vector<Place> guarded = {});

  platform::Result<Values> load() override;
  [[nodiscard]] bool isChanged() const override;
  platform::Result<Values> update(const Change& change) override;
  [[nodiscard]] bool isGuarded(const PlaceView& place) const override {
    return guard_.holds(place);
  }
  [[nodiscard]] std::filesystem::path guardPath() const override { return guard_.path(); }
  [[nodiscard]] const GuardFile& guard() const { return guard_; }

 private:
  platform::Result<std::string> read();
  platform::Result<Values> loadOrMend();
  platform::Status setAside(const std::filesystem::path& kept);
  platform::Status store(const Values& values);
  platform::Status remember();

  // The file as last read or written. It stays open: as long as it does, no newer file can have
  // its number, so a replaced file is told from this one even within one tick of the clock.
  struct Seen {
    files::Descriptor file;
    struct stat state = {};
  };

  std::filesystem::path path_;
  GuardFile guard_;
  std::optional<Seen> seen_;  // nothing when there was no file
  bool loaded_ = false;
};

}  // namespace settings
