// The record of Data/setting.dat: the font and the template of a screen's printed record.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/files/record_buffer.h"

namespace files {

struct SettingRecord {
  static constexpr std::size_t length = 320;

  std::string owner;                       // the form that wrote it last; 30 bytes
  std::array<std::int16_t, 14> numbers{};  // percentages of the invoice, places of a layout
  std::int16_t templateNumber = 0;
  std::int16_t fontSize = 0;  // points
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikethrough = false;
  std::string colour;  // decimal text; 50 bytes, as the texts that follow
  std::string fontName;
  std::string signature;  // of the screen's template
  std::string text1;      // carried along, except by layouts of pages
  std::string text2;

  // A buffer of another length reads as if filled with zeros, or cut.
  static SettingRecord decode(RecordBuffer buffer);
  // Bytes that belong to no changed field come back as decode() found them; the texts of a record
  // that was never written are blanks.
  [[nodiscard]] RecordBuffer encode() const;

 private:
  static RecordBuffer unwritten();

  RecordBuffer carried_ = unwritten();
};

}  // namespace files
