// The slot of a running station in Data/net.dat.
#pragma once

#include <cstdint>
#include <string>

#include "platform/files/record_buffer.h"

namespace files {

struct NetRecord {
  static constexpr std::size_t length = 128;

  std::string name;       // the patient on the station's card; 40 bytes
  std::int16_t used = 0;  // 1 while the slot belongs to a running station
  std::int16_t reserved = 0;
  std::int16_t appointmentFlag = 0;  // 1 when another station has changed the appointment book

  // A buffer of another length reads as if filled with zeros, or cut.
  static NetRecord decode(RecordBuffer buffer);
  // Bytes that belong to no changed field come back as decode() found them; the texts of a record
  // that was never written are blanks.
  [[nodiscard]] RecordBuffer encode() const;

 private:
  static RecordBuffer unwritten();

  RecordBuffer carried_ = unwritten();
};

}  // namespace files
