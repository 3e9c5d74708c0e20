#include <fstream>
#include <iterator>

#include "platform/richtext/rtf_reader.h"
#include "shell/frm_progress.h"
#include "tests/exam/exam_fixture.h"
#include "tests/support/scripted_printer.h"

namespace {

using support::Exam;

std::string content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct ExamText : Exam {
  [[nodiscard]] richtext::Document text() {
    documents::ReportText report(screen->font());
    screen->Yazılar(report);
    return report.document();
  }
};

TEST_F(ExamText, TheTextHoldsWhatIsFilledInItsOrder) {
  screen->txtşikayet.setText("Öksürük");
  screen->txtsoygeçmiş.setText("Babada KOAH\nAnnede DM");
  screen->txtnabız.setText("88");
  screen->txtsistol.setText("130");
  screen->txtdiastol.setText("80");
  screen->txtboy.setText("172");
  screen->txtfizikmuayene.setText("Ronküs");
  screen->txtkontrol.setText("1 ay");
  screen->TxtBoyun.setText("Doğal");
  screen->ComMedeniDurum.setListIndex(2);
  screen->txthorizontalsol.setText("43.5");
  screen->txtekg.setText("NSR");
  screen->ChkDM.setValue(true);
  screen->Chkstres.setValue(true);
  EXPECT_EQ(text().plainText(),
            "Şikayet : Öksürük\n"
            "Soygeçmiş : Babada KOAH\nAnnede DM\n"
            "Ölçümler : Nabız 88 /dk, Tansiyon 130/80 mmHg, Boy 172 cm\n"
            "Fizik Muayene : Ronküs\n"
            "Kontrol : 1 ay\n"
            "Boyun : Doğal\n"
            "Medeni Durum : Boşanmış\n"
            "Horizontal Sol : 43.5\n"
            "EKG : NSR\n"
            "Risk Faktörleri : Diabetes Mellitus, Stres\n");
  EXPECT_TRUE(text().formatAt(0).bold);
  EXPECT_FALSE(text().formatAt(10).bold);
  screen->alanlaribosalt();
  EXPECT_EQ(text().plainText(), "");
}

// However long a text is and whatever becomes of the printer, the record stays and can be printed.
TEST_F(ExamText, HostileTextsAndPrintersLeaveTheRecordAsItIs) {
  support::ScriptedPrinter printer;
  printer.names = {"Muayene"};
  printer.answer = {platform::Fault::Other, "Muayene: no paper"};
  desk.station.yazici = &printer;
  desk.host.modal["frmprinter"] = [](forms::Form& form) {
    dynamic_cast<forms::CommandButton&>(*form.find("buttamam")).press();
  };
  constexpr std::size_t megabyte = 1 << 20;
  std::string words;
  while (words.size() < megabyte) words += "ağrı ";
  const std::pair<const char*, std::string> texts[] = {
      {"one word", std::string(megabyte, 'x')},
      {"words", words},
      {"lines", std::string(megabyte, '\n') + "son"},
      {"broken UTF-8", std::string(megabyte, '\xC4')}};
  for (const auto& [kind, text] : texts) {
    SCOPED_TRACE(kind);
    screen->txthikaye.setText(text);
    screen->txtşikayet.setText("x");
    screen->mnukaydet.press();
    printer.jobs.clear();
    desk.host.errors.clear();
    const bool all = text == words;
    desk.host.expect("bir sayfaya sığmıyor", all ? host::Answer::Yes : host::Answer::No);
    screen->mnuyazdır.press();
    ASSERT_EQ(printer.jobs.size(), 1u);
    EXPECT_EQ(printer.jobs[0].pages.pages.size() > 100, all);
    ASSERT_EQ(desk.host.errors.size(), 1u);
    EXPECT_EQ(desk.host.errors[0].text(), "Muayene: no paper");
    EXPECT_EQ(screen->txthikaye.text(), text);
    screen->mnuyeni.Click();
  }
}

TEST_F(ExamText, TheListingHoldsEveryStoredRecordAndReplacesNoFile) {
  EXPECT_FALSE(screen->mnumuayenedökümü.enabled());
  as("Gynecology");
  save("2.1.2026", "ikinci");
  save("1.1.2020", "birinci");
  screen->txtkorunma.setText("RIA");
  screen->comdoktor.setText("Dr. İnci Su");
  screen->mnukaydet.press();
  screen->txtşikayet.setText("kaydedilmemiş");
  desk.host.modal["frmprogress"] = [this](forms::Form&) { desk.host.runTasks(); };
  screen->tbToolBar.press("dokum");
  screen->tbToolBar.press("dokum");
  const std::filesystem::path parent = folder / "Documents/Diseases";
  const auto read = richtext::readRtf(content(parent / "Ayşe Yıldız 2026-11-22.rtf"));
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->plainText(),
            "Ayşe Yıldız\n\n"
            "01.01.2020   Dr. İnci Su\nŞikayet : birinci\nKorunma : RIA\n\n"
            "02.01.2026\nŞikayet : ikinci\n");
  EXPECT_GT(read->formatAt(0).halfPoints, read->formatAt(20).halfPoints);
  EXPECT_TRUE(std::filesystem::exists(parent / "Ayşe Yıldız 2026-11-22 (2).rtf"));
  EXPECT_EQ(screen->txtşikayet.text(), "kaydedilmemiş");
  std::filesystem::remove_all(parent);
  desk.host.modal["frmprogress"] = [](forms::Form& form) {
    dynamic_cast<shell::FrmProgress&>(form).butdurdur.press();
  };
  screen->tbToolBar.press("dokum");
  EXPECT_FALSE(std::filesystem::exists(parent));  // stopped: no file
}

TEST_F(ExamText, WordsOfOurOwnAreEnglishForEnglishReaders) {
  desk.station.ayarYaz("Language", "eng");
  screen = desk.open();
  EXPECT_EQ(screen->txtnabız.unit(), "/min");
  EXPECT_EQ(screen->Chksigara.caption(), "Smoking");
  screen->txtnabız.setText("88");
  EXPECT_NE(text().plainText().find("Pulse 88 /min"), std::string::npos);
  desk.host.expect("This screen is not part of this version yet.", host::Answer::Ok);
  desk.station.ekranAc("frmnone");
}

}  // namespace
