#include "desktop/views/trend_view.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/layout.h"
#include "desktop/trend_chart.h"
#include "desktop/views/record_parts.h"

namespace desktop {

namespace {

constexpr QSize usualSize{900, 580};
constexpr int testCharacters = 34;

QHBoxLayout* headLine(const forms::Form& form, QWidget& parent) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(gap::large);
  QWidget* const test = makeWidget(form, "comtest", parent);
  test->setMinimumWidth(characters(*test, testCharacters));
  row->addWidget(captionFor(*test));
  row->addWidget(test);
  QWidget* const value = makeWidget(form, "lbldeger", parent);
  QFont bold = value->font();
  bold.setBold(true);
  value->setFont(bold);
  row->addWidget(value, 1);
  return row;
}

}  // namespace

std::unique_ptr<QWidget> testTrendView(forms::Form& form) {
  auto window = std::make_unique<QDialog>();
  window->resize(usualSize);
  auto* const column = new QVBoxLayout(window.get());
  column->setContentsMargins(gap::large, gap::normal, gap::large, gap::normal);
  column->setSpacing(gap::normal);
  QWidget* const banner = recordBanner(form, *window);
  banner->layout()->setContentsMargins(0, 0, 0, 0);
  column->addWidget(banner);
  column->addLayout(headLine(form, *window));
  auto* const chart = new TrendChart(window.get());
  bind(*chart, control<exam::TrendPlot>(form, "plot"));
  column->addWidget(chart, 1);
  auto* const foot = new QHBoxLayout;
  foot->addWidget(makeWidget(form, "lblatlanan", *window), 1);
  foot->addWidget(makeWidget(form, "butkapat", *window));
  column->addLayout(foot);
  return window;
}

}  // namespace desktop
