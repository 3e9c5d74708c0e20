#include "exam/lab_print.h"

#include "documents/print_job.h"
#include "exam/result_mark.h"
#include "platform/text/utf8.h"
#include "shell/record_screen.h"

namespace exam {

namespace {

std::string valueLine(const stores::Analysis& analysis) {
  std::string line = text::trim(isaretli(analysis.result, analysis.min, analysis.max));
  if (!analysis.unit.empty()) line += " " + analysis.unit;
  if (!analysis.min.empty() || !analysis.max.empty())
    line += "   (" + analysis.min + " - " + analysis.max + ")";
  return line;
}

}  // namespace

void bas(shell::Station& istasyon, const documents::Report& report, Output output) {
  if (!documents::yazdirilabilir(istasyon)) return;
  const documents::Listing whole{.baslik = report,
                                 .heading = documents::HeadingOn::FirstPage,
                                 .count = 1,
                                 .kayit = [&](std::int64_t) { return report.govde; }};
  const auto pages = documents::dokumSayfalari(istasyon, whole, {});
  if (!pages) return;
  if (output == Output::Preview && !documents::sayfalariGoster(istasyon, *pages)) return;
  documents::sayfalariYazdir(istasyon, shell::RecordScreen::sisim(report.isim), *pages);
}

void analizleriYaz(documents::ReportText& text, std::span<const stores::Analysis> analyses) {
  std::optional<text::DateTime> day;
  for (const stores::Analysis& analysis : analyses) {
    if (analysis.date && analysis.date != day) {
      day = analysis.date;
      text.secyazitipi();
      text.yaz("\n" + text::shortDate(*day) + "\n");
    }
    text.alan(analysis.test, valueLine(analysis));
  }
}

}  // namespace exam
