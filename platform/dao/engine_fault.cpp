#include "platform/dao/engine_fault.h"

#include <sqlite3.h>

#include <array>
#include <cerrno>
#include <string>

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
    Meaning{SQLITE_NOMEM, Fault::Other, "there is not enough memory."},
};

constexpr Meaning kUnique{0, Fault::Exists, "this key is there already."};
constexpr Meaning kNotNull{0, Fault::NullKey, "a key field has no value."};

bool outOfRoom(int systemError) {
  return systemError == ENOSPC || systemError == EFBIG || systemError == EDQUOT;
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

const Meaning* meaningOf(int extended, int systemError) {
  if (const Meaning* meaning = constraint(extended)) return meaning;
  const bool noRoom = (extended & 0xff) == SQLITE_IOERR && outOfRoom(systemError);
  const int primary = noRoom ? SQLITE_FULL : extended & 0xff;
  for (const Meaning& meaning : kMeanings) {
    if (meaning.code == primary) return &meaning;
  }
  return nullptr;
}

}  // namespace

Status engineFault(sqlite3* connection, std::string_view subject) {
  const int extended = connection ? sqlite3_extended_errcode(connection) : SQLITE_NOMEM;
  const Meaning* meaning = meaningOf(extended, connection ? sqlite3_system_errno(connection) : 0);
  std::string text = std::string(subject) + ": ";
  if (meaning) return {meaning->fault, text + meaning->text};
  const std::string_view message = connection ? sqlite3_errmsg(connection) : "unknown failure";
  const Fault fault = message.starts_with("no such") ? Fault::Missing : Fault::Other;
  return {fault, text.append(message)};
}

}  // namespace dao
