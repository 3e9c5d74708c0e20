// Data/message.dat: the notes that stations write to each other. Every change is made under a lock
// on the file, so that of two stations that write at once none loses what the other wrote.
#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <vector>

#include "platform/files/message_record.h"
#include "platform/status/status.h"

namespace files {

// A note and the number of its record, which another station's deletion may change.
struct Message {
  long number = 0;
  MessageRecord record;
};

// More than any practice keeps. A file with more is neither read nor written, but it can be
// emptied.
inline constexpr long mostMessages = 20000;

// All notes in the order of the file; a record that was cut off is none. A missing file is created,
// empty. TooLarge when there are more than `mostMessages`, as for all that follow but the last.
[[nodiscard]] platform::Result<std::vector<Message>> readMessages(
    const std::filesystem::path& path);

// Appends the note; it is on the disk when this comes back.
[[nodiscard]] platform::Status sendMessage(const std::filesystem::path& path,
                                           const MessageRecord& record);

// Changes the flags of those very notes, wherever their records are by now. Missing when one is
// gone; the others are changed.
[[nodiscard]] platform::Status changeMessages(const std::filesystem::path& path,
                                              std::span<const Message> wanted,
                                              const std::function<void(MessageRecord&)>& change);

// Takes that very note out. Missing when it is gone already.
[[nodiscard]] platform::Status deleteMessage(const std::filesystem::path& path,
                                             const Message& message);
[[nodiscard]] platform::Status deleteAllMessages(const std::filesystem::path& path);

}  // namespace files
