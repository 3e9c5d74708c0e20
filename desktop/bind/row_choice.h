// What the user does with the rows of a view.
#pragma once

#include <QAbstractItemView>
#include <QPersistentModelIndex>
#include <functional>

namespace desktop {

// Keeps every button of the mouse but the left one from a view: on its way to a menu of its own the
// toolkit would choose the row below.
void takeLeftButtonOnly(QAbstractItemView& view, QObject& lifetime);
// An index on which an arrow key, Space or Enter acts although the view only framed it when it got
// the focus; invalid when the user has chosen a place already.
[[nodiscard]] QModelIndex framedOnly(const QAbstractItemView& view);

// Tells a list with one chosen row what happens to its rows. A row is pressed by the left button or
// the space bar, also when it is the chosen one; it is marked by the arrow keys and by typing; it
// is opened by a double click, or pressed and opened by Enter. The toolkit moves its current row at
// the press of a button, before that row is selected, and at the arrival of the focus: neither is a
// choice. What the button of the mouse does counts when it comes up, so that a question may follow.
class RowChoice : public QObject {
  Q_OBJECT
 public:
  struct Deeds {
    std::function<int()> chosen;  // the row that the control has, -1 when none
    std::function<void(int row)> press;
    std::function<void(int row)> mark;
    std::function<void()> open;
    std::function<bool()> opens;  // whether anybody waits for it; else Enter is the window's
  };
  // Needs the view's model; lives as long as the parent.
  RowChoice(QAbstractItemView& view, Deeds deeds, QObject* parent);

  // Marks the row that the control has.
  void show();
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool onViewport(QEvent& event);
  void released(const QPoint& at);
  bool keyPressed(int key);
  bool enterPressed();
  void press(int row);
  void markedByKey(const QModelIndex& current);

  QAbstractItemView& view_;
  // A view that is being destroyed has events to the last, and no viewport to be asked for.
  const QObject* const viewport_ = view_.viewport();
  Deeds deeds_;
  QPersistentModelIndex pressed_;
  bool held_ = false;     // the left button is down
  bool showing_ = false;  // what the control has already
};

}  // namespace desktop
