#include "platform/dao/row_writer.h"

#include <algorithm>

#include "platform/dao/declaration.h"

namespace dao {
namespace {

bool isEmptyText(const std::optional<Value>& value) {
  const auto* text = value ? std::get_if<std::string>(&value->held()) : nullptr;
  return text && text->empty();
}

bool isKey(const TableShape& table, const FieldInfo& field) {
  const IndexInfo* primary = table.index("PrimaryKey");
  return primary && std::ranges::find(primary->fields, field.name) != primary->fields.end();
}

}  // namespace

RowWriter::RowWriter(Engine& engine, const TableShape& table)
    : engine_(engine),
      table_(table),
      subject_(subjectOf(engine, table.name)),
      name_(sqlName(table.name)) {
  std::string columns;
  std::string marks;
  for (const FieldInfo& field : table_.fields) {
    columns += (columns.empty() ? "" : ", ") + sqlName(field.name);
    marks += marks.empty() ? "?" : ", ?";
    needed_.push_back(isKey(table, field) && field.autoIncrement == AutoIncrement::No);
  }
  insert_ = "INSERT INTO " + name_ + "(" + columns + ") VALUES(" + marks + ")";
}

Result<Value> RowWriter::insert(const Assigned& values) {
  if (Status fault = validate(values, Missing::IsNull); !fault) return std::unexpected(fault);
  std::vector<Value> row;
  for (const auto& value : values) row.push_back(value.value_or(Value()));
  if (const auto written = write(insert_, row); !written) return std::unexpected(written.error());
  if (table_.clustered) return row[static_cast<std::size_t>(*table_.identity)];
  return engine_.lastNumber();
}

Result<Value> RowWriter::update(const Value& identity, const Assigned& values) {
  if (Status fault = validate(values, Missing::IsKept); !fault) return std::unexpected(fault);
  std::string assignments;
  std::vector<Value> row;
  for (std::size_t field = 0; field < values.size(); ++field) {
    if (!values[field]) continue;
    assignments += (assignments.empty() ? "" : ", ") + sqlName(table_.fields[field].name) + " = ?";
    row.push_back(*values[field]);
  }
  if (row.empty()) return identity;
  row.push_back(identity);
  const auto written = write(
      "UPDATE " + name_ + " SET " + assignments + " WHERE " + table_.identityColumn() + " = ?",
      row);
  if (!written) return std::unexpected(written.error());
  if (*written == 0) return std::unexpected(gone());
  const auto& renamed =
      table_.identity ? values[static_cast<std::size_t>(*table_.identity)] : std::nullopt;
  return renamed.value_or(identity);
}

Status RowWriter::remove(const Value& identity) {
  const auto written =
      write("DELETE FROM " + name_ + " WHERE " + table_.identityColumn() + " = ?", {identity});
  if (!written) return written.error();
  return *written == 0 ? gone() : Status();
}

Status RowWriter::validate(const Assigned& values, Missing missing) const {
  for (std::size_t position = 0; position < values.size(); ++position) {
    const FieldInfo& field = table_.fields[position];
    const auto& value = values[position];
    const bool null = value ? value->isNull() : missing == Missing::IsNull;
    if (null && needed_[position]) {
      return {Fault::NullKey, table_.name + "." + field.name + " is a key and needs a value."};
    }
    if (field.zeroLength == ZeroLength::Refused && isEmptyText(value)) {
      return {Fault::ZeroLength, table_.name + "." + field.name + " cannot be an empty text."};
    }
  }
  return {};
}

Result<Statement*> RowWriter::statement(const std::string& sql) {
  const auto found = statements_.find(sql);
  if (found != statements_.end()) return &found->second;
  auto prepared = engine_.prepare(sql, subject_);
  if (!prepared) return std::unexpected(prepared.error());
  return &statements_.emplace(sql, std::move(*prepared)).first->second;
}

Result<std::int64_t> RowWriter::write(const std::string& sql, const std::vector<Value>& values) {
  const auto prepared = statement(sql);
  if (!prepared) return std::unexpected(prepared.error());
  (*prepared)->bindAll(values);
  const std::int64_t before = engine_.changeStamp().own;
  const auto done = (*prepared)->step(subject_);
  if (!done)
    return std::unexpected(done.error().fault() == Fault::Exists ? duplicate() : done.error());
  return engine_.changeStamp().own - before;
}

// The engine says "UNIQUE constraint failed: Table.Field, Table.Field".
Status RowWriter::duplicate() const {
  const std::string message = engine_.lastMessage();
  const IndexInfo* broken = table_.index("PrimaryKey");
  for (const IndexInfo& index : table_.indexes) {
    std::string fields;
    for (const std::string& field : index.fields)
      fields += (fields.empty() ? "" : ", ") + table_.name + "." + field;
    if (index.unique == Unique::Yes && message.ends_with(": " + fields)) broken = &index;
  }
  const std::string name = broken ? broken->name : "";
  return {Fault::Exists,
          subject_ + ": a record with this key is there already (index " + name + ")."};
}

Status RowWriter::gone() const {
  return {Fault::Stale, subject_ + ": another station has deleted this record."};
}

}  // namespace dao
