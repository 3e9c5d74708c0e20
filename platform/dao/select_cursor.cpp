#include <algorithm>

#include <sqlite3.h>

#include "platform/dao/cursor.h"
#include "platform/dao/declaration.h"
#include "platform/dao/dialect.h"
#include "platform/dao/row_page.h"

namespace dao {
namespace {

// The rows that a select text found when it was opened, all in memory.
class SelectCursor : public Cursor {
 public:
  SelectCursor(std::shared_ptr<Engine> engine, std::vector<std::string> names,
               std::vector<FieldType> types, RowPage rows)
      : Cursor(std::move(engine), "The selected rows", std::move(names)),
        types_(std::move(types)),
        rows_(std::move(rows)) {}

  Status MoveFirst() override { return moveTo(0); }
  Status MoveLast() override { return moveTo(rows_.rows() - 1); }
  Status MoveNext() override { return Eof() ? noCurrent() : moveBy(1); }
  Status MovePrevious() override { return Bof() ? noCurrent() : moveBy(-1); }
  bool Eof() override { return row_ >= rows_.rows(); }
  bool Bof() override { return row_ < 0 || empty(); }
  std::int64_t RecordCount() override { return rows_.rows(); }
  bool empty() override { return rows_.rows() == 0; }

  bool readable() override { return row_ >= 0 && row_ < rows_.rows(); }
  Value value(int column) override {
    return readable() ? typed(rows_.raw(row_, column), types_[static_cast<std::size_t>(column)])
                      : Value();
  }
  std::string_view view(int column) override {
    return readable() ? rows_.text(rows_.cell(row_, column)) : "";
  }
  bool isNull(int column) override {
    return !readable() || rows_.cell(row_, column).kind == Cell::Kind::Null;
  }

 private:
  Status moveTo(int row) {
    if (empty()) return noCurrent();
    row_ = row;
    return {};
  }
  Status moveBy(int step) { return moveTo(row_ + step); }

  std::vector<FieldType> types_;
  RowPage rows_;
  int row_ = 0;
};

std::string columnName(const Statement& statement, int column) {
  const char* name = sqlite3_column_name(statement.handle(), column);
  return name ? name : "";
}

FieldType columnType(const Statement& statement, int column) {
  const char* declaration = sqlite3_column_decltype(statement.handle(), column);
  return declaration ? declaredField("", declaration).type : FieldType::Text;
}

}  // namespace

Result<std::unique_ptr<Cursor>> openSelect(std::shared_ptr<Engine> engine, std::string_view text,
                                           const std::vector<Value>& parameters) {
  const std::string subject = engine->path().filename().string();
  auto statement = engine->prepare(translated(text), subject);
  if (!statement) return std::unexpected(statement.error());
  statement->bindAll(parameters);
  std::vector<std::string> names;
  std::vector<FieldType> types;
  for (int column = 0; column < statement->columnCount(); ++column) {
    names.push_back(columnName(*statement, column));
    types.push_back(columnType(*statement, column));
  }
  RowPage rows;
  rows.clear(statement->columnCount());
  for (;;) {
    const auto more = statement->step(subject);
    if (!more) return std::unexpected(more.error());
    if (!*more) break;
    rows.append(*statement);
  }
  return std::make_unique<SelectCursor>(std::move(engine), std::move(names), std::move(types),
                                        std::move(rows));
}

}  // namespace dao
