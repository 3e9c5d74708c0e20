// A note in Data/message.dat: one record of the file.
#pragma once

#include <cstdint>
#include <string>

#include "platform/files/record_buffer.h"

namespace files {

struct MessageRecord {
  static constexpr std::size_t length = 384;
  // In characters; what is longer is cut.
  static constexpr std::size_t nameWidth = 30;
  static constexpr std::size_t subjectWidth = 50;
  static constexpr std::size_t textWidth = 250;

  std::string sender;
  std::string addressee;
  std::string subject;
  std::string sent;  // day and time as text; 20 bytes
  std::string text;
  std::int16_t isNew = 0;   // 1 until the addressee's station has shown it
  std::int16_t isRead = 0;  // 1 once it was opened

  // A buffer of another length reads as if filled with zeros, or cut.
  static MessageRecord decode(RecordBuffer buffer);
  // Bytes that belong to no changed field come back as decode() found them; the texts of a record
  // that was never written are blanks.
  [[nodiscard]] RecordBuffer encode() const;
  // Whether both are one note, whatever their flags say.
  [[nodiscard]] bool isSameNote(const MessageRecord& other) const;

 private:
  static RecordBuffer unwritten();

  RecordBuffer carried_ = unwritten();
};

}  // namespace files
