// The inks of what stands out, each readable on the present palette's ground.
#pragma once

#include <QColor>

#include "platform/forms/grid.h"

namespace desktop {

[[nodiscard]] QColor emphasisInk(forms::Emphasis emphasis);

}  // namespace desktop
