// Stores: one database file each. These are the operations of the record engine, under its names.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/definition.h"
#include "platform/dao/recordset.h"
#include "platform/dao/value.h"
#include "platform/status/status.h"

namespace dao {

using platform::Fault;
using platform::Result;
using platform::Status;

class Engine;
class Database;

// The write transaction of a database. Destroyed without commit() it is rolled back. One begun
// inside another joins it: only the outermost commits, and not when an inner one was given up.
class Transaction {
 public:
  Transaction(Transaction&& other) noexcept = default;
  Transaction& operator=(Transaction&&) = delete;
  ~Transaction();

  Status commit();

 private:
  friend class Database;
  explicit Transaction(std::shared_ptr<Engine> engine) : engine_(std::move(engine)) {}
  std::shared_ptr<Engine> engine_;
};

// While it lives, what would wait for another station's lock on the store is Busy at once.
class Impatience {
 public:
  explicit Impatience(const Database& database);
  Impatience(const Impatience&) = delete;
  Impatience& operator=(const Impatience&) = delete;
  ~Impatience();

 private:
  std::shared_ptr<Engine> engine_;
};

// Still: for a file that nobody has open, such as a backup. It is read without locks and without
// its journal; one that has a journal of unfinished work beside it is Damaged.
enum class Access { ReadWrite, ReadOnly, Still };

struct OpenOptions {
  Access access = Access::ReadWrite;
  Order emptyFileOrder = Order::General;  // of a file of 0 bytes; any other file knows its order
  std::chrono::milliseconds busyTimeout{5000};
};

// What a catalogue tells of a field.
struct FieldInfo {
  std::string name;
  FieldType type = FieldType::Text;
  int size = 0;  // in characters, 0 when unlimited or no text
  ZeroLength zeroLength = ZeroLength::Allowed;
  AutoIncrement autoIncrement = AutoIncrement::No;
};

struct IndexInfo {
  std::string name;
  std::vector<std::string> fields;
  Primary primary = Primary::No;
  Unique unique = Unique::No;
};

// An open store; copies are handles of the same one. After Close() its recordsets answer NoCurrent.
// Without it the file stays open as long as a handle or a recordset is left.
class Database {
 public:
  Database() = default;  // closed
  explicit Database(std::shared_ptr<Engine> engine);

  void Close();
  [[nodiscard]] bool isOpen() const;
  [[nodiscard]] bool isReadOnly() const;
  [[nodiscard]] Order order() const;
  [[nodiscard]] std::string path() const;

  // Whether both texts are one key in the store's order.
  [[nodiscard]] bool sameKey(std::string_view one, std::string_view other) const;

  // A table name gives a table-type recordset; a text that begins with SELECT gives a read-only set
  // of the rows that it finds now. "like" takes * ? # [a-z] [!x]; left, len and DateValue are
  // there; texts stand in single or double quotes, names with blanks in [brackets]. Missing when
  // there is no such table.
  [[nodiscard]] Result<Recordset> OpenRecordset(std::string_view source,
                                                const std::vector<Value>& parameters = {});

  // The rows of a select text, each read when MoveNext comes to it and none kept: forward only and
  // without a count, for walks over very many rows. A read lock is held until Eof or Close, so a
  // long walk is made of pages.
  [[nodiscard]] Result<Recordset> OpenForward(std::string_view select,
                                              const std::vector<Value>& parameters = {});

  // Runs one statement of the same language. The number of rows changed. The rules of the fields
  // (width, zero length) are not tested here, keys are.
  Result<std::int64_t> Execute(std::string_view statement,
                               const std::vector<Value>& parameters = {});

  [[nodiscard]] Result<std::vector<std::string>> tables() const;
  // What no store of this program has and what a general tool would run: triggers, views and tables
  // that are programs. They are never run here.
  [[nodiscard]] Result<std::vector<std::string>> foreignObjects() const;
  [[nodiscard]] Result<std::vector<FieldInfo>> fields(std::string_view table) const;
  [[nodiscard]] Result<std::vector<IndexInfo>> indexes(std::string_view table) const;

  // Exists when the table is there, whatever its fields are. All or nothing.
  Status appendTable(const TableDef& table);
  Status dropTable(std::string_view table);
  // Makes those helper indexes of an existing table that its file lacks.
  Status ensureHelpers(const TableDef& table);

  [[nodiscard]] Result<Transaction> beginTransaction();

  // The highest number of the field plus one, 1 for an empty table. Only inside a transaction: no
  // other station can take the same number before it ends.
  [[nodiscard]] Result<std::int64_t> nextNumber(std::string_view table, std::string_view field);

  // Bytes that are equal for texts that are one key, and compare as the texts do in the order of
  // the store.
  [[nodiscard]] std::string orderKey(std::string_view text) const;

  // Without the room that deleted rows have left; 0 when it cannot be told.
  [[nodiscard]] std::int64_t usedBytes() const;

  // Damaged, with what was found, unless every table and index is sound.
  [[nodiscard]] Status integrityCheck();

  // Whether the keys in the file were made by the collation rules that are installed. When not,
  // seeks may miss: rebuildOrder() makes all keys anew in one exclusive transaction.
  [[nodiscard]] Result<bool> orderIsCurrent();
  Status rebuildOrder();

  [[nodiscard]] const std::shared_ptr<Engine>& engine() const { return engine_; }

 private:
  std::shared_ptr<Engine> engine_;
};

// Missing, Damaged, Busy or Other. A file of 0 bytes is a store without tables; one that cannot be
// written opens read-only.
[[nodiscard]] Result<Database> OpenDatabase(const std::filesystem::path& path,
                                            const OpenOptions& options = {});

// Exists when there is a file of that name.
[[nodiscard]] Result<Database> CreateDatabase(const std::filesystem::path& path, Order order);

// Bytes done and bytes in all, as far as they can be told. False stops the work.
using Progress = std::function<bool(std::int64_t done, std::int64_t total)>;

// What other stations meet while a store is copied. GoOn: they wait for moments only; it takes
// about half as long again, and as much room among the temporary files. Without that room they
// wait.
enum class Others { Wait, GoOn };

// Writes a compact copy of the rows as they stand at one moment, whoever else has the store open.
// The copy is brought to the disk and checked: its tables and indexes are sound, and each table has
// as many rows as in the source. `to` must not exist, and nothing of it is left after a fault.
// Missing (no source, or no folder to write to), Exists, Busy, ReadOnly, DiskFull, Damaged,
// Unsupported (the source is a file of another program), Other when it was stopped.
[[nodiscard]] Status CompactDatabase(const std::filesystem::path& from,
                                     const std::filesystem::path& to, const Progress& progress = {},
                                     Others others = Others::Wait);

// Busy when somebody reads or writes the store at this moment. Stations that have it open and do
// nothing are not seen.
[[nodiscard]] Status ProbeUnused(const std::filesystem::path& path);

struct RepairReport {
  bool wasDamaged = false;
  std::string findings;  // what the check found before the repair, a line each
};

// Checks a store that is closed everywhere; when something is wrong, makes its indexes anew, and if
// that is not enough all its keys. Damaged when the file is not sound after that either.
[[nodiscard]] Result<RepairReport> RepairDatabase(const std::filesystem::path& path);

}  // namespace dao
