// A date box: typed like any text, or chosen from a calendar.
#pragma once

#include <QAction>
#include <QLineEdit>

#include "desktop/bind/binding.h"
#include "platform/forms/text_control.h"

namespace desktop {

class DateEdit : public QLineEdit {
  Q_OBJECT
 public:
  explicit DateEdit(QWidget* parent);

  // What the button that opens the calendar is called.
  void nameCalendar(const QString& word);

 signals:
  void chosen(const QString& date);

 private:
  void showCalendar();

  QAction* open_;
};

void bind(DateEdit& edit, forms::DateBox& box);

}  // namespace desktop
