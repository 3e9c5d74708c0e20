// Internal: field types as they are declared in the file.
#pragma once

#include <string>

#include "platform/dao/definition.h"

namespace dao {

inline constexpr int kDefaultTextSize = 255;

[[nodiscard]] std::string declaration(const FieldDef& field);
[[nodiscard]] bool isText(FieldType type);

}  // namespace dao
