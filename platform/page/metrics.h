// How large texts and pictures come out. Preview and print measure with the same metrics, so that
// lines break alike on both.
#pragma once

#include <optional>
#include <string_view>

#include "platform/page/page.h"

namespace page {

struct FontHeight {
  int ascent = 0;
  int line = 0;  // from the top of one line to the top of the next
};

class Metrics {
 public:
  virtual ~Metrics() = default;

  // Of one line of UTF-8 without control characters.
  [[nodiscard]] virtual int width(std::string_view text, const Font& font) const = 0;
  [[nodiscard]] virtual FontHeight height(const Font& font) const = 0;
  // The natural size of a picture file; none when it cannot be read as one.
  [[nodiscard]] virtual std::optional<Size> pictureSize(std::string_view path) const = 0;
};

}  // namespace page
