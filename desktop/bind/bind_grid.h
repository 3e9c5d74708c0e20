// Grids, as tables over a model that holds no cells of its own.
#pragma once

#include "desktop/bind/binding.h"
#include "desktop/grid_table.h"
#include "platform/forms/grid.h"

namespace desktop {

void bind(GridTable& table, forms::Grid& grid);

}  // namespace desktop
