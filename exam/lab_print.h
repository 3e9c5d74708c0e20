// Requests and results of the laboratory on paper.
#pragma once

#include <span>
#include <string>

#include "documents/report_page.h"
#include "documents/report_text.h"
#include "shell/station.h"
#include "stores/analyses.h"

namespace exam {

enum class Output { Preview, Printer };

// On as many sheets as the body needs. What was previewed is printed when the user asks for it
// there.
void bas(shell::Station& istasyon, const documents::Report& report, Output output);

// The values, day by day, each with its mark, unit and range.
void analizleriYaz(documents::ReportText& text, std::span<const stores::Analysis> analyses);

}  // namespace exam
