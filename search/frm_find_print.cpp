// The finder's result on paper.
#include "platform/text/date.h"
#include "search/frm_find.h"
#include "search/result_pages.h"
#include "shell/frm_progress.h"

namespace search {

namespace {

// Fewer are laid out before a progress bar could be read.
constexpr std::size_t rowsWithoutProgress = 2000;

}  // namespace

std::string FrmFind::basilanTarih() const {
  return text::shortDate(istasyon.clock.today());
}

std::optional<page::Pages> FrmFind::sayfalar(shell::Station&, documents::Report report) {
  ResultPages pages(istasyon, report, BulList);
  BulList.rowCount() <= rowsWithoutProgress ? hepsiniDiz(pages) : dilimDilimDiz(pages);
  if (!pages.done()) return std::nullopt;
  return pages.finish();
}

void FrmFind::hepsiniDiz(ResultPages& pages) {
  while (!pages.done()) pages.step();
}

void FrmFind::dilimDilimDiz(ResultPages& pages) {
  const auto slice = [&]() -> std::optional<std::int64_t> {
    if (pages.done()) return std::nullopt;
    const shell::Deadline deadline(dilimSuresi);
    do pages.step();
    while (!pages.done() && !deadline.passed());
    return static_cast<std::int64_t>(pages.row());
  };
  shell::surdurerekYap(istasyon, {caption(), static_cast<std::int64_t>(BulList.rowCount()), slice});
}

}  // namespace search
