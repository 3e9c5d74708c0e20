#include "desktop/bind/bind_text.h"

#include <QSignalBlocker>

#include "desktop/bind/keys.h"
#include "desktop/bind/paste.h"
#include "desktop/text.h"

namespace desktop {

namespace {

using forms::Aspect;

void showText(QLineEdit& edit, const forms::TextControl& control) {
  const QString text = qs(control.text());
  if (edit.text() == text) return;
  const QSignalBlocker quiet(edit);
  edit.setText(text);
  // The beginning of a long text says more than its end.
  if (!edit.hasFocus()) edit.setCursorPosition(0);
}

void showSelection(QLineEdit& edit, const forms::TextControl& control) {
  const QString text = edit.text();
  const qsizetype start = unitsBefore(text, control.selStart());
  const qsizetype end = unitsBefore(text, control.selStart() + control.selLength());
  const QSignalBlocker quiet(edit);
  edit.setSelection(static_cast<int>(start), static_cast<int>(end - start));
  if (start == end) edit.setCursorPosition(static_cast<int>(start));
}

void reportSelection(const QLineEdit& edit, forms::TextControl& control) {
  const QString text = edit.text();
  const bool selected = edit.hasSelectedText();
  const qsizetype start = selected ? edit.selectionStart() : edit.cursorPosition();
  const std::size_t length =
      selected ? charactersBefore(edit.selectedText(), edit.selectionLength()) : 0;
  control.selectionMoved(charactersBefore(text, start), length);
}

// What the control does not take (a text beyond its length, a handler's correction) is shown as it
// stands there.
void takeLine(QLineEdit& edit, forms::TextControl& control) {
  const QPointer<QLineEdit> alive(&edit);
  const int cursor = edit.cursorPosition();
  control.setText(utf8(withoutControls(edit.text())));
  if (alive == nullptr || edit.text() == qs(control.text())) return;
  showText(edit, control);
  edit.setCursorPosition(cursor);
}

void showPlainText(QPlainTextEdit& edit, const forms::TextControl& control) {
  const QString text = qs(control.text());
  if (edit.toPlainText() == text) return;
  const int cursor = edit.textCursor().position();
  const QSignalBlocker quiet(edit);
  edit.setPlainText(text);
  if (!edit.hasFocus()) return;
  QTextCursor place = edit.textCursor();
  place.setPosition(std::min(cursor, static_cast<int>(text.size())));
  edit.setTextCursor(place);
}

void showPlainSelection(QPlainTextEdit& edit, const forms::TextControl& control) {
  const QString text = edit.toPlainText();
  QTextCursor place = edit.textCursor();
  place.setPosition(static_cast<int>(unitsBefore(text, control.selStart())));
  place.setPosition(static_cast<int>(unitsBefore(text, control.selStart() + control.selLength())),
                    QTextCursor::KeepAnchor);
  edit.setTextCursor(place);
}

void reportPlainSelection(const QPlainTextEdit& edit, forms::TextControl& control) {
  const QTextCursor place = edit.textCursor();
  const QString text = edit.toPlainText();
  const std::size_t start = charactersBefore(text, place.selectionStart());
  control.selectionMoved(start, charactersBefore(text, place.selectionEnd()) - start);
}

}  // namespace

void refreshLine(QLineEdit& edit, const forms::TextControl& control, Aspect aspect) {
  if (aspect == Aspect::Text) showText(edit, control);
  if (aspect == Aspect::Enabled) edit.setReadOnly(control.locked());
  if (aspect == Aspect::Selection && edit.hasFocus()) showSelection(edit, control);
}

void listenToLine(Binding& binding, QLineEdit& edit, forms::TextControl& control) {
  QObject::connect(&edit, &QLineEdit::textEdited, &binding, [&] { takeLine(edit, control); });
  QObject::connect(&edit, &QLineEdit::selectionChanged, &binding,
                   [&] { reportSelection(edit, control); });
  QObject::connect(&edit, &QLineEdit::cursorPositionChanged, &binding,
                   [&] { reportSelection(edit, control); });
}

void bind(QLineEdit& edit, forms::TextBox& box) {
  if (box.echo() == forms::TextEcho::Password) edit.setEchoMode(QLineEdit::Password);
  Binding& binding =
      attach(edit, box, Follow::All, [&](Aspect aspect) { refreshLine(edit, box, aspect); });
  listenToLine(binding, edit, box);
  forwardKeys(binding, edit, box, [&](const QString& typed) { edit.insert(typed); });
}

void bind(QPlainTextEdit& edit, forms::TextBox& box) {
  edit.setTabChangesFocus(true);
  Binding& binding = attach(edit, box, Follow::All, [&](Aspect aspect) {
    if (aspect == Aspect::Text) showPlainText(edit, box);
    if (aspect == Aspect::Enabled) edit.setReadOnly(box.locked());
    if (aspect == Aspect::Selection && edit.hasFocus()) showPlainSelection(edit, box);
  });
  QObject::connect(&edit, &QPlainTextEdit::textChanged, &binding, [&] {
    box.setText(utf8(withoutControls(edit.toPlainText())));
    showPlainText(edit, box);
  });
  QObject::connect(&edit, &QPlainTextEdit::cursorPositionChanged, &binding,
                   [&] { reportPlainSelection(edit, box); });
  forwardKeys(binding, edit, box, [&](const QString& typed) { edit.insertPlainText(typed); });
}

}  // namespace desktop
