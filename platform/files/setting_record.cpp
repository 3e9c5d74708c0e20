#include "platform/files/setting_record.h"

#include <utility>

#include "platform/files/record_fields.h"

namespace files {
namespace {

constexpr TextField<SettingRecord> texts[] = {
    {&SettingRecord::owner, 0, 30},      {&SettingRecord::colour, 70, 50},
    {&SettingRecord::fontName, 120, 50}, {&SettingRecord::signature, 170, 50},
    {&SettingRecord::text1, 220, 50},    {&SettingRecord::text2, 270, 50},
};

constexpr std::size_t numbersOffset = 30;

constexpr NumberField<SettingRecord> singles[] = {
    {&SettingRecord::templateNumber, 58},
    {&SettingRecord::fontSize, 60},
};

constexpr FlagField<SettingRecord> flags[] = {
    {&SettingRecord::bold, 62},
    {&SettingRecord::italic, 64},
    {&SettingRecord::underline, 66},
    {&SettingRecord::strikethrough, 68},
};

}  // namespace

RecordBuffer SettingRecord::unwritten() {
  return asNew<SettingRecord>(RecordBuffer{length}, texts);
}

SettingRecord SettingRecord::decode(RecordBuffer buffer) {
  buffer.resize(length);
  SettingRecord record;
  for (const auto& field : texts) read(record, buffer, field);
  for (const auto& field : singles) read(record, buffer, field);
  for (const auto& field : flags) read(record, buffer, field);
  for (std::size_t i = 0; i < record.numbers.size(); ++i) {
    record.numbers[i] = buffer.int16At(numbersOffset + 2 * i);
  }
  record.carried_ = asNew<SettingRecord>(std::move(buffer), texts);
  return record;
}

RecordBuffer SettingRecord::encode() const {
  RecordBuffer buffer = carried_;
  for (const auto& field : texts) write(*this, buffer, field);
  for (const auto& field : singles) write(*this, buffer, field);
  for (const auto& field : flags) write(*this, buffer, field);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    buffer.setInt16(numbersOffset + 2 * i, numbers[i]);
  }
  return buffer;
}

}  // namespace files
