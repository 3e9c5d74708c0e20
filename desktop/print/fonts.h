// The fonts of pages: one unit of their coordinates is a twip.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <deque>

#include "platform/page/page.h"

namespace desktop {

struct PageFont {
  QFont font;
  QFontMetricsF metrics;
};

// Finding a font is slow, and a page has few of them.
class PageFonts {
 public:
  // Valid for the life of this object.
  const PageFont& of(const page::Font& font);

 private:
  struct Known {
    page::Font wanted;
    PageFont found;
  };
  std::deque<Known> known_;
};

}  // namespace desktop
