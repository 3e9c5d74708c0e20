// Data/message.dat: the notes that stations write to each other. Every change is made under a lock
// on the file, so that of two stations that write at once none loses what the other wrote.
#pragma once

#include <filesystem>
#include <functional>
#include <vector>

#include "platform/files/message_record.h"
#include "platform/status/status.h"

namespace files {

// A note and the number of its record, which another station's deletion may change.
struct Message {
  long number = 0;
  MessageRecord record;
};

// All notes in the order of the file; a record that was cut off is none. A missing file is created,
// empty.
[[nodiscard]] platform::Result<std::vector<Message>> readMessages(
    const std::filesystem::path& path);

// Appends the note; it is on the disk when this comes back.
[[nodiscard]] platform::Status sendMessage(const std::filesystem::path& path,
                                           const MessageRecord& record);

// Changes the flags of that very note, wherever its record is by now. Missing when it is gone.
[[nodiscard]] platform::Status changeMessage(const std::filesystem::path& path,
                                             const Message& message,
                                             const std::function<void(MessageRecord&)>& change);

// Takes that very note out. Missing when it is gone already.
[[nodiscard]] platform::Status deleteMessage(const std::filesystem::path& path,
                                             const Message& message);
[[nodiscard]] platform::Status deleteAllMessages(const std::filesystem::path& path);

}  // namespace files
