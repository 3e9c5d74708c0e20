// How often this test program has asked for memory.
#pragma once

#include <cstddef>

[[nodiscard]] std::size_t allocationCount();
