// Settings in one small text file of the user's, replaced as a whole with every write. Writers of
// several stations take turns by a lock on "<file>.lock" and start from what the last one wrote.
// A file that cannot be understood is kept as "<file>.damaged".
#pragma once

#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "platform/files/descriptor.h"
#include "platform/settings/backend.h"

namespace settings {

class FileBackend : public Backend {
 public:
  explicit FileBackend(std::filesystem::path path) : path_(std::move(path)) {}

  platform::Result<Values> load() override;
  [[nodiscard]] bool isChanged() const override;
  platform::Result<Values> update(const Change& change) override;

 private:
  platform::Result<std::string> read();
  platform::Result<Values> loadOrSetAside();
  platform::Status store(const Values& values);
  platform::Status remember();

  // The file as last read or written. It stays open: as long as it does, no newer file can have
  // its number, so a replaced file is told from this one even within one tick of the clock.
  struct Seen {
    files::Descriptor file;
    struct stat state = {};
  };

  std::filesystem::path path_;
  std::optional<Seen> seen_;  // nothing when there was no file
  bool loaded_ = false;
};

}  // namespace settings
