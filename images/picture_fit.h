// How a picture is laid into its frame, and how far a larger one can be panned.
#pragma once

namespace images {

// In any one unit.
struct Extent {
  int width = 0;
  int height = 0;
  bool operator==(const Extent&) const = default;
  [[nodiscard]] bool empty() const { return width <= 0 || height <= 0; }
};

enum class Enlarging { Never, Allowed };

// The picture as large as the room takes it, its proportions kept. Empty when either has no area.
[[nodiscard]] Extent fitted(Extent picture, Extent room, Enlarging enlarging);
[[nodiscard]] Extent zoomed(Extent fitted, int percent);

// Range and steps of one scroll bar: what the picture is larger than its frame, a 40th and a 20th
// of that.
struct Pan {
  int maximum = 0;
  int smallChange = 1;
  int largeChange = 1;
};
[[nodiscard]] Pan pan(int picture, int frame);

}  // namespace images
