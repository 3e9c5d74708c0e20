#include <filesystem>
#include <optional>

#include "platform/text/number.h"
#include "platform/text/utf8.h"
#include "tests/exam/exam_fixture.h"

namespace {

using support::Exam;

TEST_F(Exam, ASecondExaminationBeginsWithWhatStaysAndIsNotChanged) {
  as("Gynecology");
  EXPECT_EQ(screen->txtözgeçmiş.text(), "");
  const std::pair<forms::TextBox exam::FrmExam::*, bool> fields[] = {
      {&exam::FrmExam::txtözgeçmiş, true},  {&exam::FrmExam::txtsoygeçmiş, true},
      {&exam::FrmExam::txtboy, true},       {&exam::FrmExam::txtkilo, true},
      {&exam::FrmExam::TxtİAT, true},       {&exam::FrmExam::TxtAdedleri, true},
      {&exam::FrmExam::txtDismenore, true}, {&exam::FrmExam::txtvaginalakıntı, true},
      {&exam::FrmExam::txtp, true},         {&exam::FrmExam::txtg, true},
      {&exam::FrmExam::txty, true},         {&exam::FrmExam::txta, true},
      {&exam::FrmExam::txtc, true},         {&exam::FrmExam::txtşikayet, false},
      {&exam::FrmExam::txtnabız, false},    {&exam::FrmExam::txtSAT, false},
      {&exam::FrmExam::txtkorunma, false},  {&exam::FrmExam::txtfizikmuayene, false}};
  for (const auto& [field, carried] : fields) (screen.get()->*field).setText("7");
  screen->ComMedeniDurum.setListIndex(1);
  screen->mnukaydet.press();
  screen->mnuyeni.Click();
  for (const auto& [field, carried] : fields) {
    const forms::TextBox& box = screen.get()->*field;
    EXPECT_EQ(box.text(), carried ? "7" : "") << box.name();
  }
  EXPECT_EQ(screen->ComMedeniDurum.text(), "Evli");
  EXPECT_FALSE(screen->mnukaydet.enabled());
  EXPECT_FALSE(screen->mnuyazdır.enabled());
}

TEST_F(Exam, ARecordNeedsALongText) {
  screen->txtnabız.setText("72");
  screen->txtücret.setText("100");
  screen->ChkHT.setValue(true);
  EXPECT_FALSE(screen->mnukaydet.enabled());
  EXPECT_TRUE(screen->mnuyeni.enabled());
  for (forms::TextBox* field :
       {&screen->txtşikayet, &screen->txtsoygeçmiş, &screen->txtkontrol, &screen->txttahlil}) {
    field->setText("x");
    EXPECT_TRUE(screen->mnukaydet.enabled()) << field->name();
    field->setText("");
    EXPECT_FALSE(screen->mnukaydet.enabled());
  }
  screen->alanlaribosalt();
  EXPECT_FALSE(screen->ChkHT.value());
  screen->Chkstres.setValue(true);  // a tick is something that New can clear
  EXPECT_TRUE(screen->mnuyeni.enabled());
}

// Every box of the page that is shown, a picture and a film make a record; it is stored at closing
// as any other.
TEST_F(Exam, WhatTheSpecialityWritesMakesARecord) {
  struct Case {
    const char* program;
    std::vector<const char*> boxes;
  };
  const Case cases[] = {
      {"Cardiology",
       {"txtekg", "txttele", "ChkHT", "ChkDM", "ChkHiperlipemi", "Chksigara", "Chkstres"}},
      {"Gynecology",
       {"ComMedeniDurum", "TxtİAT", "txtSAT", "TxtAdedleri", "txtDismenore", "txtvaginalakıntı",
        "txtkorunma", "txtDiğer", "txtp", "txtg", "txty", "txta", "txtc"}},
      {"Ophthalmology",
       {"txtgörmesağ", "txtgörmesol", "txttasgörsağ", "txttasgörsol", "txtgözlüksağ",
        "txtgözlüksol", "txthorizontalsağ", "txthorizontalsol", "txtverticalsağ",
        "txtverticalsol"}},
      {"ENT", {"txtoralkavite", "Txtnazalkavite", "txtSağotoskopi", "txtSolotoskopi", "TxtBoyun"}},
      {"General Medicine", {"txtp1", "txtp6", "txtmov"}},
  };
  std::int64_t last = 0;
  for (const Case& c : cases) {
    for (const char* name : c.boxes) {
      SCOPED_TRACE(std::string(c.program) + " " + name);
      desk.station.SeciliHasta = std::string("Hasta ") + std::to_string(last);
      as(c.program);
      screen->txtnabız.setText("72");
      EXPECT_FALSE(screen->mnukaydet.enabled());
      forms::Control* const box = screen->find(name);
      if (auto* const combo = dynamic_cast<forms::ComboBox*>(box)) {
        combo->setListIndex(1);
      } else if (auto* const field = dynamic_cast<forms::TextControl*>(box)) {
        field->setText("1");
      } else {
        dynamic_cast<forms::CheckBox&>(*box).setValue(true);
      }
      EXPECT_TRUE(screen->mnukaydet.enabled());
      EXPECT_TRUE(screen->QueryUnload());
      EXPECT_EQ(desk.stored(++last, "Pulse"), "72");
    }
  }
}

TEST_F(Exam, TheDiagnosisStandsBesideItsDate) {
  save("1.1.2026", "öksürük");
  screen->txtteşhis.setText("  Akut bronşit\nSinüzit?");
  screen->mnukaydet.press();
  EXPECT_EQ(screen->liste.items().back().text, "01.01.2026");
  EXPECT_EQ(screen->liste.note(0), "Akut bronşit");
  screen = desk.open();
  save("2.1.2026", "kontrol");
  EXPECT_EQ(screen->liste.note(0), "Akut bronşit");
  EXPECT_EQ(screen->liste.note(1), "");
}

TEST_F(Exam, OneColumnHoldsTheNeckOrTheContraception) {
  as("ENT");
  save("1.1.2026", "boyunda şişlik");
  screen->TxtBoyun.setText("LAP yok ");
  screen->mnukaydet.press();
  EXPECT_EQ(desk.stored(1, "Physical Exam6"), "LAP yok");
  as("Gynecology");
  save("2.1.2026", "kontrol");
  screen->txtkorunma.setText("RIA");
  screen->mnukaydet.press();
  EXPECT_EQ(desk.stored(2, "Physical Exam6"), "RIA");
  as("Gynecology");
  screen->liste.setListIndex(0);
  EXPECT_EQ(screen->txtkorunma.text(), "RIA");
  EXPECT_EQ(screen->TxtBoyun.text(), "");
  as("ENT");
  screen->liste.setListIndex(0);
  EXPECT_EQ(screen->TxtBoyun.text(), "LAP yok");
  EXPECT_FALSE(screen->mnukaydet.enabled());
}

TEST_F(Exam, AnotherDateSavesAChangedRecordSilentlyAndAsksForANewOne) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  screen->txtşikayet.setText("iki buçuk");
  screen->liste.setListIndex(0);
  EXPECT_EQ(screen->txtşikayet.text(), "bir");
  EXPECT_EQ(desk.stored(2, "Complain"), "iki buçuk");
  screen->mnuyeni.Click();
  screen->txtşikayet.setText("üç");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::No);
  screen->liste.setListIndex(0);
  EXPECT_EQ(records(), 2u);
  screen->mnuyeni.Click();
  screen->txtşikayet.setText("üç");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  screen->liste.setListIndex(0);
  EXPECT_EQ(records(), 3u);
  EXPECT_EQ(screen->txtşikayet.text(), "bir");
  // A save that is refused keeps what was typed on the screen.
  screen->txtşikayet.setText("saklanamayan");
  desk.station.stores.clinical.database.Close();
  screen->liste.setListIndex(1);
  EXPECT_EQ(screen->txtşikayet.text(), "saklanamayan");
  EXPECT_EQ(screen->liste.listIndex(), 0);
}

