// How long work tells how far it is and asks whether to go on.
#pragma once

#include <cstdint>
#include <functional>

namespace stores {

// Rows done and rows in all. False stops the work, which then leaves everything as it was before.
using Progress = std::function<bool(std::int64_t done, std::int64_t total)>;

}  // namespace stores
