// Rows of texts, packed one behind the other: a million rows of a list cost little more than their
// letters.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace forms {

class PackedRows {
 public:
  void add(std::span<const std::string> cells, std::string_view key);
  void clear();

  [[nodiscard]] std::size_t size() const { return rows_.size(); }
  // Views live until clear(). A cell or row that is not there is empty.
  [[nodiscard]] std::string_view cell(std::size_t row, std::size_t column) const;
  [[nodiscard]] std::string_view key(std::size_t row) const;

 private:
  [[nodiscard]] char* room(std::size_t size);

  std::vector<std::unique_ptr<char[]>> blocks_;
  std::size_t blockSize_ = 0;  // of the last block
  std::size_t left_ = 0;       // its free bytes
  // Each points to the number of texts, their sizes, and the texts: the key, then the cells.
  std::vector<const char*> rows_;
};

}  // namespace forms
