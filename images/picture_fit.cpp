#include "images/picture_fit.h"

#include <algorithm>
#include <cstdint>

namespace images {

namespace {

constexpr int smallSteps = 40;
constexpr int largeSteps = 20;
constexpr int wholePercent = 100;

// Rounded, at least 1; 64 bits so that the size of no picture overflows.
int scaled(int side, int by, int of) {
  return static_cast<int>(
      std::max<std::int64_t>(1, (static_cast<std::int64_t>(side) * by + of / 2) / of));
}

}  // namespace

Extent fitted(Extent picture, Extent room, Enlarging enlarging) {
  if (picture.empty() || room.empty()) return {};
  const bool fits = picture.width <= room.width && picture.height <= room.height;
  if (fits && enlarging == Enlarging::Never) return picture;
  const bool tall = static_cast<std::int64_t>(picture.height) * room.width >=
                    static_cast<std::int64_t>(picture.width) * room.height;
  if (tall) return {scaled(picture.width, room.height, picture.height), room.height};
  return {room.width, scaled(picture.height, room.width, picture.width)};
}

Extent zoomed(Extent fitted, int percent) {
  if (fitted.empty()) return {};
  return {scaled(fitted.width, percent, wholePercent),
          scaled(fitted.height, percent, wholePercent)};
}

Pan pan(int picture, int frame) {
  const int excess = std::max(0, picture - frame);
  return {excess, std::max(1, excess / smallSteps), std::max(1, excess / largeSteps)};
}

}  // namespace images
