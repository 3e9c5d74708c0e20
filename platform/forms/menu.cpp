#include "platform/forms/menu.h"

#include <algorithm>
#include <utility>

#include "platform/forms/form.h"

namespace forms {

MenuItem::MenuItem(MenuItem& parent, std::string_view name, MenuKind kind)
    : Control(parent.form(), name), kind_(kind), parent_(&parent) {
  parent.children_.push_back(this);
}

void MenuItem::setIcon(std::string_view icon) {
  if (icon == icon_) return;
  icon_ = std::string(icon);
  notify(Aspect::Image);
}

void MenuItem::setChecked(bool checked) {
  if (std::exchange(checked_, checked) != checked) notify(Aspect::Selection);
}

void Toolbar::addButton(std::string_view key, std::string_view image) {
  buttons_.push_back({.key = std::string(key), .image = std::string(image), .toolTip = {}});
  notify(Aspect::Items);
}

void Toolbar::addSeparator() {
  buttons_.push_back({.key = {}, .kind = ButtonKind::Separator, .image = {}, .toolTip = {}});
  notify(Aspect::Items);
}

const ToolButton* Toolbar::button(std::string_view key) const {
  const auto found = std::ranges::find(buttons_, key, &ToolButton::key);
  return found == buttons_.end() ? nullptr : &*found;
}

template <class Member, class Value>
void Toolbar::change(std::string_view key, Member member, const Value& value, Aspect aspect) {
  const auto found = std::ranges::find(buttons_, key, &ToolButton::key);
  if (found == buttons_.end() || (*found).*member == value) return;
  (*found).*member = value;
  notify(aspect);
}

void Toolbar::setButtonEnabled(std::string_view key, bool enabled) {
  change(key, &ToolButton::enabled, enabled, Aspect::Enabled);
}
void Toolbar::setButtonVisible(std::string_view key, bool visible) {
  change(key, &ToolButton::visible, visible, Aspect::Visible);
}
void Toolbar::setButtonImage(std::string_view key, std::string_view image) {
  change(key, &ToolButton::image, image, Aspect::Image);
}
void Toolbar::setButtonToolTip(std::string_view key, std::string_view toolTip) {
  change(key, &ToolButton::toolTip, toolTip, Aspect::ToolTip);
}

void Toolbar::setButtonWord(std::string_view key, std::string_view word) {
  change(key, &ToolButton::word, word, Aspect::Caption);
}

void Toolbar::setWords(ButtonWords words) {
  if (std::exchange(words_, words) != words) notify(Aspect::Paint);
}

void Toolbar::setWords(ButtonWords words, WordsChoice choice) {
  wordsChoice_ = std::move(choice);
  setWords(words);
}

void Toolbar::press(std::string_view key) const {
  const ToolButton* const pressed = button(key);
  if (pressed != nullptr && pressed->enabled && pressed->visible) ButtonClick(key);
}

TabStrip::TabStrip(Form& form, std::string_view name, std::vector<std::string> keys)
    : Control(form, name) {
  for (std::string& key : keys) tabs_.push_back({std::move(key), {}});
  if (!tabs_.empty()) selected_ = tabs_.front().key;
}

void TabStrip::setTabCaption(std::string_view key, std::string_view caption) {
  const auto found = std::ranges::find(tabs_, key, &Tab::key);
  if (found == tabs_.end() || found->caption == caption) return;
  found->caption = std::string(caption);
  notify(Aspect::Items);
}

void TabStrip::select(std::string_view key) {
  if (key == selected_ || std::ranges::find(tabs_, key, &Tab::key) == tabs_.end()) return;
  selected_ = std::string(key);
  notify(Aspect::Selection);
  Click();
}

void Timer::setInterval(int milliseconds) {
  if (std::exchange(interval_, milliseconds) != milliseconds) notify(Aspect::Range);
}

}  // namespace forms
