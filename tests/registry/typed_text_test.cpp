// Whatever replaces the card asks about what was typed on it; an answer that is neither Yes nor No
// leaves everything as it is; the status line says what a save still needs.
#include <gtest/gtest.h>

#include "tests/registry/card_fixture.h"

namespace {

using host::Answer;
using support::Card;

constexpr auto saveQuestion = "Değişiklikler kaydedilsin mi?";
constexpr auto loseQuestion = "Sürdürülsün mü?";
constexpr auto namesakeQuestion = "Zeki Su önceden girildi";

struct TypedText : Card {
  TypedText() {
    desk.newPatient("Zeki Su", "1970");
    desk.newPatient("Ali Can", "1980");
    main.width = 900;
  }
  struct Way {
    const char* name;
    std::function<void()> go;
  };
  // By which another patient, or nobody, comes onto the card.
  std::vector<Way> ways() {
    return {{"new", [this] { main.mnuyeni.press(); }},
            {"choice", [this] { main.hastaSec("Zeki Su"); }},
            {"close", [this] { main.mnucik.press(); }},
            {"repair", [this] { main.mnutamir.press(); }},
            {"care", [this] { main.mnudosyabakimi.press(); }},
            {"restore", [this] { main.mnugeriyukle.press(); }}};
  }
  std::vector<Way> steps() {
    return {{"back", [this] { main.mnugeri.press(); }},
            {"forward", [this] { main.mnuileri.press(); }}};
  }
  [[nodiscard]] std::string status() const { return main.sbDurum.panels()[2]; }
  [[nodiscard]] bool closed() const { return desk.station.ayar("Main Width") == "900"; }
};

TEST_F(TypedText, ThatCannotBeSavedIsNotLostUnasked) {
  std::vector<Way> all = ways();
  for (const Way& step : steps()) all.push_back(step);
  for (const bool stored : {false, true}) {
    for (const Way& way : all) {
      SCOPED_TRACE(way.name);
      stored ? desk.load("Ali Can") : main.mnuyeni.Click();
      main.TxtDTarihi.setText("");
      main.TxtAdres1.setText("Çankaya");
      desk.host.expect(loseQuestion, Answer::No);
      way.go();
      EXPECT_EQ(desk.host.asked.back().stake, host::Stake::Existing);
      EXPECT_NE(desk.host.asked.back().text.find("Doğum Tarihi"), std::string::npos);
      EXPECT_EQ(main.TxtAdres1.text(), "Çankaya");
      EXPECT_EQ(main.Txtİsim.text(), stored ? "Ali Can" : "");
      EXPECT_FALSE(closed());
      desk.host.expect(loseQuestion, Answer::Yes);
      main.mnuyeni.press();
      EXPECT_EQ(main.TxtAdres1.text(), "");
    }
  }
}

TEST_F(TypedText, ANamesakeThatIsLoadedInsteadAsksToo) {
  main.mnuyeni.Click();
  main.TxtAdres1.setText("Çankaya");
  desk.host.expect(namesakeQuestion, Answer::No);
  desk.host.expect(loseQuestion, Answer::No);
  desk.typeName("Zeki Su");
  EXPECT_EQ(main.TxtAdres1.text(), "Çankaya");
  EXPECT_EQ(main.TxtEskiİsim.text(), "");
}

// A name is typed to find somebody until its field was left.
TEST_F(TypedText, ToFindSomebodyIsNoCard) {
  std::vector<Way> all = steps();
  all.push_back(ways()[0]);
  all.push_back(ways()[1]);
  for (const Way& way : all) {
    SCOPED_TRACE(way.name);
    main.mnuyeni.Click();
    main.Txtİsim.setText("ze");
    way.go();
    EXPECT_NE(main.Txtİsim.text(), "ze");
  }
  main.mnuyeni.Click();
  desk.typeName("Ayşe Yıldız");
  desk.host.expect(loseQuestion, Answer::No);
  main.mnuyeni.press();
  EXPECT_EQ(main.Txtİsim.text(), "Ayşe Yıldız");
}

TEST_F(TypedText, StaysWhenItsQuestionIsNotAnswered) {
  for (const Way& way : ways()) {
    SCOPED_TRACE(way.name);
    main.txtnot.setText("yarım");
    desk.host.expect(saveQuestion, Answer::Cancel);
    way.go();
    EXPECT_EQ(desk.host.asked.back().stake, host::Stake::Text);
    EXPECT_EQ(main.Txtİsim.text() + main.txtnot.text(), "Ali Canyarım");
    EXPECT_TRUE(main.mnukaydet.enabled());
    EXPECT_EQ(desk.column("Ali Can", "Notes"), "");
    EXPECT_FALSE(closed());
  }
}

TEST_F(TypedText, StaysWhenTheRenameIsNotAnswered) {
  constexpr auto rename = "Ali Can, Ali Canan olarak değiştirilsin mi?";
  std::vector<Way> all = steps();
  all.push_back({"save", [this] { main.mnukaydet.press(); }});
  for (const Way& way : all) {
    SCOPED_TRACE(way.name);
    main.Txtİsim.setText("Ali Canan");
    desk.host.expect(rename, Answer::Cancel);
    way.go();
    EXPECT_EQ(desk.host.asked.back().stake, host::Stake::Both);
    EXPECT_EQ(main.Txtİsim.text(), "Ali Canan");
    EXPECT_EQ(main.TxtEskiİsim.text(), "Ali Can");
    EXPECT_TRUE(main.mnukaydet.enabled());
  }
  desk.host.expect(saveQuestion, Answer::Yes);
  desk.host.expect(rename, Answer::Cancel);
  main.mnucik.press();
  EXPECT_FALSE(closed());
  EXPECT_EQ(desk.stored(), (std::vector<std::string>{"Ali Can", "Zeki Su"}));
}

TEST_F(TypedText, ANamesakeThatIsNotAnsweredLoadsNobodyAndGetsNoMark) {
  main.mnuyeni.Click();
  desk.host.expect(namesakeQuestion, Answer::Cancel);
  desk.typeName("Zeki Su");
  EXPECT_EQ(desk.host.asked.back().stake, host::Stake::Text);
  EXPECT_EQ(main.Txtİsim.text(), "Zeki Su");
  EXPECT_EQ(main.TxtEskiİsim.text() + main.TxtDTarihi.text(), "");
  EXPECT_EQ(main.activeControl(), &main.Txtİsim);
}

TEST_F(TypedText, SaysWhatItNeedsToBeSaved) {
  main.mnuyeni.Click();
  EXPECT_EQ(status(), "");
  main.mnukaydet.Refused();
  EXPECT_EQ(status(), "kaydetmek için gerekli: İsim, Doğum Tarihi");
  main.Txtİsim.setText("Ayşe");
  EXPECT_EQ(status(), "") << "a name is looked for first";
  main.focusMoved(&main.TxtDTarihi);
  EXPECT_EQ(status(), "kaydetmek için gerekli: Doğum Tarihi");
  main.TxtDTarihi.setText("1991");
  EXPECT_EQ(status(), "değişti, kaydedilmedi");
  main.Txtİsim.setText("");
  EXPECT_EQ(status(), "kaydetmek için gerekli: İsim");
  main.TxtDTarihi.setText("");
  EXPECT_EQ(status(), "");
  desk.load("Zeki Su");
  main.mnukaydet.Refused();
  EXPECT_EQ(status(), "kaydedilecek değişiklik yok");
}

}  // namespace
