// Internal: how tables, fields and indexes stand in the file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/dao/database.h"
#include "platform/dao/engine.h"

namespace dao {

// A table as its file describes it.
struct TableShape {
  std::string name;
  std::vector<FieldInfo> fields;
  std::vector<IndexInfo> indexes;
  std::optional<int>
      identity;  // the field that identifies a row; without one it is the hidden row number
  bool clustered = false;   // the rows lie in the order of a text key; there is no row number
  bool ownPrimary = false;  // PrimaryKey is an index beside the table's own order

  [[nodiscard]] std::string identityColumn() const;
  [[nodiscard]] const IndexInfo* index(std::string_view wanted) const;
  [[nodiscard]] std::optional<int> field(std::string_view wanted) const;
};

[[nodiscard]] Result<std::vector<std::string>> tableNames(Engine& engine);
[[nodiscard]] Result<std::vector<std::string>> foreignNames(Engine& engine);
[[nodiscard]] Result<TableShape> readTable(Engine& engine, std::string_view name);
[[nodiscard]] std::string indexNameInFile(std::string_view table, std::string_view index);
[[nodiscard]] std::string helperNameInFile(std::string_view table, const HelperDef& helper);
[[nodiscard]] Result<bool> hasIndex(Engine& engine, std::string_view nameInFile);

// The type that a declaration in a file stands for; Text when it is foreign.
[[nodiscard]] FieldInfo declaredField(std::string_view name, std::string_view declaration);

// The statements that make a table with its indexes.
[[nodiscard]] Result<std::vector<std::string>> creation(const TableDef& table, Order order);
[[nodiscard]] std::string helperCreation(std::string_view table, const HelperDef& helper);

// What a fault of a table names: "Personal.mdb, table IDCard".
[[nodiscard]] std::string subjectOf(const Engine& engine, std::string_view table);

}  // namespace dao
