#include "shell/speciality.h"

#include <gtest/gtest.h>

#include <set>

#include "registry/frm_main.h"
#include "shell/text_lookup.h"
#include "tests/support/practice.h"

namespace {

using Names = std::set<std::string>;

// The entries of the matrix that show on the main window.
Names shownEntries(const forms::Form& main) {
  const Names watched = {"mnumuayene1",
                         "MnuMuayene2",
                         "MnuMuayene3",
                         "MnuMuayene4",
                         "MnuMuayene5",
                         "MnuMuayene6",
                         "MnuMuayene7",
                         "Mnumuayene9",
                         "MnuMuayene10",
                         "mnumuayene13",
                         "mnumuayene14",
                         "MnuMuayene20",
                         "mnuasi",
                         "mnuameliyat",
                         "mnulens",
                         "mnulensstok",
                         "mnueko",
                         "mnuefor",
                         "mnuanjiyo",
                         "mnugebetakip",
                         "mnufizikgelişme",
                         "mnuekoara",
                         "mnueforara",
                         "mnuanjiyoara",
                         "mnumotmengelişme",
                         "mnulensara",
                         "mnubekdoğum",
                         "mnumuayenetarihleri",
                         "Picbranslar",
                         "panoresim",
                         "mnuraporara",
                         "mnuameliyatara",
                         "mnugünlükmuayeneler",
                         "mnumuayeneara",
                         "mnutestara",
                         "mnutest",
                         "cizgi7"};
  Names shown;
  for (const std::string& name : watched) {
    if (main.find(name)->visible()) shown.insert(name);
  }
  return shown;
}

const Names searches = {
    "mnugünlükmuayeneler", "mnumuayeneara", "mnutestara", "mnutest", "cizgi7", "panoresim"};

Names with(Names base, const Names& more, const Names& less = {}) {
  base.insert(more.begin(), more.end());
  for (const std::string& name : less) base.erase(name);
  return base;
}

struct WorkspaceCase {
  const char* program;
  int number;
  int code;
  const char* name;
  const char* captionKey;
  Names shown;
};

TEST(Workspace, ShowsWhatTheSpecialityHas) {
  const Names surgery = with(searches, {"mnuraporara", "mnuameliyatara", "mnuameliyat"});
  const Names medicine = with(searches, {"mnumuayene1", "mnuraporara"});
  const Names report = {"mnuraporara", "panoresim"};
  const WorkspaceCase cases[] = {
      {"IntMed", 1, 215, "Internal Medicine", "ichastaliklari", medicine},
      {"SURGERY", 2, 225, "Surgery", "Cerrahi", with(surgery, {"MnuMuayene2"})},
      {"Pediatrics", 3, 235, "Pediatrics", "Çocuk",
       with(searches,
            {"MnuMuayene3", "mnuraporara", "mnuasi", "mnumotmengelişme", "mnufizikgelişme"})},
      {"gynecology", 4, 245, "Gynecology", "Kadın Doğum",
       with(surgery, {"MnuMuayene4", "mnugebetakip", "mnubekdoğum"})},
      {"Ophthalmology", 5, 255, "Ophthalmology", "goz",
       with(surgery, {"MnuMuayene5", "mnulens", "mnulensstok", "mnulensara"})},
      {"ENT", 6, 265, "ENT", "KBB", with(surgery, {"MnuMuayene6"})},
      {"Orthopedics", 7, 275, "Orthopedics", "Ortopedi", with(surgery, {"MnuMuayene7"})},
      {"Polyclinic", 8, 285, "Polyclinic", "Poliklinik",
       with(medicine, {"Picbranslar", "mnumuayenetarihleri"}, {"panoresim"})},
      {"Pathology", 9, 295, "Pathology", "Patoloji", with(report, {"Mnumuayene9"})},
      {"Cardiology", 10, 305, "Cardiology", "Kardiyoloji",
       with(searches, {"MnuMuayene10", "mnuraporara", "mnueko", "mnuefor", "mnuanjiyo", "mnuekoara",
                       "mnueforara", "mnuanjiyoara"})},
      {"Neurology", 11, 315, "Neurology", "noroloji", medicine},
      {"Urology", 12, 325, "Urology", "uroloji", with(surgery, {"MnuMuayene2"})},
      {"Smoke.exe", 13, 345, "Smoke", "sigarapoliklinigi", with(searches, {}, {"cizgi7"})},
      {"Radiology", 14, 355, "Radiology", "radyoloji", with(report, {"mnumuayene14"})},
      {"General Medicine", 20, 335, "GenMed", "hastatakipprogrami", medicine},
      {"/usr/bin/practice", 20, 335, "GenMed", "hastatakipprogrami", medicine},
  };
  const support::TemporaryFolder folder;
  for (const WorkspaceCase& c : cases) {
    SCOPED_TRACE(c.program);
    support::Desk desk(folder.path(), c.program);
    registry::FrmMain main(desk.station);
    shell::bransmenusu(desk.station, main);
    EXPECT_EQ(desk.station.BransNo, c.number);
    EXPECT_EQ(desk.station.BransKodu, c.code);
    EXPECT_EQ(desk.station.BransAdi, c.name);
    EXPECT_EQ(main.caption(), metinbul(desk.station, c.captionKey));
    EXPECT_EQ(shownEntries(main), c.shown);
    EXPECT_EQ(main.tbToolBar.button("muayene")->visible, c.number != 13);
  }
}

TEST(Polyclinic, SwitchesTheSpecialityButNotItsCode) {
  const support::TemporaryFolder folder;
  support::Desk desk(folder.path(), "Polyclinic");
  registry::FrmMain main(desk.station);
  shell::bransmenusu(desk.station, main);
  main.BGöz.setValue(true);
  EXPECT_EQ(desk.station.BransNo, 5);
  EXPECT_EQ(desk.station.BransAdi, "Ophthalmology");
  EXPECT_EQ(desk.station.BransKodu, 285);
  EXPECT_TRUE(main.MnuMuayene5.visible());
  EXPECT_TRUE(main.mnuameliyatara.visible());
  EXPECT_FALSE(main.mnulensara.visible());
  // The button is the only way to the surgeon's examination after a switch.
  main.BCerrahi.setValue(true);
  EXPECT_FALSE(main.MnuMuayene2.visible());
  EXPECT_TRUE(main.mnuameliyat.visible());
  EXPECT_FALSE(main.BGöz.value());
}

TEST(VisitButton, TellsByItsImage) {
  EXPECT_EQ(shell::visitImage(1, shell::Visits::None), "muayene");
  EXPECT_EQ(shell::visitImage(20, shell::Visits::Some), "muayenev");
  EXPECT_EQ(shell::visitImage(9, shell::Visits::Some), "raporv");
  EXPECT_EQ(shell::visitImage(14, shell::Visits::None), "rapor");
}

}  // namespace
