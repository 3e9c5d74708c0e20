// Another name and a delete on the card, with all that hangs on the name.
#include "tests/registry/card_fixture.h"

namespace {

using support::Card;
using support::CardDesk;

struct NamedRows : Card {
  NamedRows() {
    desk.newPatient("Ali Can", "1980");
    for (const char* statement :
         {"INSERT INTO [Physical Exam]([Name], [Count]) VALUES('Ali Can', 1)",
          "INSERT INTO [Visit]([spname], [Visit Numbers]) VALUES('GenMed\\Ali Can', '1;')",
          "INSERT INTO [tblRem]([name]) VALUES('Ali Can')"}) {
      EXPECT_TRUE(clinical().Execute(statement));
    }
    desk.load("Ali Can");
  }

  dao::Database& clinical() { return desk.station.stores.clinical.database; }
  // Who has the examination, the ledger row and the reminder.
  std::string holders() {
    std::string names;
    for (const char* select : {"SELECT [Name] FROM [Physical Exam]", "SELECT [spname] FROM [Visit]",
                               "SELECT [name] FROM [tblRem]"}) {
      auto rows = clinical().OpenRecordset(select);
      if (rows) names += (rows->empty() ? "-" : rows->Fields(0).text()) + "|";
    }
    return names;
  }
  void typeOver(const std::string& name) {
    desk.typeName(name);
    main.txtnot.setText(main.txtnot.text() + "x");
  }
  void answer(host::Answer answer) {
    desk.host.expect("olarak değiştirilsin mi?", answer);
    main.mnukaydet.press();
  }
};

TEST_F(NamedRows, FollowTheCardToItsNewName) {
  typeOver("Ayşe Su");
  answer(host::Answer::Yes);
  EXPECT_EQ(holders(), "Ayşe Su|GenMed\\Ayşe Su|Ayşe Su|");
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ayşe Su"});
  EXPECT_EQ(main.tbToolBar.button("muayene")->image, "muayenev");
}

TEST_F(NamedRows, FollowAnotherCaseOfTheLetters) {
  main.Txtİsim.setText("ALi CAN");
  main.txtnot.setText("x");
  answer(host::Answer::Yes);
  EXPECT_EQ(holders(), "ALi CAN|GenMed\\ALi CAN|ALi CAN|");
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"ALi CAN"});
}

TEST_F(NamedRows, KeepTheirNameWithoutConsentWhileTheCardIsSaved) {
  typeOver("Ayşe Su");
  answer(host::Answer::No);
  EXPECT_EQ(holders(), "Ali Can|GenMed\\Ali Can|Ali Can|");
  EXPECT_EQ(desk.column("Ali Can", "Notes"), "x");
}

TEST_F(NamedRows, KeepTheirNameWhenTheCardIsRefused) {
  typeOver("Ayşe Su");
  dao::Database& personal = desk.station.stores.personal.database;
  ASSERT_TRUE(personal.Execute("INSERT INTO IDCard(Name, Notes) VALUES('Zeki', 'x')"));
  ASSERT_TRUE(personal.Execute("CREATE UNIQUE INDEX once ON IDCard(Notes)"));
  answer(host::Answer::Yes);
  EXPECT_NE(main.sbDurum.panels()[2].find("kaydedilemedi"), std::string::npos);
  EXPECT_EQ(holders(), "Ali Can|GenMed\\Ali Can|Ali Can|");
  EXPECT_EQ(main.TxtEskiİsim.text(), "Ali Can");
  EXPECT_TRUE(main.mnukaydet.enabled());
  ASSERT_TRUE(personal.Execute("DROP INDEX once"));
  answer(host::Answer::Yes);
  EXPECT_EQ(holders(), "Ayşe Su|GenMed\\Ayşe Su|Ayşe Su|");
}

TEST_F(NamedRows, GoWithTheCardAndLeaveTheReminder) {
  desk.host.expect("Ali Can", host::Answer::Yes);
  main.mnusil.press();
  EXPECT_EQ(holders(), "-|-|Ali Can|");
  EXPECT_TRUE(desk.stored().empty());
}

TEST_F(NamedRows, StayWithACardThatCannotBeDeleted) {
  clinical().Close();
  desk.host.expect("Ali Can", host::Answer::Yes);
  main.mnusil.press();
  EXPECT_EQ(desk.host.errors.size(), 1U);
  EXPECT_EQ(desk.stored(), std::vector<std::string>{"Ali Can"});
  EXPECT_EQ(main.Txtİsim.text(), "Ali Can");
}

// Two desks have the patient on the card, one of them without a place in the register; one renames,
// the other does not know.
TEST_F(NamedRows, OfAPatientRenamedElsewhereAreNotDeletedUnderTheOldName) {
  CardDesk other(folder.path());
  other.station.sicil.close();
  other.load("Ali Can");
  typeOver("Ayşe Su");
  answer(host::Answer::Yes);
  other.main.mnusil.press();  // gone: nothing is asked
  other.main.txtnot.setText("y");
  other.main.mnukaydet.press();  // stored anew
  EXPECT_EQ(holders(), "Ayşe Su|GenMed\\Ayşe Su|Ayşe Su|");
  EXPECT_EQ(desk.stored(), (std::vector<std::string>{"Ali Can", "Ayşe Su"}));
}

}  // namespace
