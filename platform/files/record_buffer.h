// The bytes of one record of a fixed-length file, read and written field by field at explicit
// offsets. Numbers are little-endian; texts are in the Turkish code page, padded with blanks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace files {

// Precondition of every access: the field lies within the record.
class RecordBuffer {
 public:
  // All bytes zero.
  explicit RecordBuffer(std::size_t length) : bytes_(length, '\0') {}
  explicit RecordBuffer(std::string bytes) : bytes_(std::move(bytes)) {}

  [[nodiscard]] std::size_t size() const { return bytes_.size(); }
  [[nodiscard]] const std::string& bytes() const { return bytes_; }
  [[nodiscard]] char* data() { return bytes_.data(); }
  // Another length keeps what fits; new bytes are zero.
  void resize(std::size_t length) { bytes_.resize(length, '\0'); }

  [[nodiscard]] std::int16_t int16At(std::size_t offset) const;
  void setInt16(std::size_t offset, std::int16_t value);

  // A 16-bit boolean: 0 is false, -1 is written for true, anything but 0 reads as true.
  [[nodiscard]] bool flagAt(std::size_t offset) const { return int16At(offset) != 0; }
  void setFlag(std::size_t offset, bool value) {
    setInt16(offset, static_cast<std::int16_t>(value ? -1 : 0));
  }

  // UTF-8; blanks and NULs at the end are left off at reading. At writing, characters that the code
  // page lacks become the nearest ones, and what is too wide is cut.
  [[nodiscard]] std::string textAt(std::size_t offset, std::size_t width) const;
  void setText(std::size_t offset, std::size_t width, std::string_view text);

  bool operator==(const RecordBuffer&) const = default;

 private:
  std::string bytes_;
};

// What comes back from a field of that width when the text was written to it.
[[nodiscard]] std::string keptText(std::string_view text, std::size_t width);

}  // namespace files
