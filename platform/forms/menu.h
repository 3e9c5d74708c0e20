// Menus, toolbars and tab strips.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"

namespace forms {

enum class MenuKind { Item, Separator };

// An entry of the menu bar (no parent) or of its parent's menu. The icon is a name of the image
// list.
class MenuItem : public Control {
 public:
  MenuItem(Form& form, std::string_view name, MenuKind kind = MenuKind::Item)
      : Control(form, name), kind_(kind) {}
  MenuItem(MenuItem& parent, std::string_view name, MenuKind kind = MenuKind::Item);

  [[nodiscard]] MenuKind kind() const { return kind_; }
  [[nodiscard]] MenuItem* parent() const { return parent_; }
  [[nodiscard]] const std::vector<MenuItem*>& children() const { return children_; }
  [[nodiscard]] const std::string& icon() const { return icon_; }
  void setIcon(std::string_view icon);
  // In the toolkit's portable notation, such as "Ctrl+S".
  [[nodiscard]] const std::string& shortcut() const { return shortcut_; }
  void setShortcut(std::string_view shortcut) { shortcut_ = std::string(shortcut); }
  [[nodiscard]] bool checked() const { return checked_; }
  void setChecked(bool checked);

  // As the user does: a disabled or hidden entry does nothing.
  void press() {
    if (enabled() && visible()) Click();
  }
  Event<> Click;
  // The keys of the entry's shortcut were pressed while it is disabled.
  Event<> Refused;

 private:
  MenuKind kind_;
  MenuItem* parent_ = nullptr;
  std::vector<MenuItem*> children_;
  std::string icon_;
  std::string shortcut_;
  bool checked_ = false;
};

enum class ButtonKind { Button, Separator };
enum class ButtonWords { Shown, Hidden };

// One button of a toolbar, found by its key.
struct ToolButton {
  std::string key;
  ButtonKind kind = ButtonKind::Button;
  std::string image;
  std::string toolTip;
  std::string word = {};  // under the image; the tool-tip where it is empty
  bool enabled = true;
  bool visible = true;
};

class Toolbar : public Control {
 public:
  using Control::Control;

  void addButton(std::string_view key, std::string_view image);
  void addSeparator();
  [[nodiscard]] const std::vector<ToolButton>& buttons() const { return buttons_; }
  // Null for a key that this toolbar does not have.
  [[nodiscard]] const ToolButton* button(std::string_view key) const;
  // Changes of a button that the toolbar does not have are passed over.
  void setButtonEnabled(std::string_view key, bool enabled);
  void setButtonVisible(std::string_view key, bool visible);
  void setButtonImage(std::string_view key, std::string_view image);
  void setButtonToolTip(std::string_view key, std::string_view toolTip);
  void setButtonWord(std::string_view key, std::string_view word);

  // Whether words stand under the images. The user switches it with an entry of that caption, and
  // `keep` remembers it.
  struct WordsChoice {
    std::string caption = {};
    std::function<void(ButtonWords)> keep = {};
  };
  [[nodiscard]] ButtonWords words() const { return words_; }
  [[nodiscard]] const WordsChoice& wordsChoice() const { return wordsChoice_; }
  void setWords(ButtonWords words);
  void setWords(ButtonWords words, WordsChoice choice);

  // As the user does: a disabled or hidden button does nothing.
  void press(std::string_view key) const;
  Event<std::string_view> ButtonClick;

 private:
  template <class Member, class Value>
  void change(std::string_view key, Member member, const Value& value, Aspect aspect);

  std::vector<ToolButton> buttons_;
  ButtonWords words_ = ButtonWords::Shown;
  WordsChoice wordsChoice_;
};

struct Tab {
  std::string key;
  std::string caption;
};

// Tabs are found by their key; selecting another tab fires Click.
class TabStrip : public Control {
 public:
  TabStrip(Form& form, std::string_view name, std::vector<std::string> keys);

  [[nodiscard]] const std::vector<Tab>& tabs() const { return tabs_; }
  void setTabCaption(std::string_view key, std::string_view caption);
  [[nodiscard]] const std::string& selected() const { return selected_; }
  void select(std::string_view key);

  Event<> Click;

 private:
  std::vector<Tab> tabs_;
  std::string selected_;
};

// Fires Tick every `interval` milliseconds while enabled; the window's event loop drives it, tests
// call Tick.
class Timer : public Control {
 public:
  using Control::Control;
  [[nodiscard]] int interval() const { return interval_; }
  void setInterval(int milliseconds);
  Event<> Tick;

 private:
  int interval_ = 0;
};

}  // namespace forms
