// Lays out a page: by dragging its items on a miniature sheet, in the grid of their properties, and
// in the list of what is printed. A screen has the controls and a LayoutEditor behind them.
#pragma once

#include <string>
#include <vector>

#include "documents/page_layout.h"
#include "documents/sheet_item.h"
#include "platform/forms/grid.h"
#include "platform/forms/list_control.h"
#include "platform/forms/text_control.h"
#include "shell/station.h"

namespace documents {

struct LayoutControls {
  // In the order of the layout.
  std::vector<SheetItem*> items;
  forms::Grid& GrdÖzellik;
  forms::TextBox& TxtGrid;  // lies over the cell that is edited
  forms::ListBox& LstGörüntüle;
};

class LayoutEditor {
 public:
  // The columns of the grid.
  enum Column { Title, Value, Unit, Columns };

  LayoutEditor(shell::Station& istasyon, LayoutControls controls, PageLayout usual);

  [[nodiscard]] const PageLayout& layout() const { return layout_; }

  // From the screen's record of Data/setting.dat and back. The record keeps its owner and its font.
  void Setkayitlarioku(int record);
  platform::Status setkayityaz(int record);

  // Writes the names of the rows, in the user's language, and all that they show.
  void Gridkontrolleri();
  // What the items show, in their order.
  void icerik(std::vector<std::string> contents);
  // The pages as they are printed. The station has a printer, whose metrics count.
  [[nodiscard]] page::Pages sayfalar() const;

  // Edits the value of the chosen row: a number in place, a font in its dialog.
  void duzenle();
  // Takes the number that is edited; what is none is refused, and the old value is put back.
  void bitir();
  void vazgec();

 private:
  enum class Property { Left, Top, Font };
  struct Row {
    std::size_t item;
    Property property;
  };

  [[nodiscard]] std::string rowTitle(const Row& row) const;
  [[nodiscard]] std::string rowValue(const Row& row) const;
  void writeValues(std::size_t item);
  void draw(std::size_t item);
  void drawAll();
  void move(std::size_t item, int left, int top);
  void step(std::size_t item, int right, int down);
  void take(const Row& row, double millimetres);
  void chooseFont(std::size_t item);
  void tellUnkept();
  void checked();
  void closeEdit();

  shell::Station& istasyon_;
  LayoutControls controls_;
  PageLayout layout_;
  std::vector<std::string> contents_;
  std::vector<Row> rows_;
  int edited_ = -1;  // the row
  bool refusing_ = false;
};

}  // namespace documents
