#include "desktop/bind/bind_list.h"

#include <QStyledItemDelegate>

#include "desktop/bind/list_models.h"
#include "desktop/bind/row_choice.h"

namespace desktop {

namespace {

using forms::Aspect;

void toggle(forms::ListBox& list, int row) {
  const auto at = static_cast<std::size_t>(row);
  list.setSelected(at, !list.items()[at].selected);
}

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
  auto* const choice = new RowChoice(view,
                                     {.chosen = [&list] { return list.selectedRow(); },
                                      .press = [&list](int row) { list.press(row); },
                                      .mark = [&list](int row) { list.setSelectedRow(row); },
                                      .open = [&list] { list.DblClick(); },
                                      .opens = [&list] { return list.DblClick.heard(); }},
                                     model);
  Binding& binding = attach(view, list, Follow::All, [model, choice](Aspect aspect) {
    if (aspect == Aspect::Items) model->refresh();
    if (aspect == Aspect::Items || aspect == Aspect::Selection) choice->show();
  });
  model->setParent(&binding);
}

// Of the rows of the view, which may stand in another order than those of the list.
RowChoice::Deeds deedsOf(forms::ListBox& list, const ListBoxModel& model) {
  return {.chosen = [&] { return model.mapped(list.listIndex()); },
          .press = [&](int row) { list.press(model.mapped(row)); },
          .mark = [&](int row) { list.setListIndex(model.mapped(row)); },
          .open = [&] { list.DblClick(); },
          .opens = [&] { return list.DblClick.heard(); }};
}

// A check mark shows more than a colour, and a hundred thousand rows are as quick as ten.
RowChoice::Deeds deedsOfChecked(forms::ListBox& list, const ListBoxModel& model) {
  RowChoice::Deeds deeds = deedsOf(list, model);
  deeds.press = [&](int row) {
    list.setListIndex(model.mapped(row));
    toggle(list, model.mapped(row));
  };
  deeds.opens = [] { return false; };
  return deeds;
}

}  // namespace

void bind(QListView& view, forms::ListBox& list, RowOrder order) {
  ListBoxModel* const model = giveModel(view, list, order);
  const bool checked = list.choice() == forms::ListChoice::Several;
  if (checked) view.setItemDelegate(new BoxedRows(&view));
  auto* const choice =
      new RowChoice(view, checked ? deedsOfChecked(list, *model) : deedsOf(list, *model), model);
  Binding& binding = attach(view, list, Follow::All, [&view, &list, model, choice](Aspect aspect) {
    if (aspect == Aspect::Items) model->refresh();
    if (aspect == Aspect::Range && list.topRow() >= 0)
      view.scrollTo(model->index(model->mapped(list.topRow()), 0),
                    QAbstractItemView::PositionAtTop);
    if (aspect != Aspect::Items && aspect != Aspect::Selection) return;
    choice->show();
    view.viewport()->update();
  });
  model->setParent(&binding);  // gone with it: the list may be gone before the view
}

void bindTaken(QListView& view, forms::ListBox& list) {
  ListBoxModel* const model = giveModel(view, list, RowOrder::AsListed);
  RowChoice::Deeds deeds = deedsOf(list, *model);
  deeds.mark = [](int) {};
  deeds.open = [] {};
  deeds.opens = [] { return true; };
  new RowChoice(view, std::move(deeds), model);
  Binding& binding = attach(view, list, Follow::All, [&view, model](Aspect aspect) {
    if (aspect == Aspect::Items) model->refresh();
    if (aspect == Aspect::Items) view.viewport()->update();
  });
  model->setParent(&binding);
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
