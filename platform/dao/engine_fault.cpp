#include "platform/dao/engine_fault.h"

#include <sqlite3.h>

#include <array>
#include <string>

#include "platform/status/system_fault.h"

namespace dao {
namespace {

using platform::Fault;
using platform::Status;

struct Meaning {
  int code;
  Fault fault;
  const char* text;
};

constexpr std::array kMeanings{
    Meaning{SQLITE_BUSY, Fault::Busy, "another station is using the file; please try again."},
    Meaning{SQLITE_LOCKED, Fault::Busy, "the table is in use; please try again."},
    Meaning{SQLITE_READONLY, Fault::ReadOnly, "the file or its folder cannot be written."},
    Meaning{SQLITE_PERM, Fault::ReadOnly, "the file or its folder may not be written."},
    Meaning{SQLITE_FULL, Fault::DiskFull, "there is no room left on the disk."},
    Meaning{SQLITE_CORRUPT, Fault::Damaged, "the file is damaged."},
    Meaning{SQLITE_NOTADB, Fault::Damaged, "the file is damaged or is not a store."},
    Meaning{SQLITE_CANTOPEN, Fault::Missing, "the file cannot be opened."},
    Meaning{SQLITE_TOOBIG, Fault::TooLong, "the text is too long to be stored."},
    Meaning{SQLITE_IOERR, Fault::Failed, "the disk could not be read or written."},
    Meaning{SQLITE_NOMEM, Fault::Failed, "there is not enough memory."},
    Meaning{SQLITE_PROTOCOL, Fault::Busy, "another station is using the file; please try again."},
    Meaning{SQLITE_INTERRUPT, Fault::Other, "the work was stopped."},
    Meaning{SQLITE_MISMATCH, Fault::WrongType, "a value is not of the kind that its field holds."},
};

constexpr Meaning kUnique{0, Fault::Exists, "this key is there already."};
constexpr Meaning kNotNull{0, Fault::NullKey, "a key field has no value."};

bool outOfRoom(int systemError) {
  return platform::faultOf(systemError) == Fault::DiskFull;
}

// The system's own error may stand with the connection, with the file or with its journal,
// whichever was written last.
bool outOfRoom(sqlite3* connection, const char* store) {
  int last = 0;
  sqlite3_file_control(connection, store, SQLITE_FCNTL_LAST_ERRNO, &last);
  if (outOfRoom(last)) return true;
  sqlite3_file* journal = nullptr;
  sqlite3_file_control(connection, store, SQLITE_FCNTL_JOURNAL_POINTER, &journal);
  if (journal == nullptr || journal->pMethods == nullptr) return false;
  journal->pMethods->xFileControl(journal, SQLITE_FCNTL_LAST_ERRNO, &last);
  return outOfRoom(last);
}

bool outOfRoom(sqlite3* connection) {
  if (outOfRoom(sqlite3_system_errno(connection))) return true;
  for (int position = 0; const char* store = sqlite3_db_name(connection, position); ++position) {
    if (outOfRoom(connection, store)) return true;
  }
  return false;
}

const Meaning* constraint(int extended) {
  switch (extended) {
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_ROWID:
      return &kUnique;
    case SQLITE_CONSTRAINT_NOTNULL:
      return &kNotNull;
    default:
      return nullptr;
  }
}

const Meaning* meaningOf(int extended, sqlite3* connection) {
  if (const Meaning* meaning = constraint(extended)) return meaning;
  int primary = extended & 0xff;
  if (primary == SQLITE_IOERR && connection && outOfRoom(connection)) primary = SQLITE_FULL;
  if (primary == SQLITE_CANTOPEN && connection &&
      platform::faultOf(sqlite3_system_errno(connection)) == Fault::ReadOnly)
    primary = SQLITE_PERM;
  for (const Meaning& meaning : kMeanings) {
    if (meaning.code == primary) return &meaning;
  }
  return nullptr;
}

}  // namespace

Status engineFault(sqlite3* connection, std::string_view subject) {
  const int extended = connection ? sqlite3_extended_errcode(connection) : SQLITE_NOMEM;
  const Meaning* meaning = meaningOf(extended, connection);
  std::string text = std::string(subject) + ": ";
  if (meaning) return {meaning->fault, text + meaning->text};
  const std::string_view message = connection ? sqlite3_errmsg(connection) : "";
  const bool missing = message.starts_with("no such");
  text += missing ? "a part of the store is missing" : "the store could not do what was asked";
  return {missing ? Fault::Missing : Fault::Failed, text.append(" (").append(message) + ")."};
}

}  // namespace dao
