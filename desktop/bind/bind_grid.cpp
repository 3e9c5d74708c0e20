#include "desktop/bind/bind_grid.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "desktop/bind/grid_model.h"
#include "desktop/bind/row_choice.h"

namespace desktop {

namespace {

using forms::Aspect;
using forms::Grid;

void showColumns(GridTable& table, const Grid& grid) {
  for (int col = grid.fixedCols(); col < grid.cols(); ++col)
    table.setColumnHidden(col - grid.fixedCols(), !grid.columnVisible(col));
  table.verticalHeader()->setVisible(grid.fixedCols() > 0);
  table.horizontalHeader()->setVisible(grid.fixedRows() > 0);
  table.fitColumns();
}

// What this marks is what the grid has chosen already, so that nothing comes back to it.
void showChosen(GridTable& table, const GridModel& model, const Grid& grid) {
  const QModelIndex cell = model.indexOf({grid.Row(), grid.Col()});
  if (!cell.isValid()) return table.selectionModel()->clear();
  QItemSelectionModel::SelectionFlags how = QItemSelectionModel::ClearAndSelect;
  if (grid.choice() == forms::GridChoice::Rows) how |= QItemSelectionModel::Rows;
  const QModelIndex opposite = model.indexOf({grid.RowSel(), grid.ColSel()});
  const QItemSelection range(
      model.index(std::min(cell.row(), opposite.row()), std::min(cell.column(), opposite.column())),
      model.index(std::max(cell.row(), opposite.row()),
                  std::max(cell.column(), opposite.column())));
  // While the user extends a range, the toolkit's current cell is its moving corner.
  if (!range.contains(table.currentIndex()))
    table.selectionModel()->setCurrentIndex(cell, QItemSelectionModel::NoUpdate);
  if (table.selectionModel()->selection() != range) table.selectionModel()->select(range, how);
}

// The corner of the marked range where the grid stands is the one that stays.
void takeMarked(GridTable& table, const GridModel& model, Grid& grid) {
  // A click beside the cells lets the toolkit's mark go, not the grid's cell.
  if (!table.selectionModel()->hasSelection()) return showChosen(table, model, grid);
  const QItemSelectionRange marked = table.selectionModel()->selection().first();
  Grid::Place start = model.placeOf(marked.topLeft());
  Grid::Place end = model.placeOf(marked.bottomRight());
  if (grid.choice() == forms::GridChoice::Rows) {
    start.col = grid.Col() < 0 ? start.col : grid.Col();
    end.col = grid.Col() < 0 ? start.col : grid.ColSel();
  }
  if (grid.Row() == end.row && grid.Row() != start.row) std::swap(start.row, end.row);
  if (grid.Col() == end.col && grid.Col() != start.col) std::swap(start.col, end.col);
  grid.chooseRange(start, end);
}

void refreshGrid(GridTable& table, GridModel& model, const Grid& grid, Aspect aspect) {
  if (aspect == Aspect::Items) {
    model.refresh();
    showColumns(table, grid);
  }
  if (aspect == Aspect::Items || aspect == Aspect::Selection) showChosen(table, model, grid);
}

// Enter opens a cell as a double click does. A cell that was only framed when the focus came is the
// first one that an arrow key goes to.
class GridKeys : public QObject {
 public:
  GridKeys(GridTable& table, Grid& grid, QObject* parent)
      : QObject(parent), table_(table), grid_(grid) {
    table.installEventFilter(this);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool arrow = key == Qt::Key_Down || key == Qt::Key_Up;
    const QModelIndex framed = framedOnly(table_);
    if (framed.isValid() && (enter || arrow)) table_.setCurrentIndex(framed);
    if (!enter) return arrow && framed.isValid();
    if (!table_.currentIndex().isValid() || !grid_.DblClick.heard()) return false;
    grid_.DblClick();
    return true;
  }

 private:
  GridTable& table_;
  Grid& grid_;
};

}  // namespace

void bind(GridTable& table, Grid& grid) {
  auto* const model = new GridModel(grid, &table);
  table.setModel(model);
  if (grid.choice() == forms::GridChoice::Rows)
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
  Binding& binding = attach(table, grid, Follow::All, [&table, &grid, model](Aspect aspect) {
    refreshGrid(table, *model, grid, aspect);
  });
  model->setParent(&binding);  // gone with it: the grid may be gone before the table
  QObject::connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, &binding,
                   [&table, &grid, model] { takeMarked(table, *model, grid); });
  QObject::connect(&table, &QTableView::clicked, &binding, [&grid] { grid.Click(); });
  QObject::connect(&table, &QTableView::doubleClicked, &binding, [&grid] { grid.DblClick(); });
  takeLeftButtonOnly(table, binding);
  new GridKeys(table, grid, &binding);
}

}  // namespace desktop
