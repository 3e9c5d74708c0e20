#include "platform/files/net_record.h"

#include <utility>

#include "platform/files/record_fields.h"

namespace files {
namespace {

constexpr TextField<NetRecord> nameFields[] = {{&NetRecord::name, 0, 40}};

constexpr NumberField<NetRecord> numberFields[] = {
    {&NetRecord::used, 40},
    {&NetRecord::reserved, 42},
    {&NetRecord::appointmentFlag, 44},
};

}  // namespace

RecordBuffer NetRecord::unwritten() {
  return asNew<NetRecord>(RecordBuffer{length}, nameFields);
}

NetRecord NetRecord::decode(RecordBuffer buffer) {
  buffer.resize(length);
  NetRecord record;
  read(record, buffer, nameFields[0]);
  for (const auto& field : numberFields) read(record, buffer, field);
  record.carried_ = asNew<NetRecord>(std::move(buffer), nameFields);
  return record;
}

RecordBuffer NetRecord::encode() const {
  RecordBuffer buffer = carried_;
  write(*this, buffer, nameFields[0]);
  for (const auto& field : numberFields) write(*this, buffer, field);
  return buffer;
}

}  // namespace files
