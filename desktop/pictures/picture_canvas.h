// The large picture: pulled about with the mouse, the wheel and the arrow keys.
#pragma once

#include <QScrollBar>

#include "desktop/pictures/archive_frame.h"

namespace desktop {

class PictureCanvas : public ArchiveFrame {
  Q_OBJECT
 public:
  // Moves the two bars; the bars belong to the window.
  PictureCanvas(QScrollBar& sideways, QScrollBar& upDown, QWidget* parent);

 signals:
  // The wheel with Ctrl: +1 larger, -1 smaller.
  void zoomed(int step);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QScrollBar& sideways_;
  QScrollBar& upDown_;
  QPoint held_;
};

}  // namespace desktop
