#include "platform/forms/button.h"

#include <utility>

#include "platform/forms/form.h"

namespace forms {

void CheckBox::setValue(bool value) {
  if (std::exchange(value_, value) == value) return;
  notify(Aspect::Selection);
  Click();
}

void OptionButton::setValue(bool value) {
  if (std::exchange(value_, value) == value) return;
  notify(Aspect::Selection);
  if (!value) return;
  turnOffSiblings();
  Click();
}

void OptionButton::turnOffSiblings() {
  for (Control* control : form().controls()) {
    auto* const option = dynamic_cast<OptionButton*>(control);
    if (option == nullptr || option == this || option->group_ != group_ || !option->value_)
      continue;
    option->value_ = false;
    option->notify(Aspect::Selection);
  }
}

}  // namespace forms
