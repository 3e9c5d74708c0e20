// How a photograph is laid into its panel, and how far a larger one can be panned.
#pragma once

#include "platform/forms/label.h"

namespace registry {

struct Extent {
  int width = 0;
  int height = 0;
};

// The picture as large as the panel takes it, its proportions kept, in the middle. Empty when
// either has no area.
[[nodiscard]] forms::Picture::Frame fitted(Extent picture, Extent panel);

// Range and steps of one scroll bar: the excess of the picture over the panel, a tenth and a half
// of it.
struct Pan {
  int maximum = 0;
  int smallChange = 0;
  int largeChange = 0;
};
[[nodiscard]] Pan pan(int picture, int panel);

}  // namespace registry