TEST_F(Exam, LeavingTheDateOfANewRecordFindsItsPlaceInTheList) {
  const std::pair<const char*, const char*> visits[] = {{"1.1.2020", "A"}, {"1.1.2024", "B"}};
  for (const auto& [date, past] : visits) {
    save(date, "x");
    screen->txtözgeçmiş.setText(past);
    screen->txtsoygeçmiş.setText(past);
    screen->txtboy.setText(past);
    screen->txtkilo.setText(past);
    screen->mnukaydet.press();
  }
  struct Case {
    const char* date;
    const char* past;
    const char* weight;
  };
  const Case cases[] = {
      {"5.5.2022", "A", "B"},  // from the entry before it; the weight is not among those
      {"5.5.2025", "B", "B"},
      {"5.5.2019", "B", "B"},  // nothing stands before it
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.date);
    screen->mnuyeni.Click();
    type(screen->txttarih, c.date);
    EXPECT_EQ(screen->txtözgeçmiş.text(), c.past);
    EXPECT_EQ(screen->txtsoygeçmiş.text(), c.past);
    EXPECT_EQ(screen->txtboy.text(), c.past);
    EXPECT_EQ(screen->txtkilo.text(), c.weight);
    EXPECT_EQ(screen->txtnumara.text(), "");
    EXPECT_FALSE(screen->mnukaydet.enabled());  // closing now makes no record
    screen->alanlaribosalt();
  }
  // What was typed before the date stays.
  screen->txtözgeçmiş.setText("astım");
  type(screen->txttarih, "5.5.2022");
  EXPECT_EQ(screen->txtözgeçmiş.text(), "astım");
  EXPECT_EQ(screen->txtsoygeçmiş.text(), "A");
  EXPECT_TRUE(screen->mnukaydet.enabled());
  screen->alanlaribosalt();
  type(screen->txttarih, "1.1.2024");
  EXPECT_EQ(screen->txtnumara.text(), "2");
  EXPECT_EQ(screen->liste.listIndex(), 1);
}

