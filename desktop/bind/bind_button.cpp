#include "desktop/bind/bind_button.h"

#include <QSignalBlocker>

#include "desktop/text.h"

namespace desktop {

namespace {

using forms::Aspect;

void showChecked(QAbstractButton& button, bool checked) {
  const QSignalBlocker quiet(button);
  button.setChecked(checked);
}

template <class Control>
void refreshButton(QAbstractButton& button, const Control& control, Aspect aspect) {
  if (aspect == Aspect::Caption) button.setText(qs(control.caption()));
  if constexpr (requires { control.value(); }) {
    if (aspect == Aspect::Selection) showChecked(button, control.value());
  }
}

// The control's handlers may refuse the user's press; the box then shows what it showed before.
void userToggled(QCheckBox& box, forms::CheckBox& control) {
  const QPointer<QCheckBox> alive(&box);
  const bool wanted = box.isChecked();
  showChecked(box, control.value());
  bool eaten = false;
  control.MouseDown(eaten);
  if (!eaten) control.setValue(wanted);
  if (alive != nullptr) showChecked(box, control.value());
}

}  // namespace

void bind(QPushButton& button, forms::CommandButton& control) {
  button.setAutoDefault(false);
  Binding& binding = attach(button, control, Follow::All,
                            [&](Aspect aspect) { refreshButton(button, control, aspect); });
  QObject::connect(&button, &QPushButton::clicked, &binding, [&] { control.press(); });
}

void bind(QToolButton& button, forms::CommandButton& control) {
  Binding& binding = attach(button, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Caption && control.toolTip().empty())
      button.setToolTip(qs(control.caption()));
    refreshButton(button, control, aspect);
  });
  QObject::connect(&button, &QToolButton::clicked, &binding, [&] { control.press(); });
}

void bind(QCheckBox& box, forms::CheckBox& control) {
  Binding& binding = attach(box, control, Follow::All,
                            [&](Aspect aspect) { refreshButton(box, control, aspect); });
  QObject::connect(&box, &QCheckBox::clicked, &binding, [&] { userToggled(box, control); });
}

void bind(QRadioButton& button, forms::OptionButton& control) {
  // The groups are the controls' own: that of the toolkit cannot show that none is chosen.
  button.setAutoExclusive(false);
  Binding& binding = attach(button, control, Follow::All,
                            [&](Aspect aspect) { refreshButton(button, control, aspect); });
  QObject::connect(&button, &QRadioButton::clicked, &binding, [&] {
    control.setValue(true);
    showChecked(button, control.value());
  });
}

}  // namespace desktop
