// Internal: what the engine's result codes mean to people.
#pragma once

#include <string_view>

#include "platform/status/status.h"

struct sqlite3;

namespace dao {

// The failure of the last call on a connection; `subject` begins its text.
[[nodiscard]] platform::Status engineFault(sqlite3* connection, std::string_view subject);

}  // namespace dao
