#include "desktop/hint_list.h"

#include <QPainter>

namespace desktop {

namespace {
constexpr int margin = 12;
}

void paintHint(QAbstractItemView& view) {
  if (view.model() == nullptr || view.model()->rowCount() > 0) return;
  QPainter painter(view.viewport());
  painter.setPen(view.palette().color(QPalette::PlaceholderText));
  const QRect room = view.viewport()->rect().adjusted(margin, margin, -margin, -margin);
  painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, view.toolTip());
}

void HintList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  paintHint(*this);
}

}  // namespace desktop
