// Which of a patient's laboratory values are wanted.
#pragma once

#include <string>
#include <vector>

#include "platform/text/date.h"
#include "stores/analyses.h"

namespace exam {

struct AnalysisFilter {
  std::vector<std::string> tests;  // none: all of them
  text::DateTime from;             // both days included
  text::DateTime to;
  // By the last character of the marked result; one that ends in a letter of its own, such as
  // "neg", is neither.
  bool high = true;
  bool low = true;
  bool normal = true;
};

[[nodiscard]] bool testUyar(const AnalysisFilter& filter, const stores::Analysis& analysis);
// Test, day and mark.
[[nodiscard]] bool uyar(const AnalysisFilter& filter, const stores::Analysis& analysis);

}  // namespace exam
