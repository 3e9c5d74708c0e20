// The drawing of one laboratory test over time: points, the band of the reference range, the point
// that is pointed at. How it is drawn is the window's affair.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/forms/control.h"
#include "platform/forms/grid.h"
#include "stores/analyses.h"

namespace exam {

struct TrendPoint {
  text::DateTime date;
  double value = 0;
  std::string result;  // as the grid shows it, with its mark
  forms::Emphasis mark = forms::Emphasis::None;
};

struct Trend {
  std::vector<TrendPoint> points;  // by day
  // The reference range of the latest value; an end that it does not have stays open.
  std::optional<double> min;
  std::optional<double> max;
  std::string unit;
  // Values of the test that are not drawn: without a number at their start, without a date, or in
  // another unit than the latest value.
  std::size_t withoutNumber = 0;
  std::size_t otherUnit = 0;
};

// The values of one test out of all of a patient's, which come by day.
[[nodiscard]] Trend seyir(std::span<const stores::Analysis> analyses, std::string_view test);

class TrendPlot : public forms::Control {
 public:
  using Control::Control;

  [[nodiscard]] const Trend& trend() const { return trend_; }
  // The latest point is the chosen one then.
  void setTrend(Trend trend);
  // The point that is pointed at, -1 when there is none.
  [[nodiscard]] int chosen() const { return chosen_; }
  // Fires Change for another point; one that is not there is passed over.
  void choose(int point);

  forms::Event<> Change;

 private:
  Trend trend_;
  int chosen_ = -1;
};

}  // namespace exam