TEST_F(Exam, ADayThatHasARecordAsksBeforeTheNewOneIsLost) {
  save("1.1.2026", "bir");
  screen->mnuyeni.Click();
  screen->txtşikayet.setText("aynı gün ikinci kez");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  type(screen->txttarih, "1.1.2026");
  EXPECT_EQ(screen->liste.count(), 2u);
  EXPECT_EQ(screen->txtşikayet.text(), "bir");
  EXPECT_EQ(desk.stored(2, "Complain"), "aynı gün ikinci kez");
}

TEST_F(Exam, NewInTheDateFieldIsNewOnADayThatHasARecord) {
  save("22.11.2026", "sabah");
  screen->txttarih.setFocus();
  screen->mnuyeni.press();
  EXPECT_EQ(screen->txtşikayet.text() + screen->txtnumara.text(), "");
}

TEST_F(Exam, WhatIsTooLittleForARecordIsNotLostUnasked) {
  screen->txtnabız.setText("80");
  const std::string needed = "kaydetmek için gerekli: vital bulguların yanında bir bilgi";
  EXPECT_EQ(screen->sbDurum.panels()[0], needed);
  desk.host.expect(needed, host::Answer::No);
  EXPECT_FALSE(screen->QueryUnload());
  screen->txtnabız.setText("");
  save("1.1.2026", "bir");
  screen->txtşikayet.setText("");
  screen->txtnabız.setText("80");
  desk.host.expect(needed, host::Answer::Yes);
  screen->mnuyeni.press();
  screen->txttarih.setText("3.3.2026");
  EXPECT_TRUE(screen->QueryUnload()) << "another date is nothing typed";
}

