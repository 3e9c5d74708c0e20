// The twelve tables of the Personal store: who the patients are and who pays.
#pragma once

#include "stores/schema.h"

namespace stores {

[[nodiscard]] Schema personalSchema();

}  // namespace stores
