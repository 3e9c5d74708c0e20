#include "desktop/bind/bind_list.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "desktop/bind/list_models.h"

namespace desktop {

namespace {

using forms::Aspect;

// Selects the row without telling the control, which knows it already.
void showCurrent(QAbstractItemView& view, int row) {
  const QModelIndex index = row < 0 ? QModelIndex() : view.model()->index(row, 0);
  if (view.currentIndex().row() == index.row() && index.isValid()) return;
  const QSignalBlocker quiet(view.selectionModel());
  if (index.isValid()) {
    view.setCurrentIndex(index);
    view.scrollTo(index);
  } else {
    view.selectionModel()->clear();
  }
  view.viewport()->update();
}

void refreshList(QListView& view, ListBoxModel& model, const forms::ListBox& list, Aspect aspect) {
  if (aspect == Aspect::Items) model.refresh();
  if (aspect == Aspect::Range && list.topRow() >= 0)
    view.scrollTo(model.index(model.mapped(list.topRow()), 0), QAbstractItemView::PositionAtTop);
  if (aspect != Aspect::Items && aspect != Aspect::Selection) return;
  showCurrent(view, model.mapped(list.listIndex()));
  view.viewport()->update();
}

void toggle(const QModelIndex& index, forms::ListBox& list) {
  if (!index.isValid()) return;
  const auto row = static_cast<std::size_t>(index.row());
  list.setSelected(row, !list.items()[row].selected);
}

// The space bar on the marked row.
class SpaceBar : public QObject {
 public:
  SpaceBar(QListView& view, forms::ListBox& list, QObject* parent)
      : QObject(parent), view_(view), list_(list) {
    view.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space) return false;
    toggle(view_.currentIndex(), list_);
    return true;
  }

 private:
  QListView& view_;
  forms::ListBox& list_;
};

// The frame of an empty box has to be seen on a dark ground too.
class BoxedRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->palette.setColor(QPalette::Window, option->palette.color(QPalette::PlaceholderText));
  }
};

// A check mark shows more than a colour, and a hundred thousand rows are as quick as ten.
void checkRows(Binding& binding, QListView& view, forms::ListBox& list) {
  QObject::connect(&view, &QListView::clicked, &binding,
                   [&list](const QModelIndex& index) { toggle(index, list); });
  new SpaceBar(view, list, &binding);
  view.setItemDelegate(new BoxedRows(&view));
}

ListBoxModel* giveModel(QListView& view, const forms::ListBox& list, RowOrder order) {
  auto* const model = new ListBoxModel(list, order, &view);
  view.setUniformItemSizes(true);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setModel(model);
  return model;
}

void bindRows(QAbstractItemView& view, forms::ListView& list) {
  auto* const model = new ListViewModel(list, &view);
  view.setModel(model);
  Binding& binding = attach(view, list, Follow::All, [&view, &list, model](Aspect aspect) {
    if (aspect == Aspect::Items) model->refresh();
    if (aspect == Aspect::Items || aspect == Aspect::Selection)
      showCurrent(view, list.selectedRow());
  });
  model->setParent(&binding);
  QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, &binding,
                   [&](const QModelIndex& current) { list.setSelectedRow(current.row()); });
  QObject::connect(&view, &QAbstractItemView::doubleClicked, &binding, [&] { list.DblClick(); });
}

}  // namespace

void bind(QListView& view, forms::ListBox& list, RowOrder order) {
  ListBoxModel* const model = giveModel(view, list, order);
  Binding& binding = attach(view, list, Follow::All,
                            [&, model](Aspect aspect) { refreshList(view, *model, list, aspect); });
  model->setParent(&binding);  // gone with it: the list may be gone before the view
  if (list.choice() == forms::ListChoice::Several) checkRows(binding, view, list);
  QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, &binding,
                   [&view, &list, model](const QModelIndex& current) {
                     // A view that gets the focus marks its first row: nobody has chosen it.
                     const bool chosen = view.selectionModel()->isSelected(current);
                     if (chosen || !current.isValid())
                       list.setListIndex(model->mapped(current.row()));
                   });
  QObject::connect(&view, &QListView::doubleClicked, &binding, [&] { list.DblClick(); });
}

void bindTaken(QListView& view, forms::ListBox& list) {
  ListBoxModel* const model = giveModel(view, list, RowOrder::AsListed);
  Binding& binding = attach(view, list, Follow::All, [&view, model](Aspect aspect) {
    if (aspect == Aspect::Items) model->refresh();
    if (aspect == Aspect::Items) view.viewport()->update();
  });
  model->setParent(&binding);
  const auto take = [&list](const QModelIndex& index) {
    list.setListIndex(-1);
    list.setListIndex(index.row());
  };
  QObject::connect(&view, &QListView::clicked, &binding, take);
  auto* const enter = new QAction(&view);
  enter->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
  enter->setShortcutContext(Qt::WidgetShortcut);
  QObject::connect(enter, &QAction::triggered, &binding, [&view, take] {
    if (view.currentIndex().isValid()) take(view.currentIndex());
  });
  view.addAction(enter);
}

void bind(QTreeView& view, forms::ListView& list) {
  view.setUniformRowHeights(true);
  view.setRootIsDecorated(false);
  view.setAlternatingRowColors(true);
  bindRows(view, list);
}

void bind(QTableView& view, forms::ListView& list) {
  bindRows(view, list);
}

}  // namespace desktop
