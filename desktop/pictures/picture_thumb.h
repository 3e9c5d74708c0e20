// One of the six places of the archive.
#pragma once

#include "desktop/pictures/archive_frame.h"

namespace desktop {

// The arrow keys go from place to place; Enter and the space bar show the picture, or fill a free
// place.
class PictureThumb : public ArchiveFrame {
  Q_OBJECT
 public:
  explicit PictureThumb(QWidget* parent);
  void setChosen(bool chosen);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool chosen_ = false;
};

}  // namespace desktop
