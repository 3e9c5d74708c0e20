#include "desktop/bind/binding.h"

#include "desktop/text.h"
#include "platform/forms/text_control.h"

namespace desktop {

namespace {

constexpr forms::Aspect everyAspect[] = {
    forms::Aspect::Caption, forms::Aspect::ToolTip,   forms::Aspect::Range, forms::Aspect::Items,
    forms::Aspect::Text,    forms::Aspect::Selection, forms::Aspect::Image, forms::Aspect::Paint,
    forms::Aspect::Enabled, forms::Aspect::Visible};

// A value is worth nothing without its unit.
QString spokenName(const forms::Control& control) {
  const auto* const text = dynamic_cast<const forms::TextControl*>(&control);
  const QString words =
      withoutMnemonic(qs(control.caption().empty() ? control.toolTip() : control.caption()));
  if (text == nullptr || text->unit().empty()) return words;
  return words.isEmpty() ? qs(text->unit()) : words + QStringLiteral(", ") + qs(text->unit());
}

void applyCommon(QWidget& widget, const forms::Control& control, Follow follow,
                 forms::Aspect aspect) {
  if (aspect == forms::Aspect::Enabled) widget.setEnabled(control.enabled());
  if (aspect == forms::Aspect::Visible && follow == Follow::All)
    widget.setVisible(control.visible());
  if (aspect == forms::Aspect::ToolTip) widget.setToolTip(qs(control.toolTip()));
  if (aspect == forms::Aspect::ToolTip || aspect == forms::Aspect::Caption) {
    widget.setAccessibleName(spokenName(control));
  }
}

}  // namespace

Binding::Binding(QObject& view, forms::Control& control, Refresh refresh)
    : QObject(&view), control_(control), refresh_(std::move(refresh)) {
  view.setObjectName(qs(control.name()));
  for (const forms::Aspect aspect : everyAspect) refresh_(aspect);
  control_.observer = [this](forms::Aspect aspect) { observe(aspect); };
}

Binding::~Binding() {
  control_.observer = nullptr;
}

void Binding::observe(forms::Aspect aspect) {
  refresh_(aspect);
  refreshCaptionLabel(aspect);
}

void Binding::setCaptionLabel(QLabel& label, QWidget& field) {
  captionLabel_ = &label;
  label.setBuddy(&field);
  for (const forms::Aspect aspect : everyAspect) refreshCaptionLabel(aspect);
}

// A text that is set anew has lost the mark that the window gave it.
void Binding::refreshCaptionLabel(forms::Aspect aspect) {
  if (captionLabel_ == nullptr) return;
  if (aspect == forms::Aspect::Caption) captionLabel_->setText(qs(control_.caption()));
  if (aspect == forms::Aspect::Visible) captionLabel_->setVisible(control_.visible());
  if (aspect == forms::Aspect::Enabled) captionLabel_->setEnabled(control_.enabled());
}

Binding& attach(QWidget& widget, forms::Control& control, Follow follow, Binding::Refresh refresh) {
  auto both = [&widget, &control, follow, refresh = std::move(refresh)](forms::Aspect aspect) {
    applyCommon(widget, control, follow, aspect);
    refresh(aspect);
  };
  return *new Binding(widget, control, std::move(both));
}

Binding* bindingOf(const QObject& view) {
  return view.findChild<Binding*>(QString(), Qt::FindDirectChildrenOnly);
}

forms::Control* controlOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (const Binding* const binding = bindingOf(*widget)) return &binding->control();
    if (widget->isWindow()) break;
  }
  return nullptr;
}

void showCaption(QLabel& label, QWidget& field) {
  if (Binding* const binding = bindingOf(field)) binding->setCaptionLabel(label, field);
}

void releaseBindings(QObject& window) {
  qDeleteAll(window.findChildren<Binding*>());
}

}  // namespace desktop
