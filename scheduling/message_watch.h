// Looks every now and then whether somebody has written to the user of this desk.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "shell/station.h"

namespace scheduling {

class MessageWatch {
 public:
  explicit MessageWatch(const shell::Station& istasyon) : istasyon_(istasyon) {}

  // Called with every tick of the desk's timer. The number of new messages when it may be another
  // one than before, else none. A file that nobody has changed is not read again.
  [[nodiscard]] std::optional<long> look();

 private:
  struct Seen {
    std::filesystem::file_time_type changed;
    std::uintmax_t size = 0;
    std::string address;
    bool operator==(const Seen&) const = default;
  };
  [[nodiscard]] bool isDue();
  [[nodiscard]] Seen present() const;

  const shell::Station& istasyon_;
  text::DateTime lookedAt_;
  Seen seen_;
};

}  // namespace scheduling
