#include "platform/forms/text_control.h"

#include <algorithm>
#include <utility>

#include "platform/text/utf8.h"

namespace forms {

void TextControl::setText(std::string_view text) {
  if (replaceText(text)) Change();
}

bool TextControl::replaceText(std::string_view text) {
  std::string cut = maxLength_ == 0 ? std::string(text) : text::cut(std::string(text), maxLength_);
  if (cut == text_) return false;
  text_ = std::move(cut);
  const std::size_t characters = text::length(text_);
  selStart_ = std::min(selStart_, characters);
  selLength_ = std::min(selLength_, characters - selStart_);
  textReplaced();
  notify(Aspect::Text);
  return true;
}

void TextControl::setMaxLength(std::size_t characters) {
  maxLength_ = characters;
  notify(Aspect::Range);
}

void TextControl::setLocked(bool locked) {
  locked_ = locked;
  notify(Aspect::Enabled);
}

void TextControl::select(std::size_t start, std::size_t length) {
  selectionMoved(start, length);
  notify(Aspect::Selection);
}

void TextControl::selectAll() {
  select(0, text::length(text_));
}

void TextControl::selectionMoved(std::size_t start, std::size_t length) {
  const std::size_t characters = text::length(text_);
  selStart_ = std::min(start, characters);
  selLength_ = std::min(length, characters - selStart_);
}

void ComboBox::addItem(std::string_view item) {
  items_.emplace_back(item);
  notify(Aspect::Items);
}

void ComboBox::removeItem(std::size_t row) {
  items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(row));
  listIndex_ = rowOf(text());
  notify(Aspect::Items);
}

void ComboBox::setItems(std::vector<std::string> items) {
  items_ = std::move(items);
  listIndex_ = rowOf(text());
  notify(Aspect::Items);
}

void ComboBox::clear() {
  items_.clear();
  listIndex_ = -1;
  notify(Aspect::Items);
}

void ComboBox::setListIndex(int row) {
  const bool inList = row >= 0 && std::cmp_less(row, items_.size());
  const int index = inList ? row : -1;
  const bool textChanged =
      replaceText(inList ? items_[static_cast<std::size_t>(row)] : std::string());
  if (std::exchange(listIndex_, index) == index && !textChanged) return;
  notify(Aspect::Selection);
  Click();
}

int ComboBox::rowOf(std::string_view item) const {
  const auto found = std::ranges::find(items_, item);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

}  // namespace forms
