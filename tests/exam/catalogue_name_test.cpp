// A name that is typed over another one, or only to find something: what it takes along, and what
// becomes of it.
#include <gtest/gtest.h>

#include <memory>

#include "exam/frm_drug.h"
#include "tests/shell/record_fixture.h"

namespace {

using host::Answer;
using support::RecordDesk;

struct Asked {
  const char* part;
  Answer answer;
};

// The desk serves all cases of a test: its stores are slower to make than the catalogue.
struct Pharmacy {
  Pharmacy() { open(); }
  void open() {
    dao::Recordset& drugs = desk.station.stores.clinical.drug;
    while (drugs.MoveFirst() && !drugs.Eof()) ASSERT_TRUE(drugs.Delete());
    add("Parol", "3x1", "1");
    add("Digoksin", "1x1", "2");
    add("İliadin", "2x1", "1");
    drug = std::make_unique<exam::FrmDrug>(desk.station);
    drug->Load();
  }
  void add(const char* name, const char* dosage, const char* number) {
    dao::Recordset& drugs = desk.station.stores.clinical.drug;
    EXPECT_TRUE(drugs.AddNew() && drugs.Fields("Drog").Set(name) &&
                drugs.Fields("Dosage").Set(dosage) && drugs.Fields("number").Set(number) &&
                drugs.Update());
  }
  void show(const std::string& name) {
    for (std::size_t row = 0; row < drug->Lstilaç.count(); ++row) {
      if (drug->Lstilaç.items()[row].text == name)
        drug->Lstilaç.setListIndex(static_cast<int>(row));
    }
    EXPECT_EQ(drug->txtilaç.text(), name);
  }
  void typeName(const char* name) {
    drug->focusMoved(&drug->txtilaç);
    drug->txtilaç.setText(name);
    drug->txtilaç.KeyUp(forms::Key{.code = 'A'});
  }
  // "name dosage" of the whole catalogue.
  [[nodiscard]] std::string catalogue() {
    std::string all;
    dao::Recordset& drugs = desk.station.stores.clinical.drug;
    for (drugs.MoveFirst().ignore(); !drugs.Eof(); drugs.MoveNext().ignore())
      all += drugs.Fields("Drog").text() + " " + drugs.Fields("Dosage").text() + "; ";
    return all;
  }

