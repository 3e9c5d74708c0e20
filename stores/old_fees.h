// Amounts from before the currency change, when a new lira was a million old ones.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "stores/stores.h"

namespace stores {

// A number above the limit of what a fee in new lira can be.
[[nodiscard]] bool isOldAmount(std::string_view text);
// What is left of an old amount, in the picture "0.00".
[[nodiscard]] std::string newAmount(std::string_view old);

// What a conversion would change, as far as it stands in the store now.
struct OldAmounts {
  struct Table {
    std::string_view name;
    std::int64_t amounts = 0;
  };
  std::vector<Table> tables;  // those that have any, in the order of the conversion
  std::int64_t amounts = 0;   // of all tables
  std::int64_t pointed = 0;   // of these, with a decimal point, as amounts in new lira are written
  std::string largest;        // as they are stored; empty when there are none
  std::string smallest;
};
[[nodiscard]] dao::Result<OldAmounts> findOldAmounts(ClinicalStore& clinical);

// Converts the fees and prices of all tables, all or nothing. The number of amounts changed; a
// second run finds none.
dao::Result<std::int64_t> ConvertOldFees(ClinicalStore& clinical);

}  // namespace stores
