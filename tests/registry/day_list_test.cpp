// The list of who was examined on a day.
#include <gtest/gtest.h>

#include "tests/registry/card_fixture.h"

namespace {

using support::Card;

using Names = std::vector<std::string>;

// Stands for the examination screen: notes which day it was asked for.
struct Examination : forms::Form {
  Examination(shell::Station& station, std::optional<text::DateTime>& day, std::string& patient)
      : Form("FrmExam") {
    day = station.SeciliTarih;
    patient = station.SeciliHasta;
  }
};

struct DayList : Card {
  DayList() {
    for (const char* name : {"Ali Can", "Ayşe Ak", "Ayşe Ak*"}) desk.newPatient(name, "1980");
    desk.screens.add("FrmExam", [this](shell::Station& station) {
      return std::make_unique<Examination>(station, day, patient);
    });
    desk.host.modal["FrmExam"] = [](forms::Form&) {};
    desk.station.ayarYaz("dexam", "1");
    main.mnuyeni.Click();
  }
  void examine(std::string_view name, int dayOfMonth, int speciality, int seconds = 0) {
    dao::Recordset& exams = desk.station.stores.clinical.PhysicalExam;
    const auto date = text::DateTime::of(2026, 11, static_cast<unsigned>(dayOfMonth), seconds);
    ASSERT_TRUE(exams.AddNew() && exams.Fields("Count").Set(++number) &&
                exams.Fields("Name").Set(name) && exams.Fields("Date").Set(date) &&
                exams.Fields("Speciality").Set(speciality) && exams.Update());
  }
  Names shown() {
    Names names;
    for (const forms::ListItem& item : main.Liste.items()) names.push_back(item.text);
    return names;
  }

  int number = 0;
  std::optional<text::DateTime> day;
  std::string patient;
};

TEST_F(DayList, HasTheRowsOfTheDateUnderTheSpecialityInForce) {
  examine("Ali Can", 22, 20, 14 * 3600);
  examine("Ayşe Ak*", 22, 20);
  examine("Ayşe Ak", 21, 20, 86399);
  examine("Ayşe Ak", 23, 20);
  examine("Ayşe Ak", 22, 2);
  examine("Ali Can", 22, 20);
  EXPECT_EQ(shown(), Names{}) << "a panel that is not shown reads nothing";
  main.Activate();
  EXPECT_EQ(shown(), (Names{"Ali Can", "Ayşe Ak", "Ali Can"}));
  EXPECT_EQ(main.Pexam.caption(), "Günlük Muayeneler (3)");
  main.focusMoved(&main.txttarih);
  main.txttarih.setText("21.11");
  main.focusMoved(&main.Txtİsim);
  EXPECT_EQ(shown(), Names{"Ayşe Ak"});
  EXPECT_EQ(main.txttarih.text(), "21.11.2026");
  main.focusMoved(&main.txttarih);
  main.txttarih.setText("dün");
  desk.host.expect("Hatalı tarih", host::Answer::Ok);
  main.focusMoved(&main.Txtİsim);
  EXPECT_EQ(main.txttarih.text(), "21.11.2026");
}

TEST_F(DayList, FollowsWhatOtherStationsExamineAndTheDay) {
  main.Activate();
  EXPECT_EQ(shown(), Names{});
  examine("Ali Can", 22, 20);
  for (int i = 0; i < 200; ++i) main.Timer1.Tick();
  EXPECT_EQ(shown(), Names{"Ali Can"});
  desk.clock.time = text::DateTime::of(2026, 11, 23);
  for (int i = 0; i < 200; ++i) main.Timer1.Tick();
  EXPECT_EQ(shown(), Names{});
  EXPECT_EQ(main.txttarih.text(), "23.11.2026");
}

TEST_F(DayList, LeavesOutHiddenPatientsWhileTheNamesAreLocked) {
  dao::Recordset& cards = desk.station.stores.personal.IDCard;
  ASSERT_TRUE(cards.Seek("=", "Ali Can") && cards.Edit() && cards.Fields("Key").Set("¬") &&
              cards.Update());
  examine("Ali Can", 22, 20);
  examine("Ayşe Ak", 22, 20);
  main.Activate();
  EXPECT_EQ(shown(), Names{"Ayşe Ak"});
}

TEST_F(DayList, OpensTheExaminationOfTheClickedPatientAndDay) {
  examine("Ali Can", 22, 20);
  examine("Ayşe Ak*", 22, 20);
  examine("Kimse Yok", 22, 20);
  main.Activate();
  desk.load("Ali Can");
  main.txtnot.setText("yarım");
  desk.host.expect("Değişiklikler kaydedilsin mi?", host::Answer::Yes);
  main.Liste.setListIndex(1);
  EXPECT_EQ(desk.column("Ali Can", "Notes"), "yarım");
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Ak*");
  EXPECT_EQ(patient, "Ayşe Ak*");
  EXPECT_EQ(day, text::DateTime::of(2026, 11, 22));
  EXPECT_FALSE(desk.station.SeciliTarih.has_value());
  main.Liste.setListIndex(2);  // an examination whose patient has no card
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Ak*");
  EXPECT_EQ(desk.host.shown, Names{"FrmExam"});
}

}  // namespace
