#include "desktop/bind/bind_date.h"

#include <QCalendarWidget>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>

#include "desktop/bind/bind_text.h"
#include "desktop/icons.h"
#include "desktop/text.h"

namespace desktop {

namespace {

constexpr auto shown = "dd.MM.yyyy";

}  // namespace

DateEdit::DateEdit(QWidget* parent)
    : QLineEdit(parent), open_(addAction(icon("appointment"), QLineEdit::TrailingPosition)) {
  open_->setShortcut(Qt::ALT | Qt::Key_Down);
  open_->setShortcutContext(Qt::WidgetShortcut);
  connect(open_, &QAction::triggered, this, &DateEdit::showCalendar);
}

void DateEdit::nameCalendar(const QString& word) {
  open_->setText(word);
  open_->setToolTip(word + QStringLiteral(" (Alt+\u2193)"));
  for (QToolButton* button : findChildren<QToolButton*>()) button->setAccessibleName(word);
}

void DateEdit::showCalendar() {
  if (isReadOnly()) return;
  setFocus();
  QMenu menu(this);
  auto* const calendar = new QCalendarWidget(&menu);
  calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar->setFirstDayOfWeek(Qt::Monday);
  const QDate present = QDate::fromString(text(), QLatin1String(shown));
  if (present.isValid()) calendar->setSelectedDate(present);
  auto* const entry = new QWidgetAction(&menu);
  entry->setDefaultWidget(calendar);
  menu.addAction(entry);
  const auto take = [&](const QDate& date) {
    menu.close();
    emit chosen(date.toString(QLatin1String(shown)));
  };
  connect(calendar, &QCalendarWidget::clicked, &menu, take);
  connect(calendar, &QCalendarWidget::activated, &menu, take);
  calendar->setFocus();
  menu.exec(mapToGlobal(QPoint(0, height())));
}

void bind(DateEdit& edit, forms::DateBox& box) {
  Binding& binding = attach(edit, box, Follow::All, [&](forms::Aspect aspect) {
    refreshLine(edit, box, aspect);
    if (aspect == forms::Aspect::ToolTip || aspect == forms::Aspect::Caption)
      edit.nameCalendar(qs(box.calendarWord()));
  });
  listenToLine(binding, edit, box);
  QObject::connect(&edit, &DateEdit::chosen, &binding,
                   [&](const QString& date) { box.setText(utf8(date)); });
}

}  // namespace desktop
