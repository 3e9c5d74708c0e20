// A miniature sheet of paper on its desk, with rulers, and items on it that are dragged.
#pragma once

#include <QPixmap>
#include <QWidget>

#include "desktop/bind/binding.h"
#include "desktop/print/page_painter.h"
#include "documents/sheet_item.h"

namespace desktop {

// As large as its room allows.
class SheetView : public QWidget {
  Q_OBJECT
 public:
  // The sheet in twips.
  SheetView(page::Size sheet, QWidget* parent);

  // Where the paper lies in the widget, and how many pixels a twip is on it.
  [[nodiscard]] QRect paper() const { return paper_; }
  [[nodiscard]] double scale() const;

 signals:
  void scaled();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void fitPaper();
  void paintRulers(QPainter& painter) const;
  [[nodiscard]] int rulerWidth() const;

  page::Size sheet_;
  QRect paper_;
};

// An item of the sheet: dragged with the mouse, moved by the arrow keys a millimetre a step, with
// Shift ten. One with nothing to draw shows its name in its frame.
class ItemHandle : public QWidget {
  Q_OBJECT
 public:
  ItemHandle(SheetView& sheet, documents::SheetItem& item);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void place();
  void redraw();
  void paintFrame(QPainter& painter) const;

  SheetView& sheet_;
  documents::SheetItem& item_;
  QPixmap picture_;  // what stands in the frame; null until it is painted
  PageParts parts_;
  QPoint grip_;  // where it was taken, from its corner
};

}  // namespace desktop
