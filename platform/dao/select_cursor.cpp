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

// Reads each row when one comes to it, and keeps none.
class ForwardCursor : public Cursor {
 public:
  ForwardCursor(std::shared_ptr<Engine> engine, std::vector<std::string> names,
                std::vector<FieldType> types, Statement statement)
      : Cursor(std::move(engine), "The selected rows", std::move(names)),
        types_(std::move(types)),
        statement_(std::move(statement)) {}

  Status MoveNext() override {
    if (Eof()) return noCurrent();
    const auto row = statement_.step(subject());
    row_ = row.value_or(false);
    return row ? Status() : row.error();
  }
  Status MoveFirst() override { return unsupported("MoveFirst"); }
  Status MoveLast() override { return unsupported("MoveLast"); }
  Status MovePrevious() override { return unsupported("MovePrevious"); }
  bool Eof() override { return !readable(); }
  bool Bof() override { return false; }
  std::int64_t RecordCount() override { return 0; }
  bool empty() override { return Eof(); }

  bool readable() override { return row_ && engine().isOpen(); }
  Value value(int column) override {
    if (!readable()) return {};
    RowPage row;
    row.clear(statement_.columnCount());
    row.append(statement_);
    return typed(row.raw(0, column), types_[static_cast<std::size_t>(column)]);
  }
  std::string_view view(int column) override {
    const bool text = readable() && sqlite3_column_type(statement_.handle(), column) == SQLITE_TEXT;
    return text ? statement_.text(column) : "";
  }
  bool isNull(int column) override { return !readable() || statement_.isNull(column); }

 private:
  std::vector<FieldType> types_;
  Statement statement_;
  bool row_ = true;  // the first step is made at opening
};

std::string columnName(const Statement& statement, int column) {
  const char* name = sqlite3_column_name(statement.handle(), column);
  return name ? name : "";
}

FieldType columnType(const Statement& statement, int column) {
  const char* declaration = sqlite3_column_decltype(statement.handle(), column);
  return declaration ? declaredField("", declaration).type : FieldType::Text;
}

// A prepared select text, and what its columns are.
struct Selection {
  Statement statement;
  std::vector<std::string> names;
  std::vector<FieldType> types;
};

Result<Selection> selection(Engine& engine, std::string_view text,
                            const std::vector<Value>& parameters) {
  auto statement = engine.prepare(translated(text), engine.path().filename().string());
  if (!statement) return std::unexpected(statement.error());
  statement->bindAll(parameters);
  Selection selected{.statement = std::move(*statement), .names = {}, .types = {}};
  for (int column = 0; column < selected.statement.columnCount(); ++column) {
    selected.names.push_back(columnName(selected.statement, column));
    selected.types.push_back(columnType(selected.statement, column));
  }
  return selected;
}

}  // namespace

Result<std::unique_ptr<Cursor>> openSelect(std::shared_ptr<Engine> engine, std::string_view text,
                                           const std::vector<Value>& parameters) {
  auto selected = selection(*engine, text, parameters);
  if (!selected) return std::unexpected(selected.error());
  auto& [statement, names, types] = *selected;
  const std::string subject = engine->path().filename().string();
  RowPage rows;
  rows.clear(statement.columnCount());
  for (;;) {
    const auto more = statement.step(subject);
    if (!more) return std::unexpected(more.error());
    if (!*more) break;
    rows.append(statement);
  }
  return std::make_unique<SelectCursor>(std::move(engine), std::move(names), std::move(types),
                                        std::move(rows));
}

Result<std::unique_ptr<Cursor>> openForward(std::shared_ptr<Engine> engine, std::string_view text,
                                            const std::vector<Value>& parameters) {
  auto selected = selection(*engine, text, parameters);
  if (!selected) return std::unexpected(selected.error());
  auto cursor =
      std::make_unique<ForwardCursor>(std::move(engine), std::move(selected->names),
                                      std::move(selected->types), std::move(selected->statement));
  if (Status first = cursor->MoveNext(); !first) return std::unexpected(std::move(first));
  return cursor;
}

}  // namespace dao
