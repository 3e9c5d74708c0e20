// A page on the screen.
#pragma once

#include <QWidget>

#include "desktop/bind/binding.h"
#include "desktop/print/page_painter.h"
#include "documents/page_view.h"

namespace desktop {

// The sheet on its desk.
class PageWidget : public QWidget {
  Q_OBJECT
 public:
  explicit PageWidget(QWidget* parent);

  // The page belongs to the caller; null is an empty desk.
  void setPage(const page::Page* page, const page::Size& sheet);
  void setFrame(const QRect& frame);

 signals:
  void clicked(const QPoint& point);
  void resized(const QSize& size);
  void wheelTurned(int up);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  const page::Page* page_ = nullptr;
  page::Size sheet_;
  QRect frame_;
  PageParts parts_;
};

void bind(PageWidget& widget, documents::PageView& control);

}  // namespace desktop
