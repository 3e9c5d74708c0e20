// The tie between a widget and the control that it shows.
#pragma once

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/forms/control.h"

namespace desktop {

// Lives as a child of the view; observes the control until one of the two goes. Every connection
// and event filter of a view to its control has its binding as context, so that releasing the
// binding ends them all.
class Binding : public QObject {
  Q_OBJECT
 public:
  using Refresh = std::function<void(forms::Aspect)>;

  Binding(QObject& view, forms::Control& control, Refresh refresh);
  ~Binding() override;

  [[nodiscard]] forms::Control& control() const { return control_; }
  // The label in front of a field: its text, visibility and mnemonic follow the field's control.
  void setCaptionLabel(QLabel& label, QWidget& field);

 private:
  void observe(forms::Aspect aspect);
  void refreshCaptionLabel(forms::Aspect aspect);

  forms::Control& control_;
  Refresh refresh_;
  QPointer<QLabel> captionLabel_;
};

// What of the control the binding applies to the widget by itself. A page of a stack is shown by
// its stack.
enum class Follow { All, AllButVisible };

// Names the widget after the control and keeps what all widgets have in common: enabled, visible,
// tool-tip and the name that a screen reader says. `refresh` draws the rest; it is called once for
// every aspect at the start.
Binding& attach(QWidget& widget, forms::Control& control, Follow follow, Binding::Refresh refresh);

// The binding of a widget, or null.
[[nodiscard]] Binding* bindingOf(const QObject& view);
// The control that a widget, or the nearest of its parents, shows; null when there is none.
[[nodiscard]] forms::Control* controlOf(const QWidget* widget);
// Puts the caption of the field's control into the label.
void showCaption(QLabel& label, QWidget& field);
// Ends every tie below a window that is about to go, while its controls are still there.
void releaseBindings(QObject& window);

}  // namespace desktop
