// Making all keys of a store anew when the collation rules of the system have changed.
#include <array>

#include "platform/dao/catalogue.h"
#include "platform/dao/database.h"
#include "platform/dao/engine.h"

namespace dao {
namespace {

std::string nameOf(const Engine& engine) {
  return engine.path().filename().string();
}

// The rows of a table in key order cannot be sorted where they lie: they go out and come back.
Status rebuildClustered(Engine& engine, const std::string& table) {
  const std::string name = sqlName(table);
  const std::array statements{"CREATE TEMP TABLE \"~rows\" AS SELECT * FROM main." + name,
                              "DELETE FROM main." + name,
                              "INSERT INTO main." + name + " SELECT * FROM \"~rows\"",
                              std::string("DROP TABLE temp.\"~rows\"")};
  for (const std::string& statement : statements) {
    if (auto done = engine.run(statement, subjectOf(engine, table)); !done) return done.error();
  }
  return {};
}

Status rebuildAll(Engine& engine) {
  const auto tables = tableNames(engine);
  if (!tables) return tables.error();
  for (const std::string& table : *tables) {
    const auto shape = readTable(engine, table);
    if (!shape) return shape.error();
    if (!shape->clustered) continue;
    if (Status status = rebuildClustered(engine, table); !status) return status;
  }
  if (auto done = engine.run("REINDEX", nameOf(engine)); !done) return done.error();
  const auto done = engine.run("UPDATE \"~store\" SET value = ? WHERE name = 'collation'",
                               nameOf(engine), {engine.collator().version()});
  return done ? Status() : done.error();
}

}  // namespace

Result<bool> Database::orderIsCurrent() {
  if (!isOpen()) return std::unexpected(Status(Fault::NoCurrent, "The store is closed."));
  if (!engine_->isMarked()) return true;
  auto statement =
      engine_->prepare("SELECT value FROM \"~store\" WHERE name = 'collation'", nameOf(*engine_));
  if (!statement) return std::unexpected(statement.error());
  const auto row = statement->step(nameOf(*engine_));
  if (!row) return std::unexpected(row.error());
  return *row && statement->text(0) == engine_->collator().version();
}

Status Database::rebuildOrder() {
  auto transaction = beginTransaction();
  if (!transaction) return transaction.error();
  if (Status status = rebuildAll(*engine_); !status) return status;
  return transaction->commit();
}

}  // namespace dao
