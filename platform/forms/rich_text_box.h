// The rich-text control: an editor whose changes the screen and the widget hear of.
#pragma once

#include <string>

#include "platform/forms/control.h"
#include "platform/richtext/editor.h"

namespace forms {

class RichTextBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const richtext::Editor& editor() const { return editor_; }

  // A change of content or format; fires Change.
  template <class Action>
  void edit(Action action) {
    action(editor_);
    notify(Aspect::Text);
    Change();
  }
  // A move of the selection only; fires SelChange.
  void select(std::size_t start, std::size_t length) {
    editor_.select(start, length);
    notify(Aspect::Selection);
    SelChange();
  }

  [[nodiscard]] std::string snapshotText() const override { return editor_.text(); }

  Event<> Change;
  Event<> SelChange;

 private:
  richtext::Editor editor_;
};

}  // namespace forms
