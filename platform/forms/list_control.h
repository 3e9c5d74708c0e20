// Lists of rows: the list box with item data, and the list view with columns.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/packed_rows.h"

namespace forms {

struct ListItem {
  std::string text;
  long data = 0;
  bool selected = false;
  std::string note = {};  // shown quietly behind the text
};

enum class ListOrder { AsAdded, Sorted };
enum class ListChoice { One, Several };

// A new list index fires Click. A sorted list keeps its rows in the byte order of their texts.
class ListBox : public Control {
 public:
  ListBox(Form& form, std::string_view name, ListOrder order = ListOrder::AsAdded,
          ListChoice choice = ListChoice::One)
      : Control(form, name), order_(order), choice_(choice) {}

  [[nodiscard]] ListChoice choice() const { return choice_; }
  [[nodiscard]] const std::vector<ListItem>& items() const { return items_; }
  [[nodiscard]] std::size_t count() const { return items_.size(); }
  // Returns the row that the item got.
  std::size_t addItem(std::string_view text, long data = 0);
  // Appends many rows at once, in their order; the widget is told once.
  void appendItems(std::vector<std::string> texts);
  // The same with data and selection.
  void addItems(std::vector<ListItem> items);
  // Other rows, in the order given; the index is dropped, and the widget is told once.
  void setItems(std::vector<ListItem> items);
  void removeItem(std::size_t row);
  void clear();

  // The focused row, -1 when none.
  [[nodiscard]] int listIndex() const { return listIndex_; }
  void setListIndex(int row);
  // As the user presses a row: Click comes also from the row that has the index.
  void press(int row);
  // The text of the focused row, empty when there is none.
  [[nodiscard]] std::string text() const;
  // Asks the widget to show this row at the top of its view, as far as the rows below it go.
  void showFromRow(int row);
  [[nodiscard]] int topRow() const { return topRow_; }
  // A different selection of the row fires ItemCheck.
  void setSelected(std::size_t row, bool selected);

  // How many rows the drop-down shows without scrolling; 0 leaves it to the window.
  [[nodiscard]] int visibleRows() const { return visibleRows_; }
  void setVisibleRows(int rows);

  // What stands behind the text of a row: its own note, or what `noteOf` answers.
  [[nodiscard]] std::string note(std::size_t row) const;
  // For notes that are too dear to be known of every row: asked with the text of a row that is
  // shown.
  std::function<std::string(const std::string& text)> noteOf;

  Event<> Click;
  Event<> DblClick;
  Event<> ItemCheck;

 private:
  ListOrder order_;
  ListChoice choice_;
  std::vector<ListItem> items_;
  int listIndex_ = -1;
  int topRow_ = -1;  // the one that was asked for last; -1 with other rows
  int visibleRows_ = 0;
};

// Rows of columns with headings, of any number. The key of a row is the caller's own and never
// shown.
class ListView : public Control {
 public:
  struct Row {
    std::vector<std::string> cells;
    std::string key = {};
  };

  using Control::Control;

  [[nodiscard]] const std::vector<std::string>& columns() const { return columns_; }
  void setColumns(std::vector<std::string> headings);
  [[nodiscard]] std::size_t rowCount() const { return rows_.size(); }
  // Views live until the rows are cleared; empty for a row or column that is not there.
  [[nodiscard]] std::string_view cell(std::size_t row, std::size_t column) const {
    return rows_.cell(row, column);
  }
  [[nodiscard]] std::string_view key(std::size_t row) const { return rows_.key(row); }
  void addRow(const Row& row);
  // Appends many rows at once, in their order; the widget is told once.
  void appendRows(std::span<const Row> rows);
  void clearRows();
  // -1 when none is.
  [[nodiscard]] int selectedRow() const { return selectedRow_; }
  // Fires ItemClick when another row is selected.
  void setSelectedRow(int row);
  // As the user presses a row: ItemClick comes also from the selected one.
  void press(int row);
  // The key of the selected row, empty when none is.
  [[nodiscard]] std::string selectedKey() const;

  Event<> ItemClick;
  Event<> DblClick;

 private:
  std::vector<std::string> columns_;
  PackedRows rows_;
  int selectedRow_ = -1;
};

}  // namespace forms
