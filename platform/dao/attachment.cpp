#include "platform/dao/attachment.h"

#include "platform/dao/engine.h"

namespace dao {
namespace {

std::string nameOf(const Engine& engine) {
  return engine.path().filename().string();
}

// The first value of the first row; "" without one.
Result<std::string> answer(Engine& engine, const std::string& sql, const std::string& subject) {
  auto statement = engine.prepare(sql, subject);
  if (!statement) return std::unexpected(statement.error());
  const auto row = statement->step(subject);
  if (!row) return std::unexpected(row.error());
  return *row ? std::string(statement->text(0)) : "";
}

// The file under that name is still the store that was opened.
Status sameStore(Engine& engine, Engine& other, const std::string& alias) {
  for (const std::string mark : {"application_id", "user_version"}) {
    const auto here = answer(engine, "PRAGMA " + alias + "." + mark, nameOf(other));
    if (!here) return here.error();
    const auto there = answer(other, "PRAGMA " + mark, nameOf(other));
    if (!there) return there.error();
    if (*here != *there)
      return {Fault::Unsupported, nameOf(other) + ": this file belongs to another program."};
  }
  return {};
}

// A transaction covers several files only while each of them keeps a journal on the disk.
Status keepsJournal(Engine& engine, const std::string& schema, const std::string& subject) {
  const auto mode = answer(engine, "PRAGMA " + schema + ".journal_mode=TRUNCATE", subject);
  if (!mode) return mode.error();
  if (*mode != "truncate") return {Fault::Busy, subject + ": the file is open in another program."};
  const auto synchronous = engine.run("PRAGMA " + schema + ".synchronous=FULL", subject);
  return synchronous ? Status() : synchronous.error();
}

// The keys of the prefix search are made by a function, which follows the order of the connection.
Status keepsOrder(Engine& engine, const Engine& other, const std::string& alias) {
  if (engine.order() == other.order()) return {};
  const auto found =
      answer(engine, "SELECT 1 FROM " + alias + ".sqlite_schema WHERE instr(sql, 'order_key(')",
             nameOf(other));
  if (!found) return found.error();
  if (found->empty()) return {};
  return {Fault::Unsupported,
          nameOf(other) + ": its search keys follow another order than " + nameOf(engine) + "."};
}

Status prepare(Engine& engine, Engine& other, const std::string& alias) {
  Status status = sameStore(engine, other, alias);
  if (status) status = keepsOrder(engine, other, alias);
  if (status) status = keepsJournal(engine, "main", nameOf(engine));
  return status ? keepsJournal(engine, alias, nameOf(other)) : status;
}

Status refusal(const Database& to, const Database& other) {
  if (!to.isOpen() || !other.isOpen()) return {Fault::NoCurrent, "The store is closed."};
  if (to.engine()->inTransaction())
    return {Fault::Unsupported,
            nameOf(*to.engine()) + ": another store is reached before a transaction only."};
  if (!other.isReadOnly()) return {};
  return {Fault::ReadOnly, nameOf(*other.engine()) + ": the file cannot be written."};
}

}  // namespace

Attachment::~Attachment() {
  if (engine_ && engine_->isOpen()) (void)engine_->run("DETACH " + sqlName(alias_), alias_);
}

Result<Attachment> AttachDatabase(Database& to, const Database& other, std::string_view alias) {
  if (Status refused = refusal(to, other); !refused) return std::unexpected(std::move(refused));
  Engine& engine = *to.engine();
  if (Status status = engine.useOrder(other.order()); !status)
    return std::unexpected(std::move(status));
  const auto attached = engine.run("ATTACH ? AS " + sqlName(alias), nameOf(*other.engine()),
                                   {other.engine()->path().string()});
  if (!attached) return std::unexpected(attached.error());
  Attachment attachment(to.engine(), alias);
  if (Status status = prepare(engine, *other.engine(), sqlName(alias)); !status)
    return std::unexpected(std::move(status));
  return attachment;
}

}  // namespace dao
