// How much of the screen a window may take, and how its content keeps to that.
#pragma once

#include <QRect>
#include <QScrollArea>

namespace desktop {

// What a window's screen leaves to windows: all of it but the bars of the desk.
[[nodiscard]] QRect screenRoom(const QWidget& window);
// From now on every screen counts as one of that size, so that pictures show windows as they open
// on another one. An empty size ends it.
void setScreenRoom(QSize size);

// The same without the frame around the window, which is guessed before the window is shown.
[[nodiscard]] QSize contentRoom(const QWidget& window);

// Before it is shown: its content scrolls where the screen is smaller than what it needs at least,
// and nothing keeps the window larger than the screen.
void fitToScreen(QWidget& window);
// Once it is shown: it lies on the screen with its frame.
void keepOnScreen(QWidget& window);

// Scrolls whatever lies around the widget until it is seen.
void bringIntoView(QWidget& widget);

// Content that is as large as it likes on a screen that has the room, and scrolls on one that has
// not.
class FittingArea : public QScrollArea {
  Q_OBJECT
 public:
  explicit FittingArea(QWidget* parent);
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace desktop
