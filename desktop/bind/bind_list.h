// List boxes and list views, over models that hold no rows of their own.
#pragma once

#include <QListView>
#include <QTableView>
#include <QTreeView>

#include "desktop/bind/binding.h"
#include "desktop/bind/list_models.h"
#include "platform/forms/list_control.h"

namespace desktop {

void bind(QListView& view, forms::ListBox& list, RowOrder order = RowOrder::AsListed);
// For a list whose rows open something: a click or Enter takes the row, also the same one again;
// moving the mark takes nothing.
void bindTaken(QListView& view, forms::ListBox& list);
void bind(QTreeView& view, forms::ListView& list);
// For lists of any length: a tree lays all its rows out again at each addition, a table does not.
void bind(QTableView& view, forms::ListView& list);

}  // namespace desktop
