#include "exam/frm_test_filter.h"
#include "exam/result_mark.h"
#include "tests/exam/laboratory_fixture.h"

namespace {

using support::Laboratory;
using support::Texts;

TEST(ResultMark, StandsBehindWhatIsOutsideTheRange) {
  struct Case {
    const char *result, *min, *max, *marked;
  };
  const Case cases[] = {
      {"60", "70", "105", "60 L"},  {"126", "70", "105", "126 H"},
      {"70", "70", "105", "70   "}, {"105", "70", "105", "105   "},
      {"90", "", "", "90   "},      {"90", "", "80", "90 H"},
      {"90", "100", "", "90 L"},    {"neg", "", "", "neg"},
      {"neg", "1", "", "neg L"},    {"<5", "", "5", "<5   "},
      {"<5", "1", "5", "<5 L"},     {"0.49", "0.5", "1", "0.49 L"},
      {"12 mg", "", "20", "12 mg"}, {"", "", "", ""},
      {"", "1", "", " L"},          {"5", "10", "1", "5 L H"},
  };
  for (const Case& c : cases) EXPECT_EQ(exam::isaretli(c.result, c.min, c.max), c.marked);
}

TEST(ResultMark, TheRangeIsWrittenAsFarAsItGoes) {
  EXPECT_EQ(exam::aralik("70", "105"), "70 - 105");
  EXPECT_EQ(exam::aralik("", "41"), "≤ 41");
  EXPECT_EQ(exam::aralik("40", ""), "≥ 40");
  EXPECT_EQ(exam::aralik("", ""), "");
}

TEST(ResultMark, ADecimalCommaIsReadAsOne) {
  EXPECT_EQ(exam::noktali("5,4"), "5.4");
  EXPECT_EQ(exam::noktali("<5,4"), "<5,4");
  EXPECT_EQ(exam::noktali("1,2,3"), "1,2,3");
  EXPECT_EQ(exam::noktali("pozitif, +"), "pozitif, +");
}

TEST_F(Laboratory, AValueIsStoredWithItsRangeAndItsLedgerRow) {
  save(*screen, "03.02.2026", "AKŞ", "126");
  EXPECT_EQ(rows(*screen), (Texts{"03.02.2026 AKŞ 126 H"}));
  EXPECT_EQ(screen->msgrid1.TextMatrix(1, 5), "105");
  EXPECT_EQ(screen->msgrid1.cell(1, 2).emphasis, forms::Emphasis::High);
  EXPECT_EQ(ledger(), "1: 1; 03.02.2026");
  // Ready for the next one, of the same day.
  EXPECT_EQ(screen->comtest.text() + screen->txtsonuç.text() + screen->txtmin.text(), "");
  EXPECT_EQ(screen->txttarih.text(), "03.02.2026");
  EXPECT_FALSE(screen->mnukaydet.enabled());
  // The date box gives the ledger's date, and rows stand by day.
  save(*screen, "02.01.2026", "CRP", "3,5");
  EXPECT_EQ(rows(*screen), (Texts{"02.01.2026 CRP 3.5   ", "03.02.2026 AKŞ 126 H"}));
  EXPECT_EQ(ledger(), "2: 1;2; 02.01.2026");
}

TEST_F(Laboratory, AChosenRowIsShownChangedAndDeleted) {
  save(*screen, "03.02.2026", "AKŞ", "126");
  save(*screen, "04.02.2026", "CRP", "2");
  screen->msgrid1.choose({1, 0});
  EXPECT_EQ(screen->txtsonuç.text(), "126");
  EXPECT_EQ(screen->txttarih.text(), "03.02.2026");
  EXPECT_FALSE(screen->mnukaydet.enabled());
  screen->txtsonuç.setText("96");
  desk.host.expect("Değişiklikler", host::Answer::Yes);
  screen->msgrid1.choose({2, 0});
  EXPECT_EQ(rows(*screen), (Texts{"03.02.2026 AKŞ 96   ", "04.02.2026 CRP 2   "}));
  EXPECT_EQ(screen->comtest.text(), "CRP");
  EXPECT_EQ(screen->msgrid1.Row(), 2);
  desk.host.expect("04.02.2026", host::Answer::Yes);
  screen->mnusil.press();
  EXPECT_EQ(ledger(), "1: 1; 04.02.2026");
  screen->msgrid1.choose({1, 0});
  desk.host.expect("03.02.2026", host::Answer::Yes);
  screen->mnusil.press();
  EXPECT_EQ(ledger(), "");
  EXPECT_EQ(rows(*screen), Texts());
}

TEST_F(Laboratory, AnotherRangeInTheCatalogueLeavesStoredValuesAlone) {
  save(*screen, "03.02.2026", "CRP", "6");
  dao::Recordset& tests = desk.station.stores.clinical.Tests;
  ASSERT_TRUE(tests.Seek("=", "CRP").ok() && tests.Edit().ok());
  ASSERT_TRUE(tests.Fields("Max").Set("10").ok() && tests.Update().ok());
  screen->VAnalizleriyaz();
  EXPECT_EQ(rows(*screen), (Texts{"03.02.2026 CRP 6 H"}));
  save(*screen, "04.02.2026", "CRP", "6");
  EXPECT_EQ(rows(*screen).back(), "04.02.2026 CRP 6   ");
}

TEST_F(Laboratory, NoResultKeepsTheRangeOfAnotherTest) {
  desk.addTest("İdrar", "mL", "800", "2000");
  screen->Testlistele();
  struct Case {
    const char *first, *typedMax, *then, *shown, *range;
  };
  const Case cases[] = {
      {"", "", "crp", "CRP", "mg/L--5"},
      {"", "", "idrar", "İdrar", "mL-800-2000"},
      {"", "", "hemog", "hemog", "--"},
      {"", "7", "hemog", "hemog", "--7"},  // typed for the test to come
      {"", "7", "CRP", "CRP", "--7"},      // the same
      {"AKŞ", "", "CRP", "CRP", "mg/L--5"},
      {"AKŞ", "", "akş", "AKŞ", "mg/dL-70-105"},
      {"AKŞ", "110", "akş", "AKŞ", "mg/dL-70-110"},
      {"AKŞ", "110", "hemog", "hemog", "--"},
      {"AKŞ", "", "hemog", "hemog", "--"},
      {"hemog", "7", "hemogl", "hemogl", "--7"},
      {"hemog", "7", "CRP", "CRP", "mg/L--5"},
  };
  const auto type = [&](const char* test) {
    screen->focusMoved(&screen->comtest);
    screen->comtest.setText(test);
    screen->focusMoved(&screen->txtsonuç);
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.first) + "/" + c.typedMax + "/" + c.then);
    screen->alanlaribosalt();
    if (*c.first != '\0') type(c.first);
    if (*c.typedMax != '\0') screen->txtmax.setText(c.typedMax);
    type(c.then);
    EXPECT_EQ(screen->comtest.text(), c.shown);
    EXPECT_EQ(screen->txtbirim.text() + "-" + screen->txtmin.text() + "-" + screen->txtmax.text(),
              c.range);
  }
  EXPECT_EQ(screen->comtest.items().size(), 3U);  // what was typed is no test to choose
}

