#include "desktop/bind/bind_button.h"

#include <QButtonGroup>
#include <QKeyEvent>
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

// Enter presses the button that has the focus, whichever one the dialog would stand for.
class EnterPresses : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    static_cast<QAbstractButton*>(watched)->click();
    return true;
  }
};

// The option buttons of one group are one for the arrow keys and for a screen reader too.
QButtonGroup& groupOf(QRadioButton& button, const forms::OptionButton& control) {
  const QString name = qs(control.group()) + QStringLiteral(".group");
  QWidget& window = *button.window();
  if (auto* const known = window.findChild<QButtonGroup*>(name)) return *known;
  auto* const group = new QButtonGroup(&window);
  group->setObjectName(name);
  return *group;
}

// A group of the toolkit does not let go of its last choice by itself; a form may have none.
void showOption(QRadioButton& button, QButtonGroup& group, bool chosen) {
  group.setExclusive(chosen);
  showChecked(button, chosen);
  group.setExclusive(true);
}

}  // namespace

void bind(QPushButton& button, forms::CommandButton& control) {
  button.setAutoDefault(false);
  Binding& binding = attach(button, control, Follow::All,
                            [&](Aspect aspect) { refreshButton(button, control, aspect); });
  button.installEventFilter(new EnterPresses(&binding));
  QObject::connect(&button, &QPushButton::clicked, &binding, [&] { control.press(); });
}

void bind(QToolButton& button, forms::CommandButton& control) {
  Binding& binding = attach(button, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Caption && control.toolTip().empty())
      button.setToolTip(qs(control.caption()));
    refreshButton(button, control, aspect);
  });
  button.installEventFilter(new EnterPresses(&binding));
  QObject::connect(&button, &QToolButton::clicked, &binding, [&] { control.press(); });
}

void bind(QCheckBox& box, forms::CheckBox& control) {
  Binding& binding = attach(box, control, Follow::All,
                            [&](Aspect aspect) { refreshButton(box, control, aspect); });
  QObject::connect(&box, &QCheckBox::clicked, &binding, [&] { userToggled(box, control); });
}

void bind(QRadioButton& button, forms::OptionButton& control) {
  QButtonGroup& group = groupOf(button, control);
  group.addButton(&button);
  Binding& binding = attach(button, control, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Caption) button.setText(qs(control.caption()));
    if (aspect == Aspect::Selection) showOption(button, group, control.value());
  });
  QObject::connect(&button, &QRadioButton::clicked, &binding, [&] {
    control.setValue(true);
    showOption(button, group, control.value());
  });
}

}  // namespace desktop
