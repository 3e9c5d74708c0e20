#include <fstream>
#include <iterator>

#include "platform/richtext/rtf_reader.h"
#include "tests/exam/exam_fixture.h"

namespace {

using support::Exam;

std::string content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(Exam, TheTextHoldsWhatIsFilledInItsOrder) {
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
  EXPECT_EQ(screen->Yazılar().plainText(),
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
  EXPECT_TRUE(screen->Yazılar().formatAt(0).bold);
  EXPECT_FALSE(screen->Yazılar().formatAt(10).bold);
  screen->alanlaribosalt();
  EXPECT_EQ(screen->Yazılar().plainText(), "");
  EXPECT_FALSE(screen->mnuyeni.enabled());  // composing leaves nothing on the screen
}

TEST_F(Exam, TheListingHoldsEveryStoredRecordAndReplacesNoFile) {
  EXPECT_FALSE(screen->mnumuayenedökümü.enabled());
  as("Gynecology");
  save("2.1.2026", "ikinci");
  save("1.1.2020", "birinci");
  screen->txtkorunma.setText("RIA");
  screen->comdoktor.setText("Dr. İnci Su");
  screen->mnukaydet.press();
  screen->txtşikayet.setText("kaydedilmemiş");
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
}

}  // namespace
