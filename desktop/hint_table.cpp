#include "desktop/hint_table.h"

#include <QEvent>
#include <QHeaderView>

#include "desktop/hint_list.h"

namespace desktop {

namespace {
constexpr int roomAroundText = 8;
}

HintTable::HintTable(QWidget* parent) : QTableView(parent) {
  setShowGrid(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  horizontalHeader()->setStretchLastSection(true);
  fitRows();
}

void HintTable::fitRows() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + roomAroundText);
}

void HintTable::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) fitRows();
}

void HintTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  paintHint(*this);
}

}  // namespace desktop
