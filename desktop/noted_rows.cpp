#include "desktop/noted_rows.h"

#include <QApplication>
#include <QPainter>

#include "desktop/bind/list_models.h"
#include "desktop/layout.h"

namespace desktop {

void NotedRows::paint(QPainter* painter, const QStyleOptionViewItem& option,
                      const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  const QString note = index.data(noteRole).toString();
  if (note.isEmpty()) return;
  QStyleOptionViewItem row = option;
  initStyleOption(&row, index);
  const QStyle& style = row.widget != nullptr ? *row.widget->style() : *QApplication::style();
  QRect room = style.subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
  room.setLeft(room.left() + row.fontMetrics.horizontalAdvance(row.text) + 2 * gap::normal);
  room.setRight(option.rect.right() - gap::small);
  const bool selected = row.state.testFlag(QStyle::State_Selected);
  painter->save();
  painter->setFont(row.font);
  painter->setPen(
      row.palette.color(selected ? QPalette::HighlightedText : QPalette::PlaceholderText));
  painter->drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                    row.fontMetrics.elidedText(note, Qt::ElideRight, room.width()));
  painter->restore();
}

}  // namespace desktop
