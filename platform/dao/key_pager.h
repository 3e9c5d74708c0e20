// Internal: reads the rows of a table in the order of an index, a page at a time, each from a key
// onwards.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/catalogue.h"
#include "platform/dao/engine.h"
#include "platform/dao/row_page.h"

namespace dao {

// The values of the order's columns in one row. The last column identifies the row, so no two are
// equal.
using Key = std::vector<Value>;

class KeyPager {
 public:
  // Without an index: the table's own order. Shape and engine outlive the pager.
  KeyPager(Engine& engine, const TableShape& table, const IndexInfo* index);

  // Each fills the page with at most `limit` rows, in the order of the index.
  Status first(RowPage& page, int limit);
  Status last(RowPage& page, int limit);
  Status after(const Key& key, RowPage& page, int limit);
  Status before(const Key& key, RowPage& page, int limit);
  // One row at most. Unsupported for an unknown comparison.
  Status seek(std::string_view comparison, const Value& value, RowPage& page);
  Status row(const Value& identity, RowPage& page);

  [[nodiscard]] Key key(const RowPage& page, int row) const;
  // Damaged unless the page lies beyond the key: whoever goes on from key to key, upwards or
  // downwards, comes to an end then, in whatever order the file says that its rows are.
  [[nodiscard]] Status isBeyond(const Key& key, const RowPage& page, bool upwards) const;
  [[nodiscard]] Value identity(const RowPage& page, int row) const {
    return page.raw(row, order_.back().position);
  }

 private:
  enum class Relation { Any, Equal, Greater, AtLeast, Less, AtMost, Null, NotNull };
  enum class Direction { Up, Down };
  // The columns before `depth` equal the key's, the column there stands in the relation.
  struct Part {
    int depth;
    Relation relation;
    Direction direction;
  };
  struct Column {
    std::string name;  // quoted
    int position;      // in the row
    bool collated = false;
  };

  Status load(const Part& part, const Key& key, RowPage& page, int limit);
  [[nodiscard]] std::string text(const Part& part) const;
  Result<Statement*> statement(const Part& part);
  Status readAll(Statement& statement, RowPage& page);
  [[nodiscard]] Status fits(Relation relation, const Value& wanted, const RowPage& page) const;
  [[nodiscard]] int compare(const Key& one, const Key& other) const;
  [[nodiscard]] Status outOfOrder() const;
  void addColumn(const TableShape& table, std::string name, int position);

  Engine& engine_;
  std::string subject_;
  std::string select_;
  std::string indexedBy_;
  FieldType firstType_ = FieldType::Long;
  int columns_;
  std::vector<Column> order_;
  std::vector<Statement> statements_;
  Statement byIdentity_;
};

}  // namespace dao
