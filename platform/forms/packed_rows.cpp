#include "platform/forms/packed_rows.h"

#include <algorithm>

namespace forms {

namespace {

constexpr std::size_t smallestBlock = 1024;
constexpr std::size_t largestBlock = 256 * 1024;

// Sizes take seven bits a byte, the lowest first; the high bit says that more follow.
constexpr unsigned payload = 7;
constexpr std::size_t more = 1U << payload;

std::size_t bytesOf(std::size_t number) {
  std::size_t bytes = 1;
  for (; number >= more; number >>= payload) ++bytes;
  return bytes;
}

void write(char*& at, std::size_t number) {
  for (; number >= more; number >>= payload) *at++ = static_cast<char>(number | more);
  *at++ = static_cast<char>(number);
}

void write(char*& at, std::string_view text) {
  at = std::ranges::copy(text, at).out;
}

std::size_t read(const char*& at) {
  std::size_t number = 0;
  for (unsigned shift = 0;; shift += payload) {
    const auto byte = static_cast<unsigned char>(*at++);
    number |= (byte & (more - 1)) << shift;
    if (byte < more) return number;
  }
}

// The text of that number in a packed row; empty when the row has fewer.
std::string_view textOf(const char* row, std::size_t wanted) {
  const std::size_t count = read(row);
  if (wanted >= count) return {};
  std::size_t offset = 0;
  std::size_t size = 0;
  for (std::size_t text = 0; text < count; ++text) {
    const std::size_t next = read(row);
    if (text < wanted) offset += next;
    if (text == wanted) size = next;
  }
  return {row + offset, size};
}

}  // namespace

void PackedRows::add(std::span<const std::string> cells, std::string_view key) {
  std::size_t size = bytesOf(cells.size() + 1) + bytesOf(key.size()) + key.size();
  for (const std::string& cell : cells) size += bytesOf(cell.size()) + cell.size();
  char* at = room(size);
  rows_.push_back(at);
  write(at, cells.size() + 1);
  write(at, key.size());
  for (const std::string& cell : cells) write(at, cell.size());
  write(at, key);
  for (const std::string& cell : cells) write(at, cell);
}

// Blocks grow, so that a short list stays small.
char* PackedRows::room(std::size_t size) {
  if (size > left_) {
    blockSize_ = std::max(size, std::clamp(2 * blockSize_, smallestBlock, largestBlock));
    left_ = blockSize_;
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(blockSize_));
  }
  char* const free = blocks_.back().get() + (blockSize_ - left_);
  left_ -= size;
  return free;
}

void PackedRows::clear() {
  *this = PackedRows();
}

std::string_view PackedRows::cell(std::size_t row, std::size_t column) const {
  return row < rows_.size() ? textOf(rows_[row], column + 1) : std::string_view();
}

std::string_view PackedRows::key(std::size_t row) const {
  return row < rows_.size() ? textOf(rows_[row], 0) : std::string_view();
}

}  // namespace forms
