#include "exam/analysis_filter.h"

#include <algorithm>

#include "exam/result_mark.h"
#include "platform/text/fold.h"

namespace exam {

namespace {

bool markWanted(const AnalysisFilter& filter, const std::string& marked) {
  return (filter.high && marked.ends_with('H')) || (filter.low && marked.ends_with('L')) ||
         (filter.normal && marked.ends_with(' '));
}

}  // namespace

bool testUyar(const AnalysisFilter& filter, const stores::Analysis& analysis) {
  const auto isTest = [&](const std::string& wanted) {
    return text::equalsNoCase(wanted, analysis.test);
  };
  return filter.tests.empty() || std::ranges::any_of(filter.tests, isTest);
}

bool uyar(const AnalysisFilter& filter, const stores::Analysis& analysis) {
  if (!analysis.date || analysis.date->day < filter.from.day || analysis.date->day > filter.to.day)
    return false;
  return testUyar(filter, analysis) &&
         markWanted(filter, isaretli(analysis.result, analysis.min, analysis.max));
}

}  // namespace exam
