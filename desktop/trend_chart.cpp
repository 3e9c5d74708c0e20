#include "desktop/trend_chart.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "desktop/bind/binding.h"
#include "desktop/emphasis.h"
#include "desktop/layout.h"
#include "desktop/text.h"
#include "platform/text/number.h"

namespace desktop {

namespace {

using forms::Emphasis;

constexpr double valuePadding = 0.12;  // of the range of the values, above and below
constexpr int wantedTicks = 6;
constexpr double pointSize = 5.0;
constexpr double chosenRing = 9.0;
constexpr int labelCharacters = 8;
constexpr int bandTint = 40;  // of 255

// 1, 2 or 5 times a power of ten.
double niceStep(double range) {
  const double rough = range / wantedTicks;
  const double power = std::pow(10.0, std::floor(std::log10(rough)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (rough <= factor * power) return factor * power;
  }
  return 10 * power;
}

// Up for a high value, down for a low one, round for the others: the shape says what the colour
// says.
QPainterPath markPath(const QPointF& at, Emphasis mark) {
  QPainterPath path;
  if (mark == Emphasis::None) {
    path.addEllipse(at, pointSize, pointSize);
    return path;
  }
  const double up = mark == Emphasis::High ? -1.4 * pointSize : 1.4 * pointSize;
  path.addPolygon(QPolygonF({at + QPointF(0, up), at + QPointF(1.3 * pointSize, -up * 0.7),
                             at + QPointF(-1.3 * pointSize, -up * 0.7)}));
  path.closeSubpath();
  return path;
}

QString numberText(double value) {
  return qs(text::plainText(std::abs(value) < 1e-12 ? 0 : value));
}

}  // namespace

TrendChart::TrendChart(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

QSize TrendChart::minimumSizeHint() const {
  return {characters(*this, 5 * labelCharacters), fontMetrics().lineSpacing() * 10};
}

QRectF TrendChart::area() const {
  const int line = fontMetrics().lineSpacing();
  return QRectF(rect()).adjusted(characters(*this, labelCharacters), 1.5 * line, -2.0 * line,
                                 -2.0 * line);
}

TrendChart::Scale TrendChart::scaleOf(const exam::Trend& trend) {
  if (trend.points.empty()) return {};
  double low = trend.min.value_or(trend.points.front().value);
  double high = trend.max.value_or(trend.points.front().value);
  for (const exam::TrendPoint& point : trend.points) {
    low = std::min(low, point.value);
    high = std::max(high, point.value);
  }
  if (high <= low) high = low + std::max(1.0, std::abs(low) * valuePadding);
  const double padding = (high - low) * valuePadding;
  return {low - padding, high + padding, niceStep(high - low)};
}

double TrendChart::height(double value) const {
  return area().bottom() - (value - scale_.from) / (scale_.to - scale_.from) * area().height();
}

// A single day stands in the middle.
double TrendChart::across(long day) const {
  const long first = text::dayNumber(trend().points.front().date);
  const long last = text::dayNumber(trend().points.back().date);
  if (last == first) return area().center().x();
  return area().left() +
         static_cast<double>(day - first) / static_cast<double>(last - first) * area().width();
}

QPointF TrendChart::place(int point) const {
  const exam::TrendPoint& at = trend().points[static_cast<std::size_t>(point)];
  return {across(text::dayNumber(at.date)), height(at.value)};
}

void TrendChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.setPen(hasFocus() ? palette().color(QPalette::Highlight)
                            : palette().color(QPalette::Mid));
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  if (!isBound() || trend().points.empty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, toolTip());
    return;
  }
  paintBand(painter);
  paintValueAxis(painter);
  paintDateAxis(painter);
  paintPoints(painter);
}

// An end that the range does not have leaves the band open up to the edge.
void TrendChart::paintBand(QPainter& painter) const {
  if (!trend().min && !trend().max) return;
  const double top = trend().max ? height(*trend().max) : area().top();
  const double bottom = trend().min ? height(*trend().min) : area().bottom();
  QColor ground = palette().color(QPalette::Highlight);
  QPen edge(ground, 1, Qt::DashLine);
  ground.setAlpha(bandTint);
  painter.fillRect(QRectF(QPointF(area().left(), top), QPointF(area().right(), bottom)), ground);
  painter.setPen(edge);
  for (const std::optional<double>& end : {trend().min, trend().max}) {
    if (end) painter.drawLine(QPointF(area().left(), height(*end)), {area().right(), height(*end)});
  }
}

void TrendChart::paintValueAxis(QPainter& painter) const {
  const int line = fontMetrics().lineSpacing();
  for (double tick = std::ceil(scale_.from / scale_.step) * scale_.step; tick <= scale_.to;
       tick += scale_.step) {
    const double y = height(tick);
    painter.setPen(QPen(palette().color(QPalette::Midlight), 1));
    painter.drawLine(QPointF(area().left(), y), QPointF(area().right(), y));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(0, y - line / 2.0, area().left() - gap::small, line),
                     Qt::AlignRight | Qt::AlignVCenter, numberText(tick));
  }
  painter.drawText(QRectF(gap::small, gap::small / 2.0, width() / 2.0, line),
                   Qt::AlignLeft | Qt::AlignVCenter, qs(trend().unit));
}

