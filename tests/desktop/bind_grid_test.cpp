#include "desktop/bind/bind_grid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using forms::Emphasis;

struct GridForm : forms::Form {
  GridForm() : Form("grids") {
    for (forms::Grid* grid : {&cells, &rows}) {
      grid->setHeadings(std::vector<std::string>{"Test", "Sonuç", "no"});
      for (const char* row : {"AKŞ\t126 H\t1", "Üre\t30\t2", "Kreatinin\t0.4 L\t3"})
        grid->AddItem(row);
    }
  }
  forms::Grid cells{*this, "cells", {.cols = 3, .fixedCols = 1}};
  forms::Grid rows{*this, "rows", {.cols = 3}, forms::GridChoice::Rows};
};

TEST(GridBinding, FixedRowsAndColumnsAreHeadings) {
  GridForm form;
  GridTable table;
  bind(table, form.cells);
  const QAbstractItemModel& model = *table.model();
  EXPECT_EQ(model.rowCount(), 3);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("Sonuç"));
  EXPECT_EQ(model.headerData(2, Qt::Vertical).toString(), QStringLiteral("Kreatinin"));
  EXPECT_EQ(model.index(2, 0).data().toString(), QStringLiteral("0.4 L"));
}

TEST(GridBinding, TheUsersMarkIsTheGridsRangeAndTheOtherWayRound) {
  GridForm form;
  GridTable table;
  bind(table, form.cells);
  int moves = 0;
  form.cells.RowColChange.connect([&] { ++moves; });
  table.setCurrentIndex(table.model()->index(2, 1));
  EXPECT_EQ(form.cells.Row(), 3);
  EXPECT_EQ(form.cells.Col(), 2);
  support::showActive(table);
  QTest::keyClick(&table, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(form.cells.Row(), 3);
  EXPECT_EQ(form.cells.RowSel(), 2);
  EXPECT_EQ(moves, 1);
  form.cells.chooseRange({1, 1}, {2, 2});
  EXPECT_EQ(table.selectionModel()->selectedIndexes().size(), 4);
  EXPECT_EQ(moves, 2);
  form.cells.setRows(1);
  EXPECT_FALSE(table.selectionModel()->hasSelection());
}

TEST(GridBinding, WholeRowsAreMarkedAndCopiedWithoutHiddenColumns) {
  GridForm form;
  form.rows.setColumnVisible(2, false);
  GridTable table;
  bind(table, form.rows);
  support::showActive(table);
  form.rows.choose({1, 0});
  EXPECT_EQ(table.selectionModel()->selectedRows().size(), 1);
  QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(form.rows.Row(), 1);
  EXPECT_EQ(form.rows.RowSel(), 2);
  QTest::keyClick(&table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("AKŞ\t126 H\nÜre\t30"));
}

TEST(GridBinding, WhatStandsOutIsBoldAndReadsOnItsGround) {
  GridForm form;
  form.rows.setEmphasis(1, 1, Emphasis::High);
  form.rows.setColours(2, 1, 0x101010, std::nullopt);
  GridTable table;
  bind(table, form.rows);
  const QModelIndex marked = table.model()->index(0, 1);
  EXPECT_TRUE(marked.data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(table.model()->index(1, 0).data(Qt::FontRole).isValid());
  for (const QModelIndex& cell : {marked, table.model()->index(1, 1)}) {
    const int ground = qGray(cell.data(Qt::BackgroundRole).value<QColor>().rgb());
    const int ink = qGray(cell.data(Qt::ForegroundRole).value<QColor>().rgb());
    EXPECT_GT(std::abs(ground - ink), 100);
  }
}

TEST(GridBinding, ColumnsFitTheirTextsAndEnterOpensARow) {
  GridForm form;
  GridTable table;
  bind(table, form.rows);
  const int before = table.columnWidth(0);
  form.rows.setTextMatrix(2, 0, "Tiroid uyarıcı hormon (üçüncü kuşak)");
  EXPECT_GT(table.columnWidth(0), before);
  int opened = 0;
  form.rows.DblClick.connect([&] { ++opened; });
  support::showActive(table);
  form.rows.choose({2, 0});
  QTest::keyClick(&table, Qt::Key_Return);
  EXPECT_EQ(opened, 1);
}

}  // namespace
