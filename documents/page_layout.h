// A page as its user lays it out: items, each at a place of its own and in a font of its own, that
// are printed or not.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/forms/font.h"
#include "platform/page/page.h"

namespace documents {

// Places on the miniature sheet, and what they are in millimetres and on paper.
namespace unit {
inline constexpr double perMillimetre = 28.5;

[[nodiscard]] int fromMillimetres(double millimetres);
// To a tenth: what was given to fromMillimetres() with one decimal comes back.
[[nodiscard]] double millimetres(int units);
[[nodiscard]] int twips(int units);
[[nodiscard]] int fromTwips(int twips);
}  // namespace unit

enum class ItemKind {
  Picture,
  Line,  // a short text that is never broken
  Body   // a text that takes the room to its right, and more pages when it is long
};

struct LayoutItem {
  std::string_view key;  // of its name, in the texts
  ItemKind kind = ItemKind::Line;
  int left = 0;  // units
  int top = 0;
  forms::Font font = {};
  bool shown = true;

  [[nodiscard]] bool hasFont() const { return kind != ItemKind::Picture; }
  bool operator==(const LayoutItem&) const = default;
};

// A place is never off the sheet: a strip on which an item can be seen always remains.
class PageLayout {
 public:
  explicit PageLayout(std::vector<LayoutItem> items, page::Size sheet = page::a4);

  [[nodiscard]] const std::vector<LayoutItem>& items() const { return items_; }
  // In twips.
  [[nodiscard]] page::Size sheet() const { return sheet_; }

  // To the nearest place on the sheet.
  void move(std::size_t item, int left, int top);
  void setFont(std::size_t item, const forms::Font& font) { items_[item].font = font; }
  void setShown(std::size_t item, bool shown) { items_[item].shown = shown; }

  bool operator==(const PageLayout& other) const { return items_ == other.items_; }

 private:
  std::vector<LayoutItem> items_;
  page::Size sheet_;
};

}  // namespace documents
