#include "registry/card_fields.h"

#include <array>

#include "registry/frm_main.h"

namespace registry {

namespace {

using shell::controlOf;
using shell::Stored;

constexpr std::array<shell::FieldRow, 30> fieldRows{{
    {.control = controlOf<&FrmMain::Txtİsim>, .column = "Name", .captionKey = "isim"},
    {.control = controlOf<&FrmMain::TxtDTarihi>,
     .column = "Date of Birth",
     .captionKey = "dogumtarihi",
     .stored = Stored::Screen},
    {.control = controlOf<&FrmMain::ComCinsiyet>,
     .column = "Sex",
     .captionKey = "Cinsiyet",
     .stored = Stored::ListIndex},
    {.control = controlOf<&FrmMain::ComKanGrubu>,
     .column = "Blood Group",
     .captionKey = "kangrubu",
     .cut = 10},
    {.control = controlOf<&FrmMain::comdogumyeri>,
     .column = "Place of Birth",
     .captionKey = "dogumyeri",
     .cut = 40},
    {.control = controlOf<&FrmMain::ComMeslek>,
     .column = "Profession",
     .captionKey = "Meslek",
     .cut = 30},
    {.control = controlOf<&FrmMain::TxtAnaAdı>, .column = "Mothers Name", .captionKey = "anneadi"},
    {.control = controlOf<&FrmMain::TxtBabaAdı>, .column = "Fathers Name", .captionKey = "babaadi"},
    {.control = controlOf<&FrmMain::TxtKimlikNo>,
     .column = "ID Number",
     .captionKey = "kimliknumarasi"},
    {.control = controlOf<&FrmMain::TxtAdres1>, .column = "Address1", .captionKey = "Adres"},
    {.control = controlOf<&FrmMain::TxtAdres2>, .column = "Address2", .captionKey = "Adres"},
    {.control = controlOf<&FrmMain::TxtAdres3>, .column = "Address3", .captionKey = "Adres"},
    {.control = controlOf<&FrmMain::TxtAdres4>, .column = "Address4", .captionKey = "Adres"},
    {.control = controlOf<&FrmMain::TxtMail>, .column = "email", .captionKey = "e-mail"},
    {.control = controlOf<&FrmMain::TxtTelefon1>, .column = "Telephone1", .captionKey = "Telefon"},
    {.control = controlOf<&FrmMain::TxtTelefon2>, .column = "Telephone2", .captionKey = "Telefon"},
    {.control = controlOf<&FrmMain::TxtMobil>, .column = "Mobil", .captionKey = "Mobil"},
    {.control = controlOf<&FrmMain::TxtFax>, .column = "Fax", .captionKey = "Fax"},
    {.control = controlOf<&FrmMain::ComKurum>,
     .column = "Company",
     .captionKey = "Kurum",
     .cut = 75},
    {.control = controlOf<&FrmMain::TxtÇalışan>, .column = "Personnel", .captionKey = "calisan"},
    {.control = controlOf<&FrmMain::TxtSicil>, .column = "Personnel Number", .captionKey = "Sicil"},
    {.control = controlOf<&FrmMain::comgorev>, .column = "Job", .captionKey = "gorev", .cut = 30},
    {.control = controlOf<&FrmMain::comyakinlik>,
     .column = "Relationship",
     .captionKey = "yakinlik",
     .cut = 20},
    {.control = controlOf<&FrmMain::txtnot>, .column = "Notes", .captionKey = "Notlar"},
    {.control = controlOf<&FrmMain::ComHitap>,
     .column = "Adressing",
     .captionKey = "Hitap",
     .cut = 20},
    {.control = controlOf<&FrmMain::ComRefere>,
     .column = "Referance",
     .captionKey = "refereeden",
     .cut = 40},
    {.control = controlOf<&FrmMain::txtfoto>, .column = "Photo", .captionKey = "fotograf"},
    {.control = controlOf<&FrmMain::txtkey>, .column = "Key", .captionKey = "isimgizle"},
    {.control = controlOf<&FrmMain::txtdosyano>, .column = "Option2", .captionKey = "dosyano"},
    {.control = controlOf<&FrmMain::txtfinno>, .column = "Option3", .captionKey = "Numara"},
}};

constexpr std::array<ListField, 7> listRows{{
    {controlOf<&FrmMain::comdogumyeri>, "Place Of Birth", 40},
    {controlOf<&FrmMain::ComMeslek>, "Profession", 30},
    {controlOf<&FrmMain::ComHitap>, "Adressing", 20},
    {controlOf<&FrmMain::ComKurum>, "Company", 75},
    {controlOf<&FrmMain::comgorev>, "Job", 30},
    {controlOf<&FrmMain::ComRefere>, "Referance", 40},
    {controlOf<&FrmMain::comyakinlik>, "Relationship", 30},
}};

}  // namespace

std::span<const shell::FieldRow> cardFields() {
  return fieldRows;
}
std::span<const ListField> listFields() {
  return listRows;
}

}  // namespace registry
