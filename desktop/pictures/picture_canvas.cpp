#include "desktop/pictures/picture_canvas.h"

#include <QMouseEvent>
#include <QWheelEvent>

namespace desktop {

PictureCanvas::PictureCanvas(QScrollBar& sideways, QScrollBar& upDown, QWidget* parent)
    : ArchiveFrame(parent), sideways_(sideways), upDown_(upDown) {
  setFocusPolicy(Qt::StrongFocus);
  // Hides the words that stand behind it while no picture is chosen.
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
}

void PictureCanvas::mousePressEvent(QMouseEvent* event) {
  held_ = event->position().toPoint();
  if (event->button() == Qt::LeftButton) setCursor(Qt::ClosedHandCursor);
}

void PictureCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const QPoint moved =
      event->position().toPoint() - std::exchange(held_, event->position().toPoint());
  sideways_.setValue(sideways_.value() - moved.x());
  upDown_.setValue(upDown_.value() - moved.y());
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent* event) {
  unsetCursor();
  ArchiveFrame::mouseReleaseEvent(event);
}

void PictureCanvas::wheelEvent(QWheelEvent* event) {
  const int turned = event->angleDelta().y();
  if (event->modifiers().testFlag(Qt::ControlModifier)) {
    if (turned != 0) emit zoomed(turned > 0 ? 1 : -1);
    return;
  }
  sideways_.setValue(sideways_.value() - event->angleDelta().x());
  upDown_.setValue(upDown_.value() - turned);
}

void PictureCanvas::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Left:
      return sideways_.triggerAction(QScrollBar::SliderSingleStepSub);
    case Qt::Key_Right:
      return sideways_.triggerAction(QScrollBar::SliderSingleStepAdd);
    case Qt::Key_Up:
      return upDown_.triggerAction(QScrollBar::SliderSingleStepSub);
    case Qt::Key_Down:
      return upDown_.triggerAction(QScrollBar::SliderSingleStepAdd);
    default:
      ArchiveFrame::keyPressEvent(event);
  }
}

}  // namespace desktop
