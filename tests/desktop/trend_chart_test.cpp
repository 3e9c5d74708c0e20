#include "desktop/trend_chart.h"

#include "tests/desktop/desk.h"

namespace {

using namespace desktop;

struct TrendForm : forms::Form {
  TrendForm() : Form("trend") {}
  exam::TrendPlot plot{*this, "plot"};
};

exam::Trend trendOf(std::initializer_list<double> values, std::optional<double> min = {},
                    std::optional<double> max = {}) {
  exam::Trend trend{.points = {}, .min = min, .max = max, .unit = "mg/dL"};
  for (const double value : values) {
    const auto day = static_cast<unsigned>(trend.points.size()) + 1;
    trend.points.push_back({text::DateTime::of(2026, 1, day), value, "x", forms::Emphasis::None});
  }
  return trend;
}

struct Chart : testing::Test {
  Chart() {
    chart.resize(600, 400);
    bind(chart, form.plot);
  }
  TrendForm form;
  TrendChart chart{nullptr};
};

TEST_F(Chart, MouseAndKeysPointAtValues) {
  form.plot.setTrend(trendOf({90, 126, 60}, 70, 105));
  support::showActive(chart);
  EXPECT_EQ(form.plot.chosen(), 2);
  QTest::mouseMove(&chart, (chart.place(0) + QPointF(20, 5)).toPoint());
  EXPECT_EQ(form.plot.chosen(), 0);
  struct Press {
    Qt::Key key;
    int chosen;
  };
  for (const Press& press : {Press{Qt::Key_Left, 0},
                             {Qt::Key_Right, 1},
                             {Qt::Key_End, 2},
                             {Qt::Key_Right, 2},
                             {Qt::Key_Home, 0}}) {
    QTest::keyClick(&chart, press.key);
    EXPECT_EQ(form.plot.chosen(), press.chosen);
  }
}

TEST_F(Chart, EveryValueIsInsideAndHigherValuesAreHigherUp) {
  for (const exam::Trend& trend :
       {trendOf({5}), trendOf({0, 0, 0}), trendOf({1e9, -3, 2}), trendOf({7, 8}, {}, 5),
        trendOf({7}, 10, 2), trendOf({0.01, 0.02}, 0.015)}) {
    form.plot.setTrend(trend);
    chart.grab();
    for (std::size_t point = 0; point < trend.points.size(); ++point) {
      const QPointF at = chart.place(static_cast<int>(point));
      EXPECT_TRUE(chart.rect().contains(at.toPoint())) << at.x() << " " << at.y();
    }
  }
  form.plot.setTrend(trendOf({60, 126}, 70, 105));
  EXPECT_GT(chart.place(0).y(), chart.place(1).y());
  EXPECT_LT(chart.place(0).x(), chart.place(1).x());
}

TEST_F(Chart, WithoutValuesItSaysSo) {
  const QImage silent = chart.grab().toImage();
  form.plot.setToolTip("There is no value to draw.");
  EXPECT_NE(chart.grab().toImage(), silent);
}

}  // namespace
