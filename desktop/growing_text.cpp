#include "desktop/growing_text.h"

#include <QMimeData>
#include <algorithm>
#include <cmath>

#include "desktop/bind/paste.h"

namespace desktop {

namespace {

constexpr int fewestLines = 2;
constexpr int mostLines = 12;

}  // namespace

GrowingText::GrowingText(QWidget* parent) : QPlainTextEdit(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  // The height of a plain document is told in lines.
  connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
          [this](const QSizeF& size) {
            const int lines =
                std::clamp(static_cast<int>(std::lround(size.height())), fewestLines, mostLines);
            if (lines == lines_) return;
            lines_ = lines;
            updateGeometry();
          });
}

void GrowingText::insertFromMimeData(const QMimeData* source) {
  if (!tooLongToPaste(*this, static_cast<std::size_t>(source->text().size())))
    QPlainTextEdit::insertFromMimeData(source);
}

int GrowingText::wantedHeight() const {
  const int lines = std::max(lines_, fewestLines);
  const int frame = 2 * frameWidth() + static_cast<int>(2 * document()->documentMargin());
  return lines * fontMetrics().lineSpacing() + frame;
}

QSize GrowingText::sizeHint() const {
  return {QPlainTextEdit::sizeHint().width(), wantedHeight()};
}

QSize GrowingText::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * 24, wantedHeight()};
}

}  // namespace desktop
