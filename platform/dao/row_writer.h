// Internal: writes single rows of a table and names the rule that a refused row breaks.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/dao/catalogue.h"
#include "platform/dao/engine.h"

namespace dao {

// One entry a field; nothing where nothing was assigned.
using Assigned = std::vector<std::optional<Value>>;

class RowWriter {
 public:
  RowWriter(Engine& engine, const TableShape& table);

  // What identifies the row afterwards. Each call is one transaction of its own unless one is open.
  Result<Value> insert(const Assigned& values);
  Result<Value> update(const Value& identity, const Assigned& values);
  Status remove(const Value& identity);

 private:
  enum class Missing { IsNull, IsKept };
  [[nodiscard]] Status validate(const Assigned& values, Missing missing) const;
  Result<Statement*> statement(const std::string& sql);
  // The number of rows that the statement wrote.
  Result<std::int64_t> write(const std::string& sql, const std::vector<Value>& values);
  [[nodiscard]] Status duplicate() const;
  [[nodiscard]] Status gone() const;

  Engine& engine_;
  const TableShape& table_;
  std::string subject_;
  std::string name_;  // quoted
  std::string insert_;
  std::vector<bool> needed_;  // the fields of the primary key, but the counting one
  std::map<std::string, Statement> statements_;
};

}  // namespace dao