TEST_F(Exam, OpenedForADayItShowsTheLatestRecordOfThatDay) {
  save("1.1.2026", "sabah");
  save("1.1.2026", "öğleden sonra");
  save("2.1.2026", "ertesi gün");
  desk.station.SeciliTarih = text::DateTime::of(2026, 1, 1);
  screen = desk.open();
  EXPECT_EQ(screen->txtşikayet.text(), "öğleden sonra");
  desk.station.SeciliTarih = text::DateTime::of(2025, 1, 1);
  screen = desk.open();
  EXPECT_EQ(screen->txtnumara.text(), "");
}

TEST_F(Exam, TheDoctorsOfTheRecordsAreOffered) {
  screen->txtşikayet.setText("x");
  screen->comdoktor.setText("Dr. Gülşah Öztürk");
  screen->mnukaydet.press();
  save("1.1.2026", "y");
  screen->comdoktor.setText("dr. gülşah öztürk");  // the same name: no second row
  screen->mnukaydet.press();
  EXPECT_EQ(desk.station.stores.clinical.Doctors.RecordCount(), 1);
  screen = desk.open();
  EXPECT_EQ(screen->comdoktor.items(), std::vector<std::string>{"Dr. Gülşah Öztürk"});
  screen->comdoktor.setText("D");
  screen->comdoktor.KeyUp(forms::Key{.code = 'D'});
  EXPECT_EQ(screen->comdoktor.text(), "Dr. Gülşah Öztürk");
}

TEST_F(Exam, FeesGetTheirPictureWhenTheFieldIsLeft) {
  const std::pair<const char*, const char*> cases[] = {{"12,5", "12.50"},  {"1e9", "1000000000.00"},
                                                       {"-", "-"},         {"250000", "250000.00"},
                                                       {"1e300", "1e300"}, {"", ""}};
  for (const auto& [typed, shown] : cases) {
    type(screen->txtücret, typed);
    EXPECT_EQ(screen->txtücret.text(), shown);
  }
}

TEST_F(Exam, AFeeInOldLiraAsksAtEveryLoadUntilItIsConverted) {
  save("1.1.2026", "bir");
  auto& table = desk.station.stores.clinical.PhysicalExam;
  const auto store = [&](const char* fee) {
    ASSERT_TRUE(table.Seek("=", 1) && table.Edit() && table.Fields("Fee").Set(fee) &&
                table.Update());
  };
  const std::pair<const char*, bool> cases[] = {
      {"250000", true},  {"250000.00", false}, {"10000", false}, {"10001", true},
      {"bedava", false}, {"250000TL", false},  {"1e9", true},    {"", false}};
  for (const auto& [fee, asks] : cases) {
    SCOPED_TRACE(fee);
    store(fee);
    if (asks) desk.host.expect("TL formatında ücret", host::Answer::No);
    screen->mnuyeni.Click();
    screen->liste.setListIndex(0);
    EXPECT_EQ(screen->txtücret.text(), fee);
  }
}

