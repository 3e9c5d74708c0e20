#include "documents/page_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace documents {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr double twipsPerUnit = page::twipsPerInch / millimetresPerInch / unit::perMillimetre;
constexpr double tenths = 10;
constexpr double strip = 20;  // millimetres of every item that stay on the sheet

int onSheet(int place, int length) {
  const int last = unit::fromTwips(length) - unit::fromMillimetres(strip);
  return std::clamp(place, 0, std::max(0, last));
}

}  // namespace

namespace unit {

int fromMillimetres(double millimetres) {
  // More than any sheet is as good as any other number beyond it.
  constexpr double beyond = 10'000;
  return static_cast<int>(
      std::lround(std::clamp(millimetres, -beyond, beyond) * unit::perMillimetre));
}

double millimetres(int units) {
  return std::round(units / perMillimetre * tenths) / tenths;
}

int twips(int units) {
  return static_cast<int>(std::lround(units * twipsPerUnit));
}

int fromTwips(int twips) {
  return static_cast<int>(std::lround(twips / twipsPerUnit));
}

}  // namespace unit

PageLayout::PageLayout(std::vector<LayoutItem> items, page::Size sheet)
    : items_(std::move(items)), sheet_(sheet) {
  for (std::size_t item = 0; item < items_.size(); ++item)
    move(item, items_[item].left, items_[item].top);
}

void PageLayout::move(std::size_t item, int left, int top) {
  items_[item].left = onSheet(left, sheet_.width);
  items_[item].top = onSheet(top, sheet_.height);
}

}  // namespace documents
