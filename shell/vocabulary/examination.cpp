#include "shell/vocabulary/row_makers.h"
#include "shell/vocabulary/topics.h"

namespace shell::topics {
namespace {

constexpr Row kRows[] = {
    // The general page
    both("Muayene", "Examination", "Muayene"),
    both("Muayeneler", "Examinations", "Muayeneler"),
    both("muayenetarihleri", "Examination Dates", "Muayene Tarihleri"),
    both("muayenedokumu", "Examination Listing", "Muayene Dökümü"),
    unfinished("gunlukmuayeneler", "Günlük Muayeneler"),
    both("Tarihler", "Dates", "Tarihler"),
    both("sikayet", "Complain", "Şikayet"),
    both("Hikaye", "History", "Hikaye"),
    both("ozgecmis", "Past Illness", "Özgeçmiş"),
    both("soygecmis", "Family History", "Soygeçmiş"),
    both("nabiz", "Pulse", "Nabız"),
    both("Tansiyon", "Blood Pressure", "Tansiyon"),
    both("Sistol", "Systole", "Sistol"),
    both("Diastol", "Diastole", "Diastol"),
    both("ates", "Fever", "Ateş"),
    both("Kilo", "Weight", "Kilo"),
    both("boy", "Height", "Boy"),
    both("fizikmuayene", "Physical Examination", "Fizik Muayene"),
    both("FizikMuayene", "Physical Examination", "Fizik Muayene"),
    both("Tetkik", "Test", "Tetkik"),
    both("teshis", "Diagnosis", "Teşhis"),
    both("Tedavi", "Therapy", "Tedavi"),
    both("oneri", "Advice", "Öneri"),
    both("Kontrol", "Control", "Kontrol"),
    englishOnly("kontrol", "control"),
    both("ucret", "Fee", "Ücret"),
    both("Doktor", "Doctor", "Doktor"),
    untranslated("Epikriz", "Epikriz"),
    both("hastaliklar", "Diseases", "Hastalıklar"),
    both("Resim", "Picture", "Resim"),
    untranslated("Film", "Film"),
    both("olcumler", "Measurements", "Ölçümler"),
    both("radyolojiraporu", "Radiology Report", "Radyoloji Raporu"),

    // Prescriptions and laboratory tests
    both("recete", "Prescription", "Reçete"),
    both("ilac", "Drug", "İlaç"),
    untranslated("Prospektüs", "Prospektüs"),
    both("Doz", "Dose", "Doz"),
    both("Adet", "Quantity", "Adet"),
    untranslated("Test", "Test"),
    both("istem", "Request", "İstem"),
    both("Birim", "Unit", "Birim"),
    both("sonuc", "Result", "Sonuç"),
    both("Bilgi", "Information", "Bilgi"),
    untranslated("Normal", "Normal"),
    both("alcak", "Low", "Alçak"),
    both("yuksak", "High", "Yüksek"),
    both("testsonuclari", "Test Results", "Test Sonuçları"),
    both("testduzenle", "Edit Tests", "Test Düzenle"),
    both("testfiltrele", "Filter Tests", "Test Filtrele"),

    // Ear, nose and throat
    untranslated("oralkavite", "Oral Kavite"),
    untranslated("nazalkavite", "Nazal Kavite"),
    untranslated("Otoskopi", "Otoskopi"),
    both("Boyun", "Neck", "Boyun"),

    // Gynaecology
    both("medenidurum", "Marital Status", "Medeni Durum"),
    both("Bekar", "Single", "Bekar"),
    both("Evli", "Married", "Evli"),
    both("bosanmis", "Divorced", "Boşanmış"),
    both("Dul", "Widowed", "Dul"),
    both("ilkadettarihi", "Menarche", "İlk Adet Tarihi"),
    both("sonadettarihi", "LMD", "Son Adet Tarihi"),
    both("Adetleri", "Periods", "Adetleri"),
    untranslated("Dismenore", "Dismenore"),
    both("Korunma", "Contraception", "Korunma"),
    both("vajinalakinti", "Vaginal Discharge", "Vajinal Akıntı"),
    untranslated("P", "P"),
    untranslated("G", "G"),
    untranslated("Y", "Y"),
    untranslated("A", "A"),
    untranslated("C", "C"),

    // The heart
    untranslated("EKG", "EKG"),
    untranslated("Tele", "Tele"),
    both("riskfaktorleri", "Risk Factors", "Risk Faktörleri"),
    untranslated("Hipertansiyon", "Hipertansiyon"),
    untranslated("Diabetes Mellitus", "Diabetes Mellitus"),
    untranslated("Hiperlipemi", "Hiperlipemi"),
    both("Stres", "Stress", "Stres"),
    untranslated("ailehikayesi", "Aile Hikayesi"),

    // Operations
    both("Ameliyat", "Operation", "Ameliyat"),
    both("Ameliyatlar", "Operations", "Ameliyatlar"),
    both("Asistan", "Assistant", "Asistan"),
    untranslated("Anestezist", "Anestezist"),
    both("hemsire", "Nurse", "Hemşire"),
    both("Hastane", "Hospital", "Hastane"),
    untranslated("ontani", "Ön Tanı"),
    untranslated("anestezisekli", "Anestezi Şekli"),
    untranslated("ameliyatnotu", "Ameliyat Notu"),
    untranslated("HistoPatoloji", "Histopatoloji"),
    untranslated("Komplikasyon", "Komplikasyon"),
    untranslated("ameliyatdokumu", "Ameliyat Dökümü"),
};

}  // namespace

Rows examination() {
  return kRows;
}

}  // namespace shell::topics
