// The names that begin with what is typed, dropped under the name field, which keeps the focus.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

#include "desktop/hint_list.h"
#include "platform/forms/list_control.h"

namespace desktop {

class ListBoxModel;

// Down and Up move the mark, Enter takes the marked name, Esc closes. The list's row is set by
// taking a name only.
class NameList : public QFrame {
  Q_OBJECT
 public:
  // Lies over the window of the field; the field owns its events to it.
  NameList(forms::ListBox& list, QLineEdit& field);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void refresh(forms::Aspect aspect);
  void place();
  [[nodiscard]] int rowsThatFit(int below, int row) const;
  bool steer(int key);
  bool keyPressed(int key);
  bool keyReleased(int key);
  void take(int row);

  forms::ListBox& list_;
  QLineEdit& field_;
  HintList* view_;
  QLabel* count_;
  ListBoxModel* model_;
  int rowsShown_ = 1;
  int eatenKey_ = 0;  // its release belongs to this list too
};

}  // namespace desktop
