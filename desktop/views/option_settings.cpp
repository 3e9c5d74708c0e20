// The Options screen's settings, grouped in boxes.
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "desktop/bind/bind_label.h"
#include "desktop/bind/bind_text.h"
#include "desktop/layout.h"
#include "desktop/short_line.h"
#include "desktop/text.h"
#include "desktop/views/option_view.h"

namespace desktop {

namespace {

constexpr int shortField = 10;
constexpr int indentation = 22;  // under the words of a check box

// A box around what belongs together, with its title.
QVBoxLayout* box(QWidget& page, forms::Panel& panel) {
  auto* const group = new QGroupBox(&page);
  bind(*group, panel);
  auto* const column = new QVBoxLayout(group);
  column->setContentsMargins(gap::large, gap::normal, gap::large, gap::normal);
  column->setSpacing(gap::small);
  page.layout()->addWidget(group);
  return column;
}

void addTo(QVBoxLayout& column, forms::Control& control, int indent = 0) {
  auto* const row = new QHBoxLayout;
  row->addSpacing(indent);
  row->addWidget(makeWidget(control, *column.parentWidget()));
  row->addStretch(1);
  column.addLayout(row);
}

QWidget* shortWidget(forms::TextControl& field, QWidget& parent) {
  if (auto* const box = dynamic_cast<forms::TextBox*>(&field)) {
    auto* const line = new ShortLine(shortField, &parent);
    bind(static_cast<QLineEdit&>(*line), *box);
    return line;
  }
  QWidget* const combo = makeWidget(field, parent);
  static_cast<QComboBox*>(combo)->setMinimumContentsLength(shortField / 2);
  combo->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  return combo;
}

void addShortFields(QVBoxLayout& column, std::initializer_list<forms::TextControl*> fields,
                    int indent = 0) {
  auto* const grid = new QGridLayout;
  grid->setContentsMargins(indent, 0, 0, 0);
  grid->setHorizontalSpacing(gap::normal);
  grid->setVerticalSpacing(gap::small);
  int line = 0;
  for (forms::TextControl* field : fields) {
    QWidget* const widget = shortWidget(*field, *column.parentWidget());
    grid->addWidget(captionFor(*widget), line, 0);
    grid->addWidget(widget, line++, 1);
  }
  grid->setColumnStretch(2, 1);
  column.addLayout(grid);
}

QWidget* languages(shell::FrmOption& form, QWidget& page) {
  auto* const line = new QWidget(&page);
  auto* const row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap::large);
  row->addWidget(makeWidget(form.OptTR, *line));
  row->addWidget(makeWidget(form.OptGB, *line));
  row->addStretch(1);
  return line;
}

}  // namespace

QWidget* settingsPage(shell::FrmOption& form, QWidget& parent) {
  auto* const page = new QWidget(&parent);
  bind(*page, form.PAyarlar, Follow::AllButVisible);
  auto* const column = new QVBoxLayout(page);
  column->setContentsMargins(gap::large, gap::large, gap::large, gap::large);
  column->setSpacing(gap::normal);
  box(*page, form.languageBox)->addWidget(languages(form, *page));
  QVBoxLayout* const birthdays = box(*page, form.birthdayBox);
  addTo(*birthdays, form.dghatirlat);
  addShortFields(*birthdays, {&form.Comgönce}, indentation);
  QVBoxLayout* const appointments = box(*page, form.appointmentBox);
  addShortFields(*appointments, {&form.txtbtime, &form.txtintapp});
  addTo(*appointments, form.chkrandevuaçılış);
  addTo(*appointments, form.chkrandevukapanış);
  QVBoxLayout* const passwords = box(*page, form.passwordBox);
  addTo(*passwords, form.acilistasifresor);
  addTo(*passwords, form.optaçma, indentation);
  addTo(*passwords, form.optkısıtlıaç, indentation);
  addTo(*passwords, form.hesaplardasifre);
  QVBoxLayout* const others = box(*page, form.otherBox);
  addTo(*others, form.chkçıkyedek);
  addTo(*others, form.chsigarabrakma);
  column->addStretch(1);
  return page;
}

}  // namespace desktop
