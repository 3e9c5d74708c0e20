#include <gtest/gtest.h>

#include "documents/frm_prewive.h"
#include "documents/frm_wizard_drug.h"
#include "exam/frm_drug.h"
#include "tests/shell/record_fixture.h"
#include "tests/support/scripted_printer.h"

namespace {

struct Drug : testing::Test {
  support::TemporaryFolder folder;
  support::RecordDesk desk{folder.path()};
  exam::FrmDrug screen{desk.station};
  Drug() { screen.Load(); }

  void add(const char* name, const char* dosage, const char* number) {
    screen.mnuyeni.press();
    screen.txtilaç.setText(name);
    screen.txtkullanım.setText(dosage);
    screen.txtadet.setText(number);
    screen.mnukaydet.press();
  }
  void typeName(const char* name) {
    screen.focusMoved(&screen.txtilaç);
    screen.txtilaç.setText(name);
    screen.txtilaç.KeyUp(forms::Key{.code = 'A'});
  }
};

TEST_F(Drug, APrescriptionIsNumberedAndTakesTwoLinesADrug) {
  EXPECT_FALSE(screen.buttasi.enabled());
  add("Parol 500 mg tablet", "3x1 tok", "1");
  screen.buttasi.press();
  EXPECT_EQ(screen.txtrecete.text(), "1 - Parol 500 mg tablet   1\n    S: 3x1 tok");
  add("İbufen şurup", "2x1", "2");
  screen.buttasi.press();
  desk.host.expect("İbufen şurup önceden reçeteye girildi.", host::Answer::No);
  screen.buttasi.press();
  desk.host.expect("İkinci defa girmek istiyor musunuz?", host::Answer::Yes);
  screen.buttasi.press();
  EXPECT_TRUE(screen.txtrecete.text().ends_with("\n3 - İbufen şurup   2\n    S: 2x1"));
  screen.buttamam.press();
  EXPECT_EQ(desk.station.AktarilanMetin,
            "1 - Parol 500 mg tablet   1  S: 3x1 tok\n2 - İbufen şurup   2  S: 2x1\n"
            "3 - İbufen şurup   2  S: 2x1");
}

TEST_F(Drug, TheWarningIsSeenWherePrescribing) {
  EXPECT_FALSE(screen.lbluyarı.visible());
  auto& warnings = desk.station.stores.clinical.tblWarn;
  ASSERT_TRUE(warnings.AddNew() && warnings.Fields("name").Set("Ayşe Yıldız") &&
              warnings.Fields("warn").Set("Penisilin alerjisi") && warnings.Update());
  desk.station.SeciliHasta = "Ayşe Yıldız";
  screen.Load();
  EXPECT_TRUE(screen.lbluyarı.visible());
  EXPECT_EQ(screen.lbluyarı.toolTip() + ": " + screen.lbluyarı.caption(),
            "Uyarı: Penisilin alerjisi");
}

TEST(Accepted, DropsALineBreakThatTwoBlanksFollow) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""}, {"a\n  ", "a"}, {"a\n b", "a\n b"}, {"a\n   b", "a b"}, {"\n  \n  ", ""}};
  for (const auto& [text, accepted] : cases) EXPECT_EQ(exam::kabulEdilen(text), accepted);
}

TEST_F(Drug, CancellingHandsNothingBack) {
  add("Parol", "3x1", "1");
  screen.buttasi.press();
  desk.host.expect("kaybolacak", host::Answer::No);
  EXPECT_FALSE(screen.mayEscape());
  screen.Butİptal.press();
  EXPECT_EQ(desk.station.AktarilanMetin, "");
}

TEST_F(Drug, TypingMovesTheListAndLeavingTheNameShowsTheDrug) {
  add("Iliadin sprey", "3x1", "1");
  add("İliadin damla", "2x1", "2");
  add("Parol", "4x1", "1");
  screen.mnuyeni.press();
  typeName("ilia");
  EXPECT_EQ(screen.Lstilaç.text(), "İliadin damla");
  EXPECT_EQ(screen.txtilaç.text(), "ilia");  // the list only follows
  typeName("ıl");
  EXPECT_EQ(screen.Lstilaç.text(), "Iliadin sprey");
  typeName("zz");
  EXPECT_EQ(screen.Lstilaç.listIndex(), -1);
  typeName("parol");
  screen.focusMoved(&screen.txtkullanım);
  EXPECT_EQ(screen.txtilaç.text(), "Parol");
  EXPECT_EQ(screen.txtkullanım.text(), "4x1");
  EXPECT_FALSE(screen.mnukaydet.enabled());
}

