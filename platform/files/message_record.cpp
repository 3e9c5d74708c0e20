#include "platform/files/message_record.h"

#include <tuple>
#include <utility>

#include "platform/files/record_fields.h"

namespace files {
namespace {

constexpr TextField<MessageRecord> textFields[] = {
    {&MessageRecord::sender, 0, MessageRecord::nameWidth},
    {&MessageRecord::addressee, 30, MessageRecord::nameWidth},
    {&MessageRecord::subject, 60, MessageRecord::subjectWidth},
    {&MessageRecord::sent, 110, 20},
    {&MessageRecord::text, 130, MessageRecord::textWidth},
};

constexpr NumberField<MessageRecord> numberFields[] = {
    {&MessageRecord::isNew, 380},
    {&MessageRecord::isRead, 382},
};

}  // namespace

RecordBuffer MessageRecord::unwritten() {
  return asNew<MessageRecord>(RecordBuffer{length}, textFields);
}

MessageRecord MessageRecord::decode(RecordBuffer buffer) {
  buffer.resize(length);
  MessageRecord record;
  for (const auto& field : textFields) read(record, buffer, field);
  for (const auto& field : numberFields) read(record, buffer, field);
  record.carried_ = asNew<MessageRecord>(std::move(buffer), textFields);
  return record;
}

RecordBuffer MessageRecord::encode() const {
  RecordBuffer buffer = carried_;
  for (const auto& field : textFields) write(*this, buffer, field);
  for (const auto& field : numberFields) write(*this, buffer, field);
  return buffer;
}

bool MessageRecord::isSameNote(const MessageRecord& other) const {
  const auto note = [](const MessageRecord& record) {
    return std::tie(record.sender, record.addressee, record.subject, record.sent, record.text);
  };
  return note(*this) == note(other);
}

}  // namespace files
