// The finder's result on paper: a table under the template of the screen.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "documents/report_sheet.h"
#include "platform/forms/list_control.h"

namespace search {

// Laid out row by row, so that the caller can show how far it is. Report and list outlive it; the
// list stays as it is meanwhile.
class ResultPages {
 public:
  ResultPages(shell::Station& istasyon, const documents::Report& report,
              const forms::ListView& list);

  [[nodiscard]] bool done() const { return row_ == list_.rowCount(); }
  [[nodiscard]] std::size_t row() const { return row_; }
  // Lays out the next row, on a new page with a head of its own where the page is full.
  void step();
  // The pages, signed; nothing can be added any more.
  [[nodiscard]] page::Pages finish();

  static constexpr std::size_t columnCount = 5;

 private:
  using Line = std::array<std::string, columnCount>;

  void fitHead();
  void printHead();
  void printLine(const Line& line);
  [[nodiscard]] Line lineOf(std::size_t row) const;

  documents::ReportSheet sheet_;
  const forms::ListView& list_;
  page::Font font_;
  page::Font headFont_;
  Line head_;
  int bottom_;
  std::size_t row_ = 0;
};

}  // namespace search
