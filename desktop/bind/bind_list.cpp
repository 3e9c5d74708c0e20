#include "desktop/bind/bind_list.h"

#include <QHeaderView>
#include <QSignalBlocker>

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
  } else {
    view.selectionModel()->clear();
  }
  view.viewport()->update();
}

void showSelected(QAbstractItemView& view, const forms::ListBox& list) {
  QItemSelection selection;
  for (int row = 0; row < view.model()->rowCount(); ++row) {
    const QModelIndex index = view.model()->index(row, 0);
    if (list.items()[static_cast<std::size_t>(row)].selected) selection.select(index, index);
  }
  const QSignalBlocker quiet(view.selectionModel());
  view.selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  view.viewport()->update();
}

void takeSelected(const QItemSelection& changed, bool selected, forms::ListBox& list) {
  for (const QModelIndex& index : changed.indexes())
    list.setSelected(static_cast<std::size_t>(index.row()), selected);
}

void refreshList(QListView& view, ListBoxModel& model, const forms::ListBox& list, Aspect aspect) {
  if (aspect == Aspect::Items) model.refresh();
  if (aspect != Aspect::Items && aspect != Aspect::Selection) return;
  if (list.choice() == forms::ListChoice::Several) {
    showSelected(view, list);
  } else {
    showCurrent(view, model.mapped(list.listIndex()));
  }
}

void listenToSeveral(Binding& binding, QListView& view, forms::ListBox& list) {
  view.setSelectionMode(QAbstractItemView::MultiSelection);
  QObject::connect(view.selectionModel(), &QItemSelectionModel::selectionChanged, &binding,
                   [&](const QItemSelection& on, const QItemSelection& off) {
                     takeSelected(off, false, list);
                     takeSelected(on, true, list);
                   });
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
  auto* const model = new ListBoxModel(list, order, &view);
  view.setUniformItemSizes(true);
  view.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view.setModel(model);
  Binding& binding = attach(view, list, Follow::All,
                            [&, model](Aspect aspect) { refreshList(view, *model, list, aspect); });
  model->setParent(&binding);  // gone with it: the list may be gone before the view
  if (list.choice() == forms::ListChoice::Several) listenToSeveral(binding, view, list);
  QObject::connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, &binding,
                   [&list, model](const QModelIndex& current) {
                     list.setListIndex(model->mapped(current.row()));
                   });
  QObject::connect(&view, &QListView::doubleClicked, &binding, [&] { list.DblClick(); });
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
