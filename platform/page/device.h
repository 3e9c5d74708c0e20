// A pen over a page: it stands somewhere, has a font, prints and moves on. What it does is kept as
// pages, which the preview shows and the printer draws.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/page/metrics.h"
#include "platform/page/page.h"

namespace page {

enum class Then { StayOnLine, NextLine };

class Device {
 public:
  explicit Device(const Metrics& metrics, Size size = a4);

  // Where the next text goes, and the edge to which a line end returns. A routine sets them freely.
  int x = 0;
  int y = 0;
  int left = 0;
  Font font;

  [[nodiscard]] const Metrics& metrics() const { return metrics_; }
  [[nodiscard]] int width() const { return pages_.size.width; }
  [[nodiscard]] int height() const { return pages_.size.height; }
  // From 1.
  [[nodiscard]] int page() const { return static_cast<int>(pages_.pages.size()); }

  // Line ends (LF, CR, CRLF) in a text part its lines. The width is that of the widest line, the
  // height that of all.
  [[nodiscard]] int textWidth(std::string_view text) const;
  [[nodiscard]] int textHeight(std::string_view text = {}) const;
  // Line ends in the text return to the left edge, one line lower.
  void print(std::string_view text, Then then = Then::NextLine);

  // At its natural size, or filling the given one. False when the file is no picture: nothing is
  // painted then.
  bool paintPicture(std::string_view path, int atX, int atY,
                    std::optional<Size> size = std::nullopt);
  void line(int x1, int y1, int x2, int y2);
  void box(const Rectangle& place);

  // The pen returns to the top left corner and keeps its font.
  void newPage();
  // Hands over what was drawn; the device starts a document of its own again.
  [[nodiscard]] Pages endDocument();

 private:
  void add(Operation operation) { pages_.pages.back().operations.push_back(std::move(operation)); }
  void nextLine();

  const Metrics& metrics_;
  Pages pages_;
};

}  // namespace page