TEST_F(Laboratory, AStoredValueGivesNoRangeToAnotherTest) {
  save(*screen, "03.02.2026", "AKŞ", "126");
  screen->msgrid1.choose({1, 0});
  screen->comtest.setText("hemog");
  desk.host.expect("“hemog”", host::Answer::Yes);
  screen->mnukaydet.press();  // without leaving the box first
  EXPECT_EQ(rows(*screen), (Texts{"03.02.2026 hemog 126   "}));
  // Under its own name it is not asked about again.
  screen->msgrid1.choose({1, 0});
  screen->txtsonuç.setText("127");
  screen->mnukaydet.press();
  EXPECT_EQ(rows(*screen), (Texts{"03.02.2026 hemog 127   "}));
}

TEST_F(Laboratory, AnUnknownTestIsAskedAboutBeforeItIsStored) {
  screen->comtest.setText("hemog");
  screen->txtsonuç.setText("300");
  desk.host.expect("“hemog”", host::Answer::No);
  screen->mnukaydet.press();
  EXPECT_EQ(rows(*screen), Texts());
  EXPECT_EQ(screen->comtest.text() + screen->txtsonuç.text(), "hemog300");
  EXPECT_EQ(screen->activeControl(), &screen->comtest);
  screen->comtest.setText("crp");
  screen->mnukaydet.press();
  EXPECT_EQ(rows(*screen), (Texts{"22.11.2026 CRP 300 H"}));
}

