// Internal: what a field accepts when it is assigned.
#pragma once

#include <string_view>

#include "platform/dao/database.h"

namespace dao {

// The value as the field stores it. TooLong or WrongType, with a text that names table and field.
[[nodiscard]] Result<Value> fitting(const Value& value, const FieldInfo& field,
                                    std::string_view table);

}  // namespace dao
