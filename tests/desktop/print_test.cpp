// Pages as the toolkit draws them: PDF files that can be searched, and the windows of the previews.
#include <QImage>
#include <QProcess>
#include <QScrollBar>
#include <filesystem>
#include <fstream>
#include <limits>

#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "documents/report_page.h"
#include "documents/report_text.h"
#include "platform/text/utf8.h"
#include "tests/desktop/desk.h"

namespace {

using support::WindowDesk;

constexpr auto pangram = "Pijamalı hasta yağız şoföre çabucak güvendi ĞÜŞİÖÇ ığüşiöç";

QString outputOf(const char* program, const QStringList& arguments) {
  QProcess process;
  process.start(QLatin1String(program), arguments);
  EXPECT_TRUE(process.waitForFinished()) << program << " (poppler-utils)";
  return QString::fromUtf8(process.readAllStandardOutput());
}

documents::Report report(const std::string& body) {
  const forms::Font font{.name = "DejaVu Sans", .size = 10};
  return {.isim = "Ayşe Yıldız*",
          .tarih = "22.11.2026",
          .sablon = 9,
          .imza = "Saygılarımla\nDr. Şule Işık",
          .yazitipi = font,
          .govde = richtext::Document::fromText(body, documents::sayfaYazitipi(font))};
}

std::string sentences(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text.append(pangram).append(". ");
  return text;
}

struct Pdf : testing::Test {
  void print(const page::Pages& pages) {
    const platform::Status printed =
        desk.printer.print("Ayşe Yıldız", {.printer = {}, .file = path}, pages);
    ASSERT_TRUE(printed) << printed.text();
  }
  WindowDesk desk;
  std::string path = desk.folder / "rapor.pdf";
};

TEST_F(Pdf, HoldsTheWordsToSearchForAndItsFonts) {
  print(raporSayfasi(desk.station, report(pangram)));
  const QString text = outputOf("pdftotext", {"-layout", desktop::qs(path), "-"});
  for (const char* part : {"İsim: Ayşe Yıldız", "22.11.2026", pangram, "Dr. Şule Işık"})
    EXPECT_TRUE(text.contains(QString::fromUtf8(part))) << part << "\n" << text.toStdString();
  const QStringList fonts =
      outputOf("pdffonts", {desktop::qs(path)}).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_GT(fonts.size(), 2);
  // The columns "emb", "sub" and "uni".
  const QRegularExpression embeddedAndSearchable(QStringLiteral(" yes +(yes|no) +yes "));
  for (const QString& font : fonts.mid(2))
    EXPECT_TRUE(font.contains(embeddedAndSearchable)) << font.toStdString();
  const QString information = outputOf("pdfinfo", {desktop::qs(path)});
  EXPECT_TRUE(information.contains(QLatin1String("595 x 842 pts (A4)")))
      << information.toStdString();
}

// What was measured for the preview is what stands on the paper: every line ends where it was
// measured to end, to half a point.
TEST_F(Pdf, BreaksItsLinesWhereThePreviewDoes) {
  const page::Pages pages = raporSayfasi(desk.station, report(sentences(30)));
  print(pages);
  const QString boxes = outputOf("pdftotext", {"-bbox-layout", desktop::qs(path), "-"});
  std::vector<double> measured;
  for (const page::Operation& operation : pages.pages[0].operations) {
    const auto* const line = std::get_if<page::Text>(&operation);
    if (line == nullptr || line->text.size() < 60) continue;
    const std::string_view letters = text::trimmed(line->text);
    measured.push_back((line->x + desk.printer.metrics().width(letters, line->font)) / 20.0);
  }
  std::vector<double> drawn;
  QRegularExpression line(QStringLiteral("<line [^>]*xMax=\"([0-9.]+)\""));
  for (auto found = line.globalMatch(boxes); found.hasNext();) {
    drawn.push_back(found.next().captured(1).toDouble());
  }
  ASSERT_GT(measured.size(), 10u);
  for (const double right : measured) {
    double nearest = std::numeric_limits<double>::max();
    for (const double candidate : drawn) nearest = std::min(nearest, std::abs(candidate - right));
    EXPECT_LT(nearest, 0.5) << right;
  }
}

TEST_F(Pdf, APlaceThatCannotBeWrittenIsNamed) {
  const page::Pages pages = raporSayfasi(desk.station, report("x"));
  const std::string folder = desk.folder / "klasör";
  std::filesystem::create_directories(folder);
  for (const std::string& place : {desk.folder / "missing/rapor.pdf", folder}) {
    const platform::Status refused = desk.printer.print("t", {.printer = {}, .file = place}, pages);
    EXPECT_FALSE(refused) << place;
    EXPECT_NE(refused.text().find(place), std::string::npos) << refused.text();
  }
  EXPECT_TRUE(std::filesystem::is_directory(folder));
}

TEST_F(Pdf, APrinterThatIsGoneIsNamed) {
  const platform::Status refused = desk.printer.print("t", {.printer = "Bekleme", .file = {}},
                                                      raporSayfasi(desk.station, report("x")));
  EXPECT_EQ(refused.fault(), platform::Fault::Missing);
  EXPECT_NE(refused.text().find("Bekleme"), std::string::npos);
}

TEST_F(Pdf, HostileHeadingPicturesLeaveTheirPlaceEmpty) {
  std::filesystem::create_directories(desk.folder / "Data");
  const std::string bitmap = desk.folder / "Data/Baslik.bmp";
  QImage(64, 32, QImage::Format_RGB32).save(desktop::qs(bitmap));
  std::ifstream file(bitmap, std::ios::binary);
  const std::string good{std::istreambuf_iterator<char>(file), {}};
  std::string vast = good;
  vast.replace(18, 8, "\xff\xff\xff\x7f\xff\xff\xff\x7f");
  for (const std::string& bytes : {vast, good.substr(0, 60), good.substr(0, 20), std::string()}) {
    std::ofstream(bitmap, std::ios::binary | std::ios::trunc) << bytes;
    print(raporSayfasi(desk.station, report(pangram)));
    EXPECT_TRUE(outputOf("pdftotext", {desktop::qs(path), "-"}).contains(QLatin1String("Pijamal")));
  }
}

// How much of the widget's picture is ink.
bool showsInk(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixelColor(x, y).lightness() < 80) return true;
    }
  }
  return false;
}

