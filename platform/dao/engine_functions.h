// Internal, and for measurements against the bare engine: what a connection needs to read a store's
// file.
#pragma once

#include <sqlite3.h>

#include <string_view>

#include "platform/dao/collation.h"

namespace dao {

// Adds the collation alone, for the texts of another store. The collator outlives the connection.
int addCollation(sqlite3* connection, Order order, const Collator& collator);

// Adds the collation of the store and the functions fold_general, fold_turkish, order_key, left,
// len, DateValue and like. The collator outlives the connection. An engine result code.
int addFunctions(sqlite3* connection, Order order, const Collator& collator);

// The settings under which stores are read and written; statements separated by ';'.
inline constexpr std::string_view kConnectionSettings =
    "PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL; PRAGMA foreign_keys=OFF; "
    "PRAGMA trusted_schema=OFF; PRAGMA cell_size_check=ON; PRAGMA cache_size=-16000;";

}  // namespace dao
