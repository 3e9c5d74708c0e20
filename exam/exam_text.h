// The examination as a text: which captions and values stand in it, in which order.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/field_row.h"
#include "shell/station.h"

namespace exam {

class FrmExam;

struct ReportLine {
  std::string caption;
  std::string value;
  bool operator==(const ReportLine&) const = default;
};

// What a field holds, as its column stores it.
using FieldText = std::function<std::string(const shell::FieldRow&)>;

// Nothing empty is in it. Captions, units and the words of lists are those of the screen.
[[nodiscard]] std::vector<ReportLine> reportLines(shell::Station& istasyon, FrmExam& screen,
                                                  const FieldText& textOf);

}  // namespace exam
