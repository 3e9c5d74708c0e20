#include "platform/dao/key_pager.h"

#include <array>

#include "platform/dao/declaration.h"

namespace dao {
namespace {

constexpr int kRelations = 8;
constexpr int kDirections = 2;

int rankOf(const Value& value) {
  return value.isNull() ? 0 : std::holds_alternative<std::string>(value.held()) ? 2 : 1;
}

// In the order of the engine: nothing, numbers, texts.
int compareValues(const Value& one, const Value& other, const Collator* collator) {
  const int rank = rankOf(one);
  if (rank != rankOf(other)) return rank - rankOf(other);
  if (rank == 0) return 0;
  const auto* left = std::get_if<std::int64_t>(&one.held());
  const auto* right = std::get_if<std::int64_t>(&other.held());
  if (left && right) return *left < *right ? -1 : *left > *right ? 1 : 0;
  if (rank == 1) return one.real() < other.real() ? -1 : one.real() > other.real() ? 1 : 0;
  const std::string& text = std::get<std::string>(one.held());
  const std::string& against = std::get<std::string>(other.held());
  return collator ? collator->compare(text, against) : text.compare(against);
}

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
      addColumn(table, sqlName(field), *table.field(field));
  }
  addColumn(table, table.identityColumn(), table.identity.value_or(columns_));
  if (!table.identity) ++columns_;
  const auto first = static_cast<std::size_t>(order_.front().position);
  if (first < table.fields.size()) firstType_ = table.fields[first].type;
  statements_.resize(order_.size() * kRelations * kDirections);
}

void KeyPager::addColumn(const TableShape& table, std::string name, int position) {
  const auto field = static_cast<std::size_t>(position);
  const bool collated = field < table.fields.size() && isText(table.fields[field].type);
  order_.push_back({std::move(name), position, collated});
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
    const Value wanted = spell ? Value(value.text()) : value;
    Status status = load({0, way.relation, way.direction}, {wanted}, page, 1);
    return status ? fits(way.relation, wanted, page) : status;
  }
  return {Fault::Unsupported,
          subject_ + ": Seek does not know \"" + std::string(comparison) + "\"."};
}

// Whoever goes on from each row that was found to the next comes to an end in a damaged file, too.
Status KeyPager::fits(Relation relation, const Value& wanted, const RowPage& page) const {
  const bool comparable = std::holds_alternative<std::string>(wanted.held()) ||
                          std::holds_alternative<std::int64_t>(wanted.held());
  if (page.rows() == 0 || !comparable) return {};
  const Column& column = order_.front();
  const Value found = page.raw(0, column.position);
  if (rankOf(found) != rankOf(wanted)) return {};
  const int difference =
      compareValues(found, wanted, column.collated ? &engine_.collator() : nullptr);
  const bool good = relation == Relation::Equal     ? difference == 0
                    : relation == Relation::Greater ? difference > 0
                    : relation == Relation::AtLeast ? difference >= 0
                    : relation == Relation::Less    ? difference < 0
                                                    : difference <= 0;
  return good ? Status() : outOfOrder();
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

int KeyPager::compare(const Key& one, const Key& other) const {
  for (std::size_t column = 0; column < order_.size(); ++column) {
    const Collator* collator = order_[column].collated ? &engine_.collator() : nullptr;
    const int difference = compareValues(one[column], other[column], collator);
    if (difference != 0) return difference;
  }
  return 0;
}

Status KeyPager::outOfOrder() const {
  return {Fault::Damaged, subject_ + ": the file is damaged."};
}

Status KeyPager::isBeyond(const Key& from, const RowPage& page, bool upwards) const {
  if (page.rows() == 0) return {};
  const Key low = key(page, 0);
  const Key high = key(page, page.rows() - 1);
  const bool beyond = upwards ? compare(from, low) < 0 : compare(high, from) < 0;
  return beyond && compare(low, high) <= 0 ? Status() : outOfOrder();
}

Key KeyPager::key(const RowPage& page, int row) const {
  Key key;
  for (const Column& column : order_) key.push_back(page.raw(row, column.position));
  return key;
}

}  // namespace dao
