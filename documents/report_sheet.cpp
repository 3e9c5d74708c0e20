#include "documents/report_sheet.h"

#include <algorithm>
#include <utility>

#include "documents/page_parts.h"
#include "documents/report_text.h"
#include "platform/page/printer.h"
#include "shell/phrases.h"
#include "shell/record_screen.h"
#include "shell/text_lookup.h"

namespace documents {

ReportSheet::ReportSheet(shell::Station& istasyon, const Report& report)
    : istasyon_(istasyon),
      report_(report),
      layout_(templateOf(report.sablon)),
      device_(istasyon.yazici->metrics()) {
  device_.left = solMarj(istasyon);
  YaziciFontuAyarla(device_, report.yazitipi);
}

void ReportSheet::head() {
  if (layout_.heading) BaslikYazici(istasyon_, device_);
  if (layout_.nameAndDate) nameLine();
  startText(layout_.top);
  device_.print("\n");
}

void ReportSheet::turnPage(HeadingOn heading) {
  device_.newPage();
  YaziciFontuAyarla(device_, report_.yazitipi);
  heading == HeadingOn::EveryPage ? head() : startText(place::textTop);
}

int ReportSheet::bodyEnd() const {
  return sayfaSonu(device_) - (layout_.signature ? imzaBoyu(istasyon_, device_, report_.imza) : 0);
}

void ReportSheet::sign() {
  if (layout_.signature) imzaYaz(istasyon_, device_, report_.imza);
}

// Never so large that it would not fit on one line.
page::Font ReportSheet::noteFont() const {
  constexpr int largest = 20;
  page::Font font = sayfaYazitipi(report_.yazitipi);
  font.halfPoints = std::min(font.halfPoints, largest);
  font.italic = true;
  return font;
}

int ReportSheet::cutNoteHeight() const {
  return device_.metrics().height(noteFont()).line;
}

void ReportSheet::noteCut() {
  const page::Font kept = std::exchange(device_.font, noteFont());
  device_.x = device_.left;
  device_.print(phrase(istasyon_, shell::Phrase::ReportCut));
  device_.font = kept;
}

void ReportSheet::startText(int y) {
  device_.x = device_.left;
  device_.y = y;
}

// A report of many patients has a date alone.
void ReportSheet::nameLine() {
  startText(place::nameLine);
  if (!report_.isim.empty())
    device_.print(
        shell::metinbul(istasyon_, "isim") + ": " + shell::RecordScreen::sisim(report_.isim),
        page::Then::StayOnLine);
  device_.x = place::dateX;
  device_.print(report_.tarih);
}

}  // namespace documents
