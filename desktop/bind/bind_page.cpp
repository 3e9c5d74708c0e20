#include "desktop/bind/bind_page.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace desktop {

namespace {

constexpr int wheelStep = 2;  // of the eighths of a degree that a wheel reports, per pixel

}  // namespace

PageWidget::PageWidget(QWidget* parent) : QWidget(parent) {
  setMinimumSize(240, 240);
}

void PageWidget::setPage(const page::Page* page, const page::Size& sheet) {
  page_ = page;
  parts_.pictures.clear();
  sheet_ = sheet;
  update();
}

void PageWidget::setFrame(const QRect& frame) {
  frame_ = frame;
  update();
}

void PageWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Mid));
  if (page_ == nullptr || frame_.isEmpty()) return;
  // Paper is white, whatever the windows look like.
  painter.fillRect(frame_, Qt::white);
  painter.setClipRect(frame_);
  painter.translate(frame_.topLeft());
  const double scale = static_cast<double>(frame_.width()) / sheet_.width;
  painter.scale(scale, scale);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  paintPage(painter, *page_, parts_, qRound(scale * devicePixelRatioF() * page::twipsPerInch));
}

void PageWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  emit resized(size());
}

void PageWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit clicked(event->position().toPoint());
}

void PageWidget::wheelEvent(QWheelEvent* event) {
  emit wheelTurned(-event->angleDelta().y() / wheelStep);
}

void bind(PageWidget& widget, documents::PageView& control) {
  using forms::Aspect;
  Binding& binding = attach(widget, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Image) widget.setPage(control.page(), control.sheet());
    if (aspect != Aspect::Range) return;
    const documents::PageView::Frame& frame = control.frame();
    widget.setFrame({frame.left, frame.top, frame.width, frame.height});
  });
  QObject::connect(&widget, &PageWidget::clicked, &binding, [&](const QPoint& point) {
    control.Click({point.x(), point.y()});
  });
  QObject::connect(&widget, &PageWidget::resized, &binding,
                   [&](const QSize& size) { control.Resize(size.width(), size.height()); });
  QObject::connect(&widget, &PageWidget::wheelTurned, &binding, [&](int up) { control.Wheel(up); });
}

}  // namespace desktop
