#include "desktop/elided_label.h"

#include <QPainter>

namespace desktop {

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect room = contentsRect();
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width());
  setToolTip(shown == text() ? QString() : text());
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, shown);
}

}  // namespace desktop
