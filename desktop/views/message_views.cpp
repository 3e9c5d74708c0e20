#include "desktop/views/message_views.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMainWindow>
#include <QSplitter>
#include <QVBoxLayout>

#include "desktop/bind/bind_grid.h"
#include "desktop/layout.h"
#include "desktop/views/record_parts.h"

namespace desktop {

namespace {

constexpr QSize boardSize{860, 600};
constexpr QSize writingSize{560, 460};
constexpr int nameFontPercent = 125;
constexpr int textLines = 7;
constexpr int listShare = 3;  // of the height, against one of the text

QWidget* ownName(const forms::Form& form, QWidget& parent) {
  QWidget* const name = makeWidget(form, "Lmsgadres", parent);
  QFont font = name->font();
  font.setPointSizeF(font.pointSizeF() * nameFontPercent / 100);
  font.setBold(true);
  name->setFont(font);
  return name;
}

QHBoxLayout* head(const forms::Form& form, QWidget& parent) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap::large);
  row->addWidget(ownName(form, parent));
  row->addStretch(1);
  for (const char* name : {"opttümü", "optgünlük", "optokunmamış", "optyeni"})
    row->addWidget(makeWidget(form, name, parent));
  row->addWidget(makeWidget(form, "saat", parent));
  return row;
}

}  // namespace

std::unique_ptr<QWidget> messagesView(forms::Form& form) {
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(boardSize);
  window->setCentralWidget(new QWidget(window.get()));
  addRecordBars(*window, form);
  QWidget& body = *window->centralWidget();
  QVBoxLayout* const column = columnIn(body);
  column->addLayout(head(form, body));
  auto* const splitter = new QSplitter(Qt::Vertical, &body);
  splitter->setChildrenCollapsible(false);
  auto* const table = static_cast<GridTable*>(makeWidget(form, "msgrid1", *splitter));
  table->horizontalHeader()->setStretchLastSection(true);
  splitter->addWidget(table);
  QWidget* const text = makeWidget(form, "txtmesaj", *splitter);
  text->setMinimumHeight(textLines * text->fontMetrics().lineSpacing());
  splitter->addWidget(text);
  splitter->setStretchFactor(0, listShare);
  splitter->setStretchFactor(1, 1);
  column->addWidget(splitter, 1);
  return window;
}

std::unique_ptr<QWidget> messageView(forms::Form& form) {
  auto window = std::make_unique<QDialog>();
  window->resize(writingSize);
  QVBoxLayout* const column = columnIn(*window);
  auto* const fields = new FieldColumns(window.get());
  fields->setMostColumns(1);
  for (const char* name : {"ComKimden", "ComKime", "txtkonu"})
    fields->add(makeWidget(form, name, *fields));
  fields->addGrowing(makeWidget(form, "txtmesaj", *fields));
  column->addWidget(fields, 1);
  column->addWidget(makeWidget(form, "Lkalan", *window), 0, Qt::AlignRight);
  QHBoxLayout* const row = acceptingRow(form, *window, "Butgönder");
  row->insertWidget(0, makeWidget(form, "ButLKimden", *window));
  column->addLayout(row);
  return window;
}

std::unique_ptr<QWidget> messageSettingsView(forms::Form& form) {
  auto window = std::make_unique<QDialog>();
  QVBoxLayout* const column = columnIn(*window);
  for (const char* name : {"opttumu", "optgunluk", "optokunmamis", "optyeni"})
    column->addWidget(makeWidget(form, name, *window));
  column->addStretch(1);
  column->addLayout(acceptingRow(form, *window, "buttamam"));
  return window;
}

}  // namespace desktop
