#include "platform/forms/grid.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "platform/text/fold.h"
#include "platform/text/number.h"

namespace forms {

namespace {

constexpr char columnEnd = '\t';
constexpr char rowEnd = '\r';

// Calls with the number and the text of each part; stops when the caller has room for no more.
template <class Take>
void forEachPart(std::string_view text, char end, Take take) {
  int number = 0;
  for (const auto part : std::views::split(text, end)) {
    if (!take(number++, std::string_view(part.begin(), part.end()))) return;
  }
}

bool isNumeric(GridSort order) {
  return order == GridSort::NumericAscending || order == GridSort::NumericDescending;
}

bool isDescending(GridSort order) {
  return order == GridSort::NumericDescending || order == GridSort::TextDescending;
}

// What a row is sorted by; the texts are folded once, not at every comparison.
struct SortKey {
  std::vector<double> numbers;
  std::vector<std::string> texts;
  auto operator<=>(const SortKey&) const = default;
};

SortKey sortKey(std::span<const GridCell> cells, GridSort order) {
  SortKey key;
  for (const GridCell& cell : cells) {
    if (isNumeric(order)) {
      key.numbers.push_back(text::Val(cell.text));
    } else {
      key.texts.push_back(text::lower(cell.text));
    }
  }
  return key;
}

}  // namespace

Grid::Grid(Form& form, std::string_view name, Shape shape, GridChoice choice)
    : Control(form, name),
      fixedRows_(shape.fixedRows),
      fixedCols_(shape.fixedCols),
      choice_(choice),
      columns_(static_cast<std::size_t>(std::max(shape.cols, shape.fixedCols))) {
  rows_.resize(static_cast<std::size_t>(std::max(shape.rows, shape.fixedRows)), emptyLine());
}

void Grid::setRows(int rows) {
  rows_.resize(static_cast<std::size_t>(std::max(rows, fixedRows_)), emptyLine());
  dropChoiceBeyond();
  changed();
}

void Grid::setCols(int cols) {
  columns_.resize(static_cast<std::size_t>(std::max(cols, fixedCols_)));
  for (Line& line : rows_) line.cells.resize(columns_.size());
  dropChoiceBeyond();
  changed();
}

const GridCell& Grid::cell(int row, int col) const {
  static const GridCell none;
  return has(row, col) ? at(row).cells[static_cast<std::size_t>(col)] : none;
}

GridCell* Grid::cellToChange(int row, int col) {
  if (!has(row, col)) return nullptr;
  return &rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)];
}

void Grid::setTextMatrix(int row, int col, std::string_view text) {
  GridCell* const cell = cellToChange(row, col);
  if (cell == nullptr || cell->text == text) return;
  cell->text = std::string(text);
  changed();
}

void Grid::setHeadings(std::span<const std::string> headings) {
  const Bulk once(*this);
  for (std::size_t col = 0; fixedRows_ > 0 && col < headings.size(); ++col)
    setTextMatrix(0, static_cast<int>(col), headings[col]);
}

void Grid::setColours(int row, int col, OptionalColour back, OptionalColour fore) {
  GridCell* const cell = cellToChange(row, col);
  if (cell == nullptr || (cell->backColour == back && cell->foreColour == fore)) return;
  cell->backColour = back;
  cell->foreColour = fore;
  changed();
}

void Grid::setEmphasis(int row, int col, Emphasis emphasis) {
  GridCell* const cell = cellToChange(row, col);
  if (cell == nullptr || std::exchange(cell->emphasis, emphasis) == emphasis) return;
  changed();
}

void Grid::setRowData(int row, long data) {
  if (has(row, 0)) rows_[static_cast<std::size_t>(row)].data = data;
}

Grid::Column Grid::column(int col) const {
  return col >= 0 && col < cols() ? columns_[static_cast<std::size_t>(col)] : Column();
}

void Grid::setColumnVisible(int col, bool visible) {
  if (col < 0 || col >= cols()) return;
  columns_[static_cast<std::size_t>(col)].visible = visible;
  changed();
}

void Grid::setColumnAlign(int col, ColumnAlign align) {
  if (col < 0 || col >= cols()) return;
  columns_[static_cast<std::size_t>(col)].align = align;
  changed();
}

