// Looks every now and then whether somebody has written to the user of this desk.
#pragma once

#include <optional>

#include "scheduling/message_board.h"
#include "shell/station.h"

namespace scheduling {

class MessageWatch {
 public:
  explicit MessageWatch(const shell::Station& istasyon) : istasyon_(istasyon) {}

  // Called with every tick of the desk's timer. The number of new messages when it may be another
  // one than before, else none. A file that nobody has changed is not read again.
  [[nodiscard]] std::optional<long> look();

 private:
  [[nodiscard]] bool isDue();

  const shell::Station& istasyon_;
  text::DateTime lookedAt_;
  MessageStamp seen_;
};

}  // namespace scheduling
