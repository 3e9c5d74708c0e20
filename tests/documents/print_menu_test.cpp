#include "documents/print_menu.h"

#include <gtest/gtest.h>

#include "documents/frm_pattern.h"
#include "documents/frm_preview1.h"
#include "documents/frm_prewive.h"
#include "documents/frm_printer.h"
#include "documents/print_job.h"
#include "tests/documents/print_desk.h"

namespace {

using support::PrintDesk;
using support::texts;
using Lines = std::vector<std::string>;

// What a screen that prints looks like.
struct FrmEcho : forms::Form, documents::PrintedRecord {
  explicit FrmEcho(shell::Station& station) : Form("frmecho"), istasyon(station) {
    baski.Setkayitlarioku();
  }
  void Yazılar(documents::ReportText& yazı) override {
    yazı.alan("Tanı", tanı);
    yazı.alan("Not", "");
  }
  [[nodiscard]] std::string basilanIsim() const override { return "Ayşe Yıldız*"; }
  [[nodiscard]] std::string basilanTarih() const override { return "22.11.2026"; }

  shell::Station& istasyon;
  std::string tanı = "astım";
  forms::MenuItem MnuDosya{*this, "MnuDosya"};
  forms::MenuItem mnuşablon{MnuDosya, "mnuşablon"};
  forms::MenuItem mnuonizleme{MnuDosya, "mnuonizleme"};
  forms::MenuItem mnuyazdır{MnuDosya, "mnuyazdır"};
  documents::PrintMenu baski{istasyon, {mnuşablon, mnuonizleme, mnuyazdır}, *this, 16};
};

void chooseFirstPrinter(forms::Form& form) {
  dynamic_cast<documents::FrmPrinter&>(form).buttamam.press();
}

TEST(PrintMenu, PreviewAndPrintShowTheSamePage) {
  PrintDesk desk;
  desk.printer.names = {"Muayene"};
  FrmEcho echo(desk.station);
  Lines seen;
  desk.host.modal["frmprewive"] = [&](forms::Form& form) {
    auto& preview = dynamic_cast<documents::FrmPrewive&>(form);
    EXPECT_EQ(preview.caption(), "Ön İzleme");
    seen = texts(*preview.picgor.page());
    preview.mnuyazdır.press();
  };
  desk.host.modal["frmprinter"] = chooseFirstPrinter;
  echo.mnuonizleme.press();
  EXPECT_EQ(seen, (Lines{"567,780 Tanı : ", "1267,780 astım"}));
  ASSERT_EQ(desk.printer.jobs.size(), 1u);
  EXPECT_EQ(texts(desk.printer.jobs[0].pages.pages[0]), seen);
  EXPECT_EQ(desk.printer.jobs[0].title, "Ayşe Yıldız");
  EXPECT_EQ(desk.printer.jobs[0].target.printer, "Muayene");
  EXPECT_EQ(desk.host.closed, (Lines{"frmprewive", "frmprinter"}));
}

TEST(PrintMenu, APreviewThatIsOnlyClosedPrintsNothing) {
  PrintDesk desk;
  FrmEcho echo(desk.station);
  desk.station.OnizlemeSonucu = "1";  // of an earlier preview
  desk.host.modal["frmprewive"] = [](forms::Form& form) {
    dynamic_cast<documents::FrmPrewive&>(form).mnucik.press();
  };
  echo.mnuonizleme.press();
  EXPECT_TRUE(desk.printer.jobs.empty());
}

// Preview and print alike: all pages, the first one, or nothing yet.
TEST(PrintMenu, ALongRecordGoesOnOverMorePagesWhenItIsWanted) {
  PrintDesk desk;
  desk.printer.names = {"Muayene"};
  desk.host.modal["frmprinter"] = chooseFirstPrinter;
  std::size_t previewed = 0;
  desk.host.modal["frmprewive"] = [&](forms::Form&) { previewed = 1; };
  desk.host.modal["frmpreview1"] = [&](forms::Form& form) {
    auto& preview = dynamic_cast<documents::FrmPreview1&>(form);
    EXPECT_EQ(preview.lblsayfa.caption(), "/ 2");
    previewed = 2;
  };
  FrmEcho echo(desk.station);
  for (int line = 0; line < 90; ++line) echo.tanı += "\n" + std::to_string(line);
  struct Case {
    host::Answer answer;
    std::size_t pages;
    const char* last;
  };
  for (const Case& c : {Case{host::Answer::Yes, 2, "89"}, Case{host::Answer::No, 1, "sığmadı)"},
                        Case{host::Answer::Cancel, 0, ""}}) {
    previewed = 0;
    desk.printer.jobs.clear();
    desk.host.expect("sığmıyor", c.answer);
    desk.host.expect("sığmıyor", c.answer);
    echo.mnuyazdır.press();
    echo.mnuonizleme.press();
    EXPECT_EQ(previewed, c.pages);
    ASSERT_EQ(desk.printer.jobs.empty(), c.pages == 0);
    if (c.pages == 0) continue;
    const page::Pages& printed = desk.printer.jobs.front().pages;
    EXPECT_EQ(printed.pages.size(), c.pages);
    EXPECT_TRUE(texts(printed.pages.back()).back().ends_with(c.last));
  }
}

TEST(PrintMenu, SaysWhyNothingWasPrinted) {
  PrintDesk desk;
  desk.printer.names = {"Muayene"};
  desk.printer.answer = {platform::Fault::Other, "Muayene: no paper"};
  desk.host.modal["frmprinter"] = chooseFirstPrinter;
  FrmEcho echo(desk.station);
  echo.baski.Yazdır();
  ASSERT_EQ(desk.host.errors.size(), 1u);
  EXPECT_EQ(desk.host.errors[0].text(), "Muayene: no paper");
  desk.station.yazici = nullptr;
  desk.host.expect("yazdırma", host::Answer::Ok);
  echo.baski.oniz();
}

TEST(PrintMenu, TheTemplateIsKeptInTheScreensOwnRecord) {
  PrintDesk desk;
  FrmEcho echo(desk.station);
  desk.host.modal["frmpattern"] = [](forms::Form& form) {
    auto& pattern = dynamic_cast<documents::FrmPattern&>(form);
    EXPECT_EQ(pattern.lblsablonno.caption(), "0");
    pattern.List1.setListIndex(7);
    pattern.txtimza.setText("Saygılarımla\nDr. Ş");
    pattern.imzaFontu({.name = "Arial", .size = 20});
    pattern.buttamam.press();
  };
  echo.mnuşablon.press();
  EXPECT_EQ(echo.baski.lblsablonno.caption(), "7");
  ASSERT_TRUE(echo.baski.setkayityaz().ok());

  FrmEcho again(desk.station);
  EXPECT_EQ(again.baski.lblsablonno.caption(), "7");
  desk.printer.names = {"Muayene"};
  desk.host.modal["frmprinter"] = chooseFirstPrinter;
  again.baski.Yazdır();
  ASSERT_EQ(desk.printer.jobs.size(), 1u);
  EXPECT_EQ(texts(desk.printer.jobs[0].pages.pages[0]),
            (Lines{"567,2100 İsim: Ayşe Yıldız", "7000,2100 22.11.2026", "567,3180 Tanı : ",
                   "1267,3180 astım", "5600,3620 Saygılarımla", "7000,4100 Dr. Ş"}));
}

TEST(PrintMenu, CancellingTheDialogOfTemplatesChangesNothing) {
  PrintDesk desk;
  FrmEcho echo(desk.station);
  desk.host.modal["frmpattern"] = [](forms::Form& form) {
    auto& pattern = dynamic_cast<documents::FrmPattern&>(form);
    pattern.List1.setListIndex(3);
    pattern.Butİptal.press();
  };
  echo.mnuşablon.press();
  EXPECT_EQ(echo.baski.lblsablonno.caption(), "0");
}

TEST(Pattern, TheSampleFollowsTheTemplate) {
  PrintDesk desk("eng");
  documents::FrmPattern pattern(desk.station);
  desk.station.SablonNo = 77;  // of a damaged record
  pattern.Load();
  EXPECT_EQ(pattern.List1.listIndex(), 0);
  EXPECT_EQ(pattern.lblicerik.caption(), "Text");
  struct Case {
    int number;
    bool heading, name, signature;
    int top;
  };
  for (const Case& c : {Case{9, true, true, true, 900}, Case{0, false, false, false, 100},
                        Case{1, false, false, false, 900}, Case{8, true, false, true, 900},
                        Case{5, false, false, true, 100}, Case{2, false, true, false, 900}}) {
    pattern.List1.setListIndex(c.number);
    EXPECT_EQ(pattern.ImgBaşlık.visible() && pattern.Imgicon.visible(), c.heading) << c.number;
    EXPECT_EQ(pattern.imgisim.visible() && pattern.imgtarih.visible(), c.name) << c.number;
    EXPECT_EQ(pattern.imgimza.visible(), c.signature) << c.number;
    EXPECT_EQ(pattern.imgmetin.top(), c.top) << c.number;
  }
}

TEST(Pattern, TellsWhatOfASignatureCannotBeKept) {
  PrintDesk desk;
  documents::FrmPattern pattern(desk.station);
  pattern.Load();
  pattern.txtimza.setText("Dr. Łukasz");
  desk.host.expect("Ł : L", host::Answer::No);
  pattern.buttamam.press();
  EXPECT_TRUE(desk.host.closed.empty());
  EXPECT_EQ(desk.station.SablonImzasi, "");
  desk.host.expect("Böyle saklansın mı?", host::Answer::Yes);
  pattern.buttamam.press();
  EXPECT_EQ(desk.station.SablonImzasi, "Dr. Lukasz") << "on today's pages as on tomorrow's";
}

TEST(PrinterChoice, RemembersThePrinterAndTheFolder) {
  PrintDesk desk;
  desk.printer.names = {"Muayene", "Bekleme"};
  const auto choose = [&](int row) {
    documents::FrmPrinter form(desk.station, "Ayşe/Yıldız");
    form.Load();
    if (row >= 0) form.ComYazıcı.setListIndex(row);
    form.buttamam.press();
    return form.hedef();
  };
  EXPECT_EQ(choose(-1), (page::Target{.printer = "Muayene", .file = {}}));
  EXPECT_EQ(choose(1), (page::Target{.printer = "Bekleme", .file = {}}));
  EXPECT_EQ(choose(-1), (page::Target{.printer = "Bekleme", .file = {}}));
  desk.host.files = {std::nullopt};
  EXPECT_EQ(choose(2), std::nullopt);
  desk.host.files = {"/belgeler/rapor"};
  EXPECT_EQ(choose(2), (page::Target{.printer = {}, .file = "/belgeler/rapor.pdf"}));
  desk.host.files = {"/belgeler/öbür.pdf"};
  EXPECT_EQ(choose(-1), (page::Target{.printer = {}, .file = "/belgeler/öbür.pdf"}));
  desk.printer.names = {"Muayene"};  // "Bekleme" was taken away
  desk.station.ayarYaz("printer", "Bekleme");
  EXPECT_EQ(choose(-1), (page::Target{.printer = "Muayene", .file = {}}));
}

}  // namespace
