// The finder's result on paper.
#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "shell/frm_progress.h"
#include "tests/search/find_fixture.h"
#include "tests/support/scripted_printer.h"

namespace {

using Lines = std::vector<std::string>;

struct FindPrint : support::Finder {
  support::ScriptedPrinter printer;
  search::FrmFind finder{desk.station};

  FindPrint() {
    desk.station.yazici = &printer;
    printer.names = {"Muayene"};
    desk.host.modal["frmprinter"] = [](forms::Form& form) {
      dynamic_cast<forms::CommandButton&>(*form.find("buttamam")).press();
    };
    finder.Load();
  }
  void list() {
    finder.TümListe();
    desk.host.runTasks();
  }
  const page::Pages& printed() {
    finder.mnuyazdır.press();
    EXPECT_FALSE(printer.jobs.empty());
    return printer.jobs.back().pages;
  }
};

TEST_F(FindPrint, IsATableWhoseCellsFitTheirColumns) {
  card("Ali", {{"Year of Birth", "1980"}, {"Telephone2", "417"}});
  card("Ayşe Yıldız Karaosmanoğlu*", {{"Date of Birth", "1991-03-12"},
                                      {"Sex", "0"},
                                      {"Place of Birth", "Afyonkarahisar"},
                                      {"email", "a@b\nc"}});
  list();
  const page::Pages& pages = printed();
  ASSERT_EQ(pages.pages.size(), 1u);
  const Lines lines = support::texts(pages.pages[0]);
  const Lines rows{"200,972 Ali",
                   "2000,972 1980",
                   "6200,972 417",
                   "200,1212 Ayşe Yıldız Karao",
                   "2000,1212 12.03.1991/K",
                   "3800,1212 Afyonkarahi",
                   "5000,1212 a@b"};
  EXPECT_EQ(Lines(lines.begin() + 5, lines.end()), rows);
  EXPECT_EQ(printer.jobs[0].title, "Bul");
}

TEST_F(FindPrint, TheHeadIsBoldUnderlinedAndWhole) {
  card("Ali");
  list();
  const auto texts = support::all<page::Text>(printed().pages[0]);
  const std::pair<int, const char*> heads[]{{200, "İsim"},
                                            {2000, "Doğum Tarihi/Cinsiyet"},
                                            {3800, "Doğum Yeri"},
                                            {5000, "E-posta"},
                                            {6200, "Telefon"}};
  for (std::size_t column = 0; column < std::size(heads); ++column) {
    EXPECT_EQ(texts[column].x, heads[column].first);
    EXPECT_EQ(texts[column].text, heads[column].second);
    EXPECT_TRUE(texts[column].font.bold && texts[column].font.underline);
  }
  EXPECT_FALSE(texts[5].font.bold || texts[5].font.underline);
  EXPECT_EQ(texts[5].font.halfPoints, 20);
  EXPECT_LT(texts[0].font.halfPoints, 20) << "smaller, so that no column's name is cut";
}

// Every page has the template's parts and the head; no row is lost or comes twice.
TEST_F(FindPrint, ManyRowsGoOnUnderTheHeadOfTheNextPage) {
  manyCards(200);
  finder.baski.lblsablonno.setCaption("7");
  list();
  const page::Pages& pages = printed();
  ASSERT_GT(pages.pages.size(), 2u);
  Lines names;
  for (const page::Page& page : pages.pages) {
    const auto texts = support::all<page::Text>(page);
    EXPECT_EQ(texts[0].text, "22.11.2026") << "of many patients: no name";
    EXPECT_EQ(texts[1].text, "İsim");
    for (const page::Text& text : texts) {
      EXPECT_LT(text.y + 240, pages.size.height - 300);
      if (text.text.starts_with("Hasta")) names.push_back(text.text);
    }
  }
  EXPECT_EQ(names, keys(finder.BulList));
}

TEST_F(FindPrint, ThePreviewShowsOnePageOrMany) {
  std::size_t shown = 0;
  desk.host.modal["frmprewive"] = [&](forms::Form&) { ++shown; };
  desk.host.modal["frmpreview1"] = [&](forms::Form& form) {
    shown += 10;
    dynamic_cast<documents::FrmPreview1&>(form).tbToolBar.press("print");
  };
  card("Ali");
  list();
  finder.mnuonizleme.press();
  EXPECT_EQ(shown, 1u);
  EXPECT_TRUE(printer.jobs.empty());
  manyCards(100);
  list();
  finder.mnuonizleme.press();
  EXPECT_EQ(shown, 11u);
  EXPECT_EQ(printer.jobs.size(), 1u);
}

TEST_F(FindPrint, LongListsShowHowFarTheyAreAndCanBeStopped) {
  manyCards(2500);
  list();
  finder.dilimSuresi = std::chrono::milliseconds(0);
  bool stop = true;
  std::string seen;
  desk.host.modal["frmprogress"] = [&](forms::Form& form) {
    auto& progress = dynamic_cast<shell::FrmProgress&>(form);
    const auto task = std::move(desk.host.tasks.front());
    desk.host.tasks.pop_front();
    task();
    seen = progress.Lsayi.caption();
    stop ? progress.butdurdur.press() : desk.host.runTasks();
  };
  finder.mnuyazdır.press();
  EXPECT_EQ(seen, "1 / 2500");
  EXPECT_TRUE(printer.jobs.empty()) << "stopped: nothing is printed";
  stop = false;
  finder.dilimSuresi = std::chrono::milliseconds(4);
  EXPECT_GT(printed().pages.size(), 30u);
}

TEST_F(FindPrint, NothingIsPrintedWithoutRowsOrWhileTheListGrows) {
  const auto enabled = [&] {
    EXPECT_EQ(finder.mnuonizleme.enabled(), finder.mnuyazdır.enabled());
    return finder.mnuyazdır.enabled();
  };
  EXPECT_FALSE(enabled());
  manyCards(2000);
  finder.dilimSuresi = std::chrono::milliseconds(0);
  finder.TümListe();
  EXPECT_GT(finder.BulList.rowCount(), 0u);
  EXPECT_FALSE(enabled());
  finder.ButDur.Click();
  EXPECT_TRUE(enabled());
  finder.ButFiltre.press();
  finder.txtnot.setText("nobody");
  finder.butbul.press();
  desk.host.runTasks();
  EXPECT_FALSE(enabled());
}

TEST_F(FindPrint, FontAndTemplateAreKept) {
  finder.setFont({.name = "DejaVu Serif", .size = 13});
  finder.baski.lblsablonno.setCaption("3");
  finder.Unload();
  search::FrmFind next(desk.station);
  next.Load();
  EXPECT_EQ(next.font().size, 13);
  EXPECT_EQ(next.baski.lblsablonno.caption(), "3");
}

}  // namespace
