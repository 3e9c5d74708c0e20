// A patient's warning as nobody overlooks it: a ground of its own colour, a sign, and words that
// say what it is.
#pragma once

#include <QFrame>
#include <QLabel>

#include "platform/forms/label.h"

namespace desktop {

// The control's caption is the warning, its tool-tip the word in front of it.
class WarningLabel : public QFrame {
  Q_OBJECT
 public:
  WarningLabel(forms::Label& control, QWidget* parent);

 private:
  void refresh(const forms::Label& control);

  QLabel* words_;
};

}  // namespace desktop
