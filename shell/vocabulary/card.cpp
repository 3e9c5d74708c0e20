#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    both("isim", "Name", "İsim"),
    both("Soyisim", "Surname", "Soyisim"),
    both("dogumtarihi", "Date of Birth", "Doğum Tarihi"),
    both("yasi", "Age", "Yaşı"),
    both("yas", "Year", "Yaş"),
    both("yil", "Year", "Yıl"),
    both("Ay", "Mounth", "Ay"),
    both("gun", "Day", "Gün"),
    both("Hafta", "Week", "Hafta"),
    both("Saat", "Time", "Saat"),
    both("Cinsiyet", "Sex", "Cinsiyet"),
    both("kadin", "F", "K"),
    both("Erkek", "M", "E"),
    both("kangrubu", "Blood Group", "Kan Grubu"),
    both("dogumyeri", "Place of Birth", "Doğum Yeri"),
    both("Meslek", "Profession", "Meslek"),
    both("anneadi", "Mother's Name", "Anne Adı"),
    both("babaadi", "Father's Name", "Baba Adı"),
    both("kimliknumarasi", "ID Number", "Kimlik Numarası"),
    both("fotograf", "Photograph", "Fotoğraf"),
    both("Hitap", "Form of Address", "Hitap"),
    both("Adres", "Address", "Adres"),
    both("Adresler", "Addresses", "Adresler"),
    both("e-mail", "E-mail", "E-posta"),
    both("Telefon", "Telephone", "Telefon"),
    both("Mobil", "Mobile", "Mobil"),
    untranslated("Fax", "Fax"),
    both("Kurum", "Company", "Kurum"),
    both("yakinlik", "Relationship", "Yakınlık"),
    both("Sicil", "Personnel Number", "Sicil"),
    both("gorev", "Job", "Görev"),
    both("calisan", "Employee", "Çalışan"),
    both("Notlar", "Note", "Notlar"),
    both("refereeden", "Referred By", "Refere Eden"),
    both("dosyano", "File Number", "Dosya No"),
    both("kisisel", "Personal", "Kişisel"),
    both("sehir", "City", "Şehir"),
    both("ulke", "Country", "Ülke"),
    turkishOnly("adres", "Adres"),
    turkishOnly("telefon", "Telefon"),
    turkishOnly("Not", "Not"),
    englishOnly("Boy", "Height"),
    englishOnly("Yenidoğan", "Newborn"),
};

}  // namespace

Rows card() {
  return kRows;
}

}  // namespace shell::topics
