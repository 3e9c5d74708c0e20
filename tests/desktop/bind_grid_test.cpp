#include "desktop/bind/bind_grid.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>

#include "tests/desktop/desk.h"

namespace {

using namespace desktop;
using forms::Emphasis;
using support::clickRow;

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
  support::showActive(table);
  clickRow(table, 2, {.column = 1});
  EXPECT_EQ(form.cells.Row(), 3);
  EXPECT_EQ(form.cells.Col(), 2);
  support::press(Qt::Key_Up, Qt::ShiftModifier);
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

TEST(GridBinding, ColumnsFitTheirTexts) {
  GridForm form;
  GridTable table;
  bind(table, form.rows);
  const int before = table.columnWidth(0);
  form.rows.setTextMatrix(2, 0, "Tiroid uyarıcı hormon (üçüncü kuşak)");
  EXPECT_GT(table.columnWidth(0), before);
}

TEST(GridBinding, TheGridHearsWhatIsDoneToItsRows) {
  using support::Clicks;
  struct Case {
    const char* what;
    void (*act)(GridTable& table);
    const char* heard;  // the row of a move, "c" for Click, "d" for DblClick
    int row;
  };
  const Case cases[] = {
      {"click", [](GridTable& t) { clickRow(t, 1); }, "2c", 2},
      {"again", [](GridTable& t) { clickRow(t, 1), clickRow(t, 1); }, "2cc", 2},
      {"double click", [](GridTable& t) { clickRow(t, 1, {.clicks = Clicks::Double}); }, "2cd", 2},
      {"right click", [](GridTable& t) { clickRow(t, 1, {.button = Qt::RightButton}); }, "", -1},
      {"right double click",
       [](GridTable& t) {
         clickRow(t, 0), clickRow(t, 1, {.clicks = Clicks::Double, .button = Qt::RightButton});
       },
       "1c", 1},
      {"below the rows", [](GridTable& t) { clickRow(t, 1), support::clickBelowRows(t); }, "2c", 2},
      {"the focus alone", [](GridTable&) {}, "", -1},
      {"the first arrow", [](GridTable&) { support::press(Qt::Key_Down); }, "1", 1},
      {"Enter", [](GridTable&) { support::press(Qt::Key_Return); }, "1d", 1},
      {"arrows and Enter",
       [](GridTable& t) {
         clickRow(t, 0), support::press(Qt::Key_Down), support::press(Qt::Key_Enter);
       },
       "1c2d", 2},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    GridForm form;
    QWidget window;
    window.resize(400, 300);
    GridTable table(&window);
    table.setGeometry(0, 0, 400, 300);
    bind(table, form.rows);
    std::string heard;
    form.rows.RowColChange.connect([&] { heard += std::to_string(form.rows.Row()); });
    form.rows.Click.connect([&] { heard += 'c'; });
    form.rows.DblClick.connect([&] { heard += 'd'; });
    support::showActive(window);
    table.setFocus(Qt::TabFocusReason);
    c.act(table);
    EXPECT_EQ(heard, c.heard);
    EXPECT_EQ(form.rows.Row(), c.row);
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), c.row < 0 ? 0 : 1);
  }
}

}  // namespace
