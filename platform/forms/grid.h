// A table of texts: heading rows and columns, rows with a number of their own, a cell or a range of
// cells that is chosen, and cells that stand out.
#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/colour.h"
#include "platform/forms/control.h"

namespace forms {

// Why a cell stands out. The window never shows it by colour alone.
enum class Emphasis { None, Strong, Low, High };
enum class ColumnAlign { Left, Right, Centre };
enum class GridSort { NumericAscending, NumericDescending, TextAscending, TextDescending };
// What the user marks with a click.
enum class GridChoice { Cells, Rows };

struct GridCell {
  std::string text;
  OptionalColour backColour;
  OptionalColour foreColour;
  Emphasis emphasis = Emphasis::None;
};

// Rows and columns are numbered from 0, fixed ones included. A cell beyond the grid reads empty,
// and writing to it does nothing. No cell is chosen at first, or once the chosen row is gone: Row
// and Col are -1 then. A move fires LeaveCell while the old cell is still the chosen one, then
// SelChange, EnterCell and RowColChange; a change of RowSel or ColSel fires SelChange alone.
class Grid : public Control {
 public:
  struct Shape {
    int rows = 1;
    int cols = 2;
    int fixedRows = 1;
    int fixedCols = 0;
  };
  struct Place {
    int row = -1;
    int col = -1;
    bool operator==(const Place&) const = default;
  };

  Grid(Form& form, std::string_view name, Shape shape, GridChoice choice = GridChoice::Cells);

  [[nodiscard]] int rows() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] int cols() const { return static_cast<int>(columns_.size()); }
  [[nodiscard]] int fixedRows() const { return fixedRows_; }
  [[nodiscard]] int fixedCols() const { return fixedCols_; }
  [[nodiscard]] GridChoice choice() const { return choice_; }
  // What was in the grid stays as far as it fits; never fewer than the fixed ones.
  void setRows(int rows);
  void setCols(int cols);

  [[nodiscard]] const GridCell& cell(int row, int col) const;
  [[nodiscard]] const std::string& TextMatrix(int row, int col) const {
    return cell(row, col).text;
  }
  void setTextMatrix(int row, int col, std::string_view text);
  // The first fixed row.
  void setHeadings(std::span<const std::string> headings);
  void setColours(int row, int col, OptionalColour back, OptionalColour fore);
  void setEmphasis(int row, int col, Emphasis emphasis);
  // A number of the caller's own, which moves with its row; 0 at first.
  [[nodiscard]] long rowData(int row) const { return has(row, 0) ? at(row).data : 0; }
  void setRowData(int row, long data);

  [[nodiscard]] bool columnVisible(int col) const { return column(col).visible; }
  void setColumnVisible(int col, bool visible);
  [[nodiscard]] ColumnAlign columnAlign(int col) const { return column(col).align; }
  void setColumnAlign(int col, ColumnAlign align);

  [[nodiscard]] int Row() const { return chosen_.row; }
  [[nodiscard]] int Col() const { return chosen_.col; }
  [[nodiscard]] int RowSel() const { return opposite_.row; }
  [[nodiscard]] int ColSel() const { return opposite_.col; }
  // A new row or column alone makes the cell the whole selection. A place beyond the grid is passed
  // over.
  void setRow(int row) { choose({row, std::max(chosen_.col, 0)}); }
  void setCol(int col) { choose({chosen_.row, col}); }
  void setRowSel(int row) { chooseRange(chosen_, {row, opposite_.col}); }
  void setColSel(int col) { chooseRange(chosen_, {opposite_.row, col}); }
  void choose(Place cell) { chooseRange(cell, cell); }
  void chooseRange(Place cell, Place opposite);

  // The selection, with a tab between columns and a carriage return between rows. Writing leaves
  // cells beyond the text, and passes over text beyond the cells; an empty entry clears its cell.
  [[nodiscard]] std::string Clip() const;
  void setClip(std::string_view text);

  // The texts of a row, parted by tabs; at the end, or before a row. False for a place among the
  // fixed rows or beyond the end.
  bool AddItem(std::string_view cells) { return AddItem(cells, rows()); }
  bool AddItem(std::string_view cells, int row);
  bool RemoveItem(int row);

  // By the columns from Col to ColSel, the first when none is chosen; rows that are alike keep
  // their order. Sorts the rows from Row to RowSel, all when those are one or none. Text counts
  // without regard to case.
  void Sort(GridSort order);

  Event<> LeaveCell;
  Event<> EnterCell;
  Event<> RowColChange;
  Event<> SelChange;
  // The user pressed a cell; opened one, by a double click or Enter.
  Event<> Click;
  Event<> DblClick;

  // While it lives, changes are gathered; the window hears of them once, at the end.
  class Bulk {
   public:
    explicit Bulk(Grid& grid) : grid_(grid) { ++grid_.bulk_; }
    Bulk(const Bulk&) = delete;
    Bulk& operator=(const Bulk&) = delete;
    ~Bulk() { grid_.bulkEnded(); }

   private:
    Grid& grid_;
  };

 private:
  struct Line {
    std::vector<GridCell> cells;
    long data = 0;
  };
  struct Column {
    bool visible = true;
    ColumnAlign align = ColumnAlign::Left;
  };

  [[nodiscard]] bool has(int row, int col) const {
    return row >= 0 && row < rows() && col >= 0 && col < cols();
  }
  [[nodiscard]] const Line& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  [[nodiscard]] Column column(int col) const;
  [[nodiscard]] Line emptyLine() const { return {std::vector<GridCell>(columns_.size()), 0}; }
  GridCell* cellToChange(int row, int col);
  void dropChoiceBeyond();
  void changed();
  void bulkEnded();

  int fixedRows_;
  int fixedCols_;
  GridChoice choice_;
  std::vector<Column> columns_;
  std::vector<Line> rows_;
  Place chosen_;
  Place opposite_;
  int bulk_ = 0;
  bool changedInBulk_ = false;
};

}  // namespace forms
