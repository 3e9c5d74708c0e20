#include "search/find_filters.h"

#include "search/frm_find.h"
#include "shell/field_row.h"

namespace search {

namespace {

using shell::controlOf;

constexpr std::array<FilterRow, 25> rows{{
    {controlOf<&FrmFind::Txtİsim>, "isim", Test::GivenName, {"Name"}},
    {controlOf<&FrmFind::TxtSoyisim>, "Soyisim", Test::Surname, {"Name"}},
    {controlOf<&FrmFind::ComCinsiyet>, "Cinsiyet", Test::ListIndex, {"Sex"}},
    {controlOf<&FrmFind::ComKanGrubu>, "kangrubu", Test::Equal, {"Blood Group"}},
    {controlOf<&FrmFind::comdogumyeri>, "dogumyeri", Test::ContainsFolded, {"Place of Birth"}},
    {controlOf<&FrmFind::ComMeslek>, "Meslek", Test::ContainsFolded, {"Profession"}},
    {controlOf<&FrmFind::TxtAnneAdı>, "anneadi", Test::ContainsFolded, {"Mothers Name"}},
    {controlOf<&FrmFind::TxtBabaAdı>, "babaadi", Test::ContainsFolded, {"Fathers Name"}},
    {controlOf<&FrmFind::txtidno>, "kimliknumarasi", Test::ContainsFolded, {"ID Number"}},
    {controlOf<&FrmFind::ComHitap>, "Hitap", Test::ContainsFolded, {"Adressing"}},
    {controlOf<&FrmFind::txtadres>,
     "Adres",
     Test::ContainsFolded,
     {"Address1", "Address2", "Address3", "Address4"}},
    {controlOf<&FrmFind::TxtMail>, "e-mail", Test::ContainsFolded, {"email"}},
    {controlOf<&FrmFind::txttelefon>, "Telefon", Test::Contains, {"Telephone1", "Telephone2"}},
    {controlOf<&FrmFind::TxtMobil>, "Mobil", Test::Contains, {"Mobil"}},
    {controlOf<&FrmFind::TxtFax>, "Fax", Test::Contains, {"Fax"}},
    {controlOf<&FrmFind::ComKurum>, "Kurum", Test::ContainsFolded, {"Company"}},
    {controlOf<&FrmFind::TxtÇalışan>, "calisan", Test::ContainsFolded, {"Personnel"}},
    {controlOf<&FrmFind::TxtSicil>, "Sicil", Test::Contains, {"Personnel Number"}},
    {controlOf<&FrmFind::comgorev>, "gorev", Test::ContainsFolded, {"Job"}},
    {controlOf<&FrmFind::comyakinlik>, "yakinlik", Test::ContainsFolded, {"Relationship"}},
    {controlOf<&FrmFind::txtnot>, "Notlar", Test::ContainsFolded, {"Notes"}},
    {controlOf<&FrmFind::ComRefere>, "refereeden", Test::ContainsFolded, {"Referance"}},
    {controlOf<&FrmFind::TxtGün>, "gun", Test::Day, {"Date of Birth"}},
    {controlOf<&FrmFind::TxtAy>, "Ay", Test::Month, {"Date of Birth"}},
    {controlOf<&FrmFind::TxtYıl>, "yil", Test::Year, {"Date of Birth", "Year of Birth"}},
}};

constexpr std::array<FilterList, 7> lists{{
    {controlOf<&FrmFind::comdogumyeri>, "Place Of Birth"},
    {controlOf<&FrmFind::ComMeslek>, "Profession"},
    {controlOf<&FrmFind::ComHitap>, "Adressing"},
    {controlOf<&FrmFind::ComKurum>, "Company"},
    {controlOf<&FrmFind::comgorev>, "Job"},
    {controlOf<&FrmFind::ComRefere>, "Referance"},
    {controlOf<&FrmFind::comyakinlik>, "Relationship"},
}};

}  // namespace

std::span<const FilterRow> filterRows() {
  return rows;
}
std::span<const FilterList> filterLists() {
  return lists;
}

}  // namespace search
