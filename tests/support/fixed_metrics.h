// Measures that are the same on every machine: every character is half as wide as its font is high.
#pragma once

#include <map>
#include <string>

#include "platform/page/metrics.h"
#include "platform/text/utf8.h"

namespace support {

[[nodiscard]] inline page::Font pointsOf(int points) {
  page::Font font;
  font.halfPoints = 2 * points;
  return font;
}

class FixedMetrics : public page::Metrics {
 public:
  // Ten points: characters of 100 twips, lines of 240.
  [[nodiscard]] int width(std::string_view text, const page::Font& font) const override {
    return static_cast<int>(text::length(text)) * font.halfPoints * 5;
  }
  [[nodiscard]] page::FontHeight height(const page::Font& font) const override {
    return {.ascent = font.halfPoints * 9, .line = font.halfPoints * 12};
  }
  [[nodiscard]] std::optional<page::Size> pictureSize(std::string_view path) const override {
    const auto found = pictures.find(path);
    return found == pictures.end() ? std::nullopt : std::optional(found->second);
  }

  std::map<std::string, page::Size, std::less<>> pictures;
};

}  // namespace support
