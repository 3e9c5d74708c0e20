// Rows with a quieter text behind their own: what tells namesakes apart, the diagnosis of a date.
#pragma once

#include <QStyledItemDelegate>

namespace desktop {

class NotedRows : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};

}  // namespace desktop