// An amount in new lira above the limit shrinks with the others: its user sees that before.
TEST_F(Exam, OldFeesAreConvertedOnceTheirNumberWasSeenAndABackupOffered) {
  save("1.1.2026", "bir");
  save("2.1.2026", "iki");
  auto& table = desk.station.stores.clinical.PhysicalExam;
  const auto store = [&](int number, const char* fee) {
    ASSERT_TRUE(table.Seek("=", number) && table.Edit() && table.Fields("Fee").Set(fee) &&
                table.Update());
  };
  using host::Answer;
  const std::string told =
      "Yaklaşık 2 tutar 1.000.000'a bölünecek: 10.000'in üzerindekilerin hepsi, YTL olsalar bile.\n"
      "Muayene: 2\n\nEn büyüğü: 250000, yenisi 0.25\nEn küçüğü: 15000.50, yenisi 0.02\n"
      "YTL tutarlarındaki gibi ondalık noktası olanlar: 1\n";
  const struct {
    Answer toldAnswer;
    std::optional<Answer> backup;
    bool converted;
  } cases[] = {{Answer::No, {}, false},
               {Answer::Yes, Answer::Cancel, false},
               {Answer::Yes, Answer::No, true},
               {Answer::Yes, Answer::Yes, true}};
  for (const auto& c : cases) {
    store(1, "250000");
    store(2, "15000.50");
    screen->mnuyeni.Click();
    desk.host.expect("YTL'ye dönüştürmek", Answer::Yes);
    desk.host.expect(told, c.toldAnswer);
    if (c.backup) desk.host.expect("Backup/ klasörüne yedek alınsın mı?", *c.backup);
    EXPECT_FALSE(std::filesystem::exists(desk.station.dosya("Backup")));
    screen->liste.setListIndex(0);
    EXPECT_EQ(screen->txtücret.text(), c.converted ? "0.25" : "250000");
    EXPECT_EQ(desk.stored(1, "Fee"), c.converted ? "0.25" : "250000");
    EXPECT_EQ(desk.stored(2, "Fee"), c.converted ? "0.02" : "15000.50");
    EXPECT_FALSE(screen->mnukaydet.enabled());
  }
  EXPECT_TRUE(std::filesystem::exists(desk.station.dosya("Backup/Sanavel.mdb")));
}

TEST_F(Exam, BadInputIsKeptOrRefusedButNeverHarmful) {
  const std::string long1(1 << 20, 'x');
  screen->txthikaye.setText(long1 + "\nşğü");
  screen->txtp.setText("123");
  screen->comdoktor.setText(std::string(50, 'd'));
  screen->mnukaydet.press();
  EXPECT_EQ(desk.stored(1, "History").size(), long1.size() + std::string("\nşğü").size());
  EXPECT_EQ(desk.stored(1, "P"), "12");
  EXPECT_EQ(text::length(desk.stored(1, "Doctor")), 40u);
  for (const char* date : {"31.2.2026", "32.13.2026", "bugün", "23.11.2026", ""}) {
    screen->focusMoved(&screen->txttarih);
    screen->txttarih.setText(date);
    desk.host.expect("Hatalı tarih", host::Answer::Ok);
    screen->focusMoved(&screen->txtşikayet);
    EXPECT_EQ(screen->txttarih.text(), "22.11.2026") << date;
  }
}

TEST_F(Exam, ThePageInFrontComesBackWhereItHasAFrame) {
  as("Ophthalmology");
  EXPECT_EQ(screen->activeControl(), &screen->txtşikayet);
  screen->TabStrip1.select("TSÖzel");
  EXPECT_EQ(screen->activeControl(), &screen->txtgörmesağ);
  EXPECT_FALSE(screen->pgenel.visible());
  screen->Unload();
  EXPECT_EQ(desk.station.settings.get("Sanavel", "Ophthalmology", "TS"), "True");
  screen = desk.open();
  EXPECT_TRUE(screen->pözel.visible());
  screen->TabStrip1.select("TSGenel");
  screen->mnuyeni.Click();  // the page is that of the setting
  EXPECT_EQ(screen->TabStrip1.selected(), "TSÖzel");
  ASSERT_TRUE(desk.station.settings.set("Sanavel", "GenMed", "TS", "True"));
  desk.station.BransNo = 20;
  desk.station.BransAdi = "GenMed";
  screen = desk.open();
  EXPECT_TRUE(screen->pgenel.visible());
}

TEST_F(Exam, AnExaminationThatIsLeftOpenIsStoredAtClosing) {
  screen->txtşikayet.setText("yarım");
  EXPECT_TRUE(screen->QueryUnload());
  EXPECT_EQ(desk.stored(1, "Complain"), "yarım");
  screen->txtnumara.setText("1");
  screen->Muayenebul();
  EXPECT_EQ(screen->txtşikayet.text(), "yarım");
}

}  // namespace
