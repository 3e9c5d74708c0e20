// What every window of a form does, whatever it looks like: caption, focus, size, the usual keys,
// closing.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>

#include "platform/forms/form.h"

namespace desktop {

// Lives as a child of the window and serves it until the window is closed. A window closes in this
// order: the form may veto, stores what is to be kept, the ties to its controls end, the window
// goes, `closed` is called.
class FormFrame : public QObject {
  Q_OBJECT
 public:
  enum class EscapeKey { Closes, Stays };

  FormFrame(QWidget& window, forms::Form& form, EscapeKey escape);
  ~FormFrame() override;

  [[nodiscard]] forms::Form& form() const { return form_; }
  [[nodiscard]] QWidget& window() const { return window_; }
  // Shows the window with the size and state that the form asks for, and never larger than its
  // screen: what does not fit scrolls.
  void show();
  // As the user does; false when the form vetoed.
  bool close();
  [[nodiscard]] bool isClosed() const { return closed_; }

 signals:
  void closed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void observe(forms::Form::Aspect aspect);
  void showFont();
  void moveFocus();
  void focusChanged(QWidget* now);
  bool keyPressed(const QKeyEvent& event);
  bool escape();
  void sizeChanged();
  void firstActivated();

  QWidget& window_;
  forms::Form& form_;
  EscapeKey escape_;
  bool closed_ = false;
  bool wasActive_ = false;
};

}  // namespace desktop
