#include "platform/files/record_buffer.h"

#include <cassert>

#include "platform/text/codepage.h"
#include "platform/text/nearest.h"

namespace files {

using namespace std::string_view_literals;

std::int16_t RecordBuffer::int16At(std::size_t offset) const {
  assert(offset + 2 <= size());
  const auto low = static_cast<unsigned char>(bytes_[offset]);
  const auto high = static_cast<unsigned char>(bytes_[offset + 1]);
  return static_cast<std::int16_t>(low | high << 8);
}

void RecordBuffer::setInt16(std::size_t offset, std::int16_t value) {
  assert(offset + 2 <= size());
  const auto bits = static_cast<std::uint16_t>(value);
  bytes_[offset] = static_cast<char>(bits & 0xFF);
  bytes_[offset + 1] = static_cast<char>(bits >> 8);
}

std::string RecordBuffer::textAt(std::size_t offset, std::size_t width) const {
  assert(offset + width <= size());
  const std::string_view field = std::string_view{bytes_}.substr(offset, width);
  return text::fromTurkishCodePage(field.substr(0, field.find_last_not_of(" \0"sv) + 1));
}

void RecordBuffer::setText(std::size_t offset, std::size_t width, std::string_view text) {
  assert(offset + width <= size());
  std::string field = text::toTurkishCodePage(text::nearestTurkish(text));
  field.resize(width, ' ');
  bytes_.replace(offset, width, field);
}

std::string keptText(std::string_view text, std::size_t width) {
  RecordBuffer field{width};
  field.setText(0, width, text);
  return field.textAt(0, width);
}

}  // namespace files
