#include "exam/frm_demand.h"
#include "exam/frm_test_edit.h"
#include "tests/exam/laboratory_fixture.h"

namespace {

using support::LabDesk;

struct Requests : testing::Test {
  Requests() {
    desk.addTest("AKŞ", "mg/dL", "70", "105");
    desk.addTest("CRP", "mg/L", "", "5");
    screen.Load();
  }
  support::TemporaryFolder folder;
  LabDesk desk{folder.path()};
  exam::FrmDemand screen{desk.station};

  void add(int row) {
    screen.Lsttest.setListIndex(-1);
    screen.Lsttest.setListIndex(row);
    screen.buttasi.press();
  }
};

TEST_F(Requests, TestsStandBehindEachOther) {
  EXPECT_FALSE(screen.buttasi.enabled());
  add(1);
  EXPECT_EQ(screen.txtistem.text(), "CRP");
  EXPECT_EQ(screen.txttest.text(), "");
  EXPECT_FALSE(screen.buttasi.enabled());
  add(0);
  EXPECT_EQ(screen.txtistem.text(), "CRP, AKŞ");
}

TEST_F(Requests, ASecondTimeIsAskedAbout) {
  add(0);
  desk.host.expect("AKŞ önceden istendi. İkinci defa istiyor musunuz?", host::Answer::No);
  add(0);
  EXPECT_EQ(screen.txtistem.text(), "AKŞ");
  desk.host.expect("AKŞ önceden istendi.", host::Answer::Yes);
  add(0);
  EXPECT_EQ(screen.txtistem.text(), "AKŞ, AKŞ");
}

TEST_F(Requests, OnlyAnAcceptedTextIsHandedOver) {
  add(0);
  screen.Butİptal.press();
  EXPECT_EQ(desk.station.AktarilanMetin, "");
  screen.txtistem.setText("AKŞ\n  ");
  screen.buttamam.press();
  EXPECT_EQ(desk.station.AktarilanMetin, "AKŞ");
}

TEST_F(Requests, ATestThatTheCatalogueLacksIsAskedAboutAndNotKept) {
  screen.txttest.setText("Ferritin");
  desk.host.expect("“Ferritin”", host::Answer::No);
  screen.buttasi.press();
  EXPECT_EQ(screen.txtistem.text() + screen.txttest.text(), "Ferritin");
  desk.host.expect("“Ferritin”", host::Answer::Yes);
  screen.buttasi.press();
  EXPECT_EQ(screen.txtistem.text(), "Ferritin");
  screen.txttest.setText("crp");
  screen.buttasi.press();
  EXPECT_EQ(screen.txtistem.text(), "Ferritin, CRP");
  screen.buttamam.press();
  screen.Testlistele();
  EXPECT_EQ(screen.Lsttest.count(), 2U);
}

TEST_F(Requests, ANameIsCompletedWhileItIsTyped) {
  screen.focusMoved(&screen.txttest);
  screen.txttest.setText("cr");
  screen.txttest.KeyUp({.code = 'R'});
  EXPECT_EQ(screen.txttest.text(), "crP");
  EXPECT_EQ(screen.txttest.selStart(), 2U);
  EXPECT_EQ(screen.txttest.selLength(), 1U);
  screen.txttest.setText("cr");
  screen.txttest.KeyUp({.code = forms::key_code::Delete});
  EXPECT_EQ(screen.txttest.text(), "cr");
}

TEST_F(Requests, TickedTestsAreAddedTogether) {
  desk.addTest("TSH", "", "", "");
  screen.Testlistele();
  screen.Lsttest.setSelected(0, true);
  screen.Lsttest.setSelected(2, true);
  screen.txtistem.setText("TSH");
  EXPECT_TRUE(screen.buttasi.enabled());
  desk.host.expect("TSH önceden istendi.", host::Answer::No);
  screen.txttest.setText("crp");  // typed beside the ticks
  screen.buttasi.press();
  EXPECT_EQ(screen.txtistem.text(), "TSH, AKŞ, CRP");
  EXPECT_FALSE(screen.buttasi.enabled());
  for (const forms::ListItem& item : screen.Lsttest.items()) EXPECT_FALSE(item.selected);
  // A row that was only looked at is not requested beside those that are ticked.
  screen.Lsttest.setListIndex(1);
  screen.Lsttest.setSelected(0, true);
  screen.txtistem.setText("");
  screen.buttasi.press();
  EXPECT_EQ(screen.txtistem.text(), "AKŞ");
  // What is ticked when the request is accepted was meant to be in it.
  screen.Lsttest.setSelected(2, true);
  desk.host.expect("kaybolacak", host::Answer::No);
  EXPECT_FALSE(screen.QueryUnload());
  screen.buttamam.press();
  EXPECT_EQ(desk.station.AktarilanMetin, "AKŞ, TSH");
}

TEST_F(Requests, ANewTestsDataAreNotLostByRequestingIt) {
  screen.txttest.setText("Ferritin");
  screen.txtmin.setText("30");
  desk.host.expect("“Ferritin”", host::Answer::Yes);
  desk.host.expect("Kayıt yapılsın mı?", host::Answer::Yes);
  screen.buttasi.press();
  EXPECT_EQ(screen.txtistem.text(), "Ferritin");
  EXPECT_EQ(screen.Lsttest.count(), 3U);
}

struct Catalogue : Requests {
  Catalogue() { edit.Load(); }
  exam::FrmTestEdit edit{desk.station};

  [[nodiscard]] std::string names() const {
    std::string all;
    for (const forms::ListItem& item : edit.Lsttest.items()) all += item.text + " ";
    return all;
  }
};

TEST_F(Catalogue, ARenameIsAskedAboutAndKeepsTheRow) {
  edit.Lsttest.setListIndex(1);
  edit.txttest.setText("hsCRP");
  edit.txtmax.setText("3,2");
  desk.host.expect("CRP, hsCRP olarak değiştirilsin mi?", host::Answer::No);
  edit.mnukaydet.press();
  EXPECT_EQ(names(), "AKŞ CRP ");
  EXPECT_EQ(edit.txttest.text() + " " + edit.txtmax.text(), "CRP 3.2");
  edit.txttest.setText("hsCRP");
  desk.host.expect("CRP, hsCRP olarak değiştirilsin mi?", host::Answer::Yes);
  edit.mnukaydet.press();
  EXPECT_EQ(names(), "AKŞ hsCRP ");
  EXPECT_EQ(edit.Lsttest.text(), "hsCRP");
}

TEST_F(Catalogue, TheListFollowsTypingAndLeavingTheNameShowsItsTest) {
  edit.txttest.setText("c");
  edit.txttest.KeyUp({.code = 'C'});
  EXPECT_EQ(edit.Lsttest.text(), "CRP");
  EXPECT_EQ(edit.txtmax.text(), "");
  edit.txttest.setText("crp");
  edit.txttest.LostFocus();
  EXPECT_EQ(edit.txttest.text() + " " + edit.txtmax.text(), "CRP 5");
  EXPECT_FALSE(edit.mnukaydet.enabled());
  edit.txtmax.setText("6");
  edit.txttest.LostFocus();  // the same test: what was typed stays
  EXPECT_EQ(edit.txtmax.text(), "6");
  // Another one brings its own range, and takes none along.
  edit.txttest.setText("akş");
  desk.host.expect("Değişiklikler", host::Answer::No);
  edit.txttest.LostFocus();
  EXPECT_EQ(edit.txttest.text() + " " + edit.txtmin.text() + " " + edit.txtmax.text(),
            "AKŞ 70 105");
}

}  // namespace
