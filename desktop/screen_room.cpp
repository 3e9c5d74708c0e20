#include "desktop/screen_room.h"

#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QVBoxLayout>

namespace desktop {

namespace {

constexpr int usualBorder = 4;

QSize& pretendedRoom() {
  static QSize size;
  return size;
}

QMargins frameOf(const QWidget& window) {
  const QRect inner = window.geometry();
  const QRect outer = window.frameGeometry();
  if (window.isVisible() && outer != inner)
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
  const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  return {usualBorder, title, usualBorder, usualBorder};
}

QSize without(const QMargins& frame, QSize size) {
  return size - QSize(frame.left() + frame.right(), frame.top() + frame.bottom());
}

bool isBar(const QWidget& widget) {
  return qobject_cast<const QMenuBar*>(&widget) != nullptr ||
         qobject_cast<const QToolBar*>(&widget) != nullptr ||
         qobject_cast<const QStatusBar*>(&widget) != nullptr;
}

// What a window's own bars take above and below its content.
int heightOfBars(const QWidget& window) {
  int height = 0;
  for (const QWidget* child : window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (isBar(*child) && !child->isHidden()) height += child->sizeHint().height();
  }
  return height;
}

// Its own ground: the window shows through.
FittingArea* around(QWidget* content, QWidget& parent) {
  auto* const area = new FittingArea(&parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(content);
  area->viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
  return area;
}

void wrapCentralWidget(QMainWindow& window) {
  QWidget* const central = window.centralWidget();
  if (central == nullptr || qobject_cast<QScrollArea*>(central) != nullptr) return;
  window.setCentralWidget(around(window.takeCentralWidget(), window));
}

void wrapLayout(QWidget& window) {
  if (window.layout() == nullptr) return;
  auto* const content = new QWidget(&window);
  content->setLayout(window.layout());
  auto* const whole = new QVBoxLayout(&window);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(around(content, window));
}

bool fits(QSize size, QSize room) {
  return size.width() <= room.width() && size.height() <= room.height();
}

}  // namespace

void setScreenRoom(QSize size) {
  pretendedRoom() = size;
}

QRect screenRoom(const QWidget& window) {
  const QRect room = window.screen()->availableGeometry();
  return pretendedRoom().isEmpty() ? room : QRect(room.topLeft(), pretendedRoom());
}

QSize contentRoom(const QWidget& window) {
  return without(frameOf(window), screenRoom(window).size());
}

void fitToScreen(QWidget& window) {
  const QSize room = contentRoom(window);
  if (auto* const main = qobject_cast<QMainWindow*>(&window)) {
    wrapCentralWidget(*main);
  } else if (!fits(window.minimumSizeHint(), room)) {
    wrapLayout(window);
  }
  window.setMinimumSize(window.minimumSize().boundedTo(room));
}

void keepOnScreen(QWidget& window) {
  if (window.isMaximized() || window.isMinimized() || window.isFullScreen()) return;
  const QRect room = screenRoom(window);
  if (!fits(window.frameGeometry().size(), room.size()))
    window.resize(window.size().boundedTo(contentRoom(window)));
  QRect frame = window.frameGeometry();
  frame.moveRight(std::min(frame.right(), room.right()));
  frame.moveBottom(std::min(frame.bottom(), room.bottom()));
  frame.moveLeft(std::max(frame.left(), room.left()));
  frame.moveTop(std::max(frame.top(), room.top()));
  if (frame.topLeft() != window.frameGeometry().topLeft()) window.move(frame.topLeft());
}

void bringIntoView(QWidget& widget) {
  for (QWidget* around = widget.parentWidget(); around != nullptr;
       around = around->parentWidget()) {
    auto* const area = qobject_cast<QScrollArea*>(around);
    if (area != nullptr) area->ensureWidgetVisible(&widget);
    if (around->isWindow()) break;
  }
}

FittingArea::FittingArea(QWidget* parent) : QScrollArea(parent) {}

QSize FittingArea::sizeHint() const {
  return widget() == nullptr ? QScrollArea::sizeHint() : widget()->sizeHint();
}

QSize FittingArea::minimumSizeHint() const {
  if (widget() == nullptr) return QScrollArea::minimumSizeHint();
  const QSize room = contentRoom(*window()) - QSize(0, heightOfBars(*window()));
  return widget()->minimumSizeHint().expandedTo(widget()->minimumSize()).boundedTo(room);
}

// Content that needs more room than before asks the window for it.
bool FittingArea::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace desktop
