#include "platform/forms/control.h"

#include <utility>

#include "platform/forms/form.h"

namespace forms {

Control::Control(Form& form, std::string_view name) : form_(form), name_(name) {
  form.add(*this);
}

void Control::setCaption(std::string caption) {
  if (caption == caption_) return;
  caption_ = std::move(caption);
  notify(Aspect::Caption);
  captionChanged();
}

void Control::setToolTip(std::string toolTip) {
  if (toolTip == toolTip_) return;
  toolTip_ = std::move(toolTip);
  notify(Aspect::ToolTip);
}

void Control::setEnabled(bool enabled) {
  if (enabled == enabled_) return;
  enabled_ = enabled;
  notify(Aspect::Enabled);
}

void Control::setVisible(bool visible) {
  if (visible == visible_) return;
  visible_ = visible;
  notify(Aspect::Visible);
}

void Control::setFocus() {
  form_.setActiveControl(*this);
}

}  // namespace forms
