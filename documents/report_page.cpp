#include "documents/report_page.h"

#include "documents/page_parts.h"
#include "documents/report_sheet.h"

namespace documents {

page::Pages raporSayfasi(shell::Station& istasyon, const Report& report) {
  ReportSheet sheet(istasyon, report);
  sheet.head();
  metniYaz(sheet.device(), report.govde, sheet.bodyEnd(), [] { return false; });
  sheet.sign();
  return sheet.device().endDocument();
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
