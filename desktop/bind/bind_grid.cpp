#include "desktop/bind/bind_grid.h"

#include <QHeaderView>

#include "desktop/bind/grid_model.h"

namespace desktop {

namespace {

using forms::Aspect;
using forms::Grid;

void showColumns(GridTable& table, const Grid& grid) {
  for (int col = grid.fixedCols(); col < grid.cols(); ++col)
    table.setColumnHidden(col - grid.fixedCols(), !grid.columnVisible(col));
  table.verticalHeader()->setVisible(grid.fixedCols() > 0);
  table.horizontalHeader()->setVisible(grid.fixedRows() > 0);
  table.resizeColumnsToContents();
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
void takeMarked(const GridTable& table, const GridModel& model, Grid& grid) {
  if (!table.selectionModel()->hasSelection()) return;
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
  QObject::connect(&table, &QTableView::activated, &binding, [&grid] { grid.DblClick(); });
}

}  // namespace desktop
