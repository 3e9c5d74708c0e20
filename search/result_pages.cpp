#include "search/result_pages.h"

#include <algorithm>

#include "platform/text/utf8.h"
#include "search/card_line.h"
#include "shell/text_lookup.h"

namespace search {

namespace {

// Where each column begins; the last one ends as far from the right edge.
constexpr std::array<int, ResultPages::columnCount> places{200, 2000, 3800, 5000, 6200};
constexpr int gap = 60;
constexpr int smallestHead = 12;             // half points
constexpr std::ptrdiff_t longestCell = 250;  // characters; more fit no column

int widthOf(const page::Device& device, std::size_t column) {
  const int end = column + 1 < places.size() ? places[column + 1] : device.width() - places[0];
  return end - places[column] - gap;
}

// As many characters of the first line as are not wider than that.
std::string cut(const page::Device& device, std::string_view cell, int width) {
  const std::string text = text::left(cell.substr(0, cell.find_first_of("\r\n")), longestCell);
  if (device.textWidth(text) <= width) return text;
  std::ptrdiff_t fits = 0;
  for (auto tooMany = static_cast<std::ptrdiff_t>(text::length(text)); tooMany - fits > 1;) {
    const std::ptrdiff_t middle = (fits + tooMany) / 2;
    (device.textWidth(text::left(text, middle)) <= width ? fits : tooMany) = middle;
  }
  return text::left(text, fits);
}

std::string both(std::string_view first, std::string_view second) {
  std::string text(first);
  if (!first.empty() && !second.empty()) text += '/';
  return text.append(second);
}

}  // namespace

ResultPages::ResultPages(shell::Station& istasyon, const documents::Report& report,
                         const forms::ListView& list)
    : sheet_(istasyon, report),
      list_(list),
      font_(sheet_.device().font),
      headFont_(font_),
      head_{metinbul(istasyon, "isim"),
            both(metinbul(istasyon, "dogumtarihi"), metinbul(istasyon, "Cinsiyet")),
            metinbul(istasyon, "dogumyeri"), metinbul(istasyon, "e-mail"),
            metinbul(istasyon, "Telefon")},
      bottom_(sheet_.bodyEnd()) {
  headFont_.bold = true;
  headFont_.underline = true;
  fitHead();
  sheet_.head();
  printHead();
}

// A column's name that is cut says nothing: all of them get smaller instead.
void ResultPages::fitHead() {
  page::Device& device = sheet_.device();
  const auto tooWide = [&] {
    device.font = headFont_;
    for (std::size_t column = 0; column < head_.size(); ++column) {
      if (device.textWidth(head_[column]) > widthOf(device, column)) return true;
    }
    return false;
  };
  while (headFont_.halfPoints > smallestHead && tooWide()) --headFont_.halfPoints;
  device.font = font_;
}

void ResultPages::printHead() {
  sheet_.device().font = headFont_;
  printLine(head_);
  sheet_.device().font = font_;
}

void ResultPages::printLine(const Line& line) {
  page::Device& device = sheet_.device();
  for (std::size_t column = 0; column < line.size(); ++column) {
    device.x = places[column];
    device.print(cut(device, line[column], widthOf(device, column)), page::Then::StayOnLine);
  }
  device.print({});
}

ResultPages::Line ResultPages::lineOf(std::size_t row) const {
  const auto cell = [&](CardCell which) {
    return std::string(list_.cell(row, static_cast<std::size_t>(which)));
  };
  return {cell(CardCell::Name), both(cell(CardCell::Birth), cell(CardCell::Sex)),
          cell(CardCell::Place), cell(CardCell::Mail), cell(CardCell::Telephone)};
}

void ResultPages::step() {
  page::Device& device = sheet_.device();
  if (device.y + device.textHeight() > bottom_) {
    sheet_.turnPage(documents::HeadingOn::EveryPage);
    printHead();
  }
  printLine(lineOf(row_++));
}

page::Pages ResultPages::finish() {
  sheet_.sign();
  return sheet_.device().endDocument();
}

}  // namespace search
