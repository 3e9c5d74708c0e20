// A date box: typed like any text, or chosen from a calendar.
#pragma once

#include <QLineEdit>

#include "desktop/bind/binding.h"
#include "platform/forms/text_control.h"

namespace desktop {

class DateEdit : public QLineEdit {
  Q_OBJECT
 public:
  explicit DateEdit(QWidget* parent);

 signals:
  void chosen(const QString& date);

 private:
  void showCalendar();
};

void bind(DateEdit& edit, forms::DateBox& box);

}  // namespace desktop
