#include "desktop/pictures/picture_thumb.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/layout.h"

namespace desktop {

namespace {

constexpr int usualCharacters = 24;
constexpr int usualLines = 5;
constexpr int smallestLines = 3;
constexpr int edge = 4;
constexpr double chosenLine = 3.0;
constexpr double plainLine = 1.0;

}  // namespace

PictureThumb::PictureThumb(QWidget* parent) : ArchiveFrame(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setContentsMargins(edge, edge, edge, edge);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
}

void PictureThumb::setChosen(bool chosen) {
  chosen_ = chosen;
  update();
}

QSize PictureThumb::sizeHint() const {
  return {characters(*this, usualCharacters), fontMetrics().lineSpacing() * usualLines};
}

QSize PictureThumb::minimumSizeHint() const {
  return {characters(*this, usualCharacters), fontMetrics().lineSpacing() * smallestLines};
}

// The chosen one has a thick line, a free place a broken one, and the focus a dotted one inside.
void PictureThumb::paintEvent(QPaintEvent* event) {
  ArchiveFrame::paintEvent(event);
  QPainter painter(this);
  QPen pen(palette().color(chosen_ ? QPalette::Highlight : QPalette::PlaceholderText),
           chosen_ ? chosenLine : plainLine, path().isEmpty() ? Qt::DashLine : Qt::SolidLine);
  painter.setPen(pen);
  painter.drawRect(rect().adjusted(1, 1, -2, -2));
  if (!hasFocus()) return;
  pen.setStyle(Qt::DotLine);
  pen.setColor(palette().color(QPalette::Highlight));
  pen.setWidthF(plainLine * 2);
  painter.setPen(pen);
  painter.drawRect(rect().adjusted(edge, edge, -edge - 1, -edge - 1));
}

void PictureThumb::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Left:
      focusPreviousChild();
      return;
    case Qt::Key_Down:
    case Qt::Key_Right:
      focusNextChild();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      path().isEmpty() ? emit doubleClicked() : emit clicked();
      return;
    default:
      ArchiveFrame::keyPressEvent(event);
  }
}

void PictureThumb::focusInEvent(QFocusEvent* event) {
  ArchiveFrame::focusInEvent(event);
  update();
}

void PictureThumb::focusOutEvent(QFocusEvent* event) {
  ArchiveFrame::focusOutEvent(event);
  update();
}

}  // namespace desktop
