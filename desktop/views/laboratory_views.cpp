#include "desktop/views/laboratory_views.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "desktop/bind/bind_grid.h"
#include "desktop/layout.h"
#include "desktop/views/record_parts.h"
#include "platform/forms/list_control.h"

namespace desktop {

namespace {

constexpr QSize catalogueSize{860, 560};
constexpr QSize requestSize{920, 680};
constexpr QSize resultsSize{1100, 720};
constexpr QSize filterSize{460, 540};
constexpr int listCharacters = 26;
constexpr int requestLines = 5;

QWidget* made(const forms::Form& form, const char* name, QWidget& parent) {
  return makeWidget(*form.find(name), parent);
}

std::unique_ptr<QMainWindow> recordWindow(const forms::Form& form, QSize size) {
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(size);
  window->setCentralWidget(new QWidget(window.get()));
  addRecordBars(*window, form);
  return window;
}

QVBoxLayout* columnIn(QWidget& parent) {
  auto* const column = new QVBoxLayout(&parent);
  column->setContentsMargins(gap::large, gap::normal, gap::large, gap::normal);
  column->setSpacing(gap::normal);
  return column;
}

QWidget* catalogueList(const forms::Form& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  QWidget* const list = made(form, "Lsttest", *side);
  list->setMinimumWidth(characters(*list, listCharacters));
  QLabel* const caption = captionFor(*list);
  column->addWidget(caption, 0, Qt::AlignLeft);
  column->addWidget(list, 1);
  return side;
}

FieldColumns* catalogueFields(const forms::Form& form, QWidget& parent) {
  auto* const fields = new FieldColumns(&parent);
  for (const char* name : {"txttest", "txtbirim", "txtmin", "txtmax"})
    fields->add(made(form, name, *fields));
  fields->setMostColumns(1);
  fields->addGrowing(made(form, "txtbilgi", *fields));
  return fields;
}

// The catalogue at the left, the test of the chosen row and what belongs to it at the right.
QVBoxLayout* besideTheList(const forms::Form& form, QWidget& body, QVBoxLayout& column) {
  auto* const splitter = new QSplitter(Qt::Horizontal, &body);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(catalogueList(form, *splitter));
  auto* const right = new QWidget(splitter);
  auto* const rows = new QVBoxLayout(right);
  rows->setContentsMargins(gap::normal, 0, 0, 0);
  rows->setSpacing(gap::normal);
  rows->addWidget(catalogueFields(form, *right), 1);
  splitter->addWidget(right);
  splitter->setStretchFactor(1, 1);
  column.addWidget(splitter, 1);
  return rows;
}

QHBoxLayout* accepting(const forms::Form& form, QWidget& parent) {
  auto* const row = new QHBoxLayout;
  row->addStretch(1);
  for (const char* name : {"buttamam", "Butİptal"}) row->addWidget(made(form, name, parent));
  return row;
}

// The fields of a value in one line, in the order of the grid's columns, each below its caption.
QGridLayout* valueFields(const forms::Form& form, QWidget& parent) {
  struct Field {
    const char* name;
    int share;  // of the width
  };
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(gap::normal);
  int column = 0;
  for (const Field& field : {Field{"txttarih", 3}, Field{"comtest", 6}, Field{"txtsonuç", 4},
                             Field{"txtbirim", 3}, Field{"txtmin", 2}, Field{"txtmax", 2}}) {
    QWidget* const widget = made(form, field.name, parent);
    grid->addWidget(captionFor(*widget), 0, column, Qt::AlignLeft);
    grid->addWidget(widget, 1, column);
    grid->setColumnStretch(column++, field.share);
  }
  return grid;
}

}  // namespace

std::unique_ptr<QWidget> testCatalogueView(forms::Form& form) {
  auto window = recordWindow(form, catalogueSize);
  QWidget& body = *window->centralWidget();
  besideTheList(form, body, *columnIn(body));
  return window;
}

std::unique_ptr<QWidget> testRequestView(forms::Form& form) {
  auto window = recordWindow(form, requestSize);
  QWidget& body = *window->centralWidget();
  QVBoxLayout* const column = columnIn(body);
  column->addWidget(recordBanner(form, body));
  QVBoxLayout* const right = besideTheList(form, body, *column);
  right->addWidget(made(form, "buttasi", body), 0, Qt::AlignRight);
  QWidget* const request = made(form, "txtistem", body);
  request->setMinimumHeight(request->fontMetrics().lineSpacing() * requestLines);
  right->addWidget(captionFor(*request), 0, Qt::AlignLeft);
  right->addWidget(request, 1);
  right->addLayout(accepting(form, body));
  return window;
}

std::unique_ptr<QWidget> testResultsView(forms::Form& form) {
  auto window = recordWindow(form, resultsSize);
  QWidget& body = *window->centralWidget();
  QVBoxLayout* const column = columnIn(body);
  column->addWidget(recordBanner(form, body));
  column->addLayout(valueFields(form, body));
  auto* const table = new GridTable(&body);
  bind(*table, control<forms::Grid>(form, "msgrid1"));
  column->addWidget(table, 1);
  // The latest values stand at the end.
  QObject::connect(table->model(), &QAbstractItemModel::modelReset, table,
                   &QTableView::scrollToBottom, Qt::QueuedConnection);
  return window;
}

std::unique_ptr<QWidget> testFilterView(forms::Form& form) {
  auto window = std::make_unique<QDialog>();
  window->resize(filterSize);
  QVBoxLayout* const column = columnIn(*window);
  auto* const fields = new FieldColumns(window.get());
  fields->setMostColumns(1);
  for (const char* name : {"dpt1", "dpt2"}) fields->add(made(form, name, *fields));
  column->addWidget(fields);
  auto* const marks = new QHBoxLayout;
  for (const char* name : {"ChkYüksek", "ChkDüşük", "ChkNormal"})
    marks->addWidget(made(form, name, *window));
  marks->addStretch(1);
  column->addLayout(marks);
  column->addWidget(catalogueList(form, *window), 1);
  column->addLayout(accepting(form, *window));
  return window;
}

}  // namespace desktop
