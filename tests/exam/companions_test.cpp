#include <set>

#include "tests/exam/exam_fixture.h"

namespace {

using support::Exam;

// A companion screen that hands a text back, and notes how it was opened.
struct Companion : forms::Form {
  explicit Companion(std::string_view name) : Form(name) { setCaption("Ekran"); }
  forms::Label lblisim{*this, "lblisim"};
  forms::TextBox txtavi{*this, "txtavi"};
  forms::TextBox txtucret{*this, "txtucret"};
  forms::TextBox txtodemeyialan{*this, "txtodemeyialan"};
  forms::TextBox dtdate{*this, "dtdate"};
};

struct Companions : Exam {
  void offer(const char* name) {
    desk.screens.add(name, [name](shell::Station&) { return std::make_unique<Companion>(name); });
  }
  void handsBack(const char* name, std::string text) {
    offer(name);
    desk.host.modal[name] = [this, text](forms::Form& form) {
      title = form.caption();
      desk.station.AktarilanMetin = text;
    };
  }
  std::string title;
};

const std::set<std::string> bySpeciality{"asi",  "fizikgelişme", "motmengelişme", "operation",
                                         "Lens", "glass",        "Gebe",          "angio",
                                         "efor", "echo"};

struct SpecialityCase {
  const char* program;
  std::set<std::string> shown;
  const char* frame;
  const char* first;  // the field where the special page begins
};

TEST_F(Companions, EachSpecialityHasItsButtonsAndItsFrame) {
  const SpecialityCase cases[] = {
      {"General Medicine", {}, "", ""},
      {"IntMed", {}, "", ""},
      {"Surgery", {"operation"}, "", ""},
      {"Pediatrics", {"asi", "fizikgelişme", "motmengelişme"}, "", ""},
      {"Gynecology", {"operation", "Gebe"}, "FKado", "ComMedeniDurum"},
      {"Ophthalmology", {"operation", "Lens", "glass"}, "FGoz", "txtgörmesağ"},
      {"ENT", {"operation"}, "FKBB", "txtoralkavite"},
      {"Orthopedics", {"operation"}, "", ""},
      {"Cardiology", {"angio", "efor", "echo"}, "FKalp", "txtekg"},
      {"Urology", {"operation"}, "", ""},
  };
  for (const SpecialityCase& c : cases) {
    SCOPED_TRACE(c.program);
    as(c.program);
    for (const forms::ToolButton& button : screen->tbToolBar.buttons()) {
      if (!bySpeciality.contains(button.key)) continue;
      EXPECT_EQ(button.visible, c.shown.contains(button.key)) << button.key;
    }
    for (const char* frame : {"FKado", "FGoz", "FKBB", "FKalp"})
      EXPECT_EQ(screen->find(frame)->visible(), std::string(frame) == c.frame) << frame;
    const bool framed = *c.frame != '\0';
    EXPECT_EQ(screen->TabStrip1.visible(), framed);
    EXPECT_EQ(screen->mnuameliyat.visible(), c.shown.contains("operation"));
    screen->TabStrip1.select("TSÖzel");
    EXPECT_EQ(screen->activeControl()->name(), framed ? c.first : "txtşikayet");
  }
}

TEST_F(Companions, ATextThatIsHandedBackGoesBehindWhatIsThere) {
  as("Gynecology");
  screen->TabStrip1.select("TSÖzel");
  handsBack("frmdrug", "1 - Parol");
  screen->tbToolBar.press("recete");
  EXPECT_EQ(screen->txttedavi.text(), "1 - Parol");
  EXPECT_EQ(screen->TabStrip1.selected(), "TSGenel");
  EXPECT_EQ(title, "Ekran (Ayşe Yıldız)");
  EXPECT_TRUE(screen->mnukaydet.enabled());
  screen->tbToolBar.press("recete");
  EXPECT_EQ(screen->txttedavi.text(), "1 - Parol\n1 - Parol");
  handsBack("frmdrug", "");  // the text of before does not come again
  screen->mnureçete.press();
  EXPECT_EQ(screen->txttedavi.text(), "1 - Parol\n1 - Parol");
  screen->txttahlil.setText("Hb 11");
  handsBack("frmdemand", "TSH, fT4");
  screen->tbToolBar.press("istem");
  EXPECT_EQ(screen->txttahlil.text(), "Hb 11\nTSH, fT4");
}

TEST_F(Companions, AMissingScreenIsSaidUnderItsEntry) {
  for (const auto& [button, words] : std::initializer_list<std::pair<const char*, const char*>>{
           {"recete", "Reçete"}, {"test", "Test Sonuçları"}, {"film", "Film"}}) {
    desk.host.expect(std::string(words) + " bu sürümde henüz yok.", host::Answer::Ok);
    screen->tbToolBar.press(button);
  }
  as("Surgery");
  desk.host.expect("Ameliyat bu sürümde", host::Answer::Ok);
  screen->Ameliyataç();
  screen->txtücret.DblClick();  // no accounts: nothing happens
}

TEST_F(Companions, TheFilmAndThePicturesShowOnTheirButtons) {
  EXPECT_EQ(screen->tbToolBar.button("film")->image, "film");
  handsBack("Frmmov", "C:\\yürüyüş.avi");
  screen->tbToolBar.press("film");
  EXPECT_EQ(screen->txtmov.text(), "C:\\yürüyüş.avi");
  EXPECT_EQ(screen->tbToolBar.button("film")->image, "filmv");
  handsBack("Frmmov", "");
  screen->tbToolBar.press("film");
  EXPECT_EQ(screen->txtmov.text(), "C:\\yürüyüş.avi");
  screen->txtp6.setText("x.jpg");
  EXPECT_EQ(screen->tbToolBar.button("resim")->image, "picturev");
  screen->alanlaribosalt();
  EXPECT_EQ(screen->tbToolBar.button("resim")->image, "picture");
}

TEST_F(Companions, ARecordMadeAtACompanionShowsOnItsButton) {
  as("Surgery");
  EXPECT_EQ(screen->tbToolBar.button("operation")->image, "operation");
  offer("frmoperation");
  desk.host.modal["frmoperation"] = [this](forms::Form&) {
    const std::string key =
        stores::ledgerKey("Surgery", stores::kind::operation, support::patientName);
    EXPECT_TRUE(stores::writeLedgerRow(desk.station.stores.clinical.Visit, key,
                                       {.numbers = {1}, .lastVisit = {}}));
  };
  screen->tbToolBar.press("operation");
  EXPECT_EQ(screen->tbToolBar.button("operation")->image, "operationv");
}

TEST_F(Companions, TheFeeGoesToTheAccounts) {
  screen->lblisim.setCaption("Ayşe Yıldız (SSK)");
  screen->comdoktor.setText("Dr. Şule Ak");
  screen->txtücret.setText("150.00");
  offer("frmaccount");
  std::array<std::string, 4> given;
  desk.host.modal["frmaccount"] = [&](forms::Form& form) {
    given = {form.find("lblisim")->caption(), form.find("txtucret")->snapshotText(),
             form.find("txtodemeyialan")->snapshotText(), form.find("dtdate")->snapshotText()};
  };
  screen->txtücret.DblClick();
  EXPECT_EQ(given,
            (std::array<std::string, 4>{"Ayşe Yıldız", "150.00", "Dr. Şule Ak", "22.11.2026"}));
}

TEST_F(Companions, AWarningStandsInTheBanner) {
  EXPECT_FALSE(screen->lbluyarı.visible());
  EXPECT_FALSE(screen->mnuwarn.enabled());
  auto& warnings = desk.station.stores.clinical.tblWarn;
  ASSERT_TRUE(warnings.AddNew() && warnings.Fields("name").Set(support::patientName) &&
              warnings.Fields("warn").Set("Penisilin alerjisi") && warnings.Update());
  screen = desk.open();
  EXPECT_EQ(screen->lbluyarı.caption(), "Penisilin alerjisi");
  EXPECT_TRUE(screen->lbluyarı.visible());
  offer("frmwarn");
  desk.host.modal["frmwarn"] = [&](forms::Form&) {
    EXPECT_TRUE(warnings.Seek("=", support::patientName) && warnings.Delete());
  };
  screen->mnuwarn.press();
  EXPECT_FALSE(screen->lbluyarı.visible());
}

}  // namespace