  support::TemporaryFolder folder;
  RecordDesk desk{folder.path()};
  std::unique_ptr<exam::FrmDrug> drug;
};

constexpr auto stock = "Digoksin 1x1; İliadin 2x1; Parol 3x1; ";

enum class Leave { First, NotAtAll };

struct PrescriptionCase {
  const char* shown;
  const char* dosage;  // typed over what is shown
  const char* name;    // typed last
  std::vector<Asked> asked;
  const char* line;  // of the prescription: name, number and dosage
  const char* parol = "3x1";
};

void prescribe(Pharmacy& at, const PrescriptionCase& c, Leave leave) {
  SCOPED_TRACE(std::string(c.shown) + "/" + c.dosage + "/" + c.name + "/" + c.line +
               (leave == Leave::First ? "" : " directly"));
  at.open();
  if (*c.shown != '\0') at.show(c.shown);
  if (*c.dosage != '\0') at.drug->txtkullanım.setText(c.dosage);
  for (const Asked& question : c.asked) at.desk.host.expect(question.part, question.answer);
  at.typeName(c.name);
  if (leave == Leave::First) at.drug->focusMoved(&at.drug->txtadet);
  at.drug->buttasi.press();
  EXPECT_EQ(at.drug->txtrecete.text(), c.line);
  EXPECT_NE(at.catalogue().find(std::string("Parol ") + c.parol), std::string::npos);
  // Nobody is kept from closing, and what is stored then is no search.
  at.drug->alanlaribosalt();
  at.drug->txtrecete.setText("");
  EXPECT_TRUE(at.drug->QueryUnload());
}

TEST(TypedDrug, NoLineTakesTheDosageOfAnotherDrug) {
  const PrescriptionCase cases[] = {
      {"", "", "digoksin", {}, "1 - Digoksin   2\n    S: 1x1"},
      {"", "", "iliadin", {}, "1 - İliadin   1\n    S: 2x1"},
      {"", "", "para", {{"“para”", Answer::No}}, ""},
      {"", "", "para", {{"“para”", Answer::Yes}}, "1 - para   \n    S: "},
      {"", "2x2", "Yeni", {{"“Yeni”", Answer::Yes}}, "1 - Yeni   \n    S: 2x2"},
      {"", "2x2", "Parol", {{"“Parol”", Answer::No}}, "1 - Parol   \n    S: 2x2"},
      {"", "2x2", "Parol", {{"“Parol”", Answer::Yes}}, "1 - Parol   1\n    S: 3x1"},
      {"Parol", "", "Digoksin", {}, "1 - Digoksin   2\n    S: 1x1"},
      {"Parol", "", "PAROL", {}, "1 - Parol   1\n    S: 3x1"},
      {"Parol", "4x1", "Parol", {}, "1 - Parol   1\n    S: 4x1"},
      {"Parol", "", "Yeni", {{"“Parol”", Answer::No}}, ""},
      {"Parol", "", "Yeni", {{"“Parol”", Answer::Yes}}, "1 - Yeni   \n    S: "},
      {"Parol", "4x1", "Yeni", {{"“Parol”", Answer::Yes}}, "1 - Yeni   \n    S: "},
      {"Parol", "4x1", "Digoksin", {{"Değişiklikler", Answer::No}}, "1 - Digoksin   2\n    S: 1x1"},
      {"Parol",
       "4x1",
       "Digoksin",
       {{"Değişiklikler", Answer::Yes}},
       "1 - Digoksin   2\n    S: 1x1",
       "4x1"},
  };
  Pharmacy at;
  for (const PrescriptionCase& c : cases) {
    prescribe(at, c, Leave::First);
    prescribe(at, c, Leave::NotAtAll);
  }
  prescribe(at, {"Parol", "4x1", "Digoksin", {{"Değişiklikler", Answer::Cancel}}, ""},
            Leave::NotAtAll);
}

TEST(TypedDrug, ANewDrugsDosageStaysWithItOnceItIsPrescribed) {
  Pharmacy at;
  at.typeName("Yeni");
  at.drug->txtkullanım.setText("2x2");
  at.desk.host.expect("“Yeni”", Answer::Yes);
  at.drug->buttasi.press();
  at.typeName("Başka");
  at.desk.host.expect("“Yeni”", Answer::Yes);
  at.drug->buttasi.press();
  EXPECT_EQ(at.drug->txtrecete.text(), "1 - Yeni   \n    S: 2x2\n2 - Başka   \n    S: ");
}

TEST(TypedDrug, AfterANameAloneItsOwnDosageCanBeTyped) {
  Pharmacy at;
  at.show("Parol");
  at.typeName("Yeni");
  at.desk.host.expect("“Parol”", Answer::Yes);
  at.drug->buttasi.press();
  EXPECT_EQ(at.drug->txtilaç.text() + at.drug->txtkullanım.text(), "Yeni");
  at.drug->txtkullanım.setText("1x2");
  at.drug->txtrecete.setText("");
  at.desk.host.expect("“Yeni”", Answer::Yes);
  at.drug->buttasi.press();
  EXPECT_EQ(at.drug->txtrecete.text(), "1 - Yeni   \n    S: 1x2");
}

TEST(TypedDrug, ANameOverADrugIsARenameOnlyWhenItIsSaved) {
  Pharmacy at;
  at.show("Parol");
  at.typeName("Parol 500");
  at.drug->focusMoved(&at.drug->txtkullanım);
  EXPECT_EQ(at.drug->txtilaç.text() + at.drug->txtkullanım.text(), "Parol 5003x1");
  at.desk.host.expect("Parol, Parol 500 olarak değiştirilsin mi?", Answer::Yes);
  at.drug->mnukaydet.press();
  EXPECT_EQ(at.catalogue(), "Digoksin 1x1; İliadin 2x1; Parol 500 3x1; ");
}

struct ClosingCase {
  const char* shown;
  const char* dosage;
  const char* name;
  std::vector<Asked> asked;
  bool closes;
  const char* catalogue;
};

TEST(TypedDrug, ASearchIsNoRecordWhenTheWindowCloses) {
  const ClosingCase cases[] = {
      {"", "", "para", {{"“para”", Answer::Cancel}}, false, stock},
      {"", "", "para", {{"“para”", Answer::No}}, true, stock},
      {"",
       "",
       "para",
       {{"“para”", Answer::Yes}},
       true,
       "Digoksin 1x1; İliadin 2x1; para ; Parol 3x1; "},
      {"", "", "parol", {}, true, stock},
      {"", "2x2", "Yeni", {}, true, "Digoksin 1x1; İliadin 2x1; Parol 3x1; Yeni 2x2; "},
      {"Parol", "4x1", "Parol", {}, true, "Digoksin 1x1; İliadin 2x1; Parol 4x1; "},
      {"Parol", "", "Digoksin", {}, true, stock},
      {"Parol", "", "qqq", {{"Parol, qqq", Answer::Cancel}}, false, stock},
      {"Parol", "", "qqq", {{"Parol, qqq", Answer::No}}, true, stock},
      {"Parol",
       "4x1",
       "qqq",
       {{"Parol, qqq", Answer::No}},
       true,
       "Digoksin 1x1; İliadin 2x1; Parol 4x1; "},
      {"Parol",
       "",
       "qqq",
       {{"Parol, qqq", Answer::Yes}},
       true,
       "Digoksin 1x1; İliadin 2x1; qqq 3x1; "},
  };
  Pharmacy at;
  for (const ClosingCase& c : cases) {
    SCOPED_TRACE(std::string(c.shown) + "/" + c.dosage + "/" + c.name + "/" + c.catalogue);
    at.open();
    if (*c.shown != '\0') at.show(c.shown);
    if (*c.dosage != '\0') at.drug->txtkullanım.setText(c.dosage);
    at.typeName(c.name);
    for (const Asked& question : c.asked) at.desk.host.expect(question.part, question.answer);
    EXPECT_EQ(at.drug->QueryUnload(), c.closes);
    EXPECT_EQ(at.catalogue(), c.catalogue);
    if (!c.closes) {
      EXPECT_EQ(at.drug->txtilaç.text(), c.name);
    }
  }
}

// A prescription whose window was kept open by Esc is not handed over by a later Cancel. The cross
// asks for it, Cancel does not.
TEST(TypedDrug, OnlyAWindowThatClosedHandsItsPrescriptionOver) {
  Pharmacy at;
  at.drug->txtrecete.setText("1 - Parol");
  for (int time = 0; time < 2; ++time) {
    at.desk.host.expect("kaybolacak", Answer::No);
    EXPECT_FALSE(at.drug->QueryUnload());
  }
  at.typeName("para");
  at.desk.host.expect("“para”", Answer::Cancel);
  at.drug->buttamam.press();
  at.drug->mnuyeni.setEnabled(true);
  at.desk.host.expect("Kayıt yapılsın mı?", Answer::No);
  at.drug->mnuyeni.press();
  at.drug->Butİptal.press();
  EXPECT_EQ(at.desk.station.AktarilanMetin, "");
}

TEST(TypedDrug, WhatIsTypedToFindADrugIsNoChangeOfTheShownOne) {
  Pharmacy at;
  at.show("Parol");
  at.typeName("dig");
  EXPECT_EQ(at.drug->Lstilaç.text(), "Digoksin");
  at.drug->Lstilaç.DblClick();  // the row that the search has marked
  EXPECT_EQ(at.drug->txtrecete.text(), "1 - Digoksin   2\n    S: 1x1");
  at.typeName("par");
  at.drug->Lstilaç.setListIndex(-1);
  at.show("İliadin");
  EXPECT_EQ(at.catalogue(), stock);
  // The row of the shown drug gives it its name back, and takes nothing away.
  at.drug->txtkullanım.setText("9x1");
  at.typeName("ili");
  at.drug->Lstilaç.DblClick();
  EXPECT_TRUE(at.drug->txtrecete.text().ends_with("2 - İliadin   1\n    S: 9x1"));
  // A dosage that was typed first is not taken away by a choice.
  at.desk.host.expect("Değişiklikler", Answer::No);
  at.drug->mnuyeni.press();
  at.drug->txtkullanım.setText("2x2");
  at.desk.host.expect("“Parol”", Answer::No);
  at.drug->Lstilaç.setListIndex(2);
  EXPECT_EQ(at.drug->txtilaç.text() + at.drug->txtkullanım.text(), "2x2");
}

TEST(TypedDrug, AnEmptiedPrescriptionBeginsAtOne) {
  Pharmacy at;
  at.show("Parol");
  at.drug->buttasi.press();
  at.drug->txtrecete.setText("");
  at.drug->buttasi.press();
  EXPECT_EQ(at.drug->txtrecete.text(), "1 - Parol   1\n    S: 3x1");
}

}  // namespace
