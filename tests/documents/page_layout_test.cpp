#include "documents/page_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <tuple>

#include "documents/layout_pages.h"
#include "documents/layout_record.h"
#include "tests/support/scripted_printer.h"

namespace {

using documents::ItemKind;
using documents::LayoutItem;
using documents::PageLayout;
using support::texts;
using Lines = std::vector<std::string>;
namespace unit = documents::unit;

LayoutItem item(ItemKind kind, double left, double top, const forms::Font& font = {}) {
  return {.key = "isim",
          .kind = kind,
          .left = unit::fromMillimetres(left),
          .top = unit::fromMillimetres(top),
          .font = font};
}

// The five items of a prescription.
PageLayout prescription() {
  return PageLayout({item(ItemKind::Picture, 10, 10), item(ItemKind::Picture, 30, 10),
                     item(ItemKind::Line, 20, 50), item(ItemKind::Line, 150, 50),
                     item(ItemKind::Body, 20, 60)});
}

TEST(LayoutUnits, MillimetresOfOneDecimalComeBack) {
  struct Case {
    double millimetres;
    int units;
    int twips;
  };
  for (const Case& c : {Case{0, 0, 0}, Case{20, 570, 1134}, Case{12.5, 356, 708}, Case{0.1, 3, 6},
                        Case{210, 5985, 11906}, Case{-3, -86, -171}}) {
    EXPECT_EQ(unit::fromMillimetres(c.millimetres), c.units);
    EXPECT_EQ(unit::millimetres(c.units), c.millimetres);
    EXPECT_EQ(unit::twips(c.units), c.twips);
    EXPECT_EQ(unit::fromTwips(c.twips), c.units);
  }
  EXPECT_GT(unit::fromMillimetres(1e300), 0);
}

TEST(PageLayouts, NoPlaceIsOffTheSheet) {
  PageLayout layout = prescription();
  struct Case {
    int left, top, seenLeft, seenTop;
  };
  const int right = unit::fromMillimetres(190);
  const int foot = unit::fromTwips(page::a4.height) - unit::fromMillimetres(20);
  for (const Case& c :
       {Case{-1, -32768, 0, 0}, Case{32767, 32767, right, foot}, Case{300, 400, 300, 400}}) {
    layout.move(2, c.left, c.top);
    EXPECT_EQ(layout.items()[2].left, c.seenLeft);
    EXPECT_EQ(layout.items()[2].top, c.seenTop);
  }
}

files::SettingRecord stored(const files::SettingRecord& record) {
  return files::SettingRecord::decode(record.encode());
}

TEST(LayoutRecord, KeepsPlacesFontsAndWhatIsPrinted) {
  PageLayout laid = prescription();
  laid.move(0, 1, 2);
  laid.move(4, 321, 4567);
  laid.setShown(1, false);
  laid.setShown(3, false);
  forms::Font font{.name = "Şık Yazı", .size = 14};
  font.bold = font.strikethrough = true;
  font.colour = 0x102030;
  laid.setFont(2, font);
  font.name.clear();
  font.italic = font.underline = true;
  laid.setFont(4, font);
  files::SettingRecord record;
  documents::yerlesimYaz(laid, record);
  PageLayout read = prescription();
  documents::yerlesimOku(read, stored(record));
  EXPECT_EQ(read, laid);
}

TEST(LayoutRecord, LeavesTheScreenOfTheRecordItsOwn) {
  files::SettingRecord record;
  record.owner = "FrmMain";
  record.templateNumber = 9;
  record.signature = "Saygılarımla";
  record.fontName = "Arial";
  const files::SettingRecord before = record;
  documents::yerlesimYaz(prescription(), record);
  EXPECT_EQ(std::tie(record.owner, record.templateNumber, record.signature, record.fontName),
            std::tie(before.owner, before.templateNumber, before.signature, before.fontName));
}

TEST(LayoutRecord, FontsShareTheRoomWhereverItsFieldsMeet) {
  for (int letters = 1; letters < 25; ++letters) {
    PageLayout laid = prescription();
    const std::string name = std::string(static_cast<std::size_t>(letters), 'x') + " Sans";
    laid.setFont(2, {.name = name, .size = 9});
    laid.setFont(3, {.name = "Times New Roman", .size = 10});
    laid.setFont(4, {.name = "DejaVu Sans", .size = 11});
    files::SettingRecord record;
    documents::yerlesimYaz(laid, record);
    PageLayout read = prescription();
    documents::yerlesimOku(read, stored(record));
    EXPECT_EQ(read, laid) << letters;
  }
}

// The fonts that come back, by their names; an item without one has no font at all.
std::vector<std::string> namesThatComeBack(const PageLayout& laid) {
  files::SettingRecord record;
  documents::yerlesimYaz(laid, record);
  PageLayout read = prescription();
  documents::yerlesimOku(read, stored(record));
  std::vector<std::string> names;
  for (std::size_t item = 2; item < 5; ++item) {
    EXPECT_EQ(read.items()[item].font.size, laid.items()[item].font.size) << item;
    EXPECT_EQ(read.items()[item].font.bold, laid.items()[item].font.bold) << item;
    names.push_back(read.items()[item].font.name);
  }
  return names;
}

TEST(LayoutRecord, KeepsLongNamesWholeAndTellsWhichItCannot) {
  using Names = std::vector<std::string>;
  const std::string bookman = "Bookman Old Style Condensed";
  const std::string wide = "Source Code Variable Semibold Condensed";
  const struct {
    Names chosen;
    Names kept;
    std::vector<std::size_t> unkept;
  } cases[] = {
      {{bookman, "Noto Serif Display SemiBold", "DejaVu Sans Condensed Bold"},
       {bookman, "Noto Serif Display SemiBold", "DejaVu Sans Condensed Bold"},
       {}},
      {{wide, wide, wide}, {wide, wide, wide}, {}},
      {{wide, bookman, wide}, {wide, bookman, ""}, {4}},
      {{"Źródło", "Arial", "Arial"}, {"Zródlo", "Arial", "Arial"}, {2}},
  };
  for (const auto& c : cases) {
    PageLayout laid = prescription();
    for (std::size_t i = 0; i < 3; ++i)
      laid.setFont(i + 2, {.name = c.chosen[i], .size = 12, .bold = i == 2});
    EXPECT_EQ(namesThatComeBack(laid), c.kept);
    EXPECT_EQ(documents::unkeptFonts(laid), c.unkept) << c.chosen[0];
  }
}

TEST(LayoutRecord, IsKeptEvenWhenNothingIsPrinted) {
  PageLayout laid = prescription();
  for (std::size_t i = 0; i < laid.items().size(); ++i) laid.setShown(i, false);
  files::SettingRecord record;
  documents::yerlesimYaz(laid, record);
  PageLayout read = prescription();
  documents::yerlesimOku(read, stored(record));
  EXPECT_EQ(read, laid);
}

TEST(LayoutRecord, LeavesTheUsualLayoutWhereNoneWasWritten) {
  files::SettingRecord record;
  record.owner = "FrmMain";
  record.signature = "Saygılarımla";
  for (const int mark : {0, 7, -1}) {
    record.numbers.back() = static_cast<std::int16_t>(mark);
    PageLayout read = prescription();
    documents::yerlesimOku(read, record);
    EXPECT_EQ(read, prescription()) << mark;
  }
}

TEST(LayoutRecord, NumbersOffTheSheetComeBackAndADamagedFontIsPassedOver) {
  files::SettingRecord record;
  documents::yerlesimYaz(prescription(), record);
  std::ranges::copy(std::array<std::int16_t, 4>{-5, -32768, 32767, 32767}, record.numbers.begin());
  for (const char* broken : {"", "x;b;0;Arial", "12;b;-1;Arial", "-4;;0;", "99999;;0;Arial"}) {
    record.text1 = broken;
    record.text2.clear();
    PageLayout read = prescription();
    documents::yerlesimOku(read, stored(record));
    EXPECT_EQ(read.items()[0].left, 0);
    EXPECT_EQ(read.items()[0].top, 0);
    EXPECT_LT(unit::twips(read.items()[1].left), page::a4.width);
    EXPECT_LT(unit::twips(read.items()[1].top), page::a4.height);
    EXPECT_EQ(read.items()[2].font, forms::Font()) << broken;
  }
}

struct Sheet : testing::Test {
  support::FixedMetrics metrics;
  PageLayout layout = prescription();
  Lines contents{"ikon", "baslik", "Ayşe", "22.11.2026", "1 - Parol\n    S: 3x1"};
  Sheet() {
    metrics.pictures["ikon"] = {480, 480};
    metrics.pictures["baslik"] = {6000, 900};
  }
  [[nodiscard]] page::Pages pages() const {
    return documents::yerlesimSayfalari(metrics, layout, contents);
  }
  [[nodiscard]] page::Rectangle place(std::size_t i) const {
    return yerlesenOge(metrics, layout.items()[i], contents[i], layout.sheet()).place;
  }
};

TEST_F(Sheet, EveryItemIsPrintedAtItsPlace) {
  const page::Pages printed = pages();
  ASSERT_EQ(printed.pages.size(), 1u);
  const page::Page& page = printed.pages[0];
  EXPECT_EQ(texts(page), (Lines{"1134,2835 Ayşe", "8504,2835 22.11.2026", "1134,3402 1 - Parol",
                                "1134,3642     S: 3x1"}));
  EXPECT_EQ(support::all<page::Picture>(page),
            (std::vector<page::Picture>{{{1701, 567, 6000, 900}, "baslik"},
                                        {{567, 567, 480, 480}, "ikon"}}))
      << "the icon over the letterhead";
}

TEST_F(Sheet, WhatIsSwitchedOffOrMissingLeavesTheOthersWhereTheyAre) {
  layout.setShown(0, false);
  layout.setShown(2, false);
  metrics.pictures.erase("baslik");
  const page::Page page = pages().pages[0];
  EXPECT_EQ(texts(page),
            (Lines{"8504,2835 22.11.2026", "1134,3402 1 - Parol", "1134,3642     S: 3x1"}));
  EXPECT_TRUE(support::all<page::Picture>(page).empty());
}

TEST_F(Sheet, FontsAreTheItemsOwn) {
  layout.setFont(2, {.name = "Arial", .size = 20});
  layout.setFont(4, {.name = "", .size = 5});
  EXPECT_EQ(texts(pages().pages[0]), (Lines{"1134,2835 Ayşe", "8504,2835 22.11.2026",
                                            "1134,3402 1 - Parol", "1134,3522     S: 3x1"}));
  EXPECT_EQ(place(2).width, 800);
}

TEST_F(Sheet, ALongPrescriptionGoesOnUnderTheSameHeading) {
  contents[4].clear();
  for (int line = 0; line < 60; ++line) contents[4] += std::to_string(line) + "\n";
  const page::Pages printed = pages();
  ASSERT_EQ(printed.pages.size(), 2u);
  const Lines first = texts(printed.pages[0]);
  const Lines second = texts(printed.pages[1]);
  EXPECT_EQ(first.size() + second.size(), 60u + 2 * 2);
  EXPECT_EQ(first.back(), "1134,16122 53");
  EXPECT_EQ(Lines(second.begin(), second.begin() + 3),
            (Lines{"1134,2835 Ayşe", "8504,2835 22.11.2026", "1134,3402 54"}));
  EXPECT_EQ(support::all<page::Picture>(printed.pages[1]).size(), 2u);
}

TEST_F(Sheet, ALongLineIsBrokenAtTheEdgeOfTheSheet) {
  layout.move(4, unit::fromMillimetres(150), 0);
  contents[4] = "amoksisilin klavulanat tablet yirmi";
  EXPECT_EQ(texts(pages().pages[0]).size(), 2u + 2);
  for (const page::Text& text : support::all<page::Text>(pages().pages[0]))
    EXPECT_LE(text.x + metrics.width(text.text, text.font), page::a4.width);
}

TEST_F(Sheet, NothingLeavesTheSheet) {
  metrics.pictures["baslik"] = {30000, 1000};
  layout.move(0, 99999, 99999);
  layout.move(3, 99999, 0);
  EXPECT_EQ(place(0), (page::Rectangle{10772, 15705, 480, 480}));
  EXPECT_EQ(place(1).width, page::a4.width);
  EXPECT_EQ(place(1).x, 0);
  EXPECT_EQ(place(3).x, page::a4.width - 300 - 1000);
}

TEST_F(Sheet, TheMiniatureDrawsAnItemFromItsCorner) {
  const auto body = yerlesenOge(metrics, layout.items()[4], contents[4], layout.sheet());
  EXPECT_EQ(body.place, (page::Rectangle{1134, 3402, 11906 - 300 - 1134, 480}));
  EXPECT_EQ(texts(body.drawing), (Lines{"0,0 1 - Parol", "0,240     S: 3x1"}));
  const auto nothing = yerlesenOge(metrics, layout.items()[0], "no file", layout.sheet());
  EXPECT_TRUE(nothing.drawing.operations.empty());
  EXPECT_GT(nothing.place.width, 0);
}

}  // namespace
