#include "desktop/hint_list.h"

#include <QPainter>

namespace desktop {

namespace {
constexpr int margin = 12;
}

void HintList::paintEvent(QPaintEvent* event) {
  QListView::paintEvent(event);
  if (model() == nullptr || model()->rowCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  const QRect room = viewport()->rect().adjusted(margin, margin, -margin, -margin);
  painter.drawText(room, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, toolTip());
}

}  // namespace desktop
