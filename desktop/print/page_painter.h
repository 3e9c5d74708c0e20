// Draws recorded pages with the toolkit's painter: on the screen, on a printer, into a file.
#pragma once

#include <QPainter>

#include "desktop/print/fonts.h"
#include "desktop/print/pictures.h"
#include "platform/page/page.h"

namespace desktop {

// What is kept from page to page, and from one drawing of a page to the next.
struct PageParts {
  PageFonts fonts;
  PagePictures pictures;
};

// One unit of the painter is a twip. Pictures are read no finer than `dotsPerInch`.
void paintPage(QPainter& painter, const page::Page& page, PageParts& parts, int dotsPerInch);

}  // namespace desktop
