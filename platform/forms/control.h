// What every control of a form has: a name, a caption, and whether it can be seen and used.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/forms/event.h"

namespace forms {

class Form;

// What changed on a control, for the widget that shows it.
enum class Aspect {
  Text,
  Caption,
  ToolTip,
  Enabled,
  Visible,
  Items,
  Selection,
  Image,
  Paint,
  Range
};

// A control registers with its form at construction; the order of declaration is the tab order and
// the order of the generic snapshot. Controls live as members of their form and are never moved.
class Control {
 public:
  Control(Form& form, std::string_view name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  [[nodiscard]] Form& form() const { return form_; }
  [[nodiscard]] const std::string& name() const { return name_; }

  // The words on the control or, for a field, in front of it. "&" marks the mnemonic.
  [[nodiscard]] const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  [[nodiscard]] const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string toolTip);
  [[nodiscard]] bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  [[nodiscard]] bool visible() const { return visible_; }
  void setVisible(bool visible);

  // Asks the window to move the focus here; the form remembers it as its active control.
  void setFocus();

  // The Text property of the generic snapshot; empty for a control that has none.
  [[nodiscard]] virtual std::string snapshotText() const { return {}; }

  Event<> GotFocus;
  Event<> LostFocus;

  // The widget that shows this control, if any. At most one at a time.
  std::function<void(Aspect)> observer;

 protected:
  void notify(Aspect aspect) const {
    if (observer) observer(aspect);
  }
  virtual void captionChanged() {}

 private:
  Form& form_;
  std::string name_;
  std::string caption_;
  std::string toolTip_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace forms
