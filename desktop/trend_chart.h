// Draws the course of a laboratory test: its points over the days, and the band of the reference
// range behind them.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QWidget>

#include "exam/trend_plot.h"

namespace desktop {

// The mouse points at the nearest value; Left, Right, Home and End go from one to the next.
class TrendChart : public QWidget {
  Q_OBJECT
 public:
  explicit TrendChart(QWidget* parent);

  [[nodiscard]] QSize minimumSizeHint() const override;
  // Where a value is drawn.
  [[nodiscard]] QPointF place(int point) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override { mouseMoveEvent(event); }
  void keyPressEvent(QKeyEvent* event) override;

 private:
  friend void bind(TrendChart& chart, exam::TrendPlot& plot);

  struct Scale {
    double from = 0;
    double to = 1;
    double step = 1;
  };
  [[nodiscard]] QRectF area() const;
  [[nodiscard]] static Scale scaleOf(const exam::Trend& trend);
  [[nodiscard]] double height(double value) const;
  [[nodiscard]] double across(long day) const;
  void paintBand(QPainter& painter) const;
  void paintValueAxis(QPainter& painter) const;
  void paintDateAxis(QPainter& painter) const;
  void paintPoints(QPainter& painter) const;
  // The plot may be gone before the chart.
  [[nodiscard]] bool isBound() const;
  [[nodiscard]] const exam::Trend& trend() const { return plot_->trend(); }

  exam::TrendPlot* plot_ = nullptr;  // while it is bound
  Scale scale_;                      // of the trend that is shown
};

void bind(TrendChart& chart, exam::TrendPlot& plot);

}  // namespace desktop
