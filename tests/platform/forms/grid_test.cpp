#include "platform/forms/grid.h"

#include <gtest/gtest.h>

#include "platform/forms/form.h"

namespace {

using namespace forms;

struct Grids : testing::Test {
  Form form{"f"};
  Grid grid{form, "grid", {.rows = 1, .cols = 3}};
  std::string events;

  Grids() {
    for (const char* row : {"b\t10\tx", "A\t9\ty", "a\t2,5\tz"}) grid.AddItem(row);
    grid.LeaveCell.connect([this] { events += "leave" + place() + " "; });
    grid.SelChange.connect([this] { events += "sel "; });
    grid.EnterCell.connect([this] { events += "enter" + place() + " "; });
    grid.RowColChange.connect([this] { events += "move "; });
  }
  [[nodiscard]] std::string place() const {
    return std::to_string(grid.Row()) + "," + std::to_string(grid.Col());
  }
  [[nodiscard]] std::string column(int col) const {
    std::string texts;
    for (int row = grid.fixedRows(); row < grid.rows(); ++row)
      texts += grid.TextMatrix(row, col) + " ";
    return texts;
  }
};

TEST_F(Grids, AMoveTellsTheOldCellThenTheNewOneAndDropsTheRange) {
  grid.choose({1, 1});
  EXPECT_EQ(events, "sel enter1,1 move ");
  events.clear();
  grid.setRowSel(3);
  EXPECT_EQ(events, "sel ");
  grid.setRow(2);
  EXPECT_EQ(events, "sel leave1,1 sel enter2,1 move ");
  EXPECT_EQ(grid.RowSel(), 2);
  events.clear();
  grid.setRow(2);
  grid.setRow(9);
  grid.setCol(-1);
  EXPECT_EQ(events, "");
  EXPECT_EQ(place(), "2,1");
}

TEST_F(Grids, TheClipReadsAndWritesTheRangeOnly) {
  grid.chooseRange({3, 1}, {2, 0});
  EXPECT_EQ(grid.Clip(), "A\t9\ra\t2,5");
  grid.setClip("\tnine\tsurplus\rc\r\rsurplus");
  EXPECT_EQ(column(0), "b  c ");
  EXPECT_EQ(column(1), "10 nine 2,5 ");
  EXPECT_EQ(column(2), "x y z ");
}

TEST_F(Grids, SortsByTheChosenColumnsAndKeepsTheOrderOfEqualRows) {
  struct Case {
    Grid::Place from, to;
    GridSort order;
    const char* last;
  };
  const Case cases[] = {{{1, 0}, {1, 0}, GridSort::TextAscending, "y z x "},
                        {{1, 0}, {1, 0}, GridSort::TextDescending, "x y z "},
                        {{1, 1}, {1, 1}, GridSort::TextAscending, "x z y "},
                        {{1, 1}, {1, 1}, GridSort::NumericAscending, "z y x "},
                        {{1, 0}, {1, 1}, GridSort::TextAscending, "z y x "},
                        {{1, 1}, {2, 1}, GridSort::NumericAscending, "y x z "}};
  for (const Case& c : cases) {
    grid.setRows(1);
    for (const char* row : {"b\t10\tx", "A\t9\ty", "a\t2,5\tz"}) grid.AddItem(row);
    grid.chooseRange(c.from, c.to);
    grid.Sort(c.order);
    EXPECT_EQ(column(2), c.last);
  }
}

TEST_F(Grids, RowsMoveWithTheirNumbersAndMarks) {
  grid.setRowData(1, 10);
  grid.setEmphasis(1, 1, Emphasis::High);
  grid.setColours(1, 2, 0xFF0000, std::nullopt);
  grid.Sort(GridSort::TextAscending);
  EXPECT_EQ(grid.rowData(3), 10);
  EXPECT_EQ(grid.cell(3, 1).emphasis, Emphasis::High);
  EXPECT_EQ(grid.cell(3, 2).backColour, OptionalColour(0xFF0000));
  EXPECT_TRUE(grid.RemoveItem(1));
  EXPECT_EQ(grid.rowData(2), 10);
}

TEST_F(Grids, FixedRowsStayAndPlacesBeyondAreHarmless) {
  grid.setHeadings(std::vector<std::string>{"Test", "Result", "Unit", "surplus"});
  EXPECT_FALSE(grid.AddItem("x", 0));
  EXPECT_FALSE(grid.AddItem("x", 5));
  EXPECT_FALSE(grid.RemoveItem(0));
  EXPECT_TRUE(grid.AddItem("first\t1\t2\tsurplus", 1));
  EXPECT_EQ(grid.TextMatrix(1, 0), "first");
  grid.setTextMatrix(9, 0, "x");
  EXPECT_EQ(grid.TextMatrix(9, 0) + grid.TextMatrix(0, -1), "");
  grid.choose({4, 2});
  grid.setRows(0);
  EXPECT_EQ(grid.rows(), 1);
  EXPECT_EQ(grid.TextMatrix(0, 1), "Result");
  EXPECT_EQ(place(), "-1,-1");
  EXPECT_EQ(grid.Clip(), "");
  grid.Sort(GridSort::TextAscending);
}

TEST_F(Grids, ManyChangesAreToldOnce) {
  int told = 0;
  grid.observer = [&](Aspect) { ++told; };
  {
    const Grid::Bulk outer(grid);
    const Grid::Bulk inner(grid);
    for (int i = 0; i < 100; ++i) grid.AddItem("x");
    EXPECT_EQ(told, 0);
  }
  EXPECT_EQ(told, 1);
  { const Grid::Bulk nothing(grid); }
  EXPECT_EQ(told, 1);
}

}  // namespace
