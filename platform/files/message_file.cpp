#include "platform/files/message_file.h"

#include <algorithm>
#include <string>
#include <utility>

#include "platform/files/atomic_write.h"
#include "platform/files/record_file.h"

namespace files {
namespace {

using platform::Fault;
using platform::Result;
using platform::Status;
using std::filesystem::path;

Result<std::vector<Message>> readAll(const RecordFile& file) {
  auto records = file.all(mostMessages);
  if (!records) return std::unexpected(records.error());
  std::vector<Message> messages;
  long number = 0;
  for (Record& record : *records) {
    ++number;
    if (record.extent != Extent::Whole) continue;
    messages.push_back({number, MessageRecord::decode(std::move(record.buffer))});
  }
  return messages;
}

// One that was cut off is written over by the next note.
Result<long> wholeRecords(const RecordFile& file) {
  const auto count = file.count();
  if (!count || *count == 0) return count;
  const auto last = file.get(*count);
  if (!last) return std::unexpected(last.error());
  return last->extent == Extent::Whole ? *count : *count - 1;
}

Status noRoom(const path& name) {
  return {Fault::TooLarge, name.string() + ": there are too many messages."};
}

// The file, and the lock that goes before it.
struct Locked {
  RecordFile file;
  ScopedRangeLock lock;
};

// A deletion puts a new file in the place of the old one: a lock on the old one would keep nobody
// out.
Result<Locked> lockFile(const path& name) {
  for (;;) {
    auto file = RecordFile::open(name, MessageRecord::length);
    if (!file) return std::unexpected(file.error());
    auto lock = file->lockAll();
    if (!lock) return std::unexpected(lock.error());
    if (!file->isReplaced()) return Locked{std::move(*file), std::move(*lock)};
  }
}

// Under its own number, unless a deletion has moved it; the end when it is gone.
auto placeOf(std::vector<Message>& messages, const Message& wanted) {
  const auto isWanted = [&](const Message& each) { return each.record.isSameNote(wanted.record); };
  const auto there = std::ranges::lower_bound(messages, wanted.number, {}, &Message::number);
  if (there != messages.end() && isWanted(*there)) return there;
  return std::ranges::find_if(messages, isWanted);
}

Status gone(const path& name) {
  return {Fault::Missing, name.string() + ": the message is not there any more."};
}

}  // namespace

Result<std::vector<Message>> readMessages(const path& name) {
  const auto file = RecordFile::open(name, MessageRecord::length);
  if (!file) return std::unexpected(file.error());
  return readAll(*file);
}

Status sendMessage(const path& name, const MessageRecord& record) {
  auto locked = lockFile(name);
  if (!locked) return locked.error();
  const auto whole = wholeRecords(locked->file);
  if (!whole) return whole.error();
  if (*whole >= mostMessages) return noRoom(name);
  if (Status put = locked->file.put(*whole + 1, record.encode()); !put) return put;
  return locked->file.flush();
}

Status changeMessages(const path& name, std::span<const Message> wanted,
                      const std::function<void(MessageRecord&)>& change) {
  if (wanted.empty()) return {};
  auto locked = lockFile(name);
  if (!locked) return locked.error();
  auto messages = readAll(locked->file);
  if (!messages) return messages.error();
  Status result;
  for (const Message& each : wanted) {
    const auto place = placeOf(*messages, each);
    if (place == messages->end()) {
      result = gone(name);
      continue;
    }
    change(place->record);
    const Status put = locked->file.put(place->number, place->record.encode());
    if (!put) return put;
  }
  return result;
}

Status deleteMessage(const path& name, const Message& message) {
  const auto locked = lockFile(name);
  if (!locked) return locked.error();
  auto messages = readAll(locked->file);
  if (!messages) return messages.error();
  const auto place = placeOf(*messages, message);
  if (place == messages->end()) return gone(name);
  messages->erase(place);
  std::string rest;
  for (const Message& each : *messages) rest += each.record.encode().bytes();
  return writeAtomically(name, rest);
}

Status deleteAllMessages(const path& name) {
  const auto locked = lockFile(name);
  return locked ? writeAtomically(name, {}) : locked.error();
}

}  // namespace files