TEST_F(Laboratory, ATestWithoutAResultIsAskedAboutBeforeItIsStoredAtClosing) {
  screen->comtest.setText("CRP");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Cancel);
  EXPECT_FALSE(screen->QueryUnload());
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::No);
  EXPECT_TRUE(screen->QueryUnload());
  EXPECT_EQ(ledger(), "");
  screen->comtest.setText("CRP");
  screen->txtsonuç.setText("3");
  EXPECT_TRUE(screen->QueryUnload());
  EXPECT_EQ(ledger(), "1: 1; 22.11.2026");
}

// The date of a row that was only looked at stays behind.
TEST_F(Laboratory, ANewValueIsOfToday) {
  save(*screen, "03.02.2020", "AKŞ", "126");
  EXPECT_TRUE(screen->mnuyeni.enabled()) << "the date that a save keeps is cleared by New";
  screen->msgrid1.choose({1, 0});
  screen->mnuyeni.press();
  EXPECT_EQ(screen->txttarih.text(), "22.11.2026");
  EXPECT_FALSE(screen->mnukaydet.enabled() || screen->mnuyeni.enabled());
  screen->msgrid1.choose({1, 0});
  desk.host.expect("03.02.2020", host::Answer::Yes);
  screen->mnusil.press();
  EXPECT_EQ(screen->txttarih.text(), "22.11.2026");
}

TEST_F(Laboratory, AfterASaveTheNextTestIsTyped) {
  screen->focusMoved(&screen->txtsonuç);
  save(*screen, "03.02.2026", "AKŞ", "126");
  EXPECT_EQ(screen->activeControl(), &screen->comtest);
  screen->focusMoved(&screen->msgrid1);
  screen->comtest.setText("CRP");
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  screen->msgrid1.choose({1, 0});
  EXPECT_EQ(screen->activeControl(), &screen->msgrid1);
}

TEST_F(Laboratory, ANumberWithoutARowRepeatsTheOneBefore) {
  for (const char* result : {"80", "90", "100"}) save(*screen, "03.02.2026", "AKŞ", result);
  dao::Recordset& values = desk.station.stores.clinical.Analyze;
  ASSERT_TRUE(values.Seek("=", 2).ok() && values.Delete().ok());
  screen->VAnalizleriyaz();
  EXPECT_EQ(rows(*screen),
            (Texts{"03.02.2026 AKŞ 80   ", "03.02.2026 AKŞ 80   ", "03.02.2026 AKŞ 100   "}));
}

TEST_F(Laboratory, TwoStationsKeepEachOthersValues) {
  support::LabDesk other(folder.path());
  const auto theirs = other.results();
  save(*screen, "03.02.2026", "AKŞ", "80");
  save(*theirs, "03.02.2026", "AKŞ", "90");
  save(*screen, "04.02.2026", "CRP", "4");
  EXPECT_EQ(ledger(), "3: 1;2;3; 04.02.2026");
  EXPECT_EQ(rows(*screen).size(), 3U);
  // A value that is gone meanwhile is stored anew.
  screen->msgrid1.choose({2, 0});
  theirs->VAnalizleriyaz();
  theirs->msgrid1.choose({2, 0});
  other.host.expect("Kaydı silmek", host::Answer::Yes);
  theirs->mnusil.press();
  screen->txtsonuç.setText("95");
  screen->mnukaydet.press();
  EXPECT_EQ(ledger(), "3: 1;3;4; 03.02.2026");
}

