#include "desktop/bind/row_choice.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QScopedValueRollback>

namespace desktop {

namespace {

bool isButtonEvent(const QEvent& event) {
  return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonRelease ||
         event.type() == QEvent::MouseButtonDblClick;
}

class LeftButtonOnly : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject*, QEvent* event) override {
    return isButtonEvent(*event) &&
           static_cast<QMouseEvent*>(event)->button() != Qt::MouseButton::LeftButton;
  }
};

}  // namespace

void takeLeftButtonOnly(QAbstractItemView& view, QObject& lifetime) {
  view.viewport()->installEventFilter(new LeftButtonOnly(&lifetime));
}

QModelIndex framedOnly(const QAbstractItemView& view) {
  return view.selectionModel()->hasSelection() ? QModelIndex() : view.currentIndex();
}

RowChoice::RowChoice(QAbstractItemView& view, Deeds deeds, QObject* parent)
    : QObject(parent), view_(view), deeds_(std::move(deeds)) {
  view.installEventFilter(this);
  view.viewport()->installEventFilter(this);
  takeLeftButtonOnly(view, *this);
  connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &RowChoice::markedByKey);
  // Whatever takes the mark away, a click beside the rows or one with Ctrl, the control keeps its
  // row.
  connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    if (!showing_ && !view_.selectionModel()->hasSelection()) show();
  });
  connect(&view, &QAbstractItemView::clicked, this,
          [this](const QModelIndex& index) { press(index.row()); });
  connect(&view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
    if (deeds_.chosen() == index.row()) deeds_.open();
  });
}

void RowChoice::show() {
  const int row = deeds_.chosen();
  QItemSelectionModel& marks = *view_.selectionModel();
  const QModelIndex current = view_.currentIndex();
  if (row >= 0 && current.row() == row && marks.isSelected(current)) return;
  const QScopedValueRollback quiet(showing_, true);
  if (row < 0) return marks.clear();
  const QModelIndex index = view_.model()->index(row, 0);
  view_.setCurrentIndex(index);
  view_.scrollTo(index);
}

bool RowChoice::eventFilter(QObject* watched, QEvent* event) {
  if (watched == viewport_) return onViewport(*event);
  if (event->type() != QEvent::KeyPress) return false;
  return keyPressed(static_cast<QKeyEvent*>(event)->key());
}

bool RowChoice::onViewport(QEvent& event) {
  if (!isButtonEvent(event)) return false;
  const QPoint at = static_cast<QMouseEvent&>(event).position().toPoint();
  held_ = event.type() != QEvent::MouseButtonRelease;
  if (!held_) {
    released(at);
  } else {
    pressed_ = view_.indexAt(at);
  }
  return false;
}

// A click on one row is told by the toolkit. A button that came up elsewhere leaves the row that it
// drew the mark to.
void RowChoice::released(const QPoint& at) {
  const QModelIndex current = view_.currentIndex();
  if (pressed_ != view_.indexAt(at) && view_.selectionModel()->isSelected(current))
    press(current.row());
}

void RowChoice::press(int row) {
  const QPointer alive(this);
  deeds_.press(row);
  if (alive != nullptr) show();
}

void RowChoice::markedByKey(const QModelIndex& current) {
  if (showing_ || held_ || !view_.selectionModel()->isSelected(current)) return;
  deeds_.mark(current.row());
}

bool RowChoice::keyPressed(int key) {
  held_ = false;
  const QModelIndex current = view_.currentIndex();
  const bool arrow = key == Qt::Key_Down || key == Qt::Key_Up;
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return enterPressed();
  if (!current.isValid() || (key != Qt::Key_Space && !(arrow && framedOnly(view_).isValid())))
    return false;
  {
    const QScopedValueRollback quiet(showing_, true);
    view_.setCurrentIndex(current);
  }
  arrow ? deeds_.mark(current.row()) : press(current.row());
  return true;
}

bool RowChoice::enterPressed() {
  const QModelIndex current = view_.currentIndex();
  if (!current.isValid() || !deeds_.opens()) return false;
  const QPointer alive(this);
  const int row = current.row();
  press(row);
  if (alive != nullptr && deeds_.chosen() == row) deeds_.open();
  return true;
}

}  // namespace desktop
