#include "desktop/grid_table.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include "desktop/hint_list.h"

namespace desktop {

namespace {
constexpr int rowGap = 10;
}

GridTable::GridTable(QWidget* parent) : QTableView(parent) {
  setEditTriggers(NoEditTriggers);
  setSelectionMode(ContiguousSelection);
  setTabKeyNavigation(false);  // Tab leaves the table, the arrows move within it
  setWordWrap(false);
  setAlternatingRowColors(true);
  setCornerButtonEnabled(false);
  horizontalHeader()->setHighlightSections(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  fitRows();
}

void GridTable::fitRows() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowGap);
}

void GridTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  fitRows();
  resizeColumnsToContents();
}

void GridTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  paintHint(*this);
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copyMarked();
  QTableView::keyPressEvent(event);
}

// What is hidden stays out of it.
void GridTable::copyMarked() const {
  if (!selectionModel()->hasSelection()) return;
  const QItemSelectionRange marked = selectionModel()->selection().first();
  QStringList lines;
  for (int row = marked.top(); row <= marked.bottom(); ++row) {
    QStringList cells;
    for (int col = marked.left(); col <= marked.right(); ++col) {
      if (!isColumnHidden(col)) cells << model()->index(row, col).data().toString();
    }
    lines << cells.join(QLatin1Char('\t'));
  }
  QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

}  // namespace desktop
