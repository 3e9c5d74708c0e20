// A headless window: its controls in order of declaration, its caption and font, and the events of
// its life.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/font.h"

namespace forms {

enum class WindowState { Normal, Minimised, Maximised };

class Form {
 public:
  explicit Form(std::string_view name) : name_(name) {}
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  [[nodiscard]] const std::string& name() const { return name_; }
  [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
  // The control of that name, letter for letter; null when there is none.
  [[nodiscard]] Control* find(std::string_view controlName) const;

  [[nodiscard]] const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  [[nodiscard]] const Font& font() const { return font_; }
  void setFont(Font font);

  [[nodiscard]] Control* activeControl() const { return activeControl_; }
  // As if the user had moved the focus; the window follows.
  void setActiveControl(Control& control);
  // The window reports that the user moved the focus: LostFocus of the old control, then GotFocus
  // of the new.
  void focusMoved(Control* control);

  // Called by the host around showing: Load before the window exists, Activate each time it comes
  // to the front. QueryUnload may veto closing with false; Unload stores what is to be kept.
  virtual void Load() {}
  virtual void Activate() {}
  [[nodiscard]] virtual bool QueryUnload() { return true; }
  virtual void Unload() {}
  // Esc is about to close the form; false keeps it. Closing follows with QueryUnload.
  [[nodiscard]] virtual bool mayEscape() { return true; }

  // In device-independent pixels; 0 until a window or a setting gave a size.
  int width = 0;
  int height = 0;
  WindowState windowState = WindowState::Normal;

  enum class Aspect { Caption, Font, Focus, Controls };
  // The window that shows this form, if any.
  std::function<void(Aspect)> observer;

 private:
  friend class Control;
  void add(Control& control) { controls_.push_back(&control); }
  void notify(Aspect aspect) const {
    if (observer) observer(aspect);
  }

  std::string name_;
  std::string caption_;
  Font font_;
  std::vector<Control*> controls_;
  Control* activeControl_ = nullptr;
};

}  // namespace forms
