#include "desktop/bind/bind_combo.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include "desktop/bind/bind_text.h"
#include "desktop/bind/keys.h"
#include "desktop/text.h"

namespace desktop {

namespace {

using forms::Aspect;

constexpr int shownCharacters = 12;

void showItems(QComboBox& combo, const forms::ComboBox& control) {
  QStringList items;
  for (const std::string& item : control.items()) items << qs(item);
  const QSignalBlocker quiet(combo);
  combo.clear();
  combo.addItems(items);
}

void showRow(QComboBox& combo, const forms::ComboBox& control) {
  const QSignalBlocker quiet(combo);
  QLineEdit* const line = combo.lineEdit();
  const int cursor = line == nullptr ? 0 : line->cursorPosition();
  if (combo.currentIndex() != control.listIndex()) combo.setCurrentIndex(control.listIndex());
  if (line == nullptr) return;
  refreshLine(*line, control, Aspect::Text);
  // The row put its own text into the line, and the cursor behind it.
  if (line->hasFocus()) line->setCursorPosition(cursor);
}

void refresh(QComboBox& combo, const forms::ComboBox& control, Aspect aspect) {
  if (aspect == Aspect::Items) showItems(combo, control);
  if (aspect == Aspect::Items || aspect == Aspect::Text || aspect == Aspect::Selection)
    showRow(combo, control);
  if (!combo.isEditable()) return;
  refreshLine(*combo.lineEdit(), control, aspect);
  combo.lineEdit()->setAccessibleName(combo.accessibleName());
}

// A wheel that scrolls the page must not change a value that it passes over.
class WheelGuard : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) return false;
    event->ignore();
    return true;
  }
};

void makeEditable(QComboBox& combo) {
  combo.setEditable(true);
  combo.setCompleter(nullptr);
  combo.setInsertPolicy(QComboBox::NoInsert);
}

}  // namespace

void bind(QComboBox& combo, forms::ComboBox& control) {
  if (control.style() == forms::ComboStyle::Editable) makeEditable(combo);
  combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo.setMinimumContentsLength(shownCharacters);
  combo.setFocusPolicy(Qt::StrongFocus);
  combo.installEventFilter(new WheelGuard(&combo));
  Binding& binding =
      attach(combo, control, Follow::All, [&](Aspect aspect) { refresh(combo, control, aspect); });
  QObject::connect(&combo, &QComboBox::activated, &binding,
                   [&](int row) { control.setListIndex(row); });
  if (!combo.isEditable()) return;
  QLineEdit& line = *combo.lineEdit();
  listenToLine(binding, line, control);
  // The focus is the box's own: it hands the keys to its line behind every filter of the line.
  forwardKeys(binding, combo, control, [&line](const QString& typed) { line.insert(typed); });
}

}  // namespace desktop
