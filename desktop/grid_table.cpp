#include "desktop/grid_table.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

namespace desktop {

GridTable::GridTable(QWidget* parent) : HintTable(parent) {
  setShowGrid(true);
  setSelectionBehavior(SelectItems);
  setSelectionMode(ContiguousSelection);
  setCornerButtonEnabled(false);
  horizontalHeader()->setStretchLastSection(false);
}

void GridTable::changeEvent(QEvent* event) {
  HintTable::changeEvent(event);
  if (event->type() == QEvent::FontChange) resizeColumnsToContents();
}

void GridTable::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copyMarked();
  HintTable::keyPressEvent(event);
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
