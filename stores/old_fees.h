// Amounts from before the currency change, when a new lira was a million old ones.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "stores/stores.h"

namespace stores {

// A number above the limit of what a fee in new lira can be.
[[nodiscard]] bool isOldAmount(std::string_view text);
// What is left of an old amount, in the picture "0.00".
[[nodiscard]] std::string newAmount(std::string_view old);

// Converts the fees and prices of all tables, all or nothing. The number of amounts changed; a
// second run finds none.
dao::Result<std::int64_t> ConvertOldFees(ClinicalStore& clinical);

}  // namespace stores
