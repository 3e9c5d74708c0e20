// Which cards the filters let through.
#include "tests/search/find_fixture.h"

namespace {

using Names = std::vector<std::string>;

struct Find : support::Finder {};

TEST_F(Find, EveryFilterLooksIntoItsColumns) {
  struct Case {
    const char* filter;
    std::string typed;
    const char* column;
    std::string stored;
    std::string other;  // does not fit
  };
  const Case cases[]{
      {"ComCinsiyet", "k", "Sex", "0", "1"},
      {"ComCinsiyet", "Erkek", "Sex", "1", "2"},
      {"ComKanGrubu", "a rh(+)", "Blood Group", "A Rh(+)", "AB Rh(+)"},
      {"comdogumyeri", "istan", "Place of Birth", "İSTANBUL", "Iğdır"},
      {"ComMeslek", "işç", "Profession", "Taş İşçisi", "Isçi"},
      {"TxtAnneAdı", "ık", "Mothers Name", "IKBAL", "İkbal"},
      {"TxtBabaAdı", "ş", "Fathers Name", "AYŞE", "Ayse"},
      {"txtidno", "a1", "ID Number", "TR-A12", "12"},
      {"ComHitap", "bey", "Adressing", "Beyefendi", "Hanım"},
      {"txtadres", "çankaya", "Address1", "ÇANKAYA", "Cankaya"},
      {"txtadres", "ankara", "Address4", "Ankara", "Bolu"},
      {"TxtMail", "@posta", "email", "ali@POSTA.example", "ali@other.example"},
      {"txttelefon", "417", "Telephone1", "0312 417 00 00", "0312 400 00 00"},
      {"txttelefon", "417", "Telephone2", "417", "471"},
      {"TxtMobil", "532", "Mobil", "0532", "0523"},
      {"TxtFax", "99", "Fax", "1 99 1", "9 9"},
      {"ComKurum", "nakl", "Company", "Kaya Nakliyat", "Kaya"},
      {"TxtÇalışan", "veli", "Personnel", "Ali Veli", "Ali"},
      {"TxtSicil", "B7", "Personnel Number", "AB77", "b7"},
      {"comgorev", "MÜD", "Job", "müdür", "memur"},
      {"comyakinlik", "eş", "Relationship", "Eşi", "Oğlu"},
      {"txtnot", "peni", "Notes", "Penisilin alerjisi", "alerji yok"},
      {"ComRefere", "dr", "Referance", "Dr. Işık", "Komşu"},
      {"TxtGün", "05", "Date of Birth", "1991-03-05", "1991-03-15"},
      {"TxtAy", "3", "Date of Birth", "1991-03-05", "1991-05-03"},
      {"TxtYıl", "1991", "Date of Birth", "1991-03-05", "1919-03-05"},
      {"TxtYıl", "1991", "Year of Birth", "1991", "1990"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.filter) + " " + c.column);
    auto undone = desk.station.stores.personal.database.beginTransaction();
    ASSERT_TRUE(undone);
    card("Uyan", {{c.column, c.stored}});
    card("Uymayan", {{c.column, c.other}});
    card("Boş");
    EXPECT_EQ(find({{c.filter, c.typed}}), Names{"Uyan"});
  }
}

TEST_F(Find, TheNameIsPartedAtItsFirstBlank) {
  for (const char* name : {"Ali", "Ali Can Demir", "Can Ali", "Demirali Ak", "Şıh İsa"}) card(name);
  const struct {
    const char* given;
    const char* surname;
    Names found;
  } cases[]{{"ali", "", {"Ali", "Ali Can Demir", "Demirali Ak"}},
            {"", "ali", {"Can Ali"}},
            {"", "can d", {"Ali Can Demir"}},
            {"ali can", "", {}},
            {"demir", "a", {"Demirali Ak"}},
            {"", "isa", {"Şıh İsa"}},
            {"ŞIH", "", {"Şıh İsa"}}};
  for (const auto& c : cases)
    EXPECT_EQ(find({{"Txtİsim", c.given}, {"TxtSoyisim", c.surname}}), c.found)
        << c.given << "|" << c.surname;
}

TEST_F(Find, TheLanguageDecidesWhatTheSameLetterIs) {
  for (const char* name : {"İLKER", "ILGAZ", "ışık", "inci"}) card(name);
  EXPECT_EQ(find({{"Txtİsim", "i"}}), (Names{"İLKER", "inci"}));
  EXPECT_EQ(find({{"Txtİsim", "ı"}}), (Names{"ILGAZ", "ışık"}));
  desk.station.ayarYaz("Language", "eng");
  EXPECT_EQ(find({{"Txtİsim", "i"}}), (Names{"ILGAZ", "inci", "ışık"}));
  EXPECT_EQ(find({{"Txtİsim", "İL"}}), Names{"İLKER"});
}

// Of a card with both, the date tells the year.
TEST_F(Find, AYearAloneHasNeitherDayNorMonth) {
  card("Tarih", {{"Date of Birth", "1980-01-31"}});
  card("Yıl", {{"Year of Birth", "1980"}});
  card("İkisi", {{"Date of Birth", "1979-01-31"}, {"Year of Birth", "1980"}});
  EXPECT_EQ(find({{"TxtYıl", "1980"}}), (Names{"Tarih", "Yıl"}));
  EXPECT_EQ(find({{"TxtYıl", "1980"}, {"TxtAy", "1"}}), Names{"Tarih"});
  EXPECT_EQ(find({{"TxtGün", "31"}}), (Names{"İkisi", "Tarih"})) << "checked against January";
}

