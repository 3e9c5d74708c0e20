#include "documents/report_page.h"

#include <utility>

#include "documents/page_parts.h"
#include "documents/report_sheet.h"

namespace documents {

namespace {

enum class Body { Whole, Cut };

// The page with as much of the body as it takes beside what stands below it; none when a body that
// was taken for a whole one is longer.
std::optional<page::Pages> onePage(shell::Station& istasyon, const Report& report, Body body) {
  ReportSheet sheet(istasyon, report);
  sheet.head();
  bool whole = true;
  const int bottom = sheet.bodyEnd() - (body == Body::Cut ? sheet.cutNoteHeight() : 0);
  metniYaz(sheet.device(), report.govde, bottom, [&] { return whole = false; });
  if (body == Body::Whole && !whole) return std::nullopt;
  if (body == Body::Cut) sheet.noteCut();
  sheet.sign();
  return sheet.device().endDocument();
}

}  // namespace

std::optional<page::Pages> tamSayfa(shell::Station& istasyon, const Report& report) {
  return onePage(istasyon, report, Body::Whole);
}

page::Pages raporSayfasi(shell::Station& istasyon, const Report& report) {
  auto page = tamSayfa(istasyon, report);
  return page ? std::move(*page) : onePage(istasyon, report, Body::Cut).value();
}

page::Pages raporSayfalari(shell::Station& istasyon, const Report& report) {
  const Listing listing{
      .baslik = report, .count = 1, .kayit = [&](std::int64_t) { return report.govde; }};
  return dokumSayfalari(istasyon, listing, [](std::int64_t, std::int64_t) { return true; }).value();
}

std::optional<page::Pages> dokumSayfalari(shell::Station& istasyon, const Listing& listing,
                                          const stores::Progress& progress) {
  ReportSheet sheet(istasyon, listing.baslik);
  sheet.head();
  for (std::int64_t record = 0; record < listing.count; ++record) {
    if (!progress(record, listing.count)) return std::nullopt;
    metniYaz(sheet.device(), listing.kayit(record), sheet.bodyEnd(), [&] {
      sheet.turnPage(listing.heading);
      return true;
    });
  }
  sheet.sign();
  return sheet.device().endDocument();
}

}  // namespace documents
