#include "search/find_filters.h"

#include "search/frm_find.h"

namespace search {

namespace {

template <auto Member>
forms::TextControl& filter(forms::Form& form) {
  return static_cast<FrmFind&>(form).*Member;
}

constexpr std::array<FilterRow, 25> rows{{
    {filter<&FrmFind::Txtİsim>, "isim", Test::GivenName, {"Name"}},
    {filter<&FrmFind::TxtSoyisim>, "Soyisim", Test::Surname, {"Name"}},
    {filter<&FrmFind::ComCinsiyet>, "Cinsiyet", Test::ListIndex, {"Sex"}},
    {filter<&FrmFind::ComKanGrubu>, "kangrubu", Test::Equal, {"Blood Group"}},
    {filter<&FrmFind::comdogumyeri>, "dogumyeri", Test::ContainsFolded, {"Place of Birth"}},
    {filter<&FrmFind::ComMeslek>, "Meslek", Test::ContainsFolded, {"Profession"}},
    {filter<&FrmFind::TxtAnneAdı>, "anneadi", Test::ContainsFolded, {"Mothers Name"}},
    {filter<&FrmFind::TxtBabaAdı>, "babaadi", Test::ContainsFolded, {"Fathers Name"}},
    {filter<&FrmFind::txtidno>, "kimliknumarasi", Test::ContainsFolded, {"ID Number"}},
    {filter<&FrmFind::ComHitap>, "Hitap", Test::ContainsFolded, {"Adressing"}},
    {filter<&FrmFind::txtadres>,
     "Adres",
     Test::ContainsFolded,
     {"Address1", "Address2", "Address3", "Address4"}},
    {filter<&FrmFind::TxtMail>, "e-mail", Test::ContainsFolded, {"email"}},
    {filter<&FrmFind::txttelefon>, "Telefon", Test::Contains, {"Telephone1", "Telephone2"}},
    {filter<&FrmFind::TxtMobil>, "Mobil", Test::Contains, {"Mobil"}},
    {filter<&FrmFind::TxtFax>, "Fax", Test::Contains, {"Fax"}},
    {filter<&FrmFind::ComKurum>, "Kurum", Test::ContainsFolded, {"Company"}},
    {filter<&FrmFind::TxtÇalışan>, "calisan", Test::ContainsFolded, {"Personnel"}},
    {filter<&FrmFind::TxtSicil>, "Sicil", Test::Contains, {"Personnel Number"}},
    {filter<&FrmFind::comgorev>, "gorev", Test::ContainsFolded, {"Job"}},
    {filter<&FrmFind::comyakinlik>, "yakinlik", Test::ContainsFolded, {"Relationship"}},
    {filter<&FrmFind::txtnot>, "Notlar", Test::ContainsFolded, {"Notes"}},
    {filter<&FrmFind::ComRefere>, "refereeden", Test::ContainsFolded, {"Referance"}},
    {filter<&FrmFind::TxtGün>, "gun", Test::Day, {"Date of Birth"}},
    {filter<&FrmFind::TxtAy>, "Ay", Test::Month, {"Date of Birth"}},
    {filter<&FrmFind::TxtYıl>, "yil", Test::Year, {"Date of Birth", "Year of Birth"}},
}};

constexpr std::array<FilterList, 7> lists{{
    {filter<&FrmFind::comdogumyeri>, "Place Of Birth"},
    {filter<&FrmFind::ComMeslek>, "Profession"},
    {filter<&FrmFind::ComHitap>, "Adressing"},
    {filter<&FrmFind::ComKurum>, "Company"},
    {filter<&FrmFind::comgorev>, "Job"},
    {filter<&FrmFind::ComRefere>, "Referance"},
    {filter<&FrmFind::comyakinlik>, "Relationship"},
}};

}  // namespace

std::span<const FilterRow> filterRows() {
  return rows;
}
std::span<const FilterList> filterLists() {
  return lists;
}

}  // namespace search
