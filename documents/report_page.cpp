#include "documents/report_page.h"

#include "documents/page_parts.h"
#include "documents/templates.h"
#include "platform/page/device.h"
#include "platform/page/printer.h"
#include "shell/record_screen.h"
#include "shell/text_lookup.h"

namespace documents {

namespace {

// The frame of a report's pages on a device.
class Sheet {
 public:
  Sheet(shell::Station& istasyon, const Report& report)
      : istasyon_(istasyon),
        report_(report),
        layout_(templateOf(report.sablon)),
        device_(istasyon.yazici->metrics()) {
    device_.left = solMarj(istasyon);
    YaziciFontuAyarla(device_, report.yazitipi);
  }

  [[nodiscard]] page::Device& device() { return device_; }

  // What stands above the body, and two blank lines.
  void head() {
    if (layout_.heading) BaslikYazici(istasyon_, device_);
    if (layout_.nameAndDate) nameLine();
    startText(layout_.top);
    device_.print("\n");
  }

  void turnPage(HeadingOn heading) {
    device_.newPage();
    YaziciFontuAyarla(device_, report_.yazitipi);
    heading == HeadingOn::EveryPage ? head() : startText(place::textTop);
  }

  // A report that is signed keeps room for its signature on the page.
  [[nodiscard]] int bodyEnd() const {
    return sayfaSonu(device_) -
           (layout_.signature ? imzaBoyu(istasyon_, device_, report_.imza) : 0);
  }

  void sign() {
    if (layout_.signature) imzaYaz(istasyon_, device_, report_.imza);
  }

 private:
  void startText(int y) {
    device_.x = device_.left;
    device_.y = y;
  }

  void nameLine() {
    startText(place::nameLine);
    device_.print(
        shell::metinbul(istasyon_, "isim") + ": " + shell::RecordScreen::sisim(report_.isim),
        page::Then::StayOnLine);
    device_.x = place::dateX;
    device_.print(report_.tarih);
  }

  shell::Station& istasyon_;
  const Report& report_;
  const Template& layout_;
  page::Device device_;
};

}  // namespace

page::Pages raporSayfasi(shell::Station& istasyon, const Report& report) {
  Sheet sheet(istasyon, report);
  sheet.head();
  metniYaz(sheet.device(), report.govde, sheet.bodyEnd(), [] { return false; });
  sheet.sign();
  return sheet.device().endDocument();
}

std::optional<page::Pages> dokumSayfalari(shell::Station& istasyon, const Listing& listing,
                                          const stores::Progress& progress) {
  Sheet sheet(istasyon, listing.baslik);
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
