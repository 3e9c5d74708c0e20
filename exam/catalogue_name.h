// Names of drugs and tests, as they are typed and as their catalogue spells them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/dao/recordset.h"
#include "shell/station.h"

namespace exam {

// Alike for names that differ in case only, in the user's language.
[[nodiscard]] std::string foldedName(const shell::Station& istasyon, std::string_view name);

// The key of the row with that name, whatever its case; none when there is no such row.
[[nodiscard]] std::optional<std::string> storedName(dao::Recordset& catalogue,
                                                    std::string_view column, std::string_view name);

}  // namespace exam
