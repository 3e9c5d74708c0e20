// Laboratory values: one row of the table `Analyze` is one value of one test on one day.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/dao/database.h"
#include "platform/text/date.h"

namespace stores {

// The range is the one that held when the value was written down; texts are trimmed.
struct Analysis {
  std::int64_t number = 0;
  std::optional<text::DateTime> date;
  std::string test;
  std::string result;
  std::string unit;
  std::string min;
  std::string max;
};

// The values with these numbers by day, in one read; those of one day stay in the order of the
// numbers given. A number whose row is gone repeats the value before it.
[[nodiscard]] dao::Result<std::vector<Analysis>> listedAnalyses(
    dao::Database& clinical, std::span<const std::int64_t> numbers);

}  // namespace stores
