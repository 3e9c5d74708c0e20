#include "desktop/send_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <array>
#include <utility>

#include "desktop/text.h"

namespace desktop {

namespace {

constexpr std::array<std::pair<std::string_view, QKeySequence::StandardKey>, 4> commands{{
    {"^z", QKeySequence::Undo},
    {"+{DELETE}", QKeySequence::Cut},
    {"^{INSERT}", QKeySequence::Copy},
    {"+{INSERT}", QKeySequence::Paste},
}};

constexpr std::array<std::pair<std::string_view, Qt::Key>, 9> namedKeys{{
    {"{TAB}", Qt::Key_Tab},
    {"{ENTER}", Qt::Key_Return},
    {"{ESC}", Qt::Key_Escape},
    {"{DELETE}", Qt::Key_Delete},
    {"{INSERT}", Qt::Key_Insert},
    {"{HOME}", Qt::Key_Home},
    {"{END}", Qt::Key_End},
    {"{UP}", Qt::Key_Up},
    {"{DOWN}", Qt::Key_Down},
}};

void send(QWidget& widget, QKeyCombination keys, const QString& text) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, keys.key(), keys.keyboardModifiers(), text);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

Qt::KeyboardModifier modifierOf(char sign) {
  switch (sign) {
    case '^':
      return Qt::ControlModifier;
    case '+':
      return Qt::ShiftModifier;
    case '%':
      return Qt::AltModifier;
    default:
      return Qt::NoModifier;
  }
}

void sendOne(QWidget& widget, Qt::KeyboardModifiers modifiers, std::string_view key) {
  for (const auto& [name, code] : namedKeys) {
    if (key == name) return send(widget, QKeyCombination(modifiers, code), {});
  }
  const QString text = qs(key);
  const auto code = static_cast<Qt::Key>(text.isEmpty() ? 0 : text[0].toUpper().unicode());
  send(widget, QKeyCombination(modifiers, code), modifiers == Qt::NoModifier ? text : QString());
}

}  // namespace

void typeKeys(std::string_view keys) {
  QWidget* const widget = QApplication::focusWidget();
  if (widget == nullptr) return;
  for (const auto& [notation, command] : commands) {
    const QList<QKeySequence> bound = QKeySequence::keyBindings(command);
    if (keys == notation && !bound.isEmpty()) return send(*widget, bound.first()[0], {});
  }
  Qt::KeyboardModifiers modifiers;
  while (!keys.empty() && modifierOf(keys.front()) != Qt::NoModifier) {
    modifiers |= modifierOf(keys.front());
    keys.remove_prefix(1);
  }
  sendOne(*widget, modifiers, keys);
}

}  // namespace desktop
