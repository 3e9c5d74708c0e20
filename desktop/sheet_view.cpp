#include "desktop/sheet_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <array>

#include "desktop/layout.h"
#include "desktop/text.h"
#include "documents/page_layout.h"

namespace desktop {

namespace {

constexpr double twipsPerCentimetre = page::twipsPerInch / 2.54;
constexpr int numberedCentimetres = 5;
constexpr int longTick = 7;
constexpr int shortTick = 4;
constexpr QSize smallestSheet{320, 400};
// Around an item, so that its frame does not lie on its letters.
constexpr int frameGap = 4;
constexpr int manySteps = 10;  // with Shift

}  // namespace

// --- The sheet

SheetView::SheetView(page::Size sheet, QWidget* parent) : QWidget(parent), sheet_(sheet) {
  setMinimumSize(smallestSheet);
}

double SheetView::scale() const {
  return static_cast<double>(paper_.width()) / sheet_.width;
}

int SheetView::rulerWidth() const {
  return fontMetrics().horizontalAdvance(QStringLiteral("00")) + longTick + gap::normal;
}

void SheetView::fitPaper() {
  const QRect room = rect().adjusted(rulerWidth(), rulerWidth(), -gap::large, -gap::large);
  const QSize size = QSize(sheet_.width, sheet_.height).scaled(room.size(), Qt::KeepAspectRatio);
  paper_ = QRect(QPoint(room.x() + (room.width() - size.width()) / 2, room.y()), size);
  update();
  emit scaled();
}

void SheetView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  fitPaper();
}

void SheetView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) fitPaper();
}

// Paper is white, whatever the windows look like.
void SheetView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintRulers(painter);
  painter.fillRect(paper_, Qt::white);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(paper_.adjusted(-1, -1, 0, 0));
}

void SheetView::paintRulers(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::PlaceholderText));
  const double step = twipsPerCentimetre * scale();
  const int letters = fontMetrics().height();
  const auto tick = [](int centimetre) {
    return centimetre % numberedCentimetres == 0 ? longTick : shortTick;
  };
  for (int centimetre = 0; centimetre * step <= paper_.width(); ++centimetre) {
    const int x = paper_.x() + qRound(centimetre * step);
    const int y = paper_.y() - gap::small / 2;
    painter.drawLine(x, y - tick(centimetre), x, y);
    if (centimetre % numberedCentimetres == 0)
      painter.drawText(QRect(x - letters, 0, 2 * letters, y - longTick), Qt::AlignCenter,
                       QString::number(centimetre));
  }
  for (int centimetre = 0; centimetre * step <= paper_.height(); ++centimetre) {
    const int x = paper_.x() - gap::small / 2;
    const int y = paper_.y() + qRound(centimetre * step);
    painter.drawLine(x - tick(centimetre), y, x, y);
    if (centimetre > 0 && centimetre % numberedCentimetres == 0)
      painter.drawText(QRect(0, y - letters / 2, x - longTick - 2, letters),
                       Qt::AlignRight | Qt::AlignVCenter, QString::number(centimetre));
  }
}

// --- An item

ItemHandle::ItemHandle(SheetView& sheet, documents::SheetItem& item)
    : QWidget(&sheet), sheet_(sheet), item_(item) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::SizeAllCursor);
  Binding& binding = attach(*this, item, Follow::All, [this](forms::Aspect aspect) {
    if (aspect == forms::Aspect::Range) place();
    if (aspect == forms::Aspect::Image || aspect == forms::Aspect::Caption) redraw();
  });
  // The window outlives its form for a moment; the binding does not.
  connect(&sheet, &SheetView::scaled, &binding, [this] {
    place();
    redraw();
  });
}

void ItemHandle::place() {
  const page::Rectangle& at = item_.place();
  const double scale = sheet_.scale();
  const QRectF frame(at.x * scale, at.y * scale, at.width * scale, at.height * scale);
  setGeometry(frame.toAlignedRect()
                  .translated(sheet_.paper().topLeft())
                  .adjusted(-frameGap, -frameGap, frameGap, frameGap));
}

void ItemHandle::redraw() {
  picture_ = {};
  update();
}

void ItemHandle::paintEvent(QPaintEvent*) {
  const double ratio = devicePixelRatioF();
  if (picture_.isNull() || picture_.deviceIndependentSize() != size()) {
    picture_ = QPixmap(size() * ratio);
    picture_.setDevicePixelRatio(ratio);
    picture_.fill(Qt::transparent);
    QPainter painter(&picture_);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(frameGap, frameGap);
    painter.scale(sheet_.scale(), sheet_.scale());
    paintPage(painter, item_.drawing(), parts_,
              qRound(sheet_.scale() * ratio * page::twipsPerInch));
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, picture_);
  paintFrame(painter);
}

// The frame of the focus is thicker, not only of another colour.
void ItemHandle::paintFrame(QPainter& painter) const {
  const QRect frame = rect().adjusted(1, 1, -2, -2);
  if (item_.drawing().operations.empty()) {
    painter.setPen(Qt::darkGray);
    painter.drawText(frame, Qt::AlignCenter | Qt::TextWordWrap, qs(item_.caption()));
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), 2)
                            : QPen(QColor(0xA0, 0xA6, 0xAE), 1, Qt::DashLine));
  painter.drawRect(frame);
}

void ItemHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
  grip_ = event->position().toPoint() - QPoint(frameGap, frameGap);
}

void ItemHandle::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const QPoint corner = mapToParent(event->position().toPoint()) - grip_ - sheet_.paper().topLeft();
  const auto units = [this](int pixels) {
    return documents::unit::fromTwips(qRound(pixels / sheet_.scale()));
  };
  item_.Moved(units(corner.x()), units(corner.y()));
}

void ItemHandle::keyPressEvent(QKeyEvent* event) {
  struct Step {
    int key, right, down;
  };
  constexpr std::array steps{Step{Qt::Key_Left, -1, 0}, Step{Qt::Key_Right, 1, 0},
                             Step{Qt::Key_Up, 0, -1}, Step{Qt::Key_Down, 0, 1}};
  const int times = event->modifiers().testFlag(Qt::ShiftModifier) ? manySteps : 1;
  for (const Step& step : steps) {
    if (step.key == event->key()) return item_.Stepped(step.right * times, step.down * times);
  }
  QWidget::keyPressEvent(event);
}

void ItemHandle::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void ItemHandle::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

}  // namespace desktop
