#include "registry/photo_fit.h"

#include <algorithm>
#include <cstdint>

namespace registry {

namespace {

// Rounded, at least one pixel; 64 bits so that the size of no picture overflows.
int scaled(int side, int by, int of) {
  return static_cast<int>(
      std::max<std::int64_t>(1, (static_cast<std::int64_t>(side) * by + of / 2) / of));
}

}  // namespace

forms::Picture::Frame fitted(Extent picture, Extent panel) {
  if (picture.width <= 0 || picture.height <= 0 || panel.width <= 0 || panel.height <= 0) return {};
  const bool tall = static_cast<std::int64_t>(picture.height) * panel.width >=
                    static_cast<std::int64_t>(picture.width) * panel.height;
  const int width = tall ? scaled(picture.width, panel.height, picture.height) : panel.width;
  const int height = tall ? panel.height : scaled(picture.height, panel.width, picture.width);
  return {(panel.width - width) / 2, (panel.height - height) / 2, width, height};
}

Pan pan(int picture, int panel) {
  const int excess = std::max(0, picture - panel);
  return {excess, excess / 10, excess / 2};
}

}  // namespace registry