// The first and the last day, and between them the days that have room.
void TrendChart::paintDateAxis(QPainter& painter) const {
  painter.setPen(palette().color(QPalette::Text));
  painter.drawLine(area().bottomLeft(), area().bottomRight());
  const double wide = fontMetrics().horizontalAdvance(QStringLiteral("00.00.0000")) + gap::normal;
  const int line = fontMetrics().lineSpacing();
  const double last = place(static_cast<int>(trend().points.size()) - 1).x();
  double freeFrom = -wide;
  for (const exam::TrendPoint& point : trend().points) {
    const double x = across(text::dayNumber(point.date));
    painter.drawLine(QPointF(x, area().bottom()), QPointF(x, area().bottom() + gap::small / 2.0));
    const bool fits = x - wide / 2 >= freeFrom && (x >= last || x + wide <= last);
    if (!fits) continue;
    const double left = std::clamp(x - wide / 2, 0.0, std::max(0.0, width() - wide));
    painter.drawText(QRectF(left, area().bottom() + gap::small, wide, line), Qt::AlignCenter,
                     qs(text::shortDate(point.date)));
    freeFrom = left + wide;
  }
}

void TrendChart::paintPoints(QPainter& painter) const {
  QPolygonF line;
  for (int point = 0; std::cmp_less(point, trend().points.size()); ++point) line << place(point);
  painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1.5));
  painter.drawPolyline(line);
  for (int point = 0; point < line.size(); ++point) {
    const Emphasis mark = trend().points[static_cast<std::size_t>(point)].mark;
    painter.setPen(Qt::NoPen);
    painter.setBrush(emphasisInk(mark));
    painter.drawPath(markPath(line[point], mark));
    if (point != plot_->chosen()) continue;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(line[point], chosenRing, chosenRing);
  }
}

void TrendChart::mouseMoveEvent(QMouseEvent* event) {
  if (!isBound()) return;
  int nearest = -1;
  double distance = 0;
  for (int point = 0; std::cmp_less(point, trend().points.size()); ++point) {
    const QPointF away = place(point) - event->position();
    const double now = QPointF::dotProduct(away, away);
    if (nearest < 0 || now < distance) {
      nearest = point;
      distance = now;
    }
  }
  plot_->choose(nearest);
}

void TrendChart::keyPressEvent(QKeyEvent* event) {
  if (!isBound()) return;
  switch (event->key()) {
    case Qt::Key_Left:
      return plot_->choose(plot_->chosen() - 1);
    case Qt::Key_Right:
      return plot_->choose(plot_->chosen() + 1);
    case Qt::Key_Home:
      return plot_->choose(0);
    case Qt::Key_End:
      return plot_->choose(static_cast<int>(trend().points.size()) - 1);
    default:
      QWidget::keyPressEvent(event);
  }
}

bool TrendChart::isBound() const {
  return bindingOf(*this) != nullptr;
}

void bind(TrendChart& chart, exam::TrendPlot& plot) {
  chart.plot_ = &plot;
  attach(chart, plot, Follow::All, [&chart, &plot](forms::Aspect) {
    chart.scale_ = TrendChart::scaleOf(plot.trend());
    chart.update();
  });
}

}  // namespace desktop
