// Draws recorded pages with the toolkit's painter: on the screen, on a printer, into a file.
#pragma once

#include <QPainter>

#include "desktop/print/fonts.h"
#include "platform/page/page.h"

namespace desktop {

// One unit of the painter is a twip. Pictures are read no finer than `dotsPerInch`.
void paintPage(QPainter& painter, const page::Page& page, PageFonts& fonts, int dotsPerInch);

}  // namespace desktop
