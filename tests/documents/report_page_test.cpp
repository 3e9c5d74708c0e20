#include "documents/report_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "documents/frm_pattern.h"
#include "documents/templates.h"
#include "shell/font_record.h"
#include "tests/documents/print_desk.h"

namespace {

using documents::Report;
using support::all;
using support::PrintDesk;
using support::texts;
using Lines = std::vector<std::string>;

constexpr auto bitmap = "Data/Baslik.bmp";
constexpr auto icon = "Data/Baslik.ico";
constexpr auto headingText = "Data/Baslik.rtf";

// Ten points: characters of 100 twips, lines of 240.
const page::Font tenPoints = support::pointsOf(10);

Report report(int sablon, std::string_view body = "Gövde", std::string imza = "Dr. A") {
  return {.isim = "Ayşe Yıldız**",
          .tarih = "22.11.2026",
          .sablon = sablon,
          .imza = std::move(imza),
          .yazitipi = {.name = "MS Sans Serif", .size = 10},
          .govde = richtext::Document::fromText(body, tenPoints)};
}

const page::Page& onePage(const page::Pages& pages) {
  EXPECT_EQ(pages.pages.size(), 1u);
  return pages.pages.front();
}

Lines printed(PrintDesk& desk, const Report& wanted) {
  return texts(onePage(raporSayfasi(desk.station, wanted)));
}

TEST(ReportPage, FollowsTheTableOfTemplates) {
  PrintDesk desk;
  desk.write(headingText,
             R"({\rtf1\ansi\ansicpg1254\fs20 Dr. Ay\'fee\par \'dd\'e7 Hastal\'fdklar\'fd})");
  desk.addPicture(bitmap, {1500, 600});
  const Lines letterhead{"867,900 Dr. Ayşe", "867,1140 İç Hastalıkları"};
  const Lines nameLine{"567,2100 İsim: Ayşe Yıldız", "7000,2100 22.11.2026"};
  for (int number = 0; number < 10; ++number) {
    SCOPED_TRACE(number);
    const bool high = number == 0 || number == 5;
    const bool named = number == 2 || number == 3 || number == 7 || number == 9;
    const bool headed = number == 3 || number == 4 || number == 8 || number == 9;
    Lines expected = headed ? letterhead : Lines{};
    if (named) expected.insert(expected.end(), nameLine.begin(), nameLine.end());
    expected.push_back(high ? "567,780 Gövde" : "567,3180 Gövde");
    if (number >= 5) expected.push_back(high ? "7500,1220 Dr. A" : "7500,3620 Dr. A");
    const page::Pages pages = raporSayfasi(desk.station, report(number));
    EXPECT_EQ(texts(onePage(pages)), expected);
    EXPECT_EQ(all<page::Picture>(onePage(pages)).size(), headed ? 1u : 0u);
  }
  EXPECT_EQ(printed(desk, report(-3)), printed(desk, report(0)));
}

TEST(ReportPage, EntriesAreNamedInTheUsersLanguage) {
  PrintDesk turkish;
  PrintDesk english("eng");
  EXPECT_EQ(templateEntry(turkish.station, documents::templateOf(9)), "İmza, Başlık, İsim, Tarih");
  EXPECT_EQ(templateEntry(english.station, documents::templateOf(7)), "Signature, Name, Date");
}

TEST(ReportPage, ALongBodyIsCutAndTheSignatureStandsBelowIt) {
  PrintDesk desk;
  std::string body;
  for (int line = 1; line <= 200; ++line) body += std::to_string(line) + "\n";
  const Lines cut = printed(desk, report(0, body));
  EXPECT_EQ(cut[63], "567,15900 64");
  EXPECT_EQ(cut.back(), "567,16140 (devamı bu sayfaya sığmadı)");  // another ends below 16538
  const Lines isSigned = printed(desk, report(5, body, "Dr. A\nB"));
  EXPECT_EQ(isSigned, [&] {
    Lines expected(cut.begin(), cut.begin() + 61);
    expected.insert(expected.end(),
                    {"567,15420 (devamı bu sayfaya sığmadı)", "7500,15860 Dr. A", "7900,16100 B"});
    return expected;
  }());
  // What just fits says nothing, and the note itself fits whatever the font of the screen is.
  body = body.substr(0, body.find("\n66\n"));
  EXPECT_EQ(printed(desk, report(0, body)).back(), "567,16140 65");
  Report large = report(0, std::string(5000, 'x'));
  large.yazitipi.size = 72;
  const auto found = all<page::Text>(onePage(raporSayfasi(desk.station, large)));
  EXPECT_EQ(found.back().font.halfPoints, 20);
  EXPECT_LE(found.back().y + 240, page::a4.height - 300);
}

TEST(ReportPage, LongLinesStayOnTheSheet) {
  PrintDesk desk;
  const std::string words = "onbirharfli onbirharfli onbirharfli onbirharfli onbirharfli ";
  const Lines lines = printed(desk, report(0, words + words));
  EXPECT_EQ(lines.size(), 2u);
  for (const page::Text& text :
       all<page::Text>(onePage(raporSayfasi(desk.station, report(0, words + words)))))
    EXPECT_LE(text.x + desk.printer.fixed.width(text.text, text.font), page::a4.width);
  desk.station.ayarYaz("left margin", "-5");
  EXPECT_EQ(printed(desk, report(0)), Lines{"0,780 Gövde"});
}

TEST(ReportPage, TheBodyKeepsItsFonts) {
  PrintDesk desk;
  Report wanted = report(2);
  wanted.yazitipi = {.name = "Arial", .size = 10, .italic = true, .colour = 0x800000};
  page::Font bold = tenPoints;
  bold.bold = true;
  wanted.govde = richtext::Document({{{{"Tanı", bold}, {" : astım", tenPoints}}, {}}});
  const auto found = all<page::Text>(onePage(raporSayfasi(desk.station, wanted)));
  ASSERT_EQ(found.size(), 4u);
  for (const int ofForm : {0, 1}) {
    EXPECT_EQ(found[static_cast<std::size_t>(ofForm)].font,
              (page::Font{.font = "Arial", .halfPoints = 20, .italic = true, .colour = 0x800000}));
  }
  EXPECT_EQ(found[2].font, bold);
  EXPECT_EQ(found[3].font, tenPoints);
  EXPECT_EQ(found[3].x, 967);
}

TEST(ReportPage, TheSignatureHasTheFontOfTheDialogAlone) {
  PrintDesk desk;
  files::SettingRecord row;
  row.owner = "FrmRad";
  row.fontSize = 20;
  ASSERT_TRUE(ayarKaydiYaz(desk.station, shell::font_record::signature, row).ok());
  EXPECT_EQ(printed(desk, report(6, "x", "Dr. A\r\nKardiyolog")),
            (Lines{"567,3180 x", "7500,3620 Dr. A", "7000,3860 Kardiyolog"}));
  row.owner = "frmpattern";
  ASSERT_TRUE(ayarKaydiYaz(desk.station, shell::font_record::signature, row).ok());
  EXPECT_EQ(printed(desk, report(6, "x", "Dr. A\r\nKardiyolog")),
            (Lines{"567,3180 x", "7000,3620 Dr. A", "6000,4100 Kardiyolog"}));
}

TEST(ReportPage, HeadingPicturesStandWhereTheirSizesSay) {
  struct Case {
    const char* title;
    page::Size bitmap;
    page::Size icon;
    page::Rectangle place;
  };
  const Case cases[]{
      {"a bitmap alone", {3000, 900}, {}, {567, 300, 3000, 900}},
      {"an icon in the middle of the bitmap's width",
       {3000, 900},
       {480, 480},
       {1827, 300, 480, 480}},
      {"an icon alone", {}, {480, 480}, {567, 300, 480, 480}},
      {"an icon wider than the bitmap", {150, 150}, {480, 480}, {567, 300, 480, 480}},
      {"as wide as the sheet takes", {21544, 2000}, {}, {567, 300, 10772, 1000}},
      {"no lower than the name", {3600, 7200}, {}, {567, 300, 900, 1800}},
  };
  for (const Case& c : cases) {
    PrintDesk desk;
    if (c.bitmap.width > 0) desk.addPicture(bitmap, c.bitmap);
    if (c.icon.width > 0) desk.addPicture(icon, c.icon);
    const auto painted = all<page::Picture>(onePage(raporSayfasi(desk.station, report(4))));
    ASSERT_EQ(painted.size(), 1u) << c.title;
    EXPECT_EQ(painted[0].place, c.place) << c.title;
    EXPECT_TRUE(painted[0].path.ends_with(c.icon.width > 0 ? "ico" : "bmp")) << c.title;
  }
}

TEST(ReportPage, LetterheadsThatAreMissingOrBrokenArePassedOver) {
  const Lines without{"567,2100 İsim: Ayşe Yıldız", "7000,2100 22.11.2026", "567,3180 Gövde"};
  const std::string damaged[]{"", "no rich text", std::string(2000, '{'),
                              "{\\rtf1" + std::string(5000, '{') + "x",
                              std::string("\xff\0\x01", 3)};
  PrintDesk desk;
  EXPECT_EQ(printed(desk, report(3)), without);
  for (const std::string& bytes : damaged) {
    desk.write(headingText, bytes);
    EXPECT_EQ(printed(desk, report(3)), without) << bytes.substr(0, 10);
  }
  EXPECT_TRUE(desk.host.asked.empty());
}

TEST(ReportPage, AHeadingWithoutEndStaysOnItsPage) {
  PrintDesk desk;
  std::string endless = "{\\rtf1\\fs20 ";
  for (int line = 0; line < 5000; ++line) endless += "x\\par ";
  desk.write(headingText, endless + "}");
  for (const page::Text& text : all<page::Text>(onePage(raporSayfasi(desk.station, report(4)))))
    EXPECT_LE(text.y + 240, page::a4.height);
}

documents::Listing listing(documents::HeadingOn heading, std::int64_t count) {
  return {
      .baslik = report(7), .heading = heading, .count = count, .kayit = [](std::int64_t record) {
        return richtext::Document::fromText("kayıt " + std::to_string(record) + "\n", tenPoints);
      }};
}
const auto goOn = [](std::int64_t, std::int64_t) { return true; };

TEST(Listing, GoesOnOnNewPagesAndSignsTheLast) {
  using enum documents::HeadingOn;
  for (const auto heading : {FirstPage, EveryPage}) {
    PrintDesk desk;
    const auto pages = dokumSayfalari(desk.station, listing(heading, 200), goOn);
    ASSERT_TRUE(pages);
    std::vector<std::string> records;
    for (const page::Page& page : pages->pages) {
      Lines lines = texts(page);
      const bool named = std::ranges::count(lines, "567,2100 İsim: Ayşe Yıldız") == 1;
      EXPECT_EQ(named, heading == EveryPage || &page == &pages->pages.front());
      const bool isSigned = lines.back().ends_with("Dr. A");
      EXPECT_EQ(isSigned, &page == &pages->pages.back());
      for (const std::string& line : lines) {
        const std::size_t at = line.find("kayıt");
        if (at != line.npos) records.push_back(line.substr(at));
      }
    }
    EXPECT_GT(pages->pages.size(), 2u);
    ASSERT_EQ(records.size(), 200u);
    EXPECT_EQ(records.back(), "kayıt 199");
    EXPECT_EQ(texts(pages->pages[1])[heading == EveryPage ? 2 : 0],
              heading == EveryPage ? "567,3180 " + records[53] : "567,300 " + records[53]);
  }
}

TEST(Listing, StopsOnRequest) {
  PrintDesk desk;
  std::int64_t last = -1;
  const auto pages = dokumSayfalari(desk.station, listing(documents::HeadingOn::FirstPage, 100),
                                    [&](std::int64_t done, std::int64_t total) {
                                      EXPECT_EQ(total, 100);
                                      last = done;
                                      return done < 40;
                                    });
  EXPECT_FALSE(pages);
  EXPECT_EQ(last, 40);
}

}  // namespace
