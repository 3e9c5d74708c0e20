// Rows of a table, or the rows that a select text found, read and written one at a time.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "platform/dao/value.h"
#include "platform/status/status.h"

namespace dao {

class Cursor;

// A field of the current record, or of the buffer while AddNew or Edit is open. Use it at once: it
// views its recordset. Without a current record, or for an unknown name, it reads as Null; status()
// tells why.
class Field {
 public:
  [[nodiscard]] dao::Value Value() const;
  [[nodiscard]] std::string text() const;
  [[nodiscard]] bool isNull() const;
  // The text itself, for tight loops: valid until the next operation of the recordset. Numbers give
  // "".
  [[nodiscard]] std::string_view view() const;
  [[nodiscard]] platform::Status status() const;

  // Writes into the buffer. Missing, TooLong (in characters), WrongType (dates are DateTime or ISO
  // text), or NoCurrent without AddNew or Edit. Text that is no UTF-8 is repaired with U+FFFD.
  platform::Status Set(const dao::Value& value);

 private:
  friend class Recordset;
  Field(Cursor* cursor, int column, std::string_view name)
      : cursor_(cursor), column_(column), name_(name) {}
  Cursor* cursor_;
  int column_;  // below 0: no such field
  std::string_view name_;
};

// Table-type recordsets walk in the order of the current index, else in the order of the primary
// key, else as rows came. They see what other stations committed at their next read and hold no
// lock between calls. Moves, Seek and a second AddNew or Edit discard an open buffer silently.
class Recordset {
 public:
  Recordset();  // closed: everything answers NoCurrent
  explicit Recordset(std::unique_ptr<Cursor> cursor);
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  void Close();
  [[nodiscard]] bool isOpen() const { return cursor_ != nullptr; }

  // Missing when the table has no such index. The position is the first record of the new order.
  platform::Status Index(std::string_view name);

  // "=", ">=", ">" find the first, "<=", "<" the last fitting record in the order of the index.
  // Finding nothing is no fault: NoMatch() is true then and there is no current record.
  platform::Status Seek(std::string_view comparison, const Value& key);
  [[nodiscard]] bool NoMatch() const;

  // Moving off an end sets Eof or Bof; moving on from there, or without a record, is NoCurrent.
  platform::Status MoveFirst();
  platform::Status MoveNext();
  platform::Status MovePrevious();
  platform::Status MoveLast();
  [[nodiscard]] bool Eof() const;
  [[nodiscard]] bool Bof() const;

  // The true total; empty() is much cheaper on a large table.
  [[nodiscard]] std::int64_t RecordCount() const;
  [[nodiscard]] bool empty() const;

  // A buffer of Nulls. The record that was current stays current after Update.
  platform::Status AddNew();
  // Reads the current record anew into the buffer. Stale when it is gone.
  platform::Status Edit();
  // Writes what was assigned, in one transaction. ZeroLength, NullKey, Exists (a key that is there
  // already), Stale, Busy, ReadOnly, DiskFull: then the buffer stays open for correction or
  // CancelUpdate.
  platform::Status Update();
  void CancelUpdate();
  // The record is gone at once; it cannot be read, and MoveNext goes to the one after it.
  platform::Status Delete();

  // Names without regard to case.
  [[nodiscard]] Field Fields(std::string_view name);
  [[nodiscard]] Field Fields(int position);
  [[nodiscard]] int fieldCount() const;
  [[nodiscard]] std::string fieldName(int position) const;

  // The record that Update wrote last, and the current one, for SetBookmark. Null when there is
  // none. For a table with a numeric key, or an auto-increment field, it is that number.
  [[nodiscard]] Value LastModified() const;
  [[nodiscard]] Value Bookmark() const;
  // Stale when that record is gone.
  platform::Status SetBookmark(const Value& bookmark);

 private:
  std::unique_ptr<Cursor> cursor_;
};

}  // namespace dao