TEST_F(Find, AllFiltersMustHold) {
  card("A", {{"Job", "müdür"}, {"Company", "Kaya"}, {"Notes", "x"}});
  card("B", {{"Job", "müdür"}, {"Company", "Demir"}, {"Notes", "x"}});
  EXPECT_EQ(find({{"comgorev", "müd"}, {"txtnot", "X"}}), (Names{"A", "B"}));
  EXPECT_EQ(find({{"comgorev", "müd"}, {"txtnot", "X"}, {"ComKurum", "kaya"}}), Names{"A"});
}

TEST_F(Find, HostileTextsAreOnlyTexts) {
  card("A", {{"Notes", "100% 'iyi' \"çok\" * ? [a-z]; --"}});
  card("B", {{"Notes", "x"}});
  for (const char* typed : {"%", "'", "\"", "*", "?", "[a", "; --", "' IYI'", "'İYİ'"}) {
    const Names wanted = std::string_view(typed) == "' IYI'" ? Names() : Names{"A"};
    EXPECT_EQ(find({{"txtnot", typed}}), wanted) << typed;
  }
  EXPECT_TRUE(find({{"txtnot", std::string(10'000, 'x')}}).empty());
  EXPECT_TRUE(find({{"txtnot", "\xff\xc3"}}).empty());
  EXPECT_TRUE(find({{"TxtGün", "1"}, {"TxtYıl", "9999"}}).empty());
}

TEST_F(Find, HiddenPatientsAreFoundOnlyWhileNamesAreOpen) {
  card("Açık");
  card("Gizli", {{"Key", "¬"}});
  card("Başka", {{"Key", "x"}});
  EXPECT_EQ(find({{"Txtİsim", "ı"}}), Names{"Açık"});
  EXPECT_EQ(find({{"Txtİsim", "i"}}), Names());
  desk.main.tbToolBar.setButtonVisible("keyclose", false);
  EXPECT_EQ(find({{"Txtİsim", "i"}}), Names{"Gizli"});
  EXPECT_EQ(find({{"Txtİsim", "a"}}), (Names{"Açık", "Başka"}));
}

TEST_F(Find, ARowShowsTheCard) {
  card("Ayşe Yıldız**", {{"Date of Birth", "1991-03-12"},
                         {"Year of Birth", "1990"},
                         {"Sex", "0"},
                         {"Telephone2", "417"},
                         {"Notes", "Uzun bir not"}});
  search::FrmFind finder(desk.station);
  finder.Load();
  finder.TümListe();
  EXPECT_EQ(finder.BulList.columns().front(), "İsim");
  EXPECT_EQ(finder.BulList.columns()[5], "E-posta");
  const char* cells[]{"Ayşe Yıldız", "12.03.1991", "K", "", "", "", "417", "Uzun bir not"};
  for (std::size_t column = 0; column < std::size(cells); ++column)
    EXPECT_EQ(finder.BulList.cell(0, column), cells[column]) << column;
  EXPECT_EQ(finder.BulList.key(0), "Ayşe Yıldız**");
}

// Many matches are read with their pages, few are sought one by one; both show the same.
TEST_F(Find, RowsAreTheSameHoweverTheyAreRead) {
  manyCards(1200);
  card("Tek Başına", {{"Job", "müdür"}, {"Sex", "1"}});
  card("Tek Kalan", {{"Job", "müdür"}, {"Sex", "1"}, {"email", "t@k"}});
  EXPECT_EQ(find({{"comgorev", "müd"}}), (Names{"Tek Başına", "Tek Kalan"}));
  EXPECT_EQ(find({{"Txtİsim", "hasta"}}).size(), 1200u);
  EXPECT_EQ(find({{"TxtSoyisim", "1"}}).back(), "Hasta 1199");
}

TEST_F(Find, TheDateIsCheckedOnLeavingItsFields) {
  search::FrmFind finder(desk.station);
  finder.Load();
  const auto leave = [&](const char* day, const char* month, const char* year) {
    finder.TxtGün.setText(day);
    finder.TxtAy.setText(month);
    finder.TxtYıl.setText(year);
    finder.focusMoved(&finder.TxtAy);
    finder.focusMoved(&finder.txtnot);
    return finder.activeControl() == &finder.txtnot;
  };
  const char* const valid[][3]{{"", "", ""},    {"31", "", ""},       {"", "2", ""},
                               {"29", "2", ""}, {"30", "11", "1919"}, {"", "", "1850"}};
  for (const auto& date : valid) EXPECT_TRUE(leave(date[0], date[1], date[2])) << date[0];
  const char* const invalid[][3]{
      {"30", "2", ""}, {"29", "2", "2001"}, {"", "13", ""},  {"5", "13", ""},
      {"x", "", ""},   {"0", "", ""},       {"", "", "1.5"}, {"99999999999999999999", "", ""}};
  for (const auto& date : invalid) {
    desk.host.expect("Hatalı tarih", host::Answer::Ok);
    EXPECT_FALSE(leave(date[0], date[1], date[2])) << date[0] << "/" << date[1];
    EXPECT_EQ(finder.activeControl(), &finder.TxtAy);
  }
  desk.host.expect("Hatalı tarih", host::Answer::Ok);
  finder.butbul.press();
  EXPECT_FALSE(finder.Frame1.visible()) << "nothing is searched with a wrong date";
}

}  // namespace
