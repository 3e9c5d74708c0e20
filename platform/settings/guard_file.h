// Which settings keep something closed, remembered beside the settings file. What a user has locked
// must not come open because the file with the lock is gone. Holds names, no values.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "platform/settings/values.h"

namespace settings {

class GuardFile {
 public:
  // The places whose keys are remembered while they are on; every key but once.
  GuardFile(std::filesystem::path path, std::vector<Place> guarded)
      : path_(std::move(path)), guarded_(std::move(guarded)) {}

  // A file that is there and cannot be read remembers everything.
  [[nodiscard]] bool holds(const PlaceView& place) const;

  // Around a change of the settings. What the change itself turns off is forgotten before it is
  // kept, what is on is remembered afterwards: whenever the machine stops, nothing is held that
  // nobody has locked. What is missing before and after stays remembered.
  void forget(const Values& before, const Values& after);
  void remember(const Values& values);

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }

 private:
  using Keys = std::set<std::string>;
  [[nodiscard]] Keys keys() const;
  void write(const Keys& keys);

  std::filesystem::path path_;
  std::vector<Place> guarded_;
};

}  // namespace settings
