#include "desktop/bind/keys.h"

#include <array>
#include <utility>

#include "desktop/text.h"

namespace desktop {

namespace {

namespace code = forms::key_code;

constexpr int otherKey = 255;
constexpr std::array<std::pair<int, int>, 19> namedKeys{{
    {Qt::Key_Backspace, code::Backspace},
    {Qt::Key_Tab, code::Tab},
    {Qt::Key_Backtab, code::Tab},
    {Qt::Key_Return, code::Enter},
    {Qt::Key_Enter, code::Enter},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, code::Escape},
    {Qt::Key_Space, code::Space},
    {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},
    {Qt::Key_End, code::End},
    {Qt::Key_Home, code::Home},
    {Qt::Key_Left, code::Left},
    {Qt::Key_Up, code::Up},
    {Qt::Key_Right, code::Right},
    {Qt::Key_Down, code::Down},
}};

int codeOf(int key) {
  for (const auto& [toolkit, number] : namedKeys) {
    if (toolkit == key) return number;
  }
  if (key == Qt::Key_Insert) return 45;
  if (key == Qt::Key_Delete) return code::Delete;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return code::F1 + key - Qt::Key_F1;
  const bool letterOrDigit =
      (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
  // Signs get a number of their own, since their ASCII codes are those of the steering keys.
  return letterOrDigit ? key : otherKey;
}

// The character that a key press types; 0 when it types none.
char32_t typedCharacter(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return code::Enter;
  const bool command = event.modifiers().testFlag(Qt::ControlModifier) !=
                       event.modifiers().testFlag(Qt::AltModifier);
  const QList<uint> typed = event.text().toUcs4();
  if (typed.size() != 1 || typed[0] < ' ' || typed[0] == 127 || command) return 0;
  return typed[0];
}

forms::Key keyOf(int key, Qt::KeyboardModifiers held) {
  return {.code = codeOf(key),
          .shift = held.testFlag(Qt::ShiftModifier),
          .control = held.testFlag(Qt::ControlModifier),
          .alt = held.testFlag(Qt::AltModifier)};
}

class KeyForwarder : public QObject {
 public:
  KeyForwarder(QObject& parent, forms::TextControl& control,
               std::function<void(const QString&)> insert)
      : QObject(&parent), control_(control), insert_(std::move(insert)) {}

  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
        return pressed(*static_cast<QKeyEvent*>(event));
      case QEvent::KeyRelease:
        released(*static_cast<QKeyEvent*>(event));
        return false;
      case QEvent::MouseButtonDblClick:
        control_.DblClick();
        return false;
      default:
        return QObject::eventFilter(watched, event);
    }
  }

 private:
  bool pressed(const QKeyEvent& event) {
    pressedKey_ = event.key();
    pressedWith_ = event.modifiers();
    const char32_t typed = typedCharacter(event);
    if (typed == 0) return false;
    char32_t kept = typed;
    control_.KeyPress(kept);
    if (kept == typed) return false;
    if (kept != 0) insert_(QString::fromUcs4(&kept, 1));
    return true;
  }

  void released(const QKeyEvent& event) {
    if (event.isAutoRepeat()) return;
    // Ctrl may come up first: a key is what it was when it went down.
    const bool same = event.key() == pressedKey_;
    control_.KeyUp(keyOf(event.key(), same ? event.modifiers() | pressedWith_ : event.modifiers()));
  }

  forms::TextControl& control_;
  std::function<void(const QString&)> insert_;
  int pressedKey_ = 0;
  Qt::KeyboardModifiers pressedWith_;
};

}  // namespace

forms::Key keyOf(const QKeyEvent& event) {
  return keyOf(event.key(), event.modifiers());
}

void forwardKeys(Binding& binding, QWidget& widget, forms::TextControl& control,
                 std::function<void(const QString&)> insert) {
  widget.installEventFilter(new KeyForwarder(binding, control, std::move(insert)));
}

}  // namespace desktop
