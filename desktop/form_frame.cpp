#include "desktop/form_frame.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <utility>

#include "desktop/bind/binding.h"
#include "desktop/caption_marks.h"
#include "desktop/screen_room.h"
#include "desktop/text.h"
#include "platform/forms/button.h"
#include "platform/forms/menu.h"

namespace desktop {

namespace {

// The button that Esc stands for, where a form has one.
forms::CommandButton* cancelButton(const forms::Form& form) {
  for (const char* name : {"Butİptal", "butkapat"}) {
    auto* const button = dynamic_cast<forms::CommandButton*>(form.find(name));
    if (button != nullptr && button->usable()) return button;
  }
  return nullptr;
}

// The button that Enter stands for now; a form may have one per page.
forms::CommandButton* defaultButton(const forms::Form& form) {
  for (forms::Control* control : form.controls()) {
    auto* const button = dynamic_cast<forms::CommandButton*>(control);
    if (button != nullptr && button->isDefault() && button->usable()) return button;
  }
  return nullptr;
}

// The toolkit does not listen for the keys of a disabled entry.
forms::MenuItem* disabledEntry(const forms::Form& form, const QKeyEvent& event) {
  const QKeySequence pressed(event.keyCombination());
  for (forms::Control* control : form.controls()) {
    auto* const entry = dynamic_cast<forms::MenuItem*>(control);
    if (entry == nullptr || entry->shortcut().empty() || entry->enabled() || !entry->visible())
      continue;
    if (QKeySequence(qs(entry->shortcut()), QKeySequence::PortableText) == pressed) return entry;
  }
  return nullptr;
}

bool isSingleLine(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget) != nullptr;
}

bool isList(const QWidget* widget) {
  return qobject_cast<const QAbstractItemView*>(widget) != nullptr;
}

QFont fontOf(const forms::Font& font) {
  QFont shown = QApplication::font();
  if (!font.name.empty()) shown.setFamily(qs(font.name));
  if (font.size > 0) shown.setPointSize(font.size);
  shown.setBold(font.bold);
  shown.setItalic(font.italic);
  shown.setUnderline(font.underline);
  shown.setStrikeOut(font.strikethrough);
  return shown;
}

}  // namespace

FormFrame::FormFrame(QWidget& window, forms::Form& form, EscapeKey escape)
    : QObject(&window), window_(window), form_(form), escape_(escape) {
  window.setObjectName(qs(form.name()));
  window.installEventFilter(this);
  form.observer = [this](forms::Form::Aspect aspect) { observe(aspect); };
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* now) { focusChanged(now); });
  observe(forms::Form::Aspect::Caption);
  showFont();
}

FormFrame::~FormFrame() {
  if (!closed_) form_.observer = nullptr;
}

void FormFrame::observe(forms::Form::Aspect aspect) {
  if (aspect == forms::Form::Aspect::Caption) window_.setWindowTitle(qs(form_.caption()));
  if (aspect == forms::Form::Aspect::Font) showFont();
  if (aspect == forms::Form::Aspect::Focus) moveFocus();
}

// A form without a font of its own keeps the system's.
void FormFrame::showFont() {
  if (form_.font() != forms::Font()) window_.setFont(fontOf(form_.font()));
}

void FormFrame::moveFocus() {
  if (form_.activeControl() == nullptr) return;
  auto* const widget = window_.findChild<QWidget*>(qs(form_.activeControl()->name()));
  if (widget != nullptr) widget->setFocus(Qt::OtherFocusReason);
}

void FormFrame::focusChanged(QWidget* now) {
  if (now == nullptr || closed_ || !window_.isAncestorOf(now) || now->window() != &window_) return;
  // What the mouse went to is seen already, and must not move under it.
  if (QApplication::mouseButtons() == Qt::NoButton) bringIntoView(*now);
  if (forms::Control* const control = controlOf(now)) form_.focusMoved(control);
}

void FormFrame::show() {
  fitToScreen(window_);
  const bool kept = form_.width > 0 && form_.height > 0;
  const QSize wanted = kept ? QSize(form_.width, form_.height) : window_.size();
  if (kept || window_.testAttribute(Qt::WA_Resized))
    window_.resize(wanted.boundedTo(contentRoom(window_)));
  switch (form_.windowState) {
    case forms::WindowState::Maximised:
      window_.showMaximized();
      break;
    case forms::WindowState::Minimised:
      window_.showMinimized();
      break;
    case forms::WindowState::Normal:
      window_.show();
      break;
  }
  keepOnScreen(window_);
  window_.activateWindow();
  moveFocus();
}

bool FormFrame::close() {
  if (closed_) return true;
  if (!form_.QueryUnload()) return false;
  form_.Unload();
  closed_ = true;
  form_.observer = nullptr;
  releaseBindings(window_);
  window_.hide();
  emit closed();
  return true;
}

bool FormFrame::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &window_ || closed_) return false;
  switch (event->type()) {
    case QEvent::Close:
      static_cast<QCloseEvent*>(event)->setAccepted(close());
      return true;
    case QEvent::WindowActivate:
      firstActivated();
      form_.Activate();
      markCaptions(window_);
      return false;
    case QEvent::Resize:
    case QEvent::WindowStateChange:
      sizeChanged();
      return false;
    case QEvent::KeyPress:
      return keyPressed(*static_cast<QKeyEvent*>(event));
    default:
      return false;
  }
}

// The frame around a window is known once it stands on the screen.
void FormFrame::firstActivated() {
  if (!std::exchange(wasActive_, true)) keepOnScreen(window_);
}

// Keys that no widget wanted arrive here.
bool FormFrame::keyPressed(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Alt) markCaptions(window_);
  if (event.key() == Qt::Key_Escape) return escape();
  if (forms::MenuItem* const entry = disabledEntry(form_, event)) return entry->Refused(), true;
  const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  QWidget* const focus = window_.focusWidget();
  if (!enter) return false;
  forms::CommandButton* const button = defaultButton(form_);
  if (button != nullptr && (isSingleLine(focus) || isList(focus))) return button->press(), true;
  if (!isSingleLine(focus)) return false;
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QCoreApplication::sendEvent(focus, &tab);
  return true;
}

bool FormFrame::escape() {
  if (escape_ == EscapeKey::Stays) return false;
  if (!form_.mayEscape()) return true;
  if (forms::CommandButton* const cancel = cancelButton(form_)) {
    cancel->press();
  } else {
    window_.close();
  }
  return true;
}

void FormFrame::sizeChanged() {
  const Qt::WindowStates state = window_.windowState();
  form_.windowState = state.testFlag(Qt::WindowMinimized)   ? forms::WindowState::Minimised
                      : state.testFlag(Qt::WindowMaximized) ? forms::WindowState::Maximised
                                                            : forms::WindowState::Normal;
  // The size to come back to is the one before the window filled the screen.
  if (!window_.isVisible() || form_.windowState != forms::WindowState::Normal) return;
  form_.width = window_.width();
  form_.height = window_.height();
}

}  // namespace desktop
