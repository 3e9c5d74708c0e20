#include "platform/dao/key_pager.h"

#include <array>

#include "platform/dao/declaration.h"

namespace dao {
namespace {

constexpr int kRelations = 8;
constexpr int kDirections = 2;

std::string condition(std::string_view column, std::string_view relation, int parameter) {
  return std::string(column) + std::string(relation) +
         (parameter > 0 ? "?" + std::to_string(parameter) : "");
}

}  // namespace

KeyPager::KeyPager(Engine& engine, const TableShape& table, const IndexInfo* index)
    : engine_(engine),
      subject_(subjectOf(engine, table.name)),
      columns_(static_cast<int>(table.fields.size())) {
  select_ = "SELECT ";
  for (const FieldInfo& field : table.fields) select_ += sqlName(field.name) + ", ";
  select_ += table.identity ? "1" : "rowid";
  select_ += " FROM " + sqlName(table.name);
  const bool ownOrder = !index || (index->primary == Primary::Yes && !table.ownPrimary);
  if (!ownOrder) {
    indexedBy_ = " INDEXED BY " + sqlName(indexNameInFile(table.name, index->name));
    for (const std::string& field : index->fields)
      order_.push_back({sqlName(field), *table.field(field)});
  }
  order_.push_back({table.identityColumn(), table.identity.value_or(columns_)});
  if (!table.identity) ++columns_;
  const auto first = static_cast<std::size_t>(order_.front().position);
  if (first < table.fields.size()) firstType_ = table.fields[first].type;
  statements_.resize(order_.size() * kRelations * kDirections);
}

std::string KeyPager::text(const Part& part) const {
  constexpr std::array<std::string_view, kRelations> kSigns{
      "", " IS ", " > ", " >= ", " < ", " <= ", " IS NULL", " IS NOT NULL"};
  const bool valued = part.relation != Relation::Null && part.relation != Relation::NotNull;
  std::string where;
  std::string order;
  int parameter = 0;
  for (const Column& column : order_) {
    if (parameter < part.depth) {
      where += (where.empty() ? " WHERE " : " AND ") + condition(column.name, " IS ", ++parameter);
    }
    order += (order.empty() ? " ORDER BY " : ", ") + column.name +
             (part.direction == Direction::Down ? " DESC" : "");
  }
  if (part.relation != Relation::Any) {
    const Column& column = order_[static_cast<std::size_t>(part.depth)];
    where += (where.empty() ? " WHERE " : " AND ") +
             condition(column.name, kSigns[static_cast<std::size_t>(part.relation)],
                       valued ? ++parameter : 0);
  }
  return select_ + indexedBy_ + where + order + " LIMIT ?" + std::to_string(order_.size() + 1);
}

Result<Statement*> KeyPager::statement(const Part& part) {
  const int slot = (part.depth * kRelations + static_cast<int>(part.relation)) * kDirections +
                   static_cast<int>(part.direction);
  Statement& kept = statements_[static_cast<std::size_t>(slot)];
  if (!kept) {
    auto prepared = engine_.prepare(text(part), subject_);
    if (!prepared) return std::unexpected(prepared.error());
    kept = std::move(*prepared);
  }
  return &kept;
}

Status KeyPager::load(const Part& part, const Key& key, RowPage& page, int limit) {
  const auto prepared = statement(part);
  if (!prepared) return prepared.error();
  Statement& statement = **prepared;
  const bool valued = part.relation != Relation::Null && part.relation != Relation::NotNull &&
                      part.relation != Relation::Any;
  const int bound = part.depth + (valued ? 1 : 0);
  for (int column = 0; column < bound; ++column)
    statement.bind(column + 1, key[static_cast<std::size_t>(column)]);
  statement.bind(static_cast<int>(order_.size()) + 1, limit - page.rows());
  return readAll(statement, page);
}

Status KeyPager::readAll(Statement& statement, RowPage& page) {
  for (;;) {
    const auto more = statement.step(subject_);
    if (!more) return more.error();
    if (!*more) return {};
    page.append(statement);
  }
}

Status KeyPager::first(RowPage& page, int limit) {
  page.clear(columns_);
  return load({0, Relation::Any, Direction::Up}, {}, page, limit);
}

Status KeyPager::last(RowPage& page, int limit) {
  page.clear(columns_);
  page.reverse();
  return load({0, Relation::Any, Direction::Down}, {}, page, limit);
}

Status KeyPager::after(const Key& key, RowPage& page, int limit) {
  page.clear(columns_);
  Status status;
  for (int depth = static_cast<int>(order_.size()) - 1; depth >= 0 && status && page.rows() < limit;
       --depth) {
    const bool null = key[static_cast<std::size_t>(depth)].isNull();
    status = load({depth, null ? Relation::NotNull : Relation::Greater, Direction::Up}, key, page,
                  limit);
  }
  return status;
}

// Nulls come before every value.
Status KeyPager::before(const Key& key, RowPage& page, int limit) {
  page.clear(columns_);
  page.reverse();
  const int identity = static_cast<int>(order_.size()) - 1;
  Status status;
  for (int depth = identity; depth >= 0 && status && page.rows() < limit; --depth) {
    if (key[static_cast<std::size_t>(depth)].isNull()) continue;
    status = load({depth, Relation::Less, Direction::Down}, key, page, limit);
    if (depth == identity || !status || page.rows() >= limit) continue;
    status = load({depth, Relation::Null, Direction::Down}, key, page, limit);
  }
  return status;
}

Status KeyPager::seek(std::string_view comparison, const Value& value, RowPage& page) {
  struct Way {
    std::string_view sign;
    Relation relation;
    Direction direction;
  };
  constexpr std::array kWays{
      Way{"=", Relation::Equal, Direction::Up}, Way{">=", Relation::AtLeast, Direction::Up},
      Way{">", Relation::Greater, Direction::Up}, Way{"<=", Relation::AtMost, Direction::Down},
      Way{"<", Relation::Less, Direction::Down}};
  for (const Way& way : kWays) {
    if (way.sign != comparison) continue;
    page.clear(columns_);
    const bool spell = isText(firstType_) && !value.isNull();
    return load({0, way.relation, way.direction}, {spell ? Value(value.text()) : value}, page, 1);
  }
  return {Fault::Unsupported,
          subject_ + ": Seek does not know \"" + std::string(comparison) + "\"."};
}

Status KeyPager::row(const Value& identity, RowPage& page) {
  if (!byIdentity_) {
    auto prepared = engine_.prepare(select_ + " WHERE " + order_.back().name + " = ?", subject_);
    if (!prepared) return prepared.error();
    byIdentity_ = std::move(*prepared);
  }
  page.clear(columns_);
  byIdentity_.bind(1, identity);
  return readAll(byIdentity_, page);
}

Key KeyPager::key(const RowPage& page, int row) const {
  Key key;
  for (const Column& column : order_) key.push_back(page.raw(row, column.position));
  return key;
}

}  // namespace dao
