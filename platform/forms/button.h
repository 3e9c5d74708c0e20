// Controls that are pressed or ticked.
#pragma once

#include <string>
#include <string_view>

#include "platform/forms/control.h"

namespace forms {

class CommandButton : public Control {
 public:
  using Control::Control;
  // As the user does: a disabled or hidden button does nothing.
  void press() {
    if (usable()) Click();
  }
  [[nodiscard]] bool usable() const { return enabled() && visible(); }
  // Enter in a field or list of the form stands for it, while it can be pressed.
  [[nodiscard]] bool isDefault() const { return default_; }
  void setDefault() { default_ = true; }
  Event<> Click;

 private:
  bool default_ = false;
};

// A different value fires Click.
class CheckBox : public Control {
 public:
  using Control::Control;
  [[nodiscard]] bool value() const { return value_; }
  void setValue(bool value);
  // Runs before the user's press changes the value; a handler that sets `eaten` leaves the box as
  // it is.
  Event<bool&> MouseDown;
  Event<> Click;

 private:
  bool value_ = false;
};

// Of the option buttons with one group name on a form at most one is on. Turning one on turns the
// others off in silence and fires Click of the one.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string_view name, std::string_view group)
      : Control(form, name), group_(group) {}
  [[nodiscard]] const std::string& group() const { return group_; }
  [[nodiscard]] bool value() const { return value_; }
  void setValue(bool value);
  Event<> Click;

 private:
  void turnOffSiblings();

  std::string group_;
  bool value_ = false;
};

}  // namespace forms
