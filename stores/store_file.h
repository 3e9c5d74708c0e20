// Opening one store: created when missing, completed when a table is missing.
#pragma once

#include <string>
#include <string_view>

#include "platform/dao/database.h"
#include "stores/schema.h"

namespace stores {

// Creates the file when it is missing and adds the tables that it lacks; a table that is there is
// left as it is. The database is open afterwards, or the status says why not.
[[nodiscard]] dao::Result<dao::Database> createStore(const std::string& path, dao::Order order,
                                                     Schema schema);

// Opens a table as a recordset positioned by its primary key, where it has one.
[[nodiscard]] dao::Result<dao::Recordset> openTable(dao::Database& database,
                                                    const dao::TableDef& table);

}  // namespace stores
