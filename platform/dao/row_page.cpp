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
  Cell* cell = cells_.data() + first;
  for (int column = 0; column < columns_; ++column, ++cell) {
    switch (sqlite3_column_type(statement, column)) {
      case SQLITE_NULL:
        break;
      case SQLITE_INTEGER:
        cell->kind = Cell::Kind::Integer;
        cell->integer = sqlite3_column_int64(statement, column);
        break;
      case SQLITE_FLOAT:
        cell->kind = Cell::Kind::Real;
        cell->real = sqlite3_column_double(statement, column);
        break;
      default:
        cell->kind = Cell::Kind::Text;
        cell->offset = texts_.size();
        if (const auto* bytes = static_cast<const char*>(sqlite3_column_blob(statement, column))) {
          cell->size = static_cast<std::uint32_t>(sqlite3_column_bytes(statement, column));
          texts_.append(bytes, cell->size);
        }
    }
  }
  ++rows_;
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
