#include "desktop/print/page_painter.h"

#include "desktop/text.h"

namespace desktop {

namespace {

constexpr int penWidth = 15;  // three quarters of a point
constexpr QRgb ink = qRgb(0, 0, 0);

QRect rectOf(const page::Rectangle& place) {
  return {place.x, place.y, place.width, place.height};
}

struct Painting {
  QPainter& painter;
  PageParts& parts;
  int dotsPerInch;

  void operator()(const page::Text& text) const {
    const PageFont& font = parts.fonts.of(text.font);
    painter.setFont(font.font);
    painter.setPen(QColor::fromRgb(text.font.colour.value_or(ink)));
    painter.drawText(QPointF(text.x, text.y + font.metrics.ascent()), qs(text.text));
  }
  void operator()(const page::Picture& picture) const {
    const QSize place(picture.place.width, picture.place.height);
    const double pixelsPerTwip = static_cast<double>(dotsPerInch) / page::twipsPerInch;
    const QImage& image =
        parts.pictures.of(picture.path, (place * pixelsPerTwip).expandedTo(QSize(1, 1)));
    if (!image.isNull()) painter.drawImage(rectOf(picture.place), image);
  }
  void operator()(const page::Line& line) const {
    painter.setPen(QPen(QColor::fromRgb(ink), penWidth));
    painter.drawLine(line.x1, line.y1, line.x2, line.y2);
  }
  void operator()(const page::Box& box) const {
    painter.setPen(QPen(QColor::fromRgb(ink), penWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rectOf(box.place));
  }
};

}  // namespace

void paintPage(QPainter& painter, const page::Page& page, PageParts& parts, int dotsPerInch) {
  for (const page::Operation& operation : page.operations)
    std::visit(Painting{painter, parts, dotsPerInch}, operation);
}

}  // namespace desktop
