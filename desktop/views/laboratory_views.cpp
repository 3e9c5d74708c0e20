#include "desktop/views/laboratory_views.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QMainWindow>
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

std::unique_ptr<QMainWindow> recordWindow(const forms::Form& form, QSize size) {
  auto window = std::make_unique<QMainWindow>();
  window->setContextMenuPolicy(Qt::NoContextMenu);
  window->resize(size);
  window->setCentralWidget(new QWidget(window.get()));
  addRecordBars(*window, form);
  return window;
}

// The banner begins where the fields below it begin.
QWidget* flush(QWidget* banner) {
  banner->layout()->setContentsMargins(0, 0, 0, 0);
  return banner;
}

QWidget* catalogueList(const forms::Form& form, QWidget& parent) {
  auto* const side = new QWidget(&parent);
  auto* const column = new QVBoxLayout(side);
  column->setContentsMargins(0, 0, 0, 0);
  QWidget* const list = makeWidget(form, "Lsttest", *side);
  list->setMinimumWidth(characters(*list, listCharacters));
  QLabel* const caption = captionFor(*list);
  column->addWidget(caption, 0, Qt::AlignLeft);
  column->addWidget(list, 1);
  return side;
}

FieldColumns* catalogueFields(const forms::Form& form, QWidget& parent) {
  auto* const fields = new FieldColumns(&parent);
  for (const char* name : {"txttest", "txtbirim", "txtmin", "txtmax"})
    fields->add(makeWidget(form, name, *fields));
  fields->setMostColumns(1);
  fields->addGrowing(makeWidget(form, "txtbilgi", *fields));
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

// The fields of a value in one line, in the order of the grid's columns, each below its caption.
QGridLayout* valueFields(const forms::Form& form, QWidget& parent) {
  struct Field {
    const char* name;
    int share;  // of the width
    int characters;
  };
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(gap::normal);
  int column = 0;
  for (const Field& field :
       {Field{"txttarih", 3, 15}, Field{"comtest", 6, 18}, Field{"txtsonuç", 4, 8},
        Field{"txtbirim", 3, 7}, Field{"txtmin", 2, 5}, Field{"txtmax", 2, 5}}) {
    QWidget* const widget = makeWidget(form, field.name, parent);
    grid->addWidget(captionFor(*widget), 0, column, Qt::AlignLeft);
    grid->addWidget(widget, 1, column);
    grid->setColumnStretch(column++, field.share);
    widget->setMinimumWidth(characters(*widget, field.characters));
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
  column->addWidget(flush(recordBanner(form, body)));
  QVBoxLayout* const right = besideTheList(form, body, *column);
  right->addWidget(makeWidget(form, "buttasi", body), 0, Qt::AlignRight);
  QWidget* const request = makeWidget(form, "txtistem", body);
  request->setMinimumHeight(request->fontMetrics().lineSpacing() * requestLines);
  right->addWidget(captionFor(*request), 0, Qt::AlignLeft);
  right->addWidget(request, 1);
  right->addLayout(acceptingRow(form, body, "buttamam"));
  return window;
}

std::unique_ptr<QWidget> testResultsView(forms::Form& form) {
  auto window = recordWindow(form, resultsSize);
  QWidget& body = *window->centralWidget();
  QVBoxLayout* const column = columnIn(body);
  column->addWidget(flush(recordBanner(form, body)));
  column->addLayout(valueFields(form, body));
  auto* const table = new GridTable(&body);
  bind(*table, control<forms::Grid>(form, "msgrid1"));
  column->addWidget(table, 1);
  // The latest values stand at the end.
  QObject::connect(table->model(), &QAbstractItemModel::modelReset, table,
                   &QTableView::scrollToBottom, Qt::QueuedConnection);
  QMetaObject::invokeMethod(table, &QTableView::scrollToBottom, Qt::QueuedConnection);
  return window;
}

std::unique_ptr<QWidget> testFilterView(forms::Form& form) {
  auto window = std::make_unique<QDialog>();
  window->resize(filterSize);
  QVBoxLayout* const column = columnIn(*window);
  auto* const fields = new FieldColumns(window.get());
  fields->setMostColumns(1);
  for (const char* name : {"dpt1", "dpt2"}) fields->add(makeWidget(form, name, *fields));
  column->addWidget(fields);
  auto* const marks = new QHBoxLayout;
  for (const char* name : {"ChkYüksek", "ChkDüşük", "ChkNormal"})
    marks->addWidget(makeWidget(form, name, *window));
  marks->addStretch(1);
  column->addLayout(marks);
  column->addWidget(catalogueList(form, *window), 1);
  column->addLayout(acceptingRow(form, *window, "buttamam"));
  return window;
}

}  // namespace desktop
