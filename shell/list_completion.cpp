#include "shell/list_completion.h"

#include <algorithm>

#include "platform/text/fold.h"
#include "platform/text/utf8.h"

namespace shell {

namespace {

bool steers(int code) {
  return code == forms::key_code::Delete || code < forms::key_code::Space ||
         (code >= forms::key_code::Left && code <= forms::key_code::Down);
}

std::string comparable(std::string_view text) {
  return text::trim(text::upper(text));
}

}  // namespace

void completeFromList(forms::ComboBox& combo, const forms::Key& key) {
  if (combo.text().empty() || steers(key.code) || key.control || key.alt) return;
  const std::string typed = combo.text();
  const auto length = static_cast<std::ptrdiff_t>(text::length(typed));
  const std::string wanted = comparable(typed);
  const auto row = std::ranges::find_if(combo.items(), [&](const std::string& item) {
    return comparable(text::left(item, length)) == wanted;
  });
  if (row != combo.items().end()) completeWith(combo, *row, key);
}

void completeWith(forms::TextControl& field, std::string_view row, const forms::Key& key) {
  if (field.text().empty() || steers(key.code) || key.control || key.alt) return;
  const std::string typed = field.text();
  const std::size_t length = text::length(typed);
  field.setText(typed + text::mid(row, static_cast<std::ptrdiff_t>(length) + 1));
  field.select(length, text::length(field.text()));
}

int rowOfFirstLetter(const forms::ComboBox& combo) {
  const auto letter = [](const std::string& text) { return text::upper(text::left(text, 1)); };
  const std::string first = letter(combo.text());
  const auto& rows = combo.items();
  const auto row = std::ranges::find(rows, first, letter);
  return first.empty() || row == rows.end() ? -1 : static_cast<int>(row - rows.begin());
}

void keepTypedValue(forms::ComboBox& combo) {
  if (combo.rowOf(combo.text()) < 0) combo.addItem(combo.text());
}

void completeWhileTyping(forms::ComboBox& combo) {
  combo.KeyUp.connect([&combo](forms::Key key) { completeFromList(combo, key); });
  combo.LostFocus.connect([&combo] { keepTypedValue(combo); });
}

}  // namespace shell
