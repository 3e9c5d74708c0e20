#include "platform/dao/database.h"

#include "platform/dao/catalogue.h"
#include "platform/dao/cursor.h"
#include "platform/dao/dialect.h"
#include "platform/dao/engine.h"

namespace dao {
namespace {

Status closed() {
  return {Fault::NoCurrent, "The store is closed."};
}

}  // namespace

Transaction::~Transaction() {
  if (engine_) engine_->rollback();
}

Status Transaction::commit() {
  if (!engine_) return {Fault::Failed, "This transaction has ended."};
  const auto engine = std::move(engine_);
  return engine->commit();
}

Impatience::Impatience(const Database& database) : engine_(database.engine()) {
  if (engine_) engine_->setPatience(std::chrono::milliseconds{0});
}

Impatience::~Impatience() {
  if (engine_) engine_->setPatience(engine_->usualPatience());
}

Database::Database(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}

void Database::Close() {
  if (engine_) engine_->close();
  engine_.reset();
}

bool Database::isOpen() const {
  return engine_ && engine_->isOpen();
}
bool Database::isReadOnly() const {
  return engine_ && engine_->isReadOnly();
}
Order Database::order() const {
  return engine_ ? engine_->order() : Order::General;
}
std::string Database::path() const {
  return engine_ ? engine_->path().string() : "";
}

bool Database::sameKey(std::string_view one, std::string_view other) const {
  return isOpen() ? engine_->collator().compare(one, other) == 0 : one == other;
}

Result<Recordset> Database::OpenRecordset(std::string_view source,
                                          const std::vector<Value>& parameters) {
  if (!isOpen()) return std::unexpected(closed());
  auto cursor =
      isSelect(source) ? openSelect(engine_, source, parameters) : openTable(engine_, source);
  if (!cursor) return std::unexpected(cursor.error());
  return Recordset(std::move(*cursor));
}

Result<Recordset> Database::OpenForward(std::string_view select,
                                        const std::vector<Value>& parameters) {
  if (!isOpen()) return std::unexpected(closed());
  auto cursor = openForward(engine_, select, parameters);
  if (!cursor) return std::unexpected(cursor.error());
  return Recordset(std::move(*cursor));
}

Result<std::int64_t> Database::Execute(std::string_view statement,
                                       const std::vector<Value>& parameters) {
  if (!isOpen()) return std::unexpected(closed());
  return engine_->run(translated(statement), engine_->path().filename().string(), parameters);
}

Result<std::vector<std::string>> Database::tables() const {
  if (!isOpen()) return std::unexpected(closed());
  return tableNames(*engine_);
}

Result<std::vector<std::string>> Database::foreignObjects() const {
  if (!isOpen()) return std::unexpected(closed());
  return foreignNames(*engine_);
}

Result<std::vector<FieldInfo>> Database::fields(std::string_view table) const {
  if (!isOpen()) return std::unexpected(closed());
  auto shape = readTable(*engine_, table);
  if (!shape) return std::unexpected(shape.error());
  return std::move(shape->fields);
}

Result<std::vector<IndexInfo>> Database::indexes(std::string_view table) const {
  if (!isOpen()) return std::unexpected(closed());
  auto shape = readTable(*engine_, table);
  if (!shape) return std::unexpected(shape.error());
  return std::move(shape->indexes);
}

Status Database::appendTable(const TableDef& table) {
  if (!isOpen()) return closed();
  const std::string subject = subjectOf(*engine_, table.name);
  const auto statements = creation(table, engine_->order());
  if (!statements) return statements.error();
  auto transaction = beginTransaction();
  if (!transaction) return transaction.error();
  if (readTable(*engine_, table.name))
    return {Fault::Exists, subject + ": the table is there already."};
  if (Status status = engine_->mark(); !status) return status;
  for (const std::string& statement : *statements) {
    if (auto done = engine_->run(statement, subject); !done) return done.error();
  }
  if (Status status = ensureHelpers(table); !status) return status;
  return transaction->commit();
}

Status Database::dropTable(std::string_view table) {
  if (!isOpen()) return closed();
  const auto shape = readTable(*engine_, table);
  if (!shape) return shape.error();
  const auto done = engine_->run("DROP TABLE " + sqlName(shape->name), subjectOf(*engine_, table));
  return done ? Status() : done.error();
}

Status Database::ensureHelpers(const TableDef& table) {
  if (!isOpen()) return closed();
  for (const HelperDef& helper : table.helpers) {
    const auto there = hasIndex(*engine_, helperNameInFile(table.name, helper));
    if (!there) return there.error();
    if (*there) continue;
    const auto done =
        engine_->run(helperCreation(table.name, helper), subjectOf(*engine_, table.name));
    if (!done) return done.error();
  }
  return {};
}

Result<Transaction> Database::beginTransaction() {
  if (!isOpen()) return std::unexpected(closed());
  if (Status status = engine_->begin(); !status) return std::unexpected(std::move(status));
  return Transaction(engine_);
}

Result<std::int64_t> Database::nextNumber(std::string_view table, std::string_view field) {
  if (!isOpen()) return std::unexpected(closed());
  const std::string subject = subjectOf(*engine_, table);
  if (!engine_->inTransaction()) {
    return std::unexpected(
        Status(Fault::Unsupported, subject + ": a number is taken inside a transaction only."));
  }
  auto statement =
      engine_->prepare("SELECT max(" + sqlName(field) + ") FROM " + sqlName(table), subject);
  if (!statement) return std::unexpected(statement.error());
  const auto row = statement->step(subject);
  if (!row) return std::unexpected(row.error());
  return statement->integer(0) + 1;
}

std::int64_t Database::usedBytes() const {
  if (!isOpen()) return 0;
  const std::string subject = engine_->path().filename().string();
  auto statement = engine_->prepare(
      "SELECT (page_count - freelist_count) * page_size "
      "FROM pragma_page_count, pragma_freelist_count, pragma_page_size",
      subject);
  return statement && statement->step(subject).value_or(false) ? statement->integer(0) : 0;
}

std::string Database::orderKey(std::string_view text) const {
  return isOpen() ? engine_->collator().key(text) : std::string(text);
}

}  // namespace dao
