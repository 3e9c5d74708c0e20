// Internal: rows that were read together. All their texts lie in one piece of memory.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/engine.h"

struct sqlite3_value;

namespace dao {

struct Cell {
  enum class Kind : std::uint32_t { Null, Integer, Real, Text };
  Kind kind = Kind::Null;
  std::uint32_t size = 0;
  union {
    std::int64_t integer = 0;
    double real;
    std::uint64_t offset;  // of the text, in the page
  };
};

class RowPage {
 public:
  void clear(int columns);
  void append(const Statement& row);
  // Rows read from the last to the first are numbered from the first to the last.
  void reverse() { reversed_ = true; }

  [[nodiscard]] int rows() const { return rows_; }
  [[nodiscard]] const Cell& cell(int row, int column) const {
    const int stored = reversed_ ? rows_ - 1 - row : row;
    return cells_[static_cast<std::size_t>(stored) * static_cast<std::size_t>(columns_) +
                  static_cast<std::size_t>(column)];
  }
  [[nodiscard]] std::string_view text(const Cell& cell) const {
    return cell.kind == Cell::Kind::Text ? std::string_view(texts_).substr(cell.offset, cell.size)
                                         : "";
  }
  // What the cell holds as it stands in the file: dates are texts.
  [[nodiscard]] Value raw(int row, int column) const;

 private:
  void append(sqlite3_value* value, Cell& cell);

  int columns_ = 0;
  int rows_ = 0;
  bool reversed_ = false;
  std::vector<Cell> cells_;
  std::string texts_;
};

// What a cell means as a field of its type.
[[nodiscard]] Value typed(Value raw, FieldType type);

}  // namespace dao
