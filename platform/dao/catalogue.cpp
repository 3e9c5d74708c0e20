#include "platform/dao/catalogue.h"

#include <algorithm>
#include <array>

#include "platform/dao/declaration.h"
#include "platform/text/fold.h"

namespace dao {
namespace {

constexpr std::string_view kPrimary = "PrimaryKey";

using Row = std::vector<std::string>;

// Small catalogue queries: every row, every column as text.
Result<std::vector<Row>> query(Engine& engine, std::string_view sql, std::string_view parameter) {
  const std::string subject = engine.path().filename().string();
  auto statement = engine.prepare(sql, subject);
  if (!statement) return std::unexpected(statement.error());
  if (!parameter.empty()) statement->bindView(1, parameter);
  std::vector<Row> rows;
  for (;;) {
    const auto more = statement->step(subject);
    if (!more) return std::unexpected(more.error());
    if (!*more) return rows;
    Row& row = rows.emplace_back();
    for (int column = 0; column < statement->columnCount(); ++column)
      row.emplace_back(statement->text(column));
  }
}

Status readFields(Engine& engine, TableShape& table, bool counts) {
  const auto rows =
      query(engine, "SELECT name, type, pk FROM pragma_table_xinfo(?) ORDER BY cid", table.name);
  if (!rows) return rows.error();
  IndexInfo own{std::string(kPrimary), {}, Primary::Yes, Unique::Yes};
  for (const Row& row : *rows) {
    FieldInfo& field = table.fields.emplace_back(declaredField(row[0], row[1]));
    if (row[2] == "0") continue;
    own.fields.push_back(row[0]);
    table.identity = static_cast<int>(table.fields.size()) - 1;
    if (counts) field.autoIncrement = AutoIncrement::Yes;
  }
  if (!own.fields.empty()) table.indexes.push_back(std::move(own));
  return {};
}

Status readIndexes(Engine& engine, TableShape& table) {
  const std::string prefix = indexNameInFile(table.name, "");
  const auto rows = query(
      engine, "SELECT name, \"unique\" FROM pragma_index_list(?) WHERE origin='c' ORDER BY name",
      table.name);
  if (!rows) return rows.error();
  for (const Row& row : *rows) {
    if (!row[0].starts_with(prefix)) continue;  // a helper
    IndexInfo index;
    index.name = row[0].substr(prefix.size());
    index.unique = row[1] == "1" ? Unique::Yes : Unique::No;
    index.primary = index.name == kPrimary ? Primary::Yes : Primary::No;
    const auto fields =
        query(engine, "SELECT name FROM pragma_index_info(?) ORDER BY seqno", row[0]);
    if (!fields) return fields.error();
    for (const Row& field : *fields) index.fields.push_back(field[0]);
    // The numbering field is the file's own key then, and no index that anybody defined.
    if (index.primary == Primary::Yes) {
      table.ownPrimary = true;
      if (table.identity) table.indexes.erase(table.indexes.begin());
    }
    table.indexes.push_back(std::move(index));
  }
  return {};
}

}  // namespace

std::string TableShape::identityColumn() const {
  return identity ? sqlName(fields[static_cast<std::size_t>(*identity)].name) : "rowid";
}

const IndexInfo* TableShape::index(std::string_view wanted) const {
  const auto found = std::ranges::find_if(
      indexes, [&](const IndexInfo& each) { return text::equalsNoCase(each.name, wanted); });
  return found == indexes.end() ? nullptr : &*found;
}

std::optional<int> TableShape::field(std::string_view wanted) const {
  const auto found = std::ranges::find_if(
      fields, [&](const FieldInfo& each) { return text::equalsNoCase(each.name, wanted); });
  if (found == fields.end()) return std::nullopt;
  return static_cast<int>(found - fields.begin());
}

std::string indexNameInFile(std::string_view table, std::string_view index) {
  return std::string(table) + "." + std::string(index);
}

std::string helperNameInFile(std::string_view table, const HelperDef& helper) {
  constexpr std::array kinds{"plain", "prefix general", "prefix turkish"};
  return std::string(table) + "~" + std::string(helper.field) + "~" +
         kinds[static_cast<std::size_t>(helper.kind)];
}

std::string subjectOf(const Engine& engine, std::string_view table) {
  return engine.path().filename().string() + ", table " + std::string(table);
}

Result<std::vector<std::string>> tableNames(Engine& engine) {
  const auto rows =
      query(engine,
            "SELECT name FROM sqlite_schema WHERE type='table' AND substr(name, 1, 1) <> '~' "
            "AND substr(name, 1, 7) <> 'sqlite_' AND rootpage > 0 ORDER BY rowid",
            "");
  if (!rows) return std::unexpected(rows.error());
  std::vector<std::string> names;
  for (const Row& row : *rows) names.push_back(row[0]);
  return names;
}

Result<std::vector<std::string>> foreignNames(Engine& engine) {
  const auto rows = query(engine,
                          "SELECT name FROM sqlite_schema WHERE type NOT IN ('table', 'index') "
                          "OR (type='table' AND rootpage = 0) ORDER BY name",
                          "");
  if (!rows) return std::unexpected(rows.error());
  std::vector<std::string> names;
  for (const Row& row : *rows) names.push_back(row[0]);
  return names;
}

Result<TableShape> readTable(Engine& engine, std::string_view name) {
  const auto found = query(
      engine,
      "SELECT s.name, t.wr, instr(s.sql, ' PRIMARY KEY AUTOINCREMENT') "
      "FROM sqlite_schema s JOIN pragma_table_list(s.name) t "
      "WHERE s.type='table' AND t.type='table' AND t.schema='main' AND s.name = ? COLLATE NOCASE",
      name);
  if (!found) return std::unexpected(found.error());
  if (found->empty()) {
    return std::unexpected(
        Status(Fault::Missing, subjectOf(engine, name) + ": there is no such table."));
  }
  const Row& row = found->front();
  TableShape table;
  table.name = row[0];
  table.clustered = row[1] == "1";
  Status status = readFields(engine, table, row[2] != "0");
  if (status) status = readIndexes(engine, table);
  if (!status) return std::unexpected(std::move(status));
  return table;
}

Result<bool> hasIndex(Engine& engine, std::string_view nameInFile) {
  const auto found =
      query(engine, "SELECT 1 FROM sqlite_schema WHERE type='index' AND name = ? COLLATE NOCASE",
            nameInFile);
  if (!found) return std::unexpected(found.error());
  return !found->empty();
}

}  // namespace dao