TEST_F(Drug, ANewDrugUnderANameThatIsThereLosesNothing) {
  add("Parol", "4x1", "1");
  screen.mnuyeni.press();
  screen.txtkullanım.setText("2x2");
  typeName("Parol");
  desk.host.expect("Yazılanların yerine “Parol”", host::Answer::No);
  screen.focusMoved(&screen.txtkullanım);
  EXPECT_EQ(screen.txtkullanım.text(), "2x2");
  screen.mnukaydet.press();
  EXPECT_TRUE(screen.mnukaydet.enabled());
  EXPECT_NE(screen.sbDurum.panels()[0], "");
}

TEST_F(Drug, AnotherDrugAsksBeforeChangesAreLost) {
  add("Parol", "4x1", "1");
  add("Aspirin", "1x1", "1");
  screen.txtkullanım.setText("1x2");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  screen.Lstilaç.setListIndex(1);
  EXPECT_EQ(screen.txtilaç.text(), "Parol");
  screen.Lstilaç.setListIndex(0);
  EXPECT_EQ(screen.txtkullanım.text(), "1x2");
}

TEST_F(Drug, ThePrescriptionIsPrintedWhicheverDrugIsOnTheScreen) {
  const auto printable = [&] {
    EXPECT_EQ(screen.mnuonizleme.enabled(), screen.mnusihirbaz.enabled());
    EXPECT_EQ(screen.mnuyazdır.enabled(), screen.tbToolBar.button("Print")->enabled);
    EXPECT_EQ(screen.mnuyazdır.enabled(), screen.mnuonizleme.enabled());
    return screen.mnuonizleme.enabled();
  };
  EXPECT_TRUE(screen.mnuşablon.visible() && screen.mnuonizleme.visible());
  EXPECT_FALSE(printable());
  add("Parol", "3x1", "1");
  EXPECT_FALSE(printable());
  screen.Lstilaç.setListIndex(0);
  EXPECT_FALSE(printable());
  screen.buttasi.press();
  EXPECT_TRUE(printable());
  screen.mnuyeni.press();
  EXPECT_TRUE(printable());
  screen.txtrecete.setText("");
  EXPECT_FALSE(printable());
}

TEST_F(Drug, ThePreviewHasHeadingPatientAndPrescription) {
  support::ScriptedPrinter printer;
  desk.station.yazici = &printer;
  screen.lblisim.setCaption("Ayşe Yıldız");
  screen.txtrecete.setText("1 - Parol   1\n    S: 3x1");
  std::vector<std::string> seen;
  desk.host.modal["frmprewive"] = [&](forms::Form& form) {
    seen = support::texts(*dynamic_cast<documents::FrmPrewive&>(form).picgor.page());
  };
  screen.receteyazdir();
  EXPECT_EQ(seen, (std::vector<std::string>{"567,2100 İsim: Ayşe Yıldız", "7000,2100 22.11.2026",
                                            "567,3180 Reçete", "567,3660 1 - Parol   1",
                                            "567,3900     S: 3x1"}));
}

TEST_F(Drug, TheWizardGetsThePrescriptionComposedSoFar) {
  support::ScriptedPrinter printer;
  desk.station.yazici = &printer;
  desk.screens.add("frmwizarddrug", [](shell::Station& station) {
    return std::make_unique<documents::FrmWizardDrug>(station);
  });
  screen.txtrecete.setText("1 - Parol   1");
  std::vector<std::string> seen;
  desk.host.modal["frmwizarddrug"] = [&](forms::Form& form) {
    seen = support::texts(dynamic_cast<documents::FrmWizardDrug&>(form).ImgMektup.drawing());
    form.Unload();
  };
  screen.tbToolBar.press("sihirbaz");
  EXPECT_EQ(seen, (std::vector<std::string>{"0,0 1 - Parol   1"}));
  EXPECT_EQ(desk.station.AktarilanMetin, "");
}

}  // namespace
