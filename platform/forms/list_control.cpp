#include "platform/forms/list_control.h"

#include <algorithm>
#include <utility>

namespace forms {

std::size_t ListBox::addItem(std::string_view text, long data) {
  auto at = items_.end();
  if (order_ == ListOrder::Sorted) {
    at = std::ranges::upper_bound(items_, text, {},
                                  [](const ListItem& i) { return std::string_view(i.text); });
  }
  const auto row = static_cast<std::size_t>(at - items_.begin());
  items_.insert(at, ListItem{.text = std::string(text), .data = data});
  if (listIndex_ >= 0 && std::cmp_less_equal(row, listIndex_)) ++listIndex_;
  notify(Aspect::Items);
  return row;
}

void ListBox::appendItems(std::vector<std::string> texts) {
  // No reserve: growing to the exact size each time would move all rows at every call.
  for (std::string& text : texts) items_.push_back({.text = std::move(text)});
  notify(Aspect::Items);
}

void ListBox::addItems(std::vector<ListItem> items) {
  for (ListItem& item : items) items_.push_back(std::move(item));
  notify(Aspect::Items);
}

void ListBox::setItems(std::vector<ListItem> items) {
  items_ = std::move(items);
  listIndex_ = -1;
  topRow_ = -1;
  notify(Aspect::Items);
}

void ListBox::removeItem(std::size_t row) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(row));
  listIndex_ = -1;
  notify(Aspect::Items);
}

void ListBox::clear() {
  if (items_.empty()) return;
  items_.clear();
  listIndex_ = -1;
  notify(Aspect::Items);
}

void ListBox::setListIndex(int row) {
  const int index = row >= 0 && std::cmp_less(row, items_.size()) ? row : -1;
  if (std::exchange(listIndex_, index) == index) return;
  notify(Aspect::Selection);
  if (index >= 0) Click();
}

void ListBox::showFromRow(int row) {
  topRow_ = row;
  notify(Aspect::Range);
}

void ListBox::press(int row) {
  if (row < 0 || row != listIndex_) return setListIndex(row);
  Click();
}

std::string ListBox::text() const {
  return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)].text;
}

std::string ListBox::note(std::size_t row) const {
  const ListItem& item = items_.at(row);
  return noteOf ? noteOf(item.text) : item.note;
}

void ListBox::setSelected(std::size_t row, bool selected) {
  if (std::exchange(items_.at(row).selected, selected) == selected) return;
  notify(Aspect::Selection);
  ItemCheck();
}

void ListBox::setVisibleRows(int rows) {
  if (std::exchange(visibleRows_, rows) != rows) notify(Aspect::Range);
}

void ListView::setColumns(std::vector<std::string> headings) {
  columns_ = std::move(headings);
  notify(Aspect::Items);
}

void ListView::addRow(const Row& row) {
  appendRows({&row, 1});
}

void ListView::appendRows(std::span<const Row> rows) {
  if (rows.empty()) return;
  for (const Row& row : rows) rows_.add(row.cells, row.key);
  notify(Aspect::Items);
}

void ListView::clearRows() {
  rows_.clear();
  selectedRow_ = -1;
  notify(Aspect::Items);
}

void ListView::setSelectedRow(int row) {
  const int index = row >= 0 && std::cmp_less(row, rows_.size()) ? row : -1;
  if (std::exchange(selectedRow_, index) == index) return;
  notify(Aspect::Selection);
  if (index >= 0) ItemClick();
}

void ListView::press(int row) {
  if (row < 0 || row != selectedRow_) return setSelectedRow(row);
  ItemClick();
}

std::string ListView::selectedKey() const {
  return selectedRow_ < 0 ? std::string()
                          : std::string(key(static_cast<std::size_t>(selectedRow_)));
}

}  // namespace forms
