// The seven value lists of the card: one column of distinct texts each, under the table's own name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/dao/recordset.h"
#include "stores/stores.h"

namespace stores {

// The open recordset of a value list; null for another table.
[[nodiscard]] dao::Recordset* valueList(PersonalStore& personal, std::string_view table);

// The values in key order.
[[nodiscard]] std::vector<std::string> values(PersonalStore& personal, std::string_view table);

// Adds a value that the list does not hold yet; TooLong when it is wider than the column.
dao::Status addValue(PersonalStore& personal, std::string_view table, std::string_view value);
// Missing when the list does not hold the old value; Exists when it holds the new one already.
dao::Status changeValue(PersonalStore& personal, std::string_view table, std::string_view old,
                        std::string_view now);
dao::Status deleteValue(PersonalStore& personal, std::string_view table, std::string_view value);

}  // namespace stores