TEST_F(Laboratory, ADateThatCannotBeIsRefused) {
  for (const char* date : {"23.11.2026", "31.12.1979", "32.13.2020", "yarın"}) {
    screen->txttarih.setText("03.02.2026");
    screen->focusMoved(&screen->txttarih);
    screen->txttarih.setText(date);
    screen->comtest.setText("CRP");
    desk.host.expect("Hatalı tarih", host::Answer::Ok);
    screen->mnukaydet.press();
    EXPECT_EQ(screen->txttarih.text(), "03.02.2026");
    EXPECT_EQ(ledger(), "");
    screen->focusMoved(nullptr);
  }
}

struct Filtered : Laboratory {
  Filtered() {
    save(*screen, "01.01.2026", "AKŞ", "126");
    save(*screen, "02.01.2026", "AKŞ", "60");
    save(*screen, "03.01.2026", "CRP", "3");
    save(*screen, "04.01.2026", "CRP", "neg");
    filter.hedef = screen.get();
    filter.Load();
  }
  exam::FrmTestFilter filter{desk.station};
};

TEST_F(Filtered, KeepsTestsDaysAndMarks) {
  struct Case {
    const char *from, *to;
    bool high, low, normal;
    std::vector<std::size_t> tests;  // rows of the list: AKŞ, CRP
    Texts days;
    std::size_t numbers;
  };
  const Case cases[] = {
      {"01.01.2026", "04.01.2026", true, true, true, {}, {"01", "02", "03"}, 4},
      {"02.01.2026", "03.01.2026", true, true, true, {}, {"02", "03"}, 4},
      {"01.01.2026", "04.01.2026", true, false, false, {}, {"01"}, 4},
      {"01.01.2026", "04.01.2026", false, true, false, {}, {"02"}, 4},
      {"01.01.2026", "04.01.2026", false, false, true, {}, {"03"}, 4},
      {"01.01.2026", "04.01.2026", true, true, true, {1}, {"03"}, 2},
      {"01.01.2026", "04.01.2026", true, true, true, {0, 1}, {"01", "02", "03"}, 4},
      {"05.01.2026", "04.01.2026", true, true, true, {}, {}, 4}};
  for (const Case& c : cases) {
    filter.dpt1.setText(c.from);
    filter.dpt2.setText(c.to);
    filter.ChkYüksek.setValue(c.high);
    filter.ChkDüşük.setValue(c.low);
    filter.ChkNormal.setValue(c.normal);
    for (std::size_t row = 0; row < 2; ++row) filter.Lsttest.setSelected(row, false);
    for (const std::size_t row : c.tests) filter.Lsttest.setSelected(row, true);
    ASSERT_TRUE(filter.VAnalizlerifiltrele());
    Texts days;
    for (const std::string& row : rows(*screen)) days.push_back(row.substr(0, 2));
    EXPECT_EQ(days, c.days);
    EXPECT_EQ(screen->Lstkn.count(), c.numbers);
  }
}

TEST_F(Filtered, ASaveAfterwardsLosesNoNumber) {
  filter.Lsttest.setSelected(1, true);
  filter.buttamam.press();
  EXPECT_EQ(desk.host.closed.back(), "frmtestfilter");
  save(*screen, "05.01.2026", "CRP", "4");
  EXPECT_EQ(ledger(), "5: 1;2;3;4;5; 05.01.2026");
  EXPECT_EQ(rows(*screen).size(), 5U);
}

TEST_F(Filtered, ADayThatIsNoneIsToldAndFiltersNothing) {
  EXPECT_EQ(filter.dpt1.text(), "01.01.2026");
  filter.dpt2.setText("dün");
  desk.host.expect("Hatalı tarih", host::Answer::Ok);
  filter.buttamam.press();
  EXPECT_TRUE(desk.host.closed.empty());
  EXPECT_EQ(rows(*screen).size(), 4U);
}

}  // namespace
