// The hands of a test: a mouse and a keyboard that reach a window as the desk's own do, through the
// window and not through the widget.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>

namespace support {

// Everything that was posted has happened, and what that posted.
inline void settle() {
  for (int pass = 0; pass < 5; ++pass) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }
}

inline void showActive(QWidget& window) {
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

enum class Clicks { Single, Double };

// A button of the mouse over a place of the widget, which has to be in sight there.
inline void click(QWidget& widget, QPoint at, Clicks clicks = Clicks::Single,
                  Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers held = {}) {
  settle();
  QWidget& window = *widget.window();
  const QPoint place = widget.mapTo(&window, at);
  const QWidget* const hit = window.childAt(place);
  ASSERT_TRUE(&window == &widget || hit == &widget || widget.isAncestorOf(hit))
      << widget.objectName().toStdString() << " is out of the mouse's reach";
  QWindow* const native = window.windowHandle();
  clicks == Clicks::Single ? QTest::mouseClick(native, button, held, place)
                           : QTest::mouseDClick(native, button, held, place);
  settle();
}
inline void click(QWidget& widget, Clicks clicks = Clicks::Single,
                  Qt::MouseButton button = Qt::LeftButton) {
  click(widget, widget.rect().center(), clicks, button);
}

struct RowClick {
  int column = 0;
  Clicks clicks = Clicks::Single;
  Qt::MouseButton button = Qt::LeftButton;
  Qt::KeyboardModifiers held = {};
};
inline QPoint rowCentre(QAbstractItemView& view, int row, int column = 0) {
  const QModelIndex cell = view.model()->index(row, column);
  EXPECT_TRUE(cell.isValid()) << "no row " << row;
  view.scrollTo(cell);
  return (view.visualRect(cell) & view.viewport()->rect()).center();
}
inline void clickRow(QAbstractItemView& view, int row, RowClick how = {}) {
  settle();
  click(*view.viewport(), rowCentre(view, row, how.column), how.clicks, how.button, how.held);
}
// Into the room that no row takes.
inline void clickBelowRows(QAbstractItemView& view) {
  click(*view.viewport(), view.viewport()->rect().bottomLeft() + QPoint(3, -3));
}
// With the left button held down from one place to the other.
inline void drag(QWidget& widget, QPoint from, QPoint to) {
  settle();
  QWidget& window = *widget.window();
  QWindow* const native = window.windowHandle();
  const auto place = [&](QPoint at) { return widget.mapTo(&window, at); };
  QTest::mousePress(native, Qt::LeftButton, {}, place(from));
  QTest::mouseMove(native, place((from + to) / 2));
  QTest::mouseMove(native, place(to));
  QTest::mouseRelease(native, Qt::LeftButton, {}, place(to));
  settle();
}
inline void clickTab(QTabBar& bar, int tab) {
  click(bar, bar.tabRect(tab).center());
}
// Opens the list of the box and clicks its row.
inline void chooseRow(QComboBox& combo, int row) {
  // For that long a list that has just opened takes a release for that of the opening press.
  const int interval = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(1);
  click(combo, QPoint(combo.width() - 6, combo.height() / 2));
  QTest::qWait(2);
  QApplication::setDoubleClickInterval(interval);
  ASSERT_TRUE(combo.view()->isVisible());
  clickRow(*combo.view(), row);
}

// A key where the focus is; with `text`, one that QTest does not know.
inline void press(int key, Qt::KeyboardModifiers held = {}, const QString& text = {}) {
  QWindow* window = QGuiApplication::focusWindow();
  // A desk without a screen forgets the window under a list or menu that has closed.
  if (window == nullptr && QApplication::activeWindow() != nullptr)
    window = QApplication::activeWindow()->windowHandle();
  ASSERT_NE(window, nullptr);
  if (text.isEmpty()) {
    QTest::keyClick(window, static_cast<Qt::Key>(key), held);
  } else {
    QTest::sendKeyEvent(QTest::Click, window, static_cast<Qt::Key>(key), text, held);
  }
  settle();
}

// Does the work as soon as something is there that holds up whoever opens it, such as a dialog.
inline void once(std::function<bool()> there, std::function<void()> work) {
  auto* const clock = new QTimer(qApp);
  QObject::connect(clock, &QTimer::timeout, clock,
                   [clock, there = std::move(there), work = std::move(work)] {
                     if (!there()) return;
                     clock->stop();
                     clock->deleteLater();
                     work();
                   });
  clock->start(0);
}
inline void oncePopped(std::function<void()> work) {
  once([] { return QApplication::activePopupWidget() != nullptr; }, std::move(work));
}

// Types a text as a keyboard does; QTest knows Latin letters only.
inline void type(QWidget& widget, const QString& text) {
  for (const QChar letter : text) {
    const int key = letter.toUpper().unicode();
    for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(kind, key, Qt::NoModifier, QString(letter));
      QCoreApplication::sendEvent(&widget, &event);
    }
  }
}

}  // namespace support