// --- The chosen cells

void Grid::chooseRange(Place cell, Place opposite) {
  if (!has(cell.row, cell.col) || !has(opposite.row, opposite.col)) return;
  const bool moved = cell != chosen_;
  if (!moved && opposite == opposite_) return;
  if (moved && chosen_.row >= 0) LeaveCell();
  chosen_ = cell;
  opposite_ = opposite;
  notify(Aspect::Selection);
  SelChange();
  if (!moved) return;
  EnterCell();
  RowColChange();
}

void Grid::dropChoiceBeyond() {
  if (!has(chosen_.row, chosen_.col)) chosen_ = {};
  if (!has(opposite_.row, opposite_.col)) opposite_ = chosen_;
}

std::string Grid::Clip() const {
  std::string text;
  if (chosen_.row < 0) return text;
  const auto [top, bottom] = std::minmax(chosen_.row, opposite_.row);
  const auto [left, right] = std::minmax(chosen_.col, opposite_.col);
  for (int row = top; row <= bottom; ++row) {
    if (row > top) text += rowEnd;
    for (int col = left; col <= right; ++col) {
      if (col > left) text += columnEnd;
      text += TextMatrix(row, col);
    }
  }
  return text;
}

void Grid::setClip(std::string_view text) {
  if (chosen_.row < 0) return;
  const Bulk once(*this);
  const auto [top, bottom] = std::minmax(chosen_.row, opposite_.row);
  const auto [left, right] = std::minmax(chosen_.col, opposite_.col);
  forEachPart(
      text, rowEnd,
      [&, top = top, bottom = bottom, left = left, right = right](int line, std::string_view row) {
        if (top + line > bottom) return false;
        forEachPart(row, columnEnd, [&](int entry, std::string_view value) {
          if (left + entry > right) return false;
          setTextMatrix(top + line, left + entry, value);
          return true;
        });
        return true;
      });
}

// --- Rows

bool Grid::AddItem(std::string_view cells, int row) {
  if (row < fixedRows_ || row > rows()) return false;
  Line line = emptyLine();
  forEachPart(cells, columnEnd, [&](int col, std::string_view value) {
    if (col >= cols()) return false;
    line.cells[static_cast<std::size_t>(col)].text = std::string(value);
    return true;
  });
  rows_.insert(rows_.begin() + row, std::move(line));
  changed();
  return true;
}

bool Grid::RemoveItem(int row) {
  if (row < fixedRows_ || row >= rows()) return false;
  rows_.erase(rows_.begin() + row);
  dropChoiceBeyond();
  changed();
  return true;
}

void Grid::Sort(GridSort order) {
  const auto [left, right] = std::minmax(chosen_.col, opposite_.col);
  const auto [top, bottom] = std::minmax(chosen_.row, opposite_.row);
  const int first = top == bottom ? fixedRows_ : std::max(top, fixedRows_);
  const int end = top == bottom ? rows() : bottom + 1;
  const auto from = static_cast<std::size_t>(std::max(left, 0));
  const auto width = static_cast<std::size_t>(std::max(right, 0)) - from + 1;
  if (first >= end || cols() == 0) return;

  std::vector<std::pair<SortKey, Line>> keyed;
  for (int row = first; row < end; ++row) {
    Line& line = rows_[static_cast<std::size_t>(row)];
    SortKey key = sortKey(std::span(line.cells).subspan(from, width), order);
    keyed.emplace_back(std::move(key), std::move(line));
  }
  std::ranges::stable_sort(keyed, [order](const auto& a, const auto& b) {
    return isDescending(order) ? b.first < a.first : a.first < b.first;
  });
  std::ranges::move(keyed | std::views::values, rows_.begin() + first);
  changed();
}

// --- Telling the window

void Grid::changed() {
  if (bulk_ > 0) {
    changedInBulk_ = true;
  } else {
    notify(Aspect::Items);
  }
}

void Grid::bulkEnded() {
  if (--bulk_ == 0 && std::exchange(changedInBulk_, false)) notify(Aspect::Items);
}

}  // namespace forms
