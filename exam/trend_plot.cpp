#include "exam/trend_plot.h"

#include <algorithm>
#include <utility>

#include "exam/result_mark.h"
#include "platform/text/fold.h"
#include "platform/text/number.h"
#include "platform/text/utf8.h"

namespace exam {

namespace {

// Whether a number stands at the start: "<5" and "neg" have none, though they count as 0.
bool startsWithNumber(std::string_view result) {
  const std::string_view text = text::trimmed(result);
  const std::size_t at = text.find_first_not_of("+-");
  if (at == text.npos || at > 1) return false;
  const std::size_t digit = text[at] == '.' ? at + 1 : at;
  return digit < text.size() && text[digit] >= '0' && text[digit] <= '9';
}

std::optional<double> endOfRange(std::string_view text) {
  return text.empty() ? std::nullopt : std::optional(text::Val(text));
}

TrendPoint pointOf(const stores::Analysis& analysis) {
  std::string marked = isaretli(analysis.result, analysis.min, analysis.max);
  const forms::Emphasis mark = vurgu(marked);
  return {*analysis.date, text::Val(analysis.result), text::trim(marked), mark};
}

void add(Trend& trend, const stores::Analysis& analysis) {
  if (!analysis.date || !startsWithNumber(analysis.result)) {
    ++trend.withoutNumber;
  } else if (!text::equalsNoCase(analysis.unit, trend.unit)) {
    ++trend.otherUnit;
  } else {
    trend.points.push_back(pointOf(analysis));
  }
}

}  // namespace

Trend seyir(std::span<const stores::Analysis> analyses, std::string_view test) {
  std::vector<stores::Analysis> values;
  std::ranges::copy_if(analyses, std::back_inserter(values), [&](const stores::Analysis& each) {
    return text::equalsNoCase(each.test, test);
  });
  Trend trend;
  if (values.empty()) return trend;
  const stores::Analysis& latest = values.back();
  trend.unit = latest.unit;
  trend.min = endOfRange(latest.min);
  trend.max = endOfRange(latest.max);
  for (const stores::Analysis& value : values) add(trend, value);
  return trend;
}

void TrendPlot::setTrend(Trend trend) {
  trend_ = std::move(trend);
  chosen_ = static_cast<int>(trend_.points.size()) - 1;
  notify(forms::Aspect::Paint);
  Change();
}

void TrendPlot::choose(int point) {
  if (point < 0 || std::cmp_greater_equal(point, trend_.points.size())) return;
  if (std::exchange(chosen_, point) == point) return;
  notify(forms::Aspect::Paint);
  Change();
}

}  // namespace exam
