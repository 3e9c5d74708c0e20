// A report of one page to a PDF file, from its text to the file that is safe on the disk, against
// the same lines drawn straight through the toolkit, at places that are known beforehand, into a
// file that is made as safe.
#include <QApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/print/qt_printer.h"
#include "desktop/qt_host.h"
#include "desktop/text.h"
#include "documents/report_page.h"
#include "documents/report_text.h"
#include "platform/settings/backend.h"
#include "platform/settings/settings.h"

namespace {

constexpr int rounds = 41;
constexpr double goal = 1.5;

documents::Report report() {
  const forms::Font font{.name = "DejaVu Sans", .size = 10};
  documents::ReportText text(font);
  for (int line = 0; line < 24; ++line) {
    text.alan("Bulgu " + std::to_string(line),
              "Akciğer sesleri doğal, ekspiryum uzun; ral ve ronküs duyulmadı. Kalp ritmik, üfürüm "
              "yok, periferik nabızlar açık.");
  }
  return {.isim = "Zeynep Yılmaz",
          .tarih = "22.11.2026",
          .sablon = 7,
          .imza = "Dr. Ayşe Demir",
          .yazitipi = font,
          .govde = text.document()};
}

// Only the toolkit: its own fonts, the lines already broken.
void drawStraight(const page::Pages& pages, QIODevice& file) {
  QPdfWriter writer(&file);
  writer.setResolution(page::twipsPerInch);
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setPageMargins({});
  QPainter painter(&writer);
  for (const page::Operation& operation : pages.pages[0].operations) {
    const auto& text = std::get<page::Text>(operation);
    QFont font(QStringLiteral("DejaVu Sans"), text.font.halfPoints / 2);
    font.setBold(text.font.bold);
    painter.setFont(font);
    painter.drawText(text.x, text.y + 200, desktop::qs(text.text));
  }
}

double milliseconds(const std::function<void()>& work) {
  const auto began = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - began)
      .count();
}

double median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QTemporaryDir folder;
  desktop::QtHost host{desktop::ViewRegistry()};
  const host::SystemClock clock;
  const shell::ScreenDirectory screens;
  settings::Settings settings(std::make_unique<settings::MemoryBackend>());
  shell::Station station({host, clock, settings, screens}, desktop::utf8(folder.path()), "IntMed");
  desktop::QtPrinter printer;
  station.yazici = &printer;

  const documents::Report wanted = report();
  const page::Pages pages = raporSayfasi(station, wanted);
  const QString file = folder.filePath(QStringLiteral("report.pdf"));
  std::vector<double> ours;
  std::vector<double> straight;
  std::vector<double> composing;
  for (int round = 0; round <= rounds; ++round) {
    const double compose = milliseconds([&] { (void)raporSayfasi(station, wanted); });
    const double whole = milliseconds([&] {
      (void)printer.print("report", {.printer = {}, .file = desktop::utf8(file)},
                          raporSayfasi(station, wanted));
    });
    const double bare = milliseconds([&] {
      QSaveFile target(file);
      if (!target.open(QIODevice::WriteOnly)) return;
      drawStraight(pages, target);
      target.commit();
    });
    if (round == 0) continue;  // the first finds the fonts
    composing.push_back(compose);
    ours.push_back(whole);
    straight.push_back(bare);
  }
  std::printf("one page to PDF  %6.2f ms   straight %6.2f ms   ratio %4.2f   goal %3.1f\n",
              median(ours), median(straight), median(ours) / median(straight), goal);
  std::printf("composing alone  %6.2f ms, %zu texts\n", median(composing),
              pages.pages[0].operations.size());
  return 0;
}
