#include "platform/forms/form.h"

#include <algorithm>
#include <utility>

namespace forms {

Control* Form::find(std::string_view controlName) const {
  const auto found =
      std::ranges::find_if(controls_, [&](const Control* c) { return c->name() == controlName; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::setCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  notify(Aspect::Caption);
}

void Form::setFont(Font font) {
  font_ = std::move(font);
  notify(Aspect::Font);
}

void Form::setActiveControl(Control& control) {
  focusMoved(&control);
  if (activeControl_ == &control) notify(Aspect::Focus);
}

void Form::focusMoved(Control* control) {
  Control* const old = std::exchange(activeControl_, control);
  if (old == control) return;
  if (old != nullptr) old->LostFocus();
  if (control != nullptr && activeControl_ == control) control->GotFocus();
}

}  // namespace forms
