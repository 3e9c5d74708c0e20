#include "platform/dao/row_page.h"

#include <sqlite3.h>

namespace dao {

void RowPage::clear(int columns) {
  columns_ = columns;
  rows_ = 0;
  reversed_ = false;
  cells_.clear();
  texts_.clear();
}

void RowPage::append(const Statement& row) {
  sqlite3_stmt* statement = row.handle();
  const std::size_t first = cells_.size();
  cells_.resize(first + static_cast<std::size_t>(columns_));
  for (int column = 0; column < columns_; ++column) {
    append(sqlite3_column_value(statement, column),
           cells_[first + static_cast<std::size_t>(column)]);
  }
  ++rows_;
}

// The connection has no mutex, so its values can be read directly.
void RowPage::append(sqlite3_value* value, Cell& cell) {
  switch (sqlite3_value_type(value)) {
    case SQLITE_NULL:
      return;
    case SQLITE_INTEGER:
      cell.kind = Cell::Kind::Integer;
      cell.integer = sqlite3_value_int64(value);
      return;
    case SQLITE_FLOAT:
      cell.kind = Cell::Kind::Real;
      cell.real = sqlite3_value_double(value);
      return;
    default:
      cell.kind = Cell::Kind::Text;
      cell.offset = texts_.size();
      cell.size = static_cast<std::uint32_t>(sqlite3_value_bytes(value));
      if (cell.size > 0)
        texts_.append(static_cast<const char*>(sqlite3_value_blob(value)), cell.size);
  }
}

Value RowPage::raw(int row, int column) const {
  const Cell& held = cell(row, column);
  switch (held.kind) {
    case Cell::Kind::Null:
      return {};
    case Cell::Kind::Integer:
      return held.integer;
    case Cell::Kind::Real:
      return held.real;
    case Cell::Kind::Text:
      return text(held);
  }
  return {};
}

Value typed(Value raw, FieldType type) {
  if (type != FieldType::Date || raw.isNull()) return raw;
  if (const auto date = raw.date()) return *date;
  return raw;
}

}  // namespace dao
