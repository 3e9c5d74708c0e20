// The items of a layout on paper and on the miniature sheet: both come from the same routine, so
// that what is dragged is what is printed.
#pragma once

#include <span>
#include <string>

#include "documents/page_layout.h"
#include "platform/page/metrics.h"
#include "platform/page/page.h"

namespace documents {

// What the items show, in their order: the paths of pictures, and texts.
using ItemContents = std::span<const std::string>;

// One item by itself, printed or not.
struct PlacedItem {
  // On the sheet, in twips. A picture that would leave the sheet is made smaller and moved, a line
  // is moved; an item with nothing to show has a usual size.
  page::Rectangle place;
  // As it is drawn from the corner of its place; a body as far as the sheet reaches.
  page::Page drawing;
};
[[nodiscard]] PlacedItem yerlesenOge(const page::Metrics& metrics, const LayoutItem& item,
                                     const std::string& content, page::Size sheet);

// The items that are printed, at their places: texts over pictures, and an earlier picture over a
// later one. A body that is longer than the sheet goes on from
// its place on another, on which the other items are again. Pictures that are missing are passed
// over.
[[nodiscard]] page::Pages yerlesimSayfalari(const page::Metrics& metrics, const PageLayout& layout,
                                            ItemContents contents);

}  // namespace documents
