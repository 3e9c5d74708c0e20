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
    if (enabled() && visible()) Click();
  }
  Event<> Click;
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