TEST(PreviewWindow, ZoomsWithKeysAndClicks) {
  WindowDesk desk;
  documents::FrmPrewive preview(desk.station);
  preview.sayfalariAl(raporSayfasi(desk.station, report(sentences(10))));
  preview.Load();
  desk.host.show(preview);
  support::settle();
  QWidget& window = *desk.host.windowOf(preview);
  support::showActive(window);
  auto& sheet = *window.findChild<QWidget*>(QStringLiteral("picgor"));
  EXPECT_TRUE(showsInk(sheet));
  const auto& frame = preview.picgor.frame();
  EXPECT_TRUE(frame.width <= sheet.width() && frame.height <= sheet.height());
  EXPECT_TRUE(frame.width == sheet.width() || frame.height == sheet.height());
  QTest::mouseClick(&sheet, Qt::LeftButton, {}, sheet.rect().center());
  EXPECT_EQ(preview.KS.caption(), "2");
  QTest::keyClick(&window, Qt::Key_Plus);
  EXPECT_EQ(preview.KS.caption(), "1");
  EXPECT_TRUE(window.findChild<QScrollBar*>(QStringLiteral("SclDüşey"))->isVisible());
  QTest::keyClick(&window, Qt::Key_Minus);
  EXPECT_EQ(preview.KS.caption(), "2");
  QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(desk.host.windowOf(preview), nullptr);
  EXPECT_EQ(desk.station.OnizlemeSonucu, "1");
}

}  // namespace
