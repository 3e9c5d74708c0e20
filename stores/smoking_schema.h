// The nine tables of the Smoking store: the trials of the smoking-cessation clinic.
#pragma once

#include "stores/schema.h"

namespace stores {

[[nodiscard]] Schema smokingSchema();

}  // namespace stores
