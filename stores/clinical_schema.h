// The tables of the Clinical store.
#pragma once

#include "stores/schema.h"

namespace stores {

[[nodiscard]] Schema clinicalSchema();

}  // namespace stores
